#include "screens/panels/QuietLines.h"

#include "screens/panels/Layouts.h"
#include "screens/panels/Shades.h"

#include <QPainter>

namespace dravik {

namespace {

struct Kind {
    QuietLine Line;
    const char* Name;
};

constexpr Kind Kinds[] = {
    {QuietLine::SettingsSetAside, "lblSettingsSetAside"},
    {QuietLine::SettingsUnwritten, "lblSettingsUnwritten"},
    {QuietLine::Damaged, "lblDamaged"},
    {QuietLine::UnsavedWork, "lblUnsavedWork"},
    {QuietLine::JournalUnwritten, "lblJournalUnwritten"},
    {QuietLine::SamplePasswords, "lblSamplePasswords"},
};

// One line of muted words. Its text stays whole; what is painted of it ends where the window ends.
class QuietLabel : public QLabel {
public:
    explicit QuietLabel(QWidget* parent) : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        hide();
    }

    void Say(const QString& words)
    {
        setText(words);
        setAccessibleName(words);
        SetTip();
        setVisible(!words.isEmpty());
    }

    // Long words widen no window.
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(MutedText(palette()));
        const auto flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
        painter.drawText(contentsRect(), flags | Qt::TextSingleLine, Painted());
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QLabel::resizeEvent(event);
        SetTip();
    }

private:
    [[nodiscard]] QString Painted() const
    {
        return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    }

    void SetTip() { setToolTip(Painted() == text() ? QString() : Qt::convertFromPlainText(text())); }
};

} // namespace

QuietLines::QuietLines(QWidget* parent) : QWidget(parent)
{
    setObjectName("quietLines");
    QVBoxLayout* column = MakeColumn(this, Gap / 2);
    for (const Kind& kind : Kinds) {
        auto* label = new QuietLabel(this);
        label->setObjectName(kind.Name);
        auto* row = new QWidget(this);
        auto* words = new QHBoxLayout(row);
        words->setContentsMargins(0, 0, 0, 0);
        words->setSpacing(Gap);
        words->addWidget(label, 1);
        row->hide();
        column->addWidget(row);
        labels.push_back(label);
        rows.push_back(row);
    }
    hide();
}

void QuietLines::Tell(QuietLine line, const QString& text)
{
    bool any = false;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (Kinds[i].Line == line) {
            static_cast<QuietLabel*>(labels[i])->Say(text);
            rows[i]->setVisible(!text.isEmpty());
        }
        any = any || !labels[i]->text().isEmpty();
    }
    setVisible(any);
}

void QuietLines::AddCommands(QuietLine line, const std::vector<QWidget*>& commands)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (Kinds[i].Line == line)
            for (QWidget* command : commands)
                rows[i]->layout()->addWidget(command);
}

} // namespace dravik
