#include "OnTeamScreen.h"
#include "session/OpenHistory.h"
#include "support/Routines.h"

#include <QMenu>

// The command that takes the line-ups alone of a lines file.
namespace dravik {
namespace {

class TakeLinesCommand : public OnTeamScreen {
protected:
    void SaveAFile()
    {
        Own().ProLines[1].PullGoalerMinPct = 42;
        Own().Farm.FarmLines[1].PullGoalerMinPct = 43;
        ASSERT_TRUE(WriteLinesFile(OwnNumber(), path));
        Own().ProLines[1].PullGoalerMinPct = 0;
        Own().Farm.FarmLines[1].PullGoalerMinPct = 0;
        Own().Cash = 4711;
    }
    void Take(const char* which)
    {
        Click(Office().findChild<QPushButton*>("cmdTakeLines"));
        auto* action = Office().findChild<QAction*>(which);
        ASSERT_NE(action, nullptr);
        auto* menu = qobject_cast<QMenu*>(action->parent());
        ASSERT_NE(menu, nullptr);
        EXPECT_TRUE(menu->isVisible());
        menu->hide();
        action->trigger();
        Settle();
    }

    std::string path = Machine.InFolder("Other.dvl");
};

TEST_F(TakeLinesCommand, IsOneStepThatLeavesTheRestOfTheTeam)
{
    (void)Office();
    SaveAFile();
    Machine.Choose(path);
    Take("mnuTakeBoth");
    EXPECT_EQ(Own().ProLines[1].PullGoalerMinPct, 42);
    EXPECT_EQ(Own().Farm.FarmLines[1].PullGoalerMinPct, 43);
    EXPECT_EQ(Own().Cash, 4711);
    const auto boxes = Machine.TakeBoxes();
    ASSERT_FALSE(boxes.empty());
    EXPECT_EQ(boxes[0].Text, "Lines for " + Own().Name.Trimmed() + " successfully load from\r\n" + path);
    ASSERT_NE(OpenHistory().ToUndo(), nullptr);
    EXPECT_EQ(OpenHistory().ToUndo()->Label.Words, "Take Lines");
    OpenHistory().Undo();
    EXPECT_EQ(Own().ProLines[1].PullGoalerMinPct, 0);
    EXPECT_EQ(OpenHistory().ToUndo(), nullptr);
}

TEST_F(TakeLinesCommand, OneSideAlone)
{
    (void)Office();
    SaveAFile();
    Machine.Choose(path);
    Take("mnuTakeFarm");
    EXPECT_FALSE(Machine.TakeBoxes().empty());
    EXPECT_EQ(Own().ProLines[1].PullGoalerMinPct, 0);
    EXPECT_EQ(Own().Farm.FarmLines[1].PullGoalerMinPct, 43);
}

TEST_F(TakeLinesCommand, ACancelledDialogChangesNothing)
{
    (void)Office();
    SaveAFile();
    Take("mnuTakeBoth");
    EXPECT_EQ(Own().ProLines[1].PullGoalerMinPct, 0);
    EXPECT_EQ(OpenHistory().ToUndo(), nullptr);
    EXPECT_EQ(Machine.Dialogs().size(), 1U);
}

} // namespace
} // namespace dravik
