#include "screens/lines/AdviceList.h"

#include "screens/panels/ElidedLabel.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"

#include <algorithm>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>

namespace dravik {

namespace {

constexpr int MostRows = 3;  // shown at once where there is room
constexpr int RowMargin = 6; // of a row's height above that of its words

int RowHeight(const QFontMetrics& metrics) { return metrics.height() + RowMargin; }

// The sign of a piece of advice: a ring with an exclamation mark, in the accent's colour, as high as the words.
class AdviceSign : public QWidget {
public:
    explicit AdviceSign(QWidget* parent) : QWidget(parent)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        setAccessibleName("Advice");
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const int side = fontMetrics().height();
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(width() / 16.0, height() / 16.0);
        painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), 1.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
        painter.drawLine(QPointF(8, 4.8), QPointF(8, 8.6));
        painter.drawPoint(QPointF(8, 11.3));
    }
};

// Asks for the height of some rows and is content with one.
class RowArea : public QScrollArea {
public:
    explicit RowArea(QWidget* parent) : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {minimumSizeHint().width(), MostRows * RowHeight(fontMetrics())};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, RowHeight(fontMetrics())}; }
};

} // namespace

AdviceList::AdviceList(QPushButton* fold, std::function<QPushButton*(int row)> makeCommand, QWidget* parent) :
    QWidget(parent), cmdFold(fold), make(std::move(makeCommand)), lblCount(new MutedLabel(this)),
    area(new RowArea(this)), lblNothing(new MutedLabel("No advice on these lines.", this))
{
    setObjectName("advice");
    setAccessibleName("Advice");
    lblCount->setObjectName("lblAdviceCount");
    lblNothing->setObjectName("lblNoAdvice");
    cmdFold->setFlat(true);
    QLabel* heading = MakeHeading("Advice", this);
    heading->setObjectName("lblAdvice");

    QVBoxLayout* column = MakeColumn(this, 0);
    QHBoxLayout* head = MakeRow({heading, lblCount});
    head->addStretch(1);
    head->addWidget(cmdFold);
    column->addLayout(head);
    auto* list = new QWidget(area);
    QVBoxLayout* pieces = MakeColumn(list, 0);
    pieces->addWidget(lblNothing);
    pieces->addStretch(1);
    area->setWidget(list);
    column->addWidget(area);
    FitRows();
    ShowHeading();
}

void AdviceList::Tell(const QList<AdviceEntry>& entries)
{
    count = entries.size();
    while (static_cast<qsizetype>(rows.size()) < count)
        AddRow();
    for (qsizetype i = 0; i < static_cast<qsizetype>(rows.size()); ++i) {
        const Row& row = rows[static_cast<std::size_t>(i)];
        const bool isUsed = i < count;
        if (isUsed) {
            const AdviceEntry& entry = entries[i];
            row.Words->setText(entry.Words);
            row.Command->setText(entry.Caption);
            row.Command->setToolTip(Qt::convertFromPlainText(entry.Deed));
            row.Command->setAccessibleName(entry.Deed);
            row.Command->setAccessibleDescription(entry.Words);
        }
        row.Command->setEnabled(isUsed);
        row.Panel->setVisible(isUsed);
    }
    lblNothing->setVisible(count == 0);
    ShowHeading();
}

void AdviceList::SetFolded(bool folded)
{
    isFolded = folded;
    area->setVisible(!folded);
    ShowHeading();
}

void AdviceList::ShowHeading()
{
    lblCount->setText(!isFolded ? QString() : count == 1 ? QString("1 piece") : QString("%1 pieces").arg(count));
    cmdFold->setText(isFolded ? QString("Unfold ") + QChar(0x25BE) : QString("Fold ") + QChar(0x25B4));
    cmdFold->setAccessibleName(isFolded ? "Unfold Advice" : "Fold Advice");
}

void AdviceList::AddRow()
{
    QWidget* list = area->widget();
    Row row{.Panel = new QWidget(list),
            .Words = new ElidedLabel(list, ElidedLabel::Words::Muted),
            .Command = make(static_cast<int>(rows.size()))};
    row.Words->setObjectName(QString("lblAdvice(%1)").arg(rows.size()));
    row.Command->installEventFilter(this);
    auto* line = new QHBoxLayout(row.Panel);
    line->setContentsMargins(0, 0, Gap, 0);
    line->setSpacing(Gap);
    line->addWidget(new AdviceSign(row.Panel));
    line->addWidget(row.Words, 1);
    line->addWidget(row.Command);
    auto* pieces = static_cast<QVBoxLayout*>(list->layout());
    pieces->insertWidget(static_cast<int>(rows.size()), row.Panel);
    setTabOrder(rows.empty() ? cmdFold : rows.back().Command, row.Command);
    rows.push_back(row);
    FitRows();
}

void AdviceList::FitRows()
{
    const int height = RowHeight(fontMetrics());
    for (const Row& row : rows) {
        row.Panel->setFixedHeight(height);
        row.Command->setFixedHeight(height);
    }
    cmdFold->setFixedHeight(height);
}

bool AdviceList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    }
    if (event->type() == QEvent::FocusIn)
        area->ensureWidgetVisible(static_cast<QWidget*>(watched), 0, 0);
    return QWidget::eventFilter(watched, event);
}

void AdviceList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitRows();
}

} // namespace dravik
