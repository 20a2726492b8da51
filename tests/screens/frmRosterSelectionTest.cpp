#include "OnRosterScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmRosterSelectionTest : public OnRosterScreen {};

TEST_F(frmRosterSelectionTest, ClickChoosesThePersonAndEnablesTheMovesOfHisList)
{
    PutSeven();
    frmRoster& roster = Roster();
    const auto moves = [&] {
        return std::vector<bool>{roster.cmdToFarm->isEnabled(), roster.cmdToPro->isEnabled(),
                                 roster.cmdToScratchesFromPro->isEnabled(), roster.cmdToScratchesFromFarm->isEnabled()};
    };
    EXPECT_THAT(moves(), ElementsAre(false, false, false, false));
    ClickEntry(0, 1);
    EXPECT_EQ(SelectedPlayer, 5);
    EXPECT_THAT(moves(), ElementsAre(false, false, false, true));
    ClickEntry(1, 1);
    EXPECT_EQ(SelectedPlayer, 2);
    EXPECT_THAT(moves(), ElementsAre(true, true, false, false));
    ClickEntry(2, 1);
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_FALSE(SelectedIsGoalie);
    EXPECT_THAT(moves(), ElementsAre(false, false, true, false));
}

TEST_F(frmRosterSelectionTest, ClickOnAGoalieChoosesHimAsAGoalie)
{
    PutGoalie(3, 5, status::Scratch);
    ClickEntry(1, 0);
    EXPECT_EQ(SelectedPlayer, 3);
    EXPECT_TRUE(SelectedIsGoalie);
    EXPECT_EQ(Of(Roster().Stats->lblStat[0]), "G");
}

TEST_F(frmRosterSelectionTest, PositionLineTakesTheNameOfThePosition)
{
    PutSeven();
    const std::pair<std::pair<int, int>, std::string> expected[] = {
        {{1, 0}, "C"}, {{1, 1}, "LW"}, {{1, 2}, "RW"}, {{2, 1}, "D"}};
    for (const auto& [where, words] : expected) {
        ClickEntry(where.first, where.second);
        EXPECT_EQ(Of(Roster().Stats->lblStat[0]), words);
        EXPECT_EQ(Of(Roster().Stats->lblStatLabel[0]), "PO");
        EXPECT_TRUE(IsShown(Roster().Stats->lblStat[0]));
        EXPECT_TRUE(IsShown(Roster().Stats->lblStatLabel[0]));
    }
}

TEST_F(frmRosterSelectionTest, ClickDeselectsTheOtherListsButForTheirFirstEntry)
{
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 1, Qt::ControlModifier);
    ASSERT_THAT(ChosenRows(1), ElementsAre(0, 1));
    ClickEntry(2, 1);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0));
    EXPECT_EQ(Roster().lstPlayer[1]->currentRow(), -1);
    EXPECT_THAT(ChosenRows(2), ElementsAre(1));
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(frmRosterSelectionTest, ClickDoesNothingWhileEventsAreHeldBack)
{
    PutSeven();
    ClickEntry(1, 1);
    ListEventGuard = true;
    ClickEntry(2, 1);
    ListEventGuard = false;
    EXPECT_EQ(SelectedPlayer, 2);
    EXPECT_TRUE(Roster().cmdToFarm->isEnabled());
}

TEST_F(frmRosterSelectionTest, TwoChosenEntriesHideTheStatPanelWhileTheMovesOfTheListAreEnabled)
{
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 1, Qt::ControlModifier);
    frmRoster& roster = Roster();
    for (int row = 0; row <= 16; ++row) {
        EXPECT_FALSE(IsShown(roster.Stats->lblStat[row])) << row;
        EXPECT_FALSE(IsShown(roster.Stats->lblStatLabel[row])) << row;
    }
    EXPECT_TRUE(roster.cmdToFarm->isEnabled());
    EXPECT_TRUE(roster.cmdToPro->isEnabled());
    EXPECT_FALSE(roster.cmdCaptain->isEnabled());
    EXPECT_FALSE(roster.cmdTradeAvailable->isEnabled());
}

TEST_F(frmRosterSelectionTest, ClickWithoutACurrentEntryKeepsTheOldSelectionAndEndsBeforeTheMoves)
{
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(2, 1); // list 1 keeps its first entry chosen and has no current one
    Roster().lstPlayer_Click(1);
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_FALSE(Roster().cmdToFarm->isEnabled());
    EXPECT_FALSE(Roster().cmdToPro->isEnabled());
    EXPECT_FALSE(Roster().cmdCaptain->isEnabled());
}

TEST_F(frmRosterSelectionTest, ClickOnAListWithNothingChosenEnablesItsMovesAllTheSame)
{
    PutSeven();
    Roster().lstPlayer_Click(0);
    EXPECT_TRUE(Roster().cmdToScratchesFromFarm->isEnabled());
}

TEST_F(frmRosterSelectionTest, ShiftClickChoosesARange)
{
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 2, Qt::ShiftModifier);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0, 1, 2));
    EXPECT_FALSE(Roster().cmdCaptain->isEnabled());
    EXPECT_TRUE(Roster().cmdToPro->isEnabled());
}

TEST_F(frmRosterSelectionTest, CtrlClickTakesAnEntryOutOfTheChoiceAgain)
{
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 1, Qt::ControlModifier);
    ClickEntry(1, 1, Qt::ControlModifier);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0));
    EXPECT_EQ(SelectedPlayer, 2); // of the current entry, which the last click was on
    EXPECT_TRUE(Roster().cmdCaptain->isEnabled());
}

TEST_F(frmRosterSelectionTest, PlainClickOnOneOfSeveralChosenEntriesLeavesItAlone)
{
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 2, Qt::ShiftModifier);
    ClickEntry(1, 1);
    EXPECT_THAT(ChosenRows(1), ElementsAre(1));
    EXPECT_EQ(SelectedPlayer, 2);
    EXPECT_TRUE(IsShown(Roster().Stats->lblStat[1]));
}

TEST_F(frmRosterSelectionTest, ArrowsChooseTheNextEntryAndShowHim)
{
    PutSeven();
    ClickEntry(1, 0);
    Press(Roster().lstPlayer[1], Qt::Key_Down);
    EXPECT_THAT(ChosenRows(1), ElementsAre(1));
    EXPECT_EQ(SelectedPlayer, 2);
    EXPECT_EQ(Of(Roster().Stats->lblStat[0]), "LW");
    Press(Roster().lstPlayer[1], Qt::Key_Up);
    EXPECT_EQ(SelectedPlayer, 1);
    Press(Roster().lstPlayer[1], Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0, 1));
    EXPECT_FALSE(Roster().cmdCaptain->isEnabled());
    Press(Roster().lstPlayer[1], Qt::Key_End);
    EXPECT_EQ(SelectedPlayer, 3);
}

TEST_F(frmRosterSelectionTest, FirstArrowInAListThatGotTheFocusChoosesItsFirstEntry)
{
    PutSeven();
    Roster().lstPlayer[1]->setFocus();
    EXPECT_EQ(Roster().lstPlayer[1]->currentRow(), -1);
    Press(Roster().lstPlayer[1], Qt::Key_Down);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0));
    EXPECT_EQ(SelectedPlayer, 1);
}

TEST_F(frmRosterSelectionTest, CtrlAChoosesAllEntriesOfTheList)
{
    PutSeven();
    ClickEntry(1, 1);
    Press(Roster().lstPlayer[1], Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0, 1, 2));
    EXPECT_FALSE(Roster().cmdCaptain->isEnabled());
    EXPECT_TRUE(Roster().cmdToPro->isEnabled());
}

TEST_F(frmRosterSelectionTest, ChoosingInCodeCountsAsAClick)
{
    PutSeven();
    Roster().lstPlayer[1]->setCurrentRow(1, QItemSelectionModel::NoUpdate);
    Roster().lstPlayer[1]->item(1)->setSelected(true);
    EXPECT_EQ(SelectedPlayer, 2);
    EXPECT_TRUE(Roster().cmdToFarm->isEnabled());
}

TEST_F(frmRosterSelectionTest, ClickOnTheOneChosenEntryShowsHimAnew)
{
    PutSeven();
    ClickEntry(1, 1);
    Players[2].Stats[skater::CK] = 77;
    ClickEntry(1, 1);
    EXPECT_EQ(Of(Roster().Stats->lblStat[1]), "77");
}

TEST_F(frmRosterSelectionTest, ABrokenClickIsToldUnderItsName)
{
    Roster().lstPlayer_Click(3);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in LstPlayer_Click!"}));
}

TEST_F(frmRosterSelectionTest, ABrokenDoubleClickIsToldUnderItsName)
{
    Roster().lstPlayer_DblClick(3);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in lstPlayer_DblClick!"}));
}

} // namespace
} // namespace dravik
