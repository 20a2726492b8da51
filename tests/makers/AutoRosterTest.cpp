#include "makers/Makers.h"
#include "rules/LineSlots.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int Untouched = RosterChange::Untouched;

// Team 5 dresses centers 1-4, left wings 5-8, right wings 9-12, defensemen 13-18 and goalies 1-2, all of overall 60: as
// many as the league dresses. People put in by a test come behind them.
class AutoRosterTest : public SmallLeague {
protected:
    AutoRosterTest() : Five(5)
    {
        Five.Dresses(4, position::Center)
            .Dresses(4, position::LeftWing)
            .Dresses(4, position::RightWing)
            .Dresses(6, position::Defense)
            .DressesGoalies(2);
        LeagueData.MinSalary = 0;
    }

    std::vector<Box> Run(bool verbose = true, bool partial = false)
    {
        Machine.TakeBoxes();
        AutoRoster(5, verbose, partial);
        return Machine.TakeBoxes();
    }

    static void PutOnLines(int skater)
    {
        Teams[5].ProLines[3].NormalForward(1, 1) = skater;
        Teams[5].Farm.FarmLines[7].ExtraDefense[2] = skater;
    }
    static bool IsOnLines(int skater)
    {
        return Teams[5].ProLines[3].NormalForward(1, 1) == skater ||
               Teams[5].Farm.FarmLines[7].ExtraDefense[2] == skater;
    }
    static void PutGoalieOnLines(int goalie)
    {
        Teams[5].ProLines[3].StartGoalie = goalie;
        Teams[5].Farm.FarmLines[7].BackupGoalie = goalie;
    }
    static bool IsGoalieOnLines(int goalie)
    {
        return Teams[5].ProLines[3].StartGoalie == goalie && Teams[5].Farm.FarmLines[7].BackupGoalie == goalie;
    }

    TeamMaker Five;

    const Box Success{64, "Auto Roster Function has been run successfully."};
    const Box PartialSuccess{64, "Auto Roster Partial Function has been run successfully."};
    const Box TooManyScratches{64, "Team 5 has too many players in scratch \r\n"
                                   "that cannot be sent to farm without being sent to waiver."};
};

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

// ---- The cap -------------------------------------------------------------------------------------------------------

// Salaries of 0 but for whom a test pays, so that a payroll reads at a glance.
class AutoRosterCapTest : public AutoRosterTest {
protected:
    AutoRosterCapTest()
    {
        for (int id = 1; id <= 18; ++id)
            Players[id].Salary = 0;
        for (int id = 1; id <= 2; ++id)
            Goalies[id].Salary = 0;
        Players[18].Salary = 1000; // the payroll
        LeagueData.SalaryCapMode = 1;
        LeagueData.SalaryCap = 1000;
    }

    static Player& FarmCenter(int id, int overall, int salary)
    {
        Player& player = PutSkater(id, 5, position::Center, status::Farm, overall);
        player.Salary = salary;
        return player;
    }
};

TEST_F(AutoRosterCapTest, ACallUpWhoBringsThePayrollToTheCapFits)
{
    LeagueData.SalaryCap = 1010;
    FarmCenter(19, 90, 10);
    Run();
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterCapTest, ACallUpAboveTheCapStaysOnTheFarmAndKeepsHisLines)
{
    LeagueData.SalaryCap = 1009;
    FarmCenter(19, 90, 10);
    PutOnLines(19);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_TRUE(IsOnLines(19));
    EXPECT_EQ(Players[4].Status, 2);
}

TEST_F(AutoRosterCapTest, ARejectedCallUpGetsNoSecondLookAndTheNextBestIsTaken)
{
    // The better farm center is too dear; the next one is taken in his place.
    LeagueData.SalaryCap = 1100;
    LeagueData.FarmSalaryPct = 100;
    FarmCenter(19, 90, 101);
    FarmCenter(20, 80, 100);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Players[20].Status, 2);
}

TEST_F(AutoRosterCapTest, ARejectedCallUpIsNotDressedByTheLastPassEither)
{
    // After the centers a farm left wing comes up whose farm share lowers the payroll by 200. Now the center would fit.
    LeagueData.SalaryCap = 1100;
    LeagueData.FarmSalaryPct = 300;
    FarmCenter(19, 90, 101);
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 100;
    Run();
    EXPECT_EQ(Players[20].Status, 2);
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterCapTest, ThatRoomIsReallyThereForALaterCallUp)
{
    LeagueData.SalaryCap = 1100;
    LeagueData.FarmSalaryPct = 300;
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 100;
    PutSkater(21, 5, position::RightWing, status::Farm, 90).Salary = 300; // 800 + 300
    Run();
    EXPECT_EQ(Players[21].Status, 2);
}

TEST_F(AutoRosterCapTest, WithoutACapNobodyIsRefused)
{
    for (const int mode : {0, 3}) {
        LeagueData.SalaryCapMode = mode;
        FarmCenter(19, 90, 5000000);
        PutGoalie(3, 5, status::Farm, 90).Salary = 5000000;
        Run();
        EXPECT_EQ(Players[19].Status, 2) << mode;
        EXPECT_EQ(Goalies[3].Status, 2) << mode;
    }
}

TEST_F(AutoRosterCapTest, InModeTwoTheTeamsCashCounts)
{
    LeagueData.SalaryCapMode = 2;
    LeagueData.SalaryCap = 1110;
    Teams[5].Cash = -100;
    FarmCenter(19, 90, 10);
    Run();
    EXPECT_EQ(Players[19].Status, 2);

    FarmCenter(19, 90, 10);
    Teams[5].Cash = -101;
    Run();
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterCapTest, InModeOneTheTeamsCashDoesNotCount)
{
    Teams[5].Cash = 1000000;
    FarmCenter(19, 90, 10);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterCapTest, AScratchIsDressedWhateverTheCapSays)
{
    LeagueData.SalaryCap = 0;
    PutSkater(19, 5, position::Center, status::Scratch, 90).Salary = 5000;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterCapTest, TheFarmsShareIsTakenOffAndRoundedBeforeTheSalaryIsAdded)
{
    // 5 + Round(1000 - 2.5) is 1003; one rounding of the whole would give 1002.
    LeagueData.FarmSalaryPct = 50;
    FarmCenter(19, 90, 5);
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 10;
    LeagueData.SalaryCap = 1012;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[20].Status, 0);

    FarmCenter(19, 90, 5);
    LeagueData.SalaryCap = 1013;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[20].Status, 2);
}

TEST_F(AutoRosterCapTest, TheSharesRoundingIsToEven)
{
    // Round(1001 - 2.5) is 998, so 1003 again.
    Players[18].Salary = 1001;
    LeagueData.FarmSalaryPct = 50;
    FarmCenter(19, 90, 5);
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 10;
    LeagueData.SalaryCap = 1013;
    Run();
    EXPECT_EQ(Players[20].Status, 2);
}

TEST_F(AutoRosterCapTest, SomebodyGoingDownMakesRoomForAGoalie)
{
    // Right wing 12 is pushed out; going down he leaves Round(1000 + 0.5 x 5) - 5 = 1002 - 5 = 997.
    LeagueData.FarmSalaryPct = 50;
    Players[18].Salary = 995;
    Players[12].Salary = 5;
    PutSkater(19, 5, position::RightWing, status::Farm, 90).Salary = 0;
    PutGoalie(3, 5, status::Farm, 90).Salary = 10;
    LeagueData.SalaryCap = 1007;
    Run();
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 2);
}

TEST_F(AutoRosterCapTest, ThatRoomIsRoundedBeforeTheSalaryLeavesIt)
{
    // 997 as above; one rounding of the whole would give 998 and refuse nobody less: 996 + 10 must be refused at 1006.
    LeagueData.FarmSalaryPct = 50;
    Players[18].Salary = 995;
    Players[12].Salary = 5;
    PutSkater(19, 5, position::RightWing, status::Farm, 90).Salary = 0;
    PutGoalie(3, 5, status::Farm, 90).Salary = 10;
    LeagueData.SalaryCap = 1006;
    Run();
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);
}

TEST_F(AutoRosterCapTest, TheFarmsPayrollCountsWhereTheLeagueSaysSo)
{
    LeagueData.FarmSalaryPct = 10;
    FarmCenter(19, 90, 100); // 10 on the farm's payroll
    LeagueData.SalaryCap = 1109;
    LeagueData.FarmPayrollInCap = true;
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    LeagueData.SalaryCap = 1110;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterCapTest, TheFarmsShareLeavesThePayrollEvenWhereItWasNeverCounted)
{
    LeagueData.FarmSalaryPct = 50;
    FarmCenter(19, 90, 100);                                            // 1000 - 50 + 100
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 10; // 1050 + 10
    LeagueData.SalaryCap = 1100;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[20].Status, 2);

    FarmCenter(19, 90, 100);
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 51; // 1050 + 51
    Run();
    EXPECT_EQ(Players[20].Status, 0);
}

TEST_F(AutoRosterCapTest, TheCoachesPayrollCountsWhereTheLeagueSaysSo)
{
    Coaches[1].InUse = true;
    Coaches[1].Team = 5;
    Coaches[1].Salary = 50;
    FarmCenter(19, 90, 10);
    LeagueData.SalaryCap = 1059;
    LeagueData.CoachPayrollInCap = true;
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    LeagueData.SalaryCap = 1060;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterCapTest, ASumBeyond32BitsEndsTheRun)
{
    LeagueData.MaxSalary = 2147483647;
    LeagueData.SalaryCap = 2147483647;
    FarmCenter(19, 90, 2147483647);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "6 - Overflow in AutoRoster!"}));
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterCapTest, ACapBeyond32BitsEndsTheRun)
{
    LeagueData.SalaryCapMode = 2;
    LeagueData.SalaryCap = 2147483647;
    Teams[5].Cash = 1;
    FarmCenter(19, 90, 10);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "6 - Overflow in AutoRoster!"}));
}

TEST_F(AutoRosterCapTest, WithoutCallUpsNoSumIsMade)
{
    LeagueData.SalaryCapMode = 2;
    LeagueData.SalaryCap = 2147483647;
    Teams[5].Cash = 1;
    EXPECT_THAT(Run(), ElementsAre(Success));
}

// ---- Sending skaters down ------------------------------------------------------------------------------------------

TEST_F(AutoRosterTest, AScratchAboveTheFarmsOverallStaysAScratch)
{
    LeagueData.FarmMaxOverall = 49;
    PutSkater(19, 5, position::Center, status::Scratch, 50);
    PutSkater(20, 5, position::Center, status::Scratch, 49);
    PutOnLines(20);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_EQ(Players[20].Status, 0);
    EXPECT_EQ(RosterChanges[20].Status, 0);
    EXPECT_FALSE(IsOnLines(20));
}

TEST_F(AutoRosterTest, AScratchWhoNeedsWaiversStaysAScratch)
{
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverMinGames = 10;
    LeagueData.WaiverExemptAge = 24;
    PutSkater(19, 5, position::Center, status::Scratch, 50).ProGames = 10;
    PutSkater(20, 5, position::Center, status::Scratch, 50).ProGames = 9;
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(Players[20].Status, 0);
}

TEST_F(AutoRosterTest, AGoalieIsAskedForWaiversAsAGoalie)
{
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverMinGames = 10;
    LeagueData.WaiverExemptAge = 24;
    PutGoalie(3, 5, status::Scratch, 50).ProGames = 10;
    PutGoalie(4, 5, status::Scratch, 50).ProGames = 9;
    Players[4].ProGames = 10;
    Run();
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(Goalies[4].Status, 0);
}

TEST_F(AutoRosterTest, AScratchAboveTheFarmsSalaryStaysAScratch)
{
    LeagueData.FarmMaxSalary = 1000000;
    PutSkater(19, 5, position::Center, status::Scratch, 50).Salary = 1000001;
    PutSkater(20, 5, position::Center, status::Scratch, 50).Salary = 1000000;
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(Players[20].Status, 0);
}

TEST_F(AutoRosterTest, FarmMaxSalaryZeroSendsHighSalariesDown)
{
    for (const int limit : {0, -5}) {
        LeagueData.FarmMaxSalary = limit;
        PutSkater(19, 5, position::Center, status::Scratch, 50).Salary = 9000000;
        Run();
        EXPECT_EQ(Players[19].Status, 0) << limit;
    }
}

TEST_F(AutoRosterTest, StuckScratchesAreToldEvenByASilentCall)
{
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 19;
    Five.Scratches(2, position::Center, 50);
    EXPECT_THAT(Run(false), ElementsAre(TooManyScratches));
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Run(true), ElementsAre(TooManyScratches, Success));
}

TEST_F(AutoRosterTest, StuckScratchesUpToTheMaximumAreNotTold)
{
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 20;
    Five.Scratches(2, position::Center, 50);
    EXPECT_THAT(Run(), ElementsAre(Success));
}

TEST_F(AutoRosterTest, SkatersAndGoaliesWhoAreStuckCountTogether)
{
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 19;
    Five.Scratches(1, position::Center, 50).ScratchesGoalies(1, 50);
    EXPECT_THAT(Run(), ElementsAre(TooManyScratches, Success));
}

TEST_F(AutoRosterTest, SalaryStuckScratchesCountToo)
{
    LeagueData.MaxProPlayers = 18;
    LeagueData.FarmMaxSalary = 999999;
    Five.Scratches(1, position::Center, 50);
    EXPECT_THAT(Run(), ElementsAre(TooManyScratches, Success));
}

TEST_F(AutoRosterTest, AfterTheDeadlineSurplusPlayersStayScratchesWithoutAWarning)
{
    LeagueData.TradeDeadlinePassed = true;
    LeagueData.TradeDeadlineInForce = true;
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 18;
    Five.Scratches(2, position::Center, 40).Dresses(1, position::Center, 41);
    Five.ScratchesGoalies(1, 40);
    EXPECT_THAT(Run(), ElementsAre(Success));
    for (int id = 19; id <= 21; ++id)
        EXPECT_EQ(Players[id].Status, 1) << id;
    EXPECT_EQ(Goalies[3].Status, 1);
}

TEST_F(AutoRosterTest, OneHalfOfTheDeadlineHoldsNobodyBack)
{
    LeagueData.TradeDeadlinePassed = true;
    PutSkater(19, 5, position::Center, status::Scratch, 40);
    PutGoalie(3, 5, status::Scratch, 40);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);

    LeagueData.TradeDeadlinePassed = false;
    LeagueData.TradeDeadlineInForce = true;
    PutSkater(19, 5, position::Center, status::Scratch, 40);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
}

// ---- Goalies -------------------------------------------------------------------------------------------------------

TEST_F(AutoRosterTest, WithoutUsableGoaliesTheSkatersAreRebuiltAndTheOldGoaliesStay)
{
    Goalies[1].Contract = 0;
    Goalies[2].Contract = 0;
    PutSkater(19, 5, position::RightWing, status::Farm, 90);
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough G available!"}));
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Run(false), IsEmpty());
}

TEST_F(AutoRosterTest, TheTwoBestGoaliesAreDressed)
{
    LeagueData.FarmMaxOverall = 99;
    PutGoalie(3, 5, status::Farm, 90);
    PutGoalie(4, 5, status::Scratch, 80);
    PutGoalieOnLines(1);
    Run();
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 2);
    EXPECT_EQ(Goalies[4].Status, 2);
    EXPECT_EQ(Goalies[1].Status, 0);
    EXPECT_EQ(Goalies[2].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[1].Status, 0);
    // He lost his slots as he was undressed, before he went down.
    EXPECT_FALSE(IsGoalieOnLines(1));
    EXPECT_EQ(Teams[5].ProLines[3].StartGoalie, 0);
}

TEST_F(AutoRosterTest, OfEqualGoaliesTheLowerIndexIsDressed)
{
    PutGoalie(3, 5, status::Pro, 60);
    Run();
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
    EXPECT_EQ(Goalies[3].Status, 0);
}

TEST_F(AutoRosterTest, AGoalieSentDownKeepsHisSlotsInTheLines)
{
    PutGoalie(3, 5, status::Scratch, 50);
    PutGoalieOnLines(3);
    Run();
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 0);
    EXPECT_TRUE(IsGoalieOnLines(3));
}

TEST_F(AutoRosterTest, ACalledUpGoalieAndADressedScratchLoseTheirSlots)
{
    for (const int from : {status::Farm, status::Scratch}) {
        PutGoalie(3, 5, from, 90);
        PutGoalieOnLines(3);
        Run();
        EXPECT_EQ(Goalies[3].Status, 2) << from;
        EXPECT_EQ(Teams[5].ProLines[3].StartGoalie, 0) << from;
        EXPECT_EQ(Teams[5].Farm.FarmLines[7].BackupGoalie, 0) << from;
    }
}

TEST_F(AutoRosterTest, ADressedGoalieWhoStaysKeepsHisSlots)
{
    PutGoalieOnLines(2);
    Run();
    EXPECT_TRUE(IsGoalieOnLines(2));
}

TEST_F(AutoRosterTest, ASuspendedGoalieIsScratchedEvenFromTheFarm)
{
    PutGoalie(3, 5, status::Farm, 90).Suspension = 1;
    PutGoalieOnLines(3);
    Run();
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 1);
    EXPECT_FALSE(IsGoalieOnLines(3));
}

TEST_F(AutoRosterTest, AnInjuredGoalieIsScratchedOnlyIfDressed)
{
    PutGoalie(3, 5, status::Farm, 90).Condition = 94;
    PutGoalie(4, 5, status::Pro, 90).Condition = 94;
    Run();
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[3].Status, Untouched);
    EXPECT_EQ(Goalies[4].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[4].Status, 1);
}

TEST_F(AutoRosterTest, ADressedGoalieWithoutContractKeepsHisStatus)
{
    PutGoalie(3, 5, status::Pro, 90).Contract = 0;
    Run();
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(RosterChangesGoalie[3].Status, Untouched);
}

TEST_F(AutoRosterTest, GoaliesOfOverallZeroAreDressedAsWell)
{
    for (const int id : {1, 2})
        PutGoalie(id, 5, status::Farm, 0);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
}

TEST_F(AutoRosterTest, AScratchedGoalieAboveTheFarmsOverallOrSalaryStays)
{
    LeagueData.FarmMaxOverall = 50;
    LeagueData.FarmMaxSalary = 1000000;
    PutGoalie(3, 5, status::Scratch, 51);
    PutGoalie(4, 5, status::Scratch, 50).Salary = 1000001;
    PutGoalie(6, 5, status::Scratch, 50);
    Run();
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(Goalies[4].Status, 1);
    EXPECT_EQ(Goalies[6].Status, 0);
}

TEST_F(AutoRosterCapTest, AGoalieWhoDoesNotFitLetsTheNextOneIn)
{
    PutGoalie(3, 5, status::Farm, 90).Salary = 10;
    PutGoalie(4, 5, status::Farm, 80).Salary = 0;
    Run();
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[3].Status, Untouched);
    EXPECT_EQ(Goalies[4].Status, 2);
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 0);
}

TEST_F(AutoRosterCapTest, ACalledUpGoalieEntersThePayroll)
{
    LeagueData.SalaryCap = 1010;
    LeagueData.FarmSalaryPct = 0;
    PutGoalie(3, 5, status::Farm, 90).Salary = 10;
    PutGoalie(4, 5, status::Farm, 80).Salary = 1;
    Run();
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(Goalies[4].Status, 0);
    EXPECT_EQ(Goalies[1].Status, 2);
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
