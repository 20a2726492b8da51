#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace dravik {

// A drag of an entry of a list with the mouse, step by step. The pointer stays with the list that was pressed, wherever it
// goes, as it does while a button is down.
class EntryDragging {
public:
    // Presses the entry `row` and moves off far enough for a drag.
    EntryDragging(QAbstractItemView* pressed, int row) : list(pressed)
    {
        const QModelIndex entry = list->model()->index(row, 0);
        list->scrollTo(entry);
        const QPoint from = list->visualRect(entry).center();
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, from);
        Send(list->viewport()->mapToGlobal(from + QPoint(1, 0)));
        Send(list->viewport()->mapToGlobal(from + QPoint(2 * QApplication::startDragDistance(), 0)));
    }

    void MoveTo(const QWidget* widget) { MoveTo(widget, widget->rect().center()); }
    void MoveTo(const QWidget* widget, const QPoint& point)
    {
        pointer = widget->mapToGlobal(point);
        Send(pointer);
    }
    void LetGo()
    {
        // As it was pressed: an event that is merely sent would leave the button down for every later test.
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, list->viewport()->mapFromGlobal(pointer));
        QApplication::processEvents();
    }

private:
    void Send(const QPoint& global)
    {
        QMouseEvent event(QEvent::MouseMove, list->viewport()->mapFromGlobal(QPointF(global)), QPointF(global),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list->viewport(), &event);
    }

    QAbstractItemView* list;
    QPoint pointer;
};

// Drags the entry `row` of a list onto the middle of `target`.
inline void DragEntry(QAbstractItemView* list, int row, const QWidget* target)
{
    EntryDragging drag(list, row);
    drag.MoveTo(target);
    drag.LetGo();
}

// A drag from slot to slot with the mouse; it may stay in the air.
inline void DragSlot(QWidget* from, QWidget* to, bool letGo = true)
{
    const QPoint start = from->rect().center();
    const auto send = [&](QEvent::Type type, const QPoint& global, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, from->mapFromGlobal(QPointF(global)), QPointF(global), button, buttons, {});
        QApplication::sendEvent(from, &event);
    };
    send(QEvent::MouseButtonPress, from->mapToGlobal(start), Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, from->mapToGlobal(start + QPoint(2 * QApplication::startDragDistance(), 0)), Qt::NoButton,
         Qt::LeftButton);
    const QPoint end = to->mapToGlobal(to->rect().center());
    send(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton);
    if (letGo)
        send(QEvent::MouseButtonRelease, end, Qt::LeftButton, Qt::NoButton);
    QApplication::processEvents();
}

} // namespace dravik
