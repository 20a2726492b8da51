#include "OnRosterScreen.h"

#include "support/Routines.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Entry = std::pair<std::string, int>;

class frmRosterListsTest : public OnRosterScreen {};

TEST_F(frmRosterListsTest, PeopleStandInTheListOfTheirStatusInTheOrderOfTheirSlotsGoaliesBehind)
{
    PutSeven();
    PutGoalie(1, 5, status::Pro);
    PutGoalie(2, 5, status::Scratch);
    PutGoalie(3, 5, status::Farm);
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 4", 44}, Entry{"Skater 5", 51}, Entry{"Goalie 3", 35}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2", 22}, Entry{"Skater 3", 33},
                                       Entry{"Goalie 2", 25}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 6", 61}, Entry{"Skater 7", 74}, Entry{"Goalie 1", 15}));
}

TEST_F(frmRosterListsTest, EntryNumberIsTheNumberOfThePersonWithTheDigitOfHisPositionBehindIt)
{
    PutSkater(123, 5, position::LeftWing, status::Pro);
    PutSkater(10000, 5, position::Defense, status::Scratch);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 123", 1232}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 10000", 100004}));
    ClickEntry(1, 0);
    EXPECT_EQ(SelectedPlayer, 10000);
}

TEST_F(frmRosterListsTest, EntriesAndMarksGoByTheNumberWhileTheFarmRuleGoesByTheSlot)
{
    PutSkater(8, 5, position::Center, status::Farm, 60).Number = 9;
    PutSkater(9, 7, position::Center, status::Farm, 90);
    Own().Captain = 9;
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 8 (C)", 91}));
}

TEST_F(frmRosterListsTest, NumbersOfEntriesAreReadBackAsIdAndPosition)
{
    for (const int id : {0, 1, 123, 10000, -7}) {
        const int number = EntryNumber(id, 4);
        EXPECT_EQ(EntryId(number), id);
        EXPECT_EQ(EntryPosition(number), 4);
    }
}

TEST_F(frmRosterListsTest, StarFollowsABareNameAtOnceAndAMarkWithABlank)
{
    for (int id = 1; id <= 8; ++id)
        PutSkater(id, 5, position::Center, status::Pro).TradeAvailable = id % 2 == 0;
    PutGoalie(3, 5, status::Pro);
    PutGoalie(4, 5, status::Pro).TradeAvailable = true;
    Own().Captain = 4;
    Own().Assistant[1] = 5;
    Own().Assistant[2] = 6;
    std::vector<std::string> texts;
    for (const auto& [text, number] : Listed(2))
        texts.push_back(text);
    EXPECT_THAT(texts, ElementsAre("Skater 1", "Skater 2*", "Skater 3", "Skater 4 (C) *", "Skater 5 (A)",
                                   "Skater 6 (A) *", "Skater 7", "Skater 8*", "Goalie 3", "Goalie 4*"));
}

TEST_F(frmRosterListsTest, CaptainWithoutAStarCarriesHisMarkAlone)
{
    PutSkater(1, 5, position::Center, status::Pro);
    Own().Captain = 1;
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1 (C)");
}

TEST_F(frmRosterListsTest, PeopleOfOtherTeamsAndUnusedRecordsAreNotListed)
{
    PutSkater(1, 6, position::Center, status::Pro);
    PutSkater(2, 5, position::Center, status::Pro).InUse = false;
    PutGoalie(1, 6, status::Pro);
    EXPECT_THAT(Listed(2), IsEmpty());
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 0, 0));
}

TEST_F(frmRosterListsTest, FarmPlayerAboveTheOverallStandsOnTheScratchListAndTheChangesKeepTheOldValue)
{
    Roster();
    PutSkater(1, 5, position::Center, status::Farm, 80);
    PutGoalie(1, 5, status::Farm, 80);
    RosterChanges[1].Status = 0;
    RosterChangesGoalie[1].Status = 0;
    Roster().ShowPlayer(true);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1", 11}, Entry{"Goalie 1", 15}));
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_EQ(RosterChanges[1].Status, 0);
    EXPECT_EQ(Goalies[1].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[1].Status, 0);
}

TEST_F(frmRosterListsTest, FarmPlayerAboveTheSalaryStandsOnTheScratchListWithNoWordAboutHim)
{
    LeagueData.FarmMaxSalary = 999999;
    CompleteTeam(5);
    PutSkater(900, 5, position::Center, status::Farm);
    PutGoalie(900, 5, status::Farm);
    for (Player& player : Players)
        if (player.Status == status::Farm && player.Number != 900)
            player.Salary = 900000;
    for (Goalie& keeper : Goalies)
        if (keeper.Status == status::Farm && keeper.Number != 900)
            keeper.Salary = 900000;
    OpenFrom(MainWithLeague(), "Main");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 900", 9001}, Entry{"Goalie 900", 9005}));
}

TEST_F(frmRosterListsTest, AnOverallAtTheLimitStaysOnTheFarmAndOneMoreIsTooGood)
{
    Player& player = PutSkater(1, 5, position::Center, status::Farm, 60);
    Goalie& keeper = PutGoalie(1, 5, status::Farm, 60);
    Roster();
    for (const int position : {position::Center, position::Goalie}) {
        const int overall = CalculateOverall(position, 1);
        for (const int above : {0, 1}) {
            player.Status = status::Farm;
            keeper.Status = status::Farm;
            LeagueData.FarmMaxOverall = overall - above;
            Roster().ShowPlayer(true);
            EXPECT_GE(Roster().lstPlayer[above]->RowOf(EntryNumber(1, position)), 0) << position << " by " << above;
        }
    }
}

TEST_F(frmRosterListsTest, ASalaryAtTheFarmsLimitStaysAndALimitOfOneIsALimit)
{
    PutSkater(1, 5, position::Center, status::Farm).Salary = 500000;
    PutGoalie(1, 5, status::Farm).Salary = 500000;
    Roster();
    LeagueData.FarmMaxSalary = 500000;
    Roster().ShowPlayer(true);
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 1", 11}, Entry{"Goalie 1", 15}));
    LeagueData.FarmMaxSalary = 1;
    Players[1].Salary = 1;
    Goalies[1].Salary = 1;
    Roster().ShowPlayer(true);
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 1", 11}, Entry{"Goalie 1", 15}));
    Players[1].Salary = 2;
    Goalies[1].Salary = 2;
    Roster().ShowPlayer(true);
    EXPECT_THAT(Listed(0), IsEmpty());
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1", 11}, Entry{"Goalie 1", 15}));
}

TEST_F(frmRosterListsTest, WithAFarmSalaryLimitOfZeroNobodyIsTooDear)
{
    LeagueData.FarmMaxSalary = 0;
    PutSkater(1, 5, position::Center, status::Farm).Salary = 90000000;
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 1", 11}));
}

TEST_F(frmRosterListsTest, APersonWithABadStatusIsToldAtEveryRebuildAndCountsNowhere)
{
    PutSkater(1, 5, position::Center, 3);
    PutGoalie(1, 5, 200).Protected = true;
    const std::vector<Box> told{{48, "Skater 1 has no status!"}, {48, "Goalie 1 has no status!"}};
    Roster(told).ShowPlayer(true);
    EXPECT_EQ(Machine.TakeBoxes(), told);
    Roster().ShowPlayer(true);
    EXPECT_EQ(Machine.TakeBoxes(), told);
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(Own().ProtectedCount, 0);
}

TEST_F(frmRosterListsTest, ASkaterWithABadPositionIsToldCountedAndNotListedAndHisProtectionIsPassedOver)
{
    for (const int bad : {0, 5}) {
        Player& player = PutSkater(1, 5, bad, status::Scratch);
        player.Protected = true;
        Roster({Box{48, "Skater 1 has no position!"}}).ShowPlayer(true);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Skater 1 has no position!"})) << bad;
        EXPECT_THAT(Counters(), ElementsAre(0, 1, 0, 1)) << bad;
        EXPECT_THAT(Listed(1), IsEmpty()) << bad;
        EXPECT_EQ(Own().ProtectedCount, 0) << bad;
    }
}

TEST_F(frmRosterListsTest, AFarmSkaterWithoutAPositionBreaksTheOverallFirst)
{
    PutSkater(1, 5, 0, status::Farm);
    Roster({Box{16, "Integrity Check Failed!"}, Box{48, "Skater 1 has no position!"},
            Box{16, "Integrity Check Failed!"}, Box{16, "Skater 1 has no position!"},
            Box{16, "Integrity Check Failed!"}, Box{16, "Skater 1 has no position!"}})
        .ShowPlayer(true);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}, Box{48, "Skater 1 has no position!"}));
}

TEST_F(frmRosterListsTest, CountersCountByStatusAndThoseOffTheFarmWhoAreFit)
{
    PutSeven();
    Players[1].Condition = 94;
    Players[2].Suspension = 1;
    Players[3].Contract = 0;
    PutGoalie(1, 5, status::Pro);
    PutGoalie(2, 5, status::Farm);
    Roster();
    EXPECT_THAT(Counters(), ElementsAre(3, 3, 3, 3));
}

TEST_F(frmRosterListsTest, UntickingAFilterHidesThePositionButLeavesItInTheCounters)
{
    PutSeven();
    PutGoalie(1, 5, status::Pro);
    EXPECT_EQ(Of(Roster().lblPlayer[2]), "Pro Player = 3");
    Click(Roster().chkPosition[1]);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 7", 74}, Entry{"Goalie 1", 15}));
    EXPECT_THAT(Counters(), ElementsAre(2, 3, 3, 6));
    EXPECT_EQ(Of(Roster().lblPlayer[2]), "Pro Player = 2");
    EXPECT_EQ(Of(Roster().lblPlayer[1]), "Scratches Player = 2");
    EXPECT_EQ(Of(Roster().lblPlayer[0]), "Farm Player = 1");
    Click(Roster().chkPosition[5]);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 7", 74}));
    Click(Roster().chkPosition[1]);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 6", 61}, Entry{"Skater 7", 74}));
}

TEST_F(frmRosterListsTest, HiddenPeopleCountAmongTheProtected)
{
    PutSeven();
    Players[6].Protected = true;
    PutGoalie(1, 5, status::Pro).Protected = true;
    Click(Roster().chkPosition[1]);
    EXPECT_EQ(Own().ProtectedCount, 2);
    EXPECT_EQ(Of(Roster().lblProtectedTotal), " Total Protected Players: 2");
}

TEST_F(frmRosterListsTest, TooManyProtectedPlayersAreToldAtEveryRebuild)
{
    PutSeven();
    Players[6].Protected = true;
    Players[7].Protected = true;
    LeagueData.MaxProtected = 1;
    Roster({Box{64, "Too Many Protected Players!"}}).ShowPlayer(false);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Too Many Protected Players!"}));
    Roster().ShowPlayer(false);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Too Many Protected Players!"}));
    LeagueData.MaxProtected = 2;
    Roster().ShowPlayer(false);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(frmRosterListsTest, AJudgementThatMovesSomebodyAndFailsHasTheListsReadAgainOnce)
{
    PutSeven();
    Roster();
    Players[6].Condition = 50;
    Roster().ShowPlayer(false);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 7", 74}));
    EXPECT_EQ(Roster().lstPlayer[1]->count(), 4);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// The person without a status is told once by each rebuild.
TEST_F(frmRosterListsTest, TheSecondRebuildIsTheLastSinceItDoesNotJudge)
{
    PutSkater(1, 5, position::Center, 3);
    PutSkater(3, 5, position::Center, status::Pro);
    Roster({Box{48, "Skater 1 has no status!"}});
    Players[3].Condition = 50;
    Roster().ShowPlayer(false);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Skater 1 has no status!"}, Box{48, "Skater 1 has no status!"}));
}

TEST_F(frmRosterListsTest, AnIncompleteRosterIsNotListedAgainWhereTheJudgeMovedNobody)
{
    PutSkater(1, 5, position::Center, 3);
    PutSkater(3, 5, position::Center, status::Pro);
    Roster({Box{48, "Skater 1 has no status!"}}).ShowPlayer(false);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Skater 1 has no status!"}));
}

TEST_F(frmRosterListsTest, ACompleteRosterIsNotListedAgainThoughTheJudgeMovedSomebody)
{
    CompleteTeam(5);
    PutSkater(900, 5, position::Center, status::Pro);
    Roster();
    Players[900].Condition = 50;
    LeagueData.ProDressedSkaters = 19;
    Roster().ShowPlayer(false);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    EXPECT_EQ(Players[900].Status, 1);
    EXPECT_GE(Roster().lstPlayer[2]->RowOf(9001), 0);
}

TEST_F(frmRosterListsTest, ARebuildLosesTheSelectionAndHidesTheDetails)
{
    PutSeven();
    ClickEntry(2, 0);
    ASSERT_TRUE(IsShown(Roster().Stats->lblStat[1]));
    Roster().ShowPlayer(true);
    EXPECT_THAT(ChosenRows(2), IsEmpty());
    EXPECT_EQ(Roster().lstPlayer[2]->currentRow(), -1);
    EXPECT_FALSE(IsShown(Roster().Stats->lblStat[1]));
    EXPECT_FALSE(Roster().cmdToScratchesFromPro->isEnabled());
}

TEST_F(frmRosterListsTest, EntriesCarryPositionAndOverallBesideTheirTextOnlyWhereTheLeagueShowsIt)
{
    PutSkater(1, 5, position::LeftWing, status::Pro, 60);
    const auto aside = [&] { return Roster().lstPlayer[2]->item(0)->data(entry::AsideRole).toStringList(); };
    EXPECT_EQ(aside(), (QStringList{"LW", QString::number(CalculateOverall(position::LeftWing, 1))}));
    LeagueData.ShowOverall = false;
    Roster().ShowPlayer(true);
    EXPECT_EQ(aside(), QStringList{"LW"});
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1");
}

TEST_F(frmRosterListsTest, ABrokenRebuildIsToldUnderItsName)
{
    Roster();
    CurrentTeam = 101;
    Roster().ShowPlayer(true);
    CurrentTeam = 5;
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in ShowPlayer!"}));
}

TEST_F(frmRosterListsTest, AGoalieStandsUnderHisNumberWhileTheFarmRuleGoesByHisSlot)
{
    PutGoalie(8, 5, status::Farm, 60).Number = 9;
    PutGoalie(9, 7, status::Farm, 90);
    Own().Captain = 9;
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Goalie 8", 95}));
    ClickEntry(0, 0);
    EXPECT_EQ(SelectedPlayer, 9);
    EXPECT_TRUE(SelectedIsGoalie);
}

TEST_F(frmRosterListsTest, WhoeverIsCorrectedOffTheFarmKeepsHisLinesAndHisOffice)
{
    Roster();
    PutSkater(1, 5, position::Center, status::Farm, 80);
    PutGoalie(1, 5, status::Farm, 80);
    Own().Captain = 1;
    for (Lines* day : {&Own().ProLines[3], &Own().Farm.FarmLines[3]}) {
        day->NormalForward(1, 1) = 1;
        day->StartGoalie = 1;
    }
    Roster().ShowPlayer(true);
    ASSERT_EQ(Players[1].Status, 1);
    ASSERT_EQ(Goalies[1].Status, 1);
    for (Lines* day : {&Own().ProLines[3], &Own().Farm.FarmLines[3]}) {
        EXPECT_EQ(day->NormalForward(1, 1), 1);
        EXPECT_EQ(day->StartGoalie, 1);
    }
    EXPECT_EQ(Own().Captain, 1);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterListsTest, ARebuildWithoutAJudgementLeavesTheVerdictAndItsReasons)
{
    CompleteTeam(5);
    OpenFrom(MainWithLeague(), "Main");
    ASSERT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    LeagueData.RequiredCenters = 5;
    Own().ProtectedCount = 3;
    Roster().ShowPlayer(true);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "");
    Roster().ShowPlayer(false);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "Not enough Centers available in Pro Team! 4 Dressed. 5 Required.");
}

TEST_F(frmRosterListsTest, ACaptainWhoIsAnAssistantTooIsMarkedAsTheCaptain)
{
    PutSkater(1, 5, position::Center, status::Pro);
    PutSkater(2, 5, position::Center, status::Pro).TradeAvailable = true;
    Own().Assistant[1] = 1;
    Own().Captain = 1;
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1 (C)");
    Own().Assistant[2] = 2;
    Own().Captain = 2;
    Roster().ShowPlayer(true);
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1 (A)");
    EXPECT_EQ(EntryTextAt(2, 1), "Skater 2 (C) *");
}

} // namespace
} // namespace dravik
