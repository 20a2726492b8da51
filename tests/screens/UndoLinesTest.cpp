// What is undone and done again on the lines screens.

#include "desk/FirstDay.h"
#include "OnHistory.h"
#include "OnLineScreen.h"
#include "session/OpenHistory.h"
#include "session/OpenLeagueClient.h"
#include "session/OpenMarket.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UndoLines : public OnLineScreen {
protected:
    const Box MayWipe{box::YesNo, "Are you sure you want to wipe your lines?"};

    void Wipe(LinesScreen& screen)
    {
        Machine.Answer(button::Yes);
        Click(screen.cmdWipeLines);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(MayWipe));
    }
};

TEST_F(UndoLines, AWipedDayComesBackAndGoesAgain)
{
    frmLine& line = Line();
    const auto before = AllTables();
    const QString slot = SlotOn(line, LineField::NormalForward, 1)->text();
    ASSERT_FALSE(slot.isEmpty());
    EXPECT_EQ(UndoWords(line), "");
    Wipe(line);
    const auto wiped = AllTables();
    ASSERT_FALSE(before == wiped);
    EXPECT_EQ(UndoWords(line), "Undo: Wipe Lines, day 1");
    EXPECT_EQ(RedoWords(line), "");

    Undo(line);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(SlotOn(line, LineField::NormalForward, 1)->text(), slot);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
    EXPECT_EQ(UndoWords(line), "");
    EXPECT_EQ(RedoWords(line), "Redo: Wipe Lines, day 1");
    EXPECT_EQ(HistoryTold(), "Undone: Wipe Lines, day 1");

    Redo(line);
    EXPECT_TRUE(AllTables() == wiped);
    EXPECT_EQ(SlotOn(line, LineField::NormalForward, 1)->text(), "");
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_EQ(HistoryTold(), "Done again: Wipe Lines, day 1");

    Undo(line);
    PressScreenKey(line, Qt::Key_Y);
    EXPECT_TRUE(AllTables() == wiped);
    Click(HistoryCommand(line, "cmdUndo"));
    EXPECT_TRUE(AllTables() == before);
    Click(HistoryCommand(line, "cmdRedo"));
    EXPECT_TRUE(AllTables() == wiped);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(UndoLines, TheTooltipsSayTheKeys)
{
    frmLine& line = Line();
    Wipe(line);
    EXPECT_EQ(Plain(HistoryCommand(line, "cmdUndo")->toolTip()), "Undo: Wipe Lines, day 1 (Ctrl+Z)");
    EXPECT_EQ(Plain(HistoryCommand(line, "cmdRedo")->toolTip()), "Nothing to redo (Ctrl+Shift+Z)");
}

TEST_F(UndoLines, APressOnASlotIsAStepAndOnePressThatChangesNothingIsNone)
{
    frmLine& line = Line();
    const auto before = AllTables();
    const int center = Pro.Skaters[0];
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 2);
    Pick(line, center, static_cast<int>(Players[center].Position));
    ClickOn(line, slot);
    const auto placed = AllTables();
    ASSERT_FALSE(placed == before);
    const std::string name = Players[center].Name.Trimmed();
    EXPECT_EQ(UndoWords(line), "Undo: Place " + name + ", " + slot->Where().toStdString() + ", day 1");
    ClickOn(line, slot);
    Undo(line);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(UndoWords(line), "");
}

TEST_F(UndoLines, ShowingADayThatWasPutBackRepairsNothing)
{
    ProDay(1).NormalForward(4, 1) = 0;
    frmLine& line = Line();
    const auto before = AllTables();
    Click(line.cmdAutoLines);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Information, "Auto Lines Function has been run successfully."}));
    ASSERT_FALSE(AllTables() == before);
    // A judge takes somebody unfit out of every line as it looks at him.
    Players[Pro.Skaters[3]].Condition = 50;
    Undo(line);
    EXPECT_TRUE(AllTables() == before) << "what changed behind the step belongs to it";
}

TEST_F(UndoLines, CopiesAndMakersAndStrategyAndPullAreSteps)
{
    PutGames(10);
    frmLine& line = Line();
    const auto before = AllTables();
    Click(line.cmdCopyAll);
    EXPECT_EQ(Machine.TakeBoxes().size(), 2U) << "the question, and the report";
    EXPECT_EQ(UndoWords(line), "Undo: Copy To All Days, day 1");
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    line.hscStats[1]->setFocus();
    Press(line.hscStats[1], Qt::Key_Right);
    EXPECT_EQ(ProDay(1).Strategy[1], 1);
    EXPECT_EQ(UndoWords(line), "Undo: Change Defense Style, day 1");
    TypeInto(line.txtPullGoalerMinGoal, "7");
    Press(line.txtPullGoalerMinGoal, Qt::Key_Tab);
    EXPECT_EQ(UndoWords(line), "Undo: Change Minimum # of Goals, day 1");
    line.lstPlayer->setFocus();
    Undo(line);
    EXPECT_EQ(line.txtPullGoalerMinGoal->text(), "0");
    Undo(line);
    EXPECT_EQ(line.hscStats[1]->value(), 0);
    Undo(line);
    EXPECT_TRUE(AllTables() == before);
    for (int step = 1; step <= 3; ++step)
        Redo(line);
    EXPECT_EQ(ProDay(10).Strategy[1], 0);
    EXPECT_EQ(ProDay(1).Strategy[1], 1);
    EXPECT_EQ(line.hscStats[1]->value(), 1);
    EXPECT_EQ(line.txtPullGoalerMinGoal->text(), "7");
}

TEST_F(UndoLines, OnePullAtABarIsOneStep)
{
    frmLine& line = Line();
    const auto before = AllTables();
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    QScrollBar* bar = line.hscStats[0];
    for (const bool back : {false, true}) {
        bar->setSliderDown(true);
        for (const int value : {1, 2, 3})
            bar->setValue(back ? 3 - value : value);
        bar->setSliderDown(false);
    }
    EXPECT_EQ(ProDay().Strategy[0], 0);
    Undo(line);
    EXPECT_EQ(ProDay().Strategy[0], 3);
    Undo(line);
    EXPECT_EQ(ProDay().Strategy[0], 0);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(UndoWords(line), "");
}

TEST_F(UndoLines, ATextBoxKeepsItsOwnKey)
{
    frmLine& line = Line();
    Wipe(line);
    const auto wiped = AllTables();
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    TypeInto(line.txtPullGoalerMinGoal, "12");
    PressScreenKey(line, Qt::Key_Z);
    EXPECT_NE(line.txtPullGoalerMinGoal->text(), "12") << "the text is what the key takes back there";
    EXPECT_TRUE(AllTables() == wiped);
}

TEST_F(UndoLines, NothingIsUndoneWhileABoxIsUp)
{
    frmLine& line = Line();
    Wipe(line);
    const auto wiped = AllTables();
    bool asked = false;
    Machine.OnEvent = [&](const std::string& event) {
        asked = asked || event == "box";
        HistoryCommand(line, "cmdUndo")->click();
    };
    Machine.Answer(button::No);
    Click(line.cmdWipeLines);
    Machine.OnEvent = nullptr;
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(MayWipe));
    EXPECT_TRUE(asked);
    EXPECT_TRUE(AllTables() == wiped);
    EXPECT_EQ(UndoWords(line), "Undo: Wipe Lines, day 1");
}

TEST_F(UndoLines, WhatWasDoneElsewhereIsUndoneHereAndSaysWhere)
{
    frmLine& line = Line();
    Wipe(line);
    Click(line.cmdExit);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, std::string(FirstDayWarning(Side::Pro))}));
    frmFarmLine& farm = FarmLine();
    EXPECT_EQ(UndoWords(farm), "Undo: Wipe Lines, day 1 (Lines)");
    Undo(farm);
    EXPECT_NE(ProDay().NormalForward(1, 1), 0);
    EXPECT_EQ(RedoWords(farm), "Redo: Wipe Lines, day 1 (Lines)");
}

TEST_F(UndoLines, ALeagueThatIsOpenedEndsIt)
{
    frmLine& line = Line();
    Wipe(line);
    ASSERT_NE(OpenHistory().ToUndo(), nullptr);
    OpenMarket().Offers[1].Salary = 900000;
    OpenMarket().Ranking[0] = 20001;
    OpenLeagueClient(Machine.InFolder("none.dvs"), Main());
    EXPECT_EQ(OpenHistory().ToUndo(), nullptr);
    EXPECT_EQ(OpenMarket().Offers[1].Salary, 0) << "nobody of the new league";
    EXPECT_EQ(OpenMarket().Ranking[0], 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Cannot find last client league file!"}));
}

} // namespace
} // namespace dravik
