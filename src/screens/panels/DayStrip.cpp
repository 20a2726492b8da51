#include "screens/panels/DayStrip.h"

#include "screens/panels/Shades.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
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
}

void DayStrip::SetGames(const QStringList& words)
{
    games = words;
    update();
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

void DayStrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    for (int day = minimum(); day <= maximum(); ++day)
        if (CellOf(day).contains(event->position().toPoint()))
            setValue(day);
}

// The wheel over the days is more often a slip than a wish.
void DayStrip::wheelEvent(QWheelEvent* event) { event->ignore(); }

void DayStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (int day = 1; day <= Days; ++day) {
        const bool isChosen = day == value();
        const bool isOpen = isEnabled() && day <= maximum();
        QStyleOptionButton cell;
        cell.initFrom(this);
        cell.rect = CellOf(day);
        cell.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver | QStyle::State_Enabled);
        if (isOpen)
            cell.state |= QStyle::State_Enabled;
        cell.state |= isChosen ? QStyle::State_On | QStyle::State_Sunken : QStyle::State_Off | QStyle::State_Raised;
        style()->drawControl(QStyle::CE_PushButtonBevel, &cell, &painter, this);

        const auto group = isOpen ? QPalette::Active : QPalette::Disabled;
        const QColor words = palette().color(isOpen || isChosen ? QPalette::Active : group, QPalette::ButtonText);
        const QColor ground = palette().color(QPalette::Active, QPalette::Button);
        const int line = fontMetrics().lineSpacing();
        QRect area(cell.rect.left(), (height() - 2 * line) / 2, cell.rect.width(), line);
        painter.setFont(isChosen ? HeadingFont(font()) : font());
        painter.setPen(words);
        painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, QString::number(day));
        painter.setFont(font());
        painter.setPen(isOpen ? Muted(words, ground) : words);
        painter.drawText(area.translated(0, line), Qt::AlignCenter | Qt::TextSingleLine, games.value(day - 1));
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
