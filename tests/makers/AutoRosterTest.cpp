#include "makers/AutoRosterTeam.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// ---- Opening and ranking -------------------------------------------------------------------------------------------

TEST_F(AutoRosterTest, ATeamOutOfRangeIsRefused)
{
    AutoRoster(0, true, false);
    AutoRoster(101, false, true);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}, Box{16, "Integrity Check Failed!"}));
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterTest, ACompleteTeamStaysAsItIsAndIsMarkedInTheChanges)
{
    EXPECT_THAT(Run(), ElementsAre(Success));
    for (int id = 1; id <= 18; ++id) {
        EXPECT_EQ(Players[id].Status, 2) << id;
        EXPECT_EQ(RosterChanges[id].Status, 2) << id;
    }
    for (int id = 1; id <= 2; ++id) {
        EXPECT_EQ(Goalies[id].Status, 2) << id;
        EXPECT_EQ(RosterChangesGoalie[id].Status, 2) << id;
    }
    EXPECT_TRUE(Modified);
}

TEST_F(AutoRosterTest, ADressedSkaterWhoStaysKeepsHisLines)
{
    PutOnLines(1);
    Run();
    EXPECT_TRUE(IsOnLines(1));
}

TEST_F(AutoRosterTest, ConditionOf95IsUsableAnd94IsNot)
{
    PutSkater(19, 5, position::Center, status::Scratch, 70).Condition = 95;
    PutSkater(20, 5, position::Center, status::Scratch, 70).Condition = 94;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[20].Status, 1);
}

TEST_F(AutoRosterTest, SalariesOnTheLimitsAreUsable)
{
    LeagueData.MinSalary = 1000;
    LeagueData.MaxSalary = 1000000;
    PutSkater(19, 5, position::Center, status::Scratch, 70).Salary = 1000;
    PutSkater(20, 5, position::LeftWing, status::Scratch, 70).Salary = 1000000;
    PutSkater(21, 5, position::Center, status::Scratch, 70).Salary = 999;
    PutSkater(22, 5, position::LeftWing, status::Scratch, 70).Salary = 1000001;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[20].Status, 2);
    EXPECT_EQ(Players[21].Status, 1);
    EXPECT_EQ(Players[22].Status, 1);
}

TEST_F(AutoRosterTest, ADressedInjuredSkaterGoesToTheScratchesAndOffTheLines)
{
    PutSkater(19, 5, position::Center, status::Pro, 90).Condition = 94;
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(RosterChanges[19].Status, 1);
    EXPECT_FALSE(IsOnLines(19));
}

TEST_F(AutoRosterTest, ADressedSuspendedSkaterGoesToTheScratchesAndOffTheLines)
{
    PutSkater(19, 5, position::Center, status::Pro, 90).Suspension = 1;
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(RosterChanges[19].Status, 1);
    EXPECT_FALSE(IsOnLines(19));
}

TEST_F(AutoRosterTest, ASuspendedFarmSkaterStaysOnTheFarm)
{
    PutSkater(19, 5, position::Center, status::Farm, 90).Suspension = 3;
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_TRUE(IsOnLines(19));
}

TEST_F(AutoRosterTest, AnInjuredScratchIsNotSentDown)
{
    PutSkater(19, 5, position::Center, status::Scratch, 50).Condition = 80;
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_TRUE(IsOnLines(19));
}

TEST_F(AutoRosterTest, HealthyDressedSkaterWithoutContractKeepsStatusTwoAndIsInNoRanking)
{
    PutSkater(19, 5, position::Center, status::Pro, 99).Contract = 0;
    PutOnLines(19);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_TRUE(IsOnLines(19));
    // Had he been ranked, he would have taken somebody's place.
    for (int id = 1; id <= 18; ++id)
        EXPECT_EQ(Players[id].Status, 2) << id;
}

TEST_F(AutoRosterTest, HealthyDressedSkaterWithAnIllegalSalaryKeepsStatusTwo)
{
    PutSkater(19, 5, position::Center, status::Pro, 10).Salary = 20000000;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
}

TEST_F(AutoRosterTest, ADressedSkaterWithoutContractWhoIsSuspendedSitsOut)
{
    Player& skater = PutSkater(19, 5, position::Center, status::Pro, 10);
    skater.Contract = 0;
    skater.Suspension = 1;
    Run();
    EXPECT_EQ(Players[19].Status, 1);
}

TEST_F(AutoRosterTest, PeopleOfOtherTeamsAndUnusedRecordsAreLeftAlone)
{
    PutSkater(19, 6, position::Center, status::Farm, 99);
    PutSkater(20, 5, position::Center, status::Farm, 99).InUse = false;
    PutSkater(21, 5, position::Center, status::Farm, 99).InUse.SetWord(1);
    PutGoalie(3, 6, status::Farm, 99);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Players[20].Status, 0);
    EXPECT_EQ(Players[21].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_EQ(RosterChangesGoalie[3].Status, Untouched);
}

TEST_F(AutoRosterTest, RecordZeroIsNotWalkedEvenWithATeam)
{
    PutSkater(0, 5, position::Center, status::Scratch, 99);
    PutGoalie(0, 5, status::Scratch, 99);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Players[0].Status, 1);
    EXPECT_EQ(Goalies[0].Status, 1);
    for (int id = 1; id <= 18; ++id)
        EXPECT_EQ(Players[id].Status, 2) << id;
    EXPECT_EQ(Goalies[2].Status, 2);
}

TEST_F(AutoRosterTest, AnInjuryTextAt95LeavesSomebodyUsableAndNoneAt94Does)
{
    Player& skater = PutSkater(19, 5, position::Center, status::Scratch, 90);
    Goalie& goalie = PutGoalie(3, 5, status::Scratch, 90);
    skater.Condition = 95;
    skater.Injury = "Broken Leg";
    goalie.Condition = 95;
    goalie.Injury = "Broken Leg";
    Players[1].Condition = 94;
    Goalies[1].Condition = 94;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_EQ(Goalies[1].Status, 1);
}

TEST_F(AutoRosterTest, AUsableSkaterWithoutAPositionEndsTheRun)
{
    PutSkater(19, 5, 0, status::Farm, 50);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "9 - Subscript out of range in AutoRoster!"}));
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterTest, TheLastSlotsOfTheTablesAreWalkedToo)
{
    PutSkater(10000, 5, position::Center, status::Farm, 99);
    PutGoalie(1000, 5, status::Farm, 99);
    Run();
    EXPECT_EQ(Players[10000].Status, 2);
    EXPECT_EQ(Goalies[1000].Status, 2);
}

// ---- Shortages -----------------------------------------------------------------------------------------------------

TEST_F(AutoRosterTest, AllShortagesAreToldInTheirOrder)
{
    for (int id = 1; id <= 18; ++id)
        Players[id].InUse = false;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}, Box{48, "Not Enough C available!"},
                                   Box{48, "Not Enough LW available!"}, Box{48, "Not Enough RW available!"},
                                   Box{48, "Not Enough D available!"}));
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterTest, ASilentShortageShowsNothingAndChangesNothing)
{
    Players[1].Status = 1;
    Players[2].InUse = false;
    EXPECT_THAT(Run(false), IsEmpty());
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterTest, AShortageOfOnePositionAloneIsTold)
{
    LeagueData.RequiredLeftWings = 5;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough LW available!"}));
}

TEST_F(AutoRosterTest, StatusChangesOfTheRankingStayAfterAShortage)
{
    Players[1].Condition = 50;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}));
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_EQ(RosterChanges[1].Status, 1);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterTest, WithFarmRostersTwentyFiveUsableSkatersAreRefused)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredCenters = LeagueData.RequiredLeftWings = LeagueData.RequiredRightWings = 2;
    LeagueData.RequiredDefensemen = 3;
    Five.Farms(7, position::Center);
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}));
}

TEST_F(AutoRosterTest, WithFarmRostersEveryNumberIsDoubled)
{
    LeagueData.FarmRosterRequired = true;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}, Box{48, "Not Enough C available!"},
                                   Box{48, "Not Enough LW available!"}, Box{48, "Not Enough RW available!"},
                                   Box{48, "Not Enough D available!"}));
    Five.Farms(2, position::Center).Farms(2, position::LeftWing).Farms(2, position::RightWing);
    Five.Farms(12, position::Defense);
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough G available!"}));
    Five.FarmsGoalies(2);
    EXPECT_THAT(Run(), ElementsAre(Success));
}

TEST_F(AutoRosterTest, AnyWordButZeroRequiresFarmRosters)
{
    LeagueData.FarmRosterRequired.SetWord(1);
    LeagueData.RequiredCenters = LeagueData.RequiredLeftWings = LeagueData.RequiredRightWings = 2;
    LeagueData.RequiredDefensemen = 3;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}));
}

TEST_F(AutoRosterTest, ADoubledNumberBeyond16BitsEndsTheRun)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredLeftWings = 16384;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}, Box{48, "Not Enough C available!"},
                                   Box{16, "6 - Overflow in AutoRoster!"}));
}

// ---- Dressing the skaters ------------------------------------------------------------------------------------------

TEST_F(AutoRosterTest, OfEqualRatingsTheLowerIndexIsDressedFirst)
{
    // Two more centers: 3 are dressed by position and 3 of any position, index by index.
    Five.Farms(2, position::Center);
    LeagueData.ProDressedSkaters = 16;
    Run();
    for (int id = 1; id <= 4; ++id)
        EXPECT_EQ(Players[id].Status, 2) << id; // three by position, the fourth as the one of any position
    EXPECT_EQ(Players[8].Status, 0);
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterTest, RequiredPositionsComeBeforeBetterPeople)
{
    // Six better defensemen do not push out the third center, only those of any position.
    LeagueData.FarmMaxOverall = 99;
    Five.Farms(6, position::Defense, 90);
    Players[3].Stats[10] = 0; // the worst of centers
    Players[4].InUse = false;
    Run();
    EXPECT_EQ(Players[3].Status, 2);
    for (int id = 19; id <= 24; ++id)
        EXPECT_EQ(Players[id].Status, 2) << id;
    int dressed = 0;
    for (int id = 1; id <= 24; ++id)
        dressed += Players[id].InUse && Players[id].Status == 2 ? 1 : 0;
    EXPECT_EQ(dressed, 18);
}

TEST_F(AutoRosterTest, RequirementsAboveTheDressedNumberDressMore)
{
    LeagueData.ProDressedSkaters = 10;
    Run();
    int dressed = 0;
    for (int id = 1; id <= 18; ++id)
        dressed += Players[id].Status == 2 ? 1 : 0;
    EXPECT_EQ(dressed, 15);
}

TEST_F(AutoRosterTest, ANumberOfLastPicksBeyond16BitsEndsTheRun)
{
    LeagueData.ProDressedSkaters = -32768;
    EXPECT_THAT(Run(), ElementsAre(Box{16, "6 - Overflow in AutoRoster!"}));
}

TEST_F(AutoRosterTest, ACallUpIsTakenOffTheFarmsLinesAndMarked)
{
    PutSkater(19, 5, position::Center, status::Farm, 90);
    PutOnLines(19);
    Teams[5].Captain = 19;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(RosterChanges[19].Status, 2);
    EXPECT_FALSE(IsOnLines(19));
    EXPECT_EQ(Teams[5].Captain, 0);
}

TEST_F(AutoRosterTest, AScratchWhoIsDressedLosesHisLines)
{
    PutSkater(19, 5, position::Center, status::Scratch, 90);
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_FALSE(IsOnLines(19));
}

TEST_F(AutoRosterTest, ADressedSkaterWhoIsPushedOutGoesDownAndOffTheLines)
{
    PutSkater(19, 5, position::RightWing, status::Farm, 90);
    PutOnLines(12);
    Run();
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(RosterChanges[12].Status, 0);
    EXPECT_FALSE(IsOnLines(12));
}

TEST_F(AutoRosterTest, ADressedSkaterOfOverallZeroIsNeitherPickedNorUndressed)
{
    PutSkater(19, 5, position::Center, status::Pro, 0);
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_TRUE(IsOnLines(19));
    for (int id = 1; id <= 18; ++id)
        EXPECT_EQ(Players[id].Status, 2) << id;
}

TEST_F(AutoRosterTest, AScratchOfOverallZeroIsNotDressedForAHole)
{
    Players[4].InUse = false;
    PutSkater(19, 5, position::Center, status::Scratch, 0);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterTest, AScratchOfOverallOneIsDressedForAHole)
{
    Players[4].InUse = false;
    PutSkater(19, 5, position::Center, status::Scratch, 1);
    Run();
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterTest, ADressedSkaterOfOverallOneIsUndressed)
{
    LeagueData.FarmMaxOverall = 0;
    PutSkater(19, 5, position::Center, status::Pro, 1);
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_FALSE(IsOnLines(19));
}

TEST_F(AutoRosterTest, APositionThatRunsDryLeavesItsPicksToNobodyElse)
{
    // Of the three centers that are asked for one has no rating: the other passes go on as if nothing had happened.
    LeagueData.ProDressedSkaters = 15;
    PutSkater(1, 5, position::Center, status::Farm, 0);
    PutSkater(2, 5, position::Center, status::Farm, 0);
    Run();
    EXPECT_EQ(Players[1].Status, 0);
    EXPECT_EQ(Players[2].Status, 0);
    EXPECT_EQ(Players[3].Status, 2);
    EXPECT_EQ(Players[4].Status, 2);
    // 2 + 3 + 3 + 6 by position, and one of any position: the best left is left wing 8.
    EXPECT_EQ(Players[8].Status, 2);
    EXPECT_EQ(Players[12].Status, 0);
}

// ---- A skater in the position of a goalie --------------------------------------------------------------------------

TEST_F(AutoRosterTest, ASkaterOfPosition5IsRatedAsTheGoalieOfHisIndexAndDressedByTheLastPick)
{
    PutSkater(19, 5, position::Goalie, status::Scratch, 10);
    PutGoalie(19, 6, status::Pro, 90);
    EXPECT_THAT(Run(), ElementsAre(Success)); // he is counted among the goalies' position
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[4].Status, 2);
    EXPECT_EQ(Players[8].Status, 2);
    EXPECT_EQ(Players[12].Status, 0); // the last pick of the three had been his
}

TEST_F(AutoRosterTest, ASkaterOfPosition5WithoutAGoalieOfHisIndexIsWorthNothing)
{
    PutSkater(19, 5, position::Goalie, status::Scratch, 99);
    PutGoalie(19, 6, status::Pro, 0);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Players[12].Status, 2);
}

TEST_F(AutoRosterTest, ASkaterOfPosition5IsNoPickOfAnyPosition)
{
    LeagueData.ProDressedSkaters = 15; // the four positions fill it
    PutSkater(19, 5, position::Goalie, status::Scratch, 10);
    PutGoalie(19, 6, status::Pro, 90);
    Run();
    EXPECT_EQ(Players[19].Status, 1); // too good for the farm
    EXPECT_EQ(Players[3].Status, 2);
}

TEST_F(AutoRosterTest, ASkaterOfPosition5IsOneOfThePlayersAvailable)
{
    Players[4].InUse = false;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}));
    PutSkater(19, 5, position::Goalie, status::Scratch, 10);
    EXPECT_THAT(Run(), ElementsAre(Success));
}

// ---- Partial mode --------------------------------------------------------------------------------------------------

TEST_F(AutoRosterTest, PartialModePrefersADressedSkaterOverABetterOneOnTheFarm)
{
    LeagueData.FarmMaxOverall = 99;
    PutSkater(1, 5, position::Center, status::Pro, 50);
    PutSkater(19, 5, position::Center, status::Farm, 99);
    EXPECT_THAT(Run(true, true), ElementsAre(PartialSuccess));
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterTest, PartialModePrefersAScratchOverABetterOneOnTheFarm)
{
    LeagueData.FarmMaxOverall = 99;
    PutSkater(1, 5, position::Center, status::Scratch, 50);
    PutSkater(19, 5, position::Center, status::Farm, 99);
    Run(true, true);
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterTest, PartialModeFillsAHoleFromTheFarm)
{
    Players[1].Condition = 50;
    PutSkater(19, 5, position::Center, status::Farm, 40);
    EXPECT_THAT(Run(true, true), ElementsAre(PartialSuccess));
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterTest, PartialModeSendsNobodyDown)
{
    LeagueData.MaxProPlayers = 1;
    LeagueData.FarmMaxOverall = 49;
    PutSkater(19, 5, position::Center, status::Pro, 40);
    PutSkater(20, 5, position::Center, status::Scratch, 40);
    PutGoalie(3, 5, status::Pro, 40);
    // Nobody is tried, so nobody is stuck; the dressed alone are above the maximum.
    EXPECT_THAT(Run(false, true), ElementsAre(TooManyScratches));
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(Players[20].Status, 1);
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_TRUE(Modified);
}

TEST_F(AutoRosterTest, PartialModeRanksGoaliesOfTheProSideFirst)
{
    PutGoalie(3, 5, status::Farm, 99);
    PutGoalie(1, 5, status::Scratch, 30);
    Run(true, true);
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
    EXPECT_EQ(Goalies[3].Status, 0);
}

TEST_F(AutoRosterTest, InPartialModeADressedSkaterOfOverallZeroIsPicked)
{
    PutSkater(1, 5, position::Center, status::Scratch, 0);
    PutSkater(4, 5, position::Center, status::Farm, 90);
    Run(true, true);
    EXPECT_EQ(Players[1].Status, 2);
}

TEST_F(AutoRosterTest, InPartialModeTheProSideIsWorthAHundredMore)
{
    // A hole, the best man of the farm, and behind him a scratch whose overall and a hundred come to more or just to as much.
    for (const int overall : {0, -1}) {
        Players[4].InUse = false;
        PutSkater(19, 5, position::Center, status::Farm, 99);
        PutSkater(20, 5, position::Center, status::Scratch, overall);
        Run(true, true);
        EXPECT_EQ(Players[19].Status, overall == 0 ? 0 : 2);
        EXPECT_EQ(Players[20].Status, overall == 0 ? 2 : 1);
    }
}

TEST_F(AutoRosterTest, SilentRunsShowNothing)
{
    EXPECT_THAT(Run(false, false), IsEmpty());
    EXPECT_TRUE(Modified);
    Modified = false;
    EXPECT_THAT(Run(false, true), IsEmpty());
    EXPECT_TRUE(Modified);
}

} // namespace
} // namespace dravik
