#pragma once

#include "screens/panels/EntryList.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QWindow>

namespace dravik {

// The menu that the right button brings up on an entry, as the desktop hands the press to the window; none where there is none.
inline QMenu* MenuByMouse(EntryList& list, int row)
{
    list.scrollToItem(list.item(row));
    const QPoint middle = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.window()->windowHandle(), Qt::RightButton, {},
                      list.viewport()->mapTo(list.window(), middle));
    QApplication::processEvents();
    return list.findChild<QMenu*>("mnuPerson");
}

// The one that the key of menus brings up on the current entry.
inline QMenu* MenuByKey(EntryList& list)
{
    list.setFocus();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, list.mapToGlobal(QPoint()));
    QApplication::sendEvent(&list, &asked);
    return list.findChild<QMenu*>("mnuPerson");
}

// Presses an item of such a menu, which is gone then.
inline void PressItem(QMenu& menu, const char* name)
{
    auto* item = menu.findChild<QAction*>(name);
    ASSERT_NE(item, nullptr);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(item).center());
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace dravik
