#include "OnRosterScreen.h"

#include "support/Routines.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Entry = std::pair<std::string, int>;

const Box DeadlinePassed{64, "Trade Deadline is Passed!"};

class frmRosterMovesTest : public OnRosterScreen {
protected:
    // Chooses all entries of a list as Ctrl+A does.
    void ChooseAll(int index)
    {
        ClickEntry(index, 0);
        Press(Roster().lstPlayer[index], Qt::Key_A, Qt::ControlModifier);
    }
};

TEST_F(frmRosterMovesTest, ToProMovesEveryChosenScratchWithTextAndNumber)
{
    PutSkaters(3, status::Scratch);
    Players[2].TradeAvailable = true;
    PutGoalie(1, 5, status::Scratch);
    ChooseAll(1);
    Click(Roster().cmdToPro);
    EXPECT_THAT(Listed(1), IsEmpty());
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2*", 21}, Entry{"Skater 3", 31},
                                       Entry{"Goalie 1", 15}));
    EXPECT_EQ(Of(Roster().lblPlayer[2]), "Pro Player = 4");
    EXPECT_EQ(Of(Roster().lblPlayer[1]), "Scratches Player = 0");
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 4, 4));
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmRosterMovesTest, ARefusedEntryStaysAndTheWalkGoesOn)
{
    PutSkaters(3, status::Scratch);
    Players[2].Condition = 50;
    ChooseAll(1);
    Click(Roster().cmdToPro);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Cannot Move an Injured Player!"}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 2", 21}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 3", 31}));
}

TEST_F(frmRosterMovesTest, EntriesThatAreNotChosenStay)
{
    PutSkaters(3, status::Pro);
    ClickEntry(2, 1);
    Click(Roster().cmdToScratchesFromPro);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 3", 31}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 2", 21}));
    EXPECT_EQ(Players[2].Status, 1);
}

TEST_F(frmRosterMovesTest, AfterAMoveNoneOfTheFourMovesIsEnabledUntilTheNextClick)
{
    PutSkaters(3, status::Pro);
    ClickEntry(2, 0);
    Click(Roster().cmdToScratchesFromPro);
    for (const QPushButton* move :
         {Roster().cmdToFarm, Roster().cmdToPro, Roster().cmdToScratchesFromPro, Roster().cmdToScratchesFromFarm})
        EXPECT_FALSE(move->isEnabled());
    EXPECT_TRUE(Roster().lstPlayer[2]->hasFocus());
    Press(Roster().lstPlayer[2], Qt::Key_Down);
    EXPECT_TRUE(Roster().cmdToScratchesFromPro->isEnabled());
}

TEST_F(frmRosterMovesTest, FromProToScratchesLeavesTheCounterOfTheDressableAlone)
{
    PutSkaters(2, status::Pro);
    ClickEntry(2, 0);
    Click(Roster().cmdToScratchesFromPro);
    EXPECT_THAT(Counters(), ElementsAre(0, 1, 1, 2));
}

TEST_F(frmRosterMovesTest, ToFarmTestsTheOverallOfThePersonShownLastForEverybodyChosen)
{
    LeagueData.FarmMaxOverall = 70;
    PutSkater(1, 5, position::Center, status::Scratch, 60);
    PutSkater(2, 5, position::Center, status::Scratch, 90);
    ClickEntry(1, 0); // shows the overall of 60
    ClickEntry(1, 1, Qt::ControlModifier);
    Click(Roster().cmdToFarm);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Players[1].Status, 0);
    EXPECT_EQ(Players[2].Status, 0);
}

TEST_F(frmRosterMovesTest, ToFarmRefusesEveryChosenEntryByTheOneOverall)
{
    LeagueData.FarmMaxOverall = 70;
    PutSkater(1, 5, position::Center, status::Scratch, 60);
    PutSkater(2, 5, position::Center, status::Scratch, 90);
    PassDeadline();   // comes behind the overall
    ClickEntry(1, 1); // shows the overall of 90
    ClickEntry(1, 0, Qt::ControlModifier);
    Click(Roster().cmdToFarm);
    const Box tooHigh{48, "Player Overall is too high to be sent to farm!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(tooHigh, tooHigh));
    EXPECT_EQ(Roster().lstPlayer[1]->count(), 2);
}

TEST_F(frmRosterMovesTest, AnOverallAtTheLimitMayGoToTheFarm)
{
    PutSkaters(1, status::Scratch, 60);
    LeagueData.FarmMaxOverall = CalculateOverall(position::Center, 1);
    ClickEntry(1, 0);
    Click(Roster().cmdToFarm);
    EXPECT_EQ(Players[1].Status, 0);
}

TEST_F(frmRosterMovesTest, ToFarmEndsAtTheTradeDeadlineAtTheFirstChosenEntry)
{
    PutSkaters(3, status::Scratch);
    PassDeadline();
    ChooseAll(1);
    Click(Roster().cmdToFarm);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(DeadlinePassed));
    EXPECT_EQ(Roster().lstPlayer[1]->count(), 3);
}

TEST_F(frmRosterMovesTest, ToFarmIsOpenWhileTheDeadlineIsNotBothPassedAndInForce)
{
    PutSkaters(2, status::Scratch);
    LeagueData.TradeDeadlinePassed = true;
    ClickEntry(1, 0);
    Click(Roster().cmdToFarm);
    LeagueData.TradeDeadlinePassed = false;
    LeagueData.TradeDeadlineInForce = true;
    ClickEntry(1, 0);
    Click(Roster().cmdToFarm);
    EXPECT_EQ(Roster().lstPlayer[0]->count(), 2);
}

TEST_F(frmRosterMovesTest, ThreeFarmEntriesWithOnePlaceLeftMoveOneThenAreRefusedOnce)
{
    PutSkaters(3, status::Farm);
    PutSkater(4, 5, position::Center, status::Pro);
    LeagueData.MaxProPlayers = 2;
    ChooseAll(0);
    Click(Roster().cmdToScratchesFromFarm);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Maximum Pro Players Limit Reached!"}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1", 11}));
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 2", 21}, Entry{"Skater 3", 31}));
    EXPECT_THAT(Counters(), ElementsAre(2, 1, 1, 2));
}

TEST_F(frmRosterMovesTest, LeavingTheFarmGoesByTheCounterAndNotByAFreshCount)
{
    PutSkaters(1, status::Farm);
    LeagueData.MaxProPlayers = 1;
    ClickEntry(0, 0);
    PutSkater(4, 5, position::Center, status::Pro); // whom the screen has not counted
    EXPECT_THAT(Counters(), ElementsAre(1, 0, 0, 0));
    Click(Roster().cmdToScratchesFromFarm);
    EXPECT_EQ(Players[1].Status, 1);
}

TEST_F(frmRosterMovesTest, BrokenCommandsAreToldUnderTheirNames)
{
    Roster();
    SelectedPlayer = 10001;
    SelectedIsGoalie = false;
    const auto told = [&](const auto& command) {
        command();
        const std::vector<Box> boxes = Machine.TakeBoxes();
        return boxes.size() == 1 ? boxes[0] : Box{0, "not one box"};
    };
    const auto broken = [](const std::string& ending) { return Box{16, "9 - Subscript out of range" + ending}; };
    EXPECT_EQ(told([&] { Roster().cmdRelease_Click(); }), broken(" in cmdRelease!"));
    EXPECT_EQ(told([&] { Roster().cmdSendToWaiver_Click(); }), broken(" in cmdSendToWaiver!"));
    EXPECT_EQ(told([&] { Roster().cmdCaptain_Click(); }), broken(" in cmdCaptain!"));
    EXPECT_EQ(told([&] { Roster().cmdAssistant_Click(); }), broken(" in cmdAssistant!"));
    EXPECT_EQ(told([&] { Roster().cmdTradeAvailable_Click(); }), broken(" in cmdTradeAvailable!"));
    EXPECT_EQ(told([&] { Roster().chkProtected->toggle(); }), broken(" in chkProtected!"));
}

TEST_F(frmRosterMovesTest, BrokenMovesAreToldUnderTheirNamesAndToProWithoutItsMark)
{
    PutSkater(1, 5, position::Center, status::Scratch);
    PutSkater(2, 5, position::Center, status::Pro);
    PutSkater(3, 5, position::Center, status::Farm);
    Roster();
    for (int id = 1; id <= 3; ++id)
        Players[id].Condition = 50;
    FailingBoxes desktop;
    desktop.MessagesAllowed = true;
    UseMachine(desktop);
    const auto told = [&](int list, QPushButton* command) {
        ClickEntry(list, 0);
        desktop.FailuresLeft = 2; // the refusal's box, and the one that tells of it
        Click(command);
        return desktop.TakeBoxes();
    };
    EXPECT_THAT(told(1, Roster().cmdToPro), ElementsAre(Box{16, "6 - Overflow in cmdToPro"}));
    EXPECT_THAT(told(1, Roster().cmdToFarm), ElementsAre(Box{16, "6 - Overflow in cmdToFarm!"}));
    EXPECT_THAT(told(2, Roster().cmdToScratchesFromPro),
                ElementsAre(Box{16, "6 - Overflow in cmdToScratchesFromPro!"}));
    EXPECT_THAT(told(0, Roster().cmdToScratchesFromFarm),
                ElementsAre(Box{16, "6 - Overflow in cmdToScratchesFromFarm!"}));
    UseMachine(Machine);
}

TEST_F(frmRosterMovesTest, AutomaticRostersTellOfTheirWorkAndRebuildTheLists)
{
    const TeamMaker made = TeamMaker(5).DressesFullRoster();
    const auto scratchAll = [&] {
        for (const int id : made.Skaters)
            Players[id].Status = status::Scratch;
        for (const int id : made.GoalieIds)
            Goalies[id].Status = status::Scratch;
    };
    scratchAll();
    Roster();
    ASSERT_EQ(Roster().lstPlayer[2]->count(), 0);
    Click(Roster().cmdAutoRosterPartial);
    EXPECT_EQ(Roster().lstPlayer[2]->count(), 20);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Auto Roster Partial Function has been run successfully."}));
    scratchAll();
    Click(Roster().cmdAutoRoster);
    EXPECT_EQ(Roster().lstPlayer[2]->count(), 20);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Auto Roster Function has been run successfully."}));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
}

// The maker notes its own changes; the command adds nothing.
TEST_F(frmRosterMovesTest, AnAutomaticRosterThatStopsEarlyModifiesNothing)
{
    Roster();
    Click(Roster().cmdAutoRoster);
    EXPECT_FALSE(Machine.TakeBoxes().empty());
    Click(Roster().cmdAutoRosterPartial);
    EXPECT_FALSE(Machine.TakeBoxes().empty());
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, AMovedEntryThatWasCurrentLeavesNoCurrentEntryBehind)
{
    PutSkaters(4, status::Pro);
    for (const int row : {0, 1, 1}) { // the first, one between others, the last
        ClickEntry(2, row);
        Click(Roster().cmdToScratchesFromPro);
        EXPECT_EQ(Roster().lstPlayer[2]->currentRow(), -1);
        EXPECT_THAT(ChosenRows(2), IsEmpty());
    }
    EXPECT_EQ(Roster().lstPlayer[1]->currentRow(), -1);
    EXPECT_THAT(ChosenRows(1), IsEmpty());
}

TEST_F(frmRosterMovesTest, TheCurrentEntryStaysCurrentWhenItIsRefused)
{
    PutSkaters(4, status::Pro);
    ClickEntry(2, 0);
    ClickEntry(2, 2, Qt::ControlModifier);
    Players[3].Condition = 50;
    Roster().lstPlayer[2]->setFocus();
    Roster().cmdToScratchesFromPro_Click();
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1", 11}));
    EXPECT_EQ(Roster().lstPlayer[2]->currentRow(), 1);
    EXPECT_THAT(ChosenRows(2), ElementsAre(1));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Cannot Move an Injured Player!"}));
}

TEST_F(frmRosterMovesTest, TheArrowAfterAMoveGoesOnWhereTheMovedEntryStood)
{
    PutSkaters(5, status::Pro);
    ClickEntry(2, 3);
    Click(Roster().cmdToScratchesFromPro);
    Press(Roster().lstPlayer[2], Qt::Key_Down);
    EXPECT_EQ(SelectedPlayer, 5);
    EXPECT_THAT(ChosenRows(2), ElementsAre(3));
    Click(Roster().cmdToScratchesFromPro);
    Press(Roster().lstPlayer[2], Qt::Key_Down);
    EXPECT_EQ(SelectedPlayer, 3); // there is none behind the last
    Roster().ShowPlayer(true);
    Press(Roster().lstPlayer[2], Qt::Key_Down);
    EXPECT_EQ(SelectedPlayer, 1);
}

TEST_F(frmRosterMovesTest, TheArrowFindsThePlaceWhenEntriesBeforeItMovedToo)
{
    PutSkaters(6, status::Pro);
    ClickEntry(2, 3);
    ClickEntry(2, 1, Qt::ControlModifier);
    ClickEntry(2, 3, Qt::ControlModifier);
    ClickEntry(2, 3, Qt::ControlModifier);
    ASSERT_EQ(Roster().lstPlayer[2]->currentRow(), 3);
    Click(Roster().cmdToScratchesFromPro);
    ASSERT_THAT(Listed(1), ElementsAre(Entry{"Skater 2", 21}, Entry{"Skater 4", 41}));
    Press(Roster().lstPlayer[2], Qt::Key_Down);
    EXPECT_EQ(SelectedPlayer, 5);
}

TEST_F(frmRosterMovesTest, BrokenAutomaticRostersAreToldUnderTheirNames)
{
    Roster();
    FailingBoxes desktop;
    desktop.MessagesAllowed = true;
    UseMachine(desktop);
    const auto told = [&](QPushButton* command) {
        desktop.FailuresLeft = 2; // the maker's box, and the one that tells of it
        Click(command);
        const std::vector<Box> boxes = desktop.TakeBoxes();
        return boxes.empty() ? Box{0, "no box"} : boxes.front();
    };
    EXPECT_EQ(told(Roster().cmdAutoRoster), (Box{16, "6 - Overflow in cmdAutoRoster!"}));
    EXPECT_EQ(told(Roster().cmdAutoRosterPartial), (Box{16, "6 - Overflow in cmdAutoRosterPartial!"}));
    UseMachine(Machine);
}

TEST_F(frmRosterMovesTest, WithNobodyChosenTheDeadlineAndTheLimitsAreNoMatter)
{
    PutSeven();
    PassDeadline();
    LeagueData.FarmMaxOverall = 0;
    LeagueData.MaxProPlayers = 0;
    ClickEntry(1, 0);
    ClickEntry(1, 0, Qt::ControlModifier);
    ASSERT_THAT(ChosenRows(1), IsEmpty());
    ASSERT_GT(Roster().PlayerOverall(), LeagueData.FarmMaxOverall);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    Modified = false;
    for (void (frmRoster::*command)() :
         {&frmRoster::cmdToFarm_Click, &frmRoster::cmdToPro_Click, &frmRoster::cmdToScratchesFromPro_Click,
          &frmRoster::cmdToScratchesFromFarm_Click})
        (Roster().*command)();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, TheMovedEntryOfACaptainKeepsItsTextUntilTheListsAreReadAgain)
{
    PutSkaters(1, status::Pro);
    Own().Captain = 1;
    ClickEntry(2, 0);
    Click(Roster().cmdToScratchesFromPro);
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1 (C)", 11}));
    EXPECT_EQ(Own().Captain, 0);
}

} // namespace
} // namespace dravik
