#include "screens/panels/DayStrip.h"

#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/panels/VerdictSigns.h"

#include <algorithm>
#include <QAccessible>
#include <QHelpEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

namespace dravik {

namespace {

constexpr int CellGap = 4;
constexpr int CellPadding = 8; // above and below the words together

} // namespace

DayStrip::DayStrip(QWidget* parent) : QAbstractSlider(parent)
{
    setOrientation(Qt::Horizontal);
    setRange(1, Days);
    setSingleStep(1);
    setPageStep(1);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractSlider::valueChanged, this, &DayStrip::TellOfWords);
}

void DayStrip::SetGames(const QStringList& words)
{
    games = words;
    TellOfWords();
    update();
}

void DayStrip::SetSigns(const QList<DaySign>& all)
{
    if (signs == all)
        return;
    signs = all;
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
    update();
}

QString DayStrip::WordsOfDay(int day, bool withFindings) const
{
    QString words = QString("Day %1").arg(day);
    if (!games.value(day - 1).isEmpty())
        words += ", " + games[day - 1];
    const DaySign sign = signs.value(day - 1);
    switch (sign.Shows) {
    case DaySign::Kind::None:
        return words;
    case DaySign::Kind::Good:
        words += ": complete";
        break;
    case DaySign::Kind::Findings:
        words += sign.Count == 1 ? ": 1 finding" : QString(": %1 findings").arg(sign.Count);
        break;
    case DaySign::Kind::Unjudged:
        words += ": cannot be judged";
        break;
    }
    return withFindings && !sign.Words.isEmpty() ? words + '\n' + sign.Words : words;
}

QString DayStrip::WordsOfAllDays() const
{
    QStringList words;
    for (int day = 1; day <= signs.size(); ++day)
        words << WordsOfDay(day, true).replace('\n', ' ');
    return words.join("; ");
}

void DayStrip::SetVerdict(const QString& words)
{
    if (verdict == words)
        return;
    verdict = words;
    TellOfWords();
}

QString DayStrip::InWords() const
{
    QStringList words{QString("%1 %2").arg(accessibleName()).arg(value())};
    for (const QString& more : {games.value(value() - 1), verdict})
        if (!more.isEmpty())
            words << more;
    return words.join(", ");
}

void DayStrip::TellOfWords()
{
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

QRect DayStrip::CellOf(int day) const
{
    const auto edge = [this](int index) { return index * (width() + CellGap) / Days; };
    return QRect(edge(day - 1), 0, edge(day) - edge(day - 1) - CellGap, height());
}

QSize DayStrip::sizeHint() const
{
    const int cell = fontMetrics().horizontalAdvance("vs WWW") + CellPadding;
    return {Days * (cell + CellGap), 2 * fontMetrics().lineSpacing() + CellPadding};
}

QSize DayStrip::minimumSizeHint() const { return sizeHint(); }

int DayStrip::DayAt(const QPoint& point) const
{
    for (int day = 1; day <= Days; ++day)
        if (CellOf(day).contains(point))
            return day;
    return 0;
}

void DayStrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int day = DayAt(event->position().toPoint());
    if (day >= minimum() && day <= maximum())
        setValue(day);
}

bool DayStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractSlider::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int day = DayAt(help->pos());
    const QString words = day == 0 || signs.isEmpty() ? QString() : WordsOfDay(day, true);
    // A text of several lines breaks where they end.
    QToolTip::showText(help->globalPos(), words.isEmpty() ? words : Qt::convertFromPlainText(words), this,
                       day == 0 ? QRect() : CellOf(day));
    return true;
}

// The wheel over the days is more often a slip than a wish.
void DayStrip::wheelEvent(QWheelEvent* event) { event->ignore(); }

QStyleOptionButton DayStrip::OptionOf(int day) const
{
    QStyleOptionButton cell;
    cell.initFrom(this);
    cell.rect = CellOf(day);
    cell.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver | QStyle::State_Enabled);
    if (IsOpen(day))
        cell.state |= QStyle::State_Enabled;
    cell.state |= day == value() ? QStyle::State_On | QStyle::State_Sunken : QStyle::State_Off | QStyle::State_Raised;
    return cell;
}

// The style shades a button as it likes, so what stands on it is mixed from what it paints.
QColor DayStrip::SecondaryOn(int day, const QColor& words) const
{
    constexpr int width = 3; // of the middle of a button
    QStyleOptionButton cell = OptionOf(day);
    const QRect middle(cell.rect.width() / 2, CellPadding / 2, width, std::max(1, height() - CellPadding));
    cell.rect.moveTo(0, 0);
    QImage painted(cell.rect.size().expandedTo({1, 1}), QImage::Format_RGB32);
    painted.fill(palette().color(QPalette::Window));
    QPainter painter(&painted);
    style()->drawControl(QStyle::CE_PushButtonBevel, &cell, &painter, this);
    painter.end();
    return MutedOn(words, painted.copy(middle.intersected(painted.rect())));
}

void DayStrip::PaintSign(QPainter& painter, int day, const QRect& cell, const QColor& quiet) const
{
    const int side = fontMetrics().height();
    const QRectF area(cell.right() - side - CellPadding / 2, (height() - 2 * fontMetrics().lineSpacing()) / 2, side,
                      side);
    const QColor ground = palette().color(QPalette::Active, QPalette::Button);
    const DaySign sign = signs.value(day - 1);
    switch (sign.Shows) {
    case DaySign::Kind::None:
        break;
    case DaySign::Kind::Good:
        PaintTick(painter, area, quiet);
        break;
    case DaySign::Kind::Findings:
        PaintCount(painter, area, sign.Count, font(), ground);
        break;
    case DaySign::Kind::Unjudged:
        PaintWarningSign(painter, area, ground);
        break;
    }
}

void DayStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QColor words = palette().color(QPalette::Active, QPalette::ButtonText);
    for (int day = 1; day <= Days; ++day) {
        const bool isChosen = day == value();
        const QStyleOptionButton cell = OptionOf(day);
        style()->drawControl(QStyle::CE_PushButtonBevel, &cell, &painter, this);

        const QColor secondary = SecondaryOn(day, words);
        const int line = fontMetrics().lineSpacing();
        QRect area(cell.rect.left(), (height() - 2 * line) / 2, cell.rect.width(), line);
        painter.setFont(isChosen ? HeadingFont(font()) : font());
        painter.setPen(IsOpen(day) || isChosen ? words : secondary);
        painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, QString::number(day));
        painter.setFont(font());
        painter.setPen(secondary);
        painter.drawText(area.translated(0, line), Qt::AlignCenter | Qt::TextSingleLine, games.value(day - 1));
        PaintSign(painter, day, cell.rect, secondary);
        if (isChosen) {
            constexpr int thickness = 3;
            painter.fillRect(cell.rect.adjusted(2, cell.rect.height() - thickness - 1, -2, -1),
                             palette().color(hasFocus() ? QPalette::Active : QPalette::Inactive, QPalette::Highlight));
        }
        if (isChosen && hasFocus()) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = cell.rect.adjusted(3, 3, -3, -3);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
        }
    }
}

} // namespace dravik
