#include "Dragging.h"
#include "OnLineScreen.h"

#include <cstring>
#include <functional>
#include <QMouseEvent>
#include <QTabBar>

namespace dravik {
namespace {

class EndedDrag : public OnLineScreen {
protected:
    // What follows the pointer through a window while somebody is dragged.
    static int Ghosts(const QWidget& window)
    {
        int ghosts = 0;
        for (const auto* label : window.findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
            ghosts += label->testAttribute(Qt::WA_TransparentForMouseEvents) ? 1 : 0;
        return ghosts;
    }
};

TEST_F(EndedDrag, WhateverEndsADragLeavesNothingOfItAndDropsNobody)
{
    auto& screen = Opened<frmLine>("Line");
    const Lines start = ProDay();
    PickList* list = screen.lstPlayer;
    SlotLabel* target = SlotOn(screen, LineField::NormalForward, 1, 1);
    const QPoint point = list->visualItemRect(list->item(1)).center();
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"a move without a button",
         [&] {
             const QPoint global = list->viewport()->mapToGlobal(point);
             QMouseEvent move(QEvent::MouseMove, QPointF(point), QPointF(global), Qt::NoButton, Qt::NoButton, {});
             QApplication::sendEvent(list->viewport(), &move);
         }},
        {"Escape", [&] { QTest::keyClick(list, Qt::Key_Escape); }},
        {"another press",
         [&] {
             QTest::mousePress(list->viewport(), Qt::RightButton, {}, point);
             // A button that stays down would be held in every later test too.
             QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, point);
         }},
        {"the focus elsewhere", [&] { screen.TabLine->tabBar()->setFocus(); }},
        {"the list out of sight", [&] { list->hide(); }},
    };
    for (const auto& [name, end] : ways) {
        list->show();
        list->setFocus();
        Settle();
        EntryDragging drag(list, 2);
        drag.MoveTo(target);
        ASSERT_TRUE(target->IsDropTarget()) << name;
        ASSERT_EQ(Ghosts(screen), 1) << name;
        end();
        EXPECT_FALSE(target->IsDropTarget()) << name;
        EXPECT_EQ(Ghosts(screen), 0) << name;
        EXPECT_FALSE(list->viewport()->testAttribute(Qt::WA_SetCursor)) << name;
        drag.LetGo();
        EXPECT_EQ(std::memcmp(&ProDay(), &start, sizeof start), 0) << name;
    }
}

} // namespace
} // namespace dravik
