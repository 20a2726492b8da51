#include "screens/team/EveningRows.h"

#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/VerdictSigns.h"
#include "screens/platform/CodePage.h"

#include <algorithm>
#include <cmath>
#include <QKeyEvent>
#include <QPainter>
#include <QTextDocument>

namespace dravik {

namespace {

struct TaskRow {
    const char* Name;    // of its controls
    const char* Caption; // as the commands of the program call it
};
constexpr std::array<TaskRow, EveningTasks> Tasks{{{"Roster", "Roster"},
                                                   {"Lines", "Lines"},
                                                   {"FarmLines", "Farm Lines"},
                                                   {"Tickets", "Tickets && Arena"},
                                                   {"Offers", "Free Agents"},
                                                   {"Ranking", "Draft List"}}};

constexpr int SignColumn = 0;
constexpr int NameColumn = 1;
constexpr int WordsColumn = 2;
constexpr int OpenColumn = 3;

// The sign of a row, as high as its words.
class TaskSign : public QWidget {
public:
    explicit TaskSign(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); }

    void Show(EveningState newState, int newCount, bool unsaved)
    {
        state = newState;
        count = newCount;
        isUnsaved = unsaved;
        updateGeometry();
        update();
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const int side = Side();
        return {state == EveningState::Wrong ? static_cast<int>(std::ceil(CountWidth(side, count, font()))) : side,
                side};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor ground = palette().color(QPalette::Window);
        const QColor front = palette().color(QPalette::WindowText);
        const QRectF area = rect();
        if (state == EveningState::Wrong) {
            PaintCount(painter, area.adjusted(width() - Side(), 0, 0, 0), count, font(), ground);
        } else if (isUnsaved) {
            PaintUnsaved(painter, area, Cautioning(ground));
        } else if (state == EveningState::Done) {
            PaintTick(painter, area, palette().color(QPalette::Active, QPalette::Highlight));
        } else {
            painter.setPen(QPen(Muted(front, ground), 1.5));
            const double middle = area.center().y();
            painter.drawLine(QPointF(area.width() * 0.3, middle), QPointF(area.width() * 0.7, middle));
        }
    }

private:
    [[nodiscard]] int Side() const { return fontMetrics().height() + 2; }
    // A ring with an exclamation mark.
    static void PaintUnsaved(QPainter& painter, const QRectF& area, const QColor& colour)
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(area.width() / 16, area.height() / 16);
        painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
        painter.drawLine(QPointF(8, 4.8), QPointF(8, 8.6));
        painter.drawPoint(QPointF(8, 11.3));
    }

    EveningState state = EveningState::Empty;
    int count = 0;
    bool isUnsaved = false;
};

// What a sign says to a screen reader.
QString SignWords(EveningState state, bool isUnsaved)
{
    switch (state) {
    case EveningState::Wrong:
        return "Something is wrong";
    case EveningState::Done:
        return isUnsaved ? "Not saved" : "All is well";
    case EveningState::Empty:
        return isUnsaved ? "Not saved" : "Nothing yet";
    case EveningState::Closed:
        return "Closed";
    }
    return {};
}

} // namespace

EveningRows::EveningRows(const std::function<QPushButton*(EveningTask task, const QString& name)>& makeCommand,
                         QWidget* parent) :
    QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(Gap / 2);
    grid->setColumnStretch(WordsColumn, 1);
    for (std::size_t index = 0; index < EveningTasks; ++index) {
        const TaskRow& task = Tasks.at(index);
        Row& row = rows.at(index);
        const QString name(task.Name);
        const int line = static_cast<int>(index);
        row.Sign = new TaskSign(this);
        row.Sign->setObjectName("signEvening" + name);
        auto* caption = new QLabel(QString(task.Caption).replace("&&", "&"), this);
        caption->setObjectName("lblEvening" + name + "Caption");
        caption->setTextFormat(Qt::PlainText);
        row.Words = new MutedLabel(this);
        row.Words->setTextFormat(Qt::PlainText);
        row.Words->setObjectName("lblEvening" + name);
        row.SavedWords = new MutedLabel(this);
        row.SavedWords->setTextFormat(Qt::PlainText);
        row.SavedWords->setObjectName("lblEvening" + name + "Saved");
        row.Command = makeCommand(static_cast<EveningTask>(index), "cmdEvening" + name);
        row.Command->setFocusPolicy(Qt::ClickFocus);
        row.Command->installEventFilter(this);
        grid->addWidget(row.Sign, line, SignColumn);
        grid->addWidget(caption, line, NameColumn);
        QVBoxLayout* words = MakeColumn({row.Words, row.SavedWords}, 0);
        words->insertStretch(0, 1);
        words->addStretch(1);
        grid->addLayout(words, line, WordsColumn);
        grid->addWidget(row.Command, line, OpenColumn);
    }
}

void EveningRows::Enter()
{
    for (const Row& row : rows)
        if (row.Command->isEnabled()) {
            row.Command->setFocus(Qt::ShortcutFocusReason);
            return;
        }
}

bool EveningRows::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    const auto here = std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.Command == watched; });
    const int step = key == Qt::Key_Down ? 1 : -1;
    for (auto at = static_cast<int>(here - rows.begin()) + step; at >= 0 && at < static_cast<int>(EveningTasks);
         at += step)
        if (QPushButton* command = rows.at(static_cast<std::size_t>(at)).Command; command->isEnabled()) {
            command->setFocus(Qt::OtherFocusReason);
            break;
        }
    return true;
}

void EveningRows::Show(const EveningItem& item, const Saved& saved)
{
    const Row& row = rows.at(IndexOf(item.Task));
    const TaskRow& task = Tasks.at(IndexOf(item.Task));
    static_cast<TaskSign*>(row.Sign)->Show(item.State, item.Count, saved.IsUnsaved);
    row.Sign->setAccessibleName(SignWords(item.State, saved.IsUnsaved));
    row.Words->setText(ToQString(item.Words));
    QStringList findings;
    for (const std::string& finding : item.Findings)
        findings << ToQString(finding);
    row.Words->setToolTip(findings.isEmpty() ? QString() : Qt::convertFromPlainText(findings.join('\n')));
    row.SavedWords->setText(saved.Words);
    row.SavedWords->setVisible(!saved.Words.isEmpty());
    row.Command->setEnabled(item.State != EveningState::Closed);
    // Closed by the league, as the words beside it say.
    row.Command->setToolTip(row.Command->isEnabled() ? QString() : Qt::convertFromPlainText(row.Words->text()));
    const QString name = QString(task.Caption).replace("&&", "&");
    row.Command->setAccessibleName("Open " + name);
    QStringList description{SignWords(item.State, saved.IsUnsaved), ToQString(item.Words), saved.Words};
    description << findings;
    description.removeAll(QString());
    row.Command->setAccessibleDescription(description.join(", "));
}

} // namespace dravik
