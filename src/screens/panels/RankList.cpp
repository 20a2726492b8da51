#include "screens/panels/RankList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace dravik {

void RankList::mousePressEvent(QMouseEvent* event)
{
    EntryList::mousePressEvent(event);
    EndDrag();
    pressedPoint = event->position().toPoint();
    const QListWidgetItem* pressed = event->button() == Qt::LeftButton ? itemAt(pressedPoint) : nullptr;
    pressedRow = pressed == nullptr ? -1 : row(pressed);
}

// The base would choose whatever the pressed mouse passes.
void RankList::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) == 0) {
        EntryList::mouseMoveEvent(event);
        return;
    }
    if (pressedRow < 0) // nobody was pressed, or Escape ended the drag
        return;
    const QPoint point = event->position().toPoint();
    if (!dragging) {
        if ((point - pressedPoint).manhattanLength() < QApplication::startDragDistance())
            return;
        dragging = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    place = EntriesAbove(point);
    startAutoScroll();
    viewport()->update();
}

void RankList::mouseReleaseEvent(QMouseEvent* event)
{
    EntryList::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    const int from = pressedRow;
    const int above = dragging ? EntriesAbove(event->position().toPoint()) : -1;
    EndDrag();
    const int to = above > from ? above - 1 : above;
    if (above >= 0 && from < count() && to != from)
        emit Dropped(from, to);
}

void RankList::keyPressEvent(QKeyEvent* event)
{
    if (dragging && event->key() == Qt::Key_Escape)
        EndDrag();
    else
        EntryList::keyPressEvent(event);
}

void RankList::paintEvent(QPaintEvent* event)
{
    EntryList::paintEvent(event);
    if (place < 0 || count() == 0)
        return;
    constexpr int thickness = 2;
    const bool isLast = place >= count();
    const QRect entry = visualItemRect(item(isLast ? count() - 1 : place));
    const int top = isLast ? entry.bottom() : entry.top();
    QPainter painter(viewport());
    painter.fillRect(QRect(0, std::max(0, top - thickness / 2), viewport()->width(), thickness),
                     palette().color(QPalette::Highlight));
}

int RankList::EntriesAbove(const QPoint& point) const
{
    if (!viewport()->rect().contains(point))
        return -1;
    const QListWidgetItem* entry = itemAt(point);
    if (entry == nullptr)
        return count();
    return row(entry) + (point.y() > visualItemRect(entry).center().y() ? 1 : 0);
}

void RankList::EndDrag()
{
    pressedRow = -1;
    place = -1;
    if (!dragging)
        return;
    dragging = false;
    stopAutoScroll();
    viewport()->unsetCursor();
    viewport()->update();
}

} // namespace dravik
