#include "makers/AutoRosterTeam.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

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

TEST_F(AutoRosterCapTest, ThatRoomIsNoLargerThanTold)
{
    // 997 as above, so 10 more do not fit under 1006.
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

TEST_F(AutoRosterCapTest, OnlyTheWordMinus1CountsTheFarmsPayroll)
{
    LeagueData.FarmSalaryPct = 10;
    FarmCenter(19, 90, 100);
    LeagueData.SalaryCap = 1109;
    LeagueData.FarmPayrollInCap.SetWord(1);
    Run();
    EXPECT_EQ(Players[19].Status, 2);
}

TEST_F(AutoRosterCapTest, TheFarmsShareOfACallUpAsksForNoGamesPlayed)
{
    // He costs his full salary on the farm's payroll, yet half of it leaves the running one: 1000 - 50 + 100.
    LeagueData.FarmPayMinGames = 10;
    LeagueData.FarmSalaryPct = 50;
    LeagueData.SalaryCap = 1100;
    FarmCenter(19, 90, 100).ProGames = 10;
    PutSkater(20, 5, position::LeftWing, status::Farm, 90).Salary = 51; // 1050 + 51
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[20].Status, 0);
}

TEST_F(AutoRosterCapTest, TheFarmsShareOfSomebodySentDownAsksForNoGamesPlayed)
{
    // Right wing 12 goes down and leaves 1100 + 50 - 100: room for 50 more.
    LeagueData.FarmPayMinGames = 10;
    LeagueData.FarmSalaryPct = 50;
    LeagueData.SalaryCap = 1100;
    Players[12].Salary = 100;
    Players[12].ProGames = 10;
    PutSkater(19, 5, position::RightWing, status::Farm, 90).Salary = 0;
    PutGoalie(3, 5, status::Farm, 90).Salary = 50;
    Run();
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 2);
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

TEST_F(AutoRosterCapTest, OnlyTheWordMinus1CountsTheCoachesPayroll)
{
    Coaches[1].InUse = true;
    Coaches[1].Team = 5;
    Coaches[1].Salary = 50;
    FarmCenter(19, 90, 10);
    LeagueData.SalaryCap = 1059;
    LeagueData.CoachPayrollInCap.SetWord(1);
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

TEST_F(AutoRosterCapTest, ACallUpWhoBringsThePayrollBeyond32BitsEndsTheRunBetweenWipeAndStatus)
{
    LeagueData.SalaryCapMode = 0;
    LeagueData.FarmSalaryPct = 0;
    LeagueData.MaxSalary = 2147483647;
    FarmCenter(19, 90, 2147483647);
    PutOnLines(19);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "6 - Overflow in AutoRoster!"}));
    EXPECT_FALSE(IsOnLines(19));
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterCapTest, SomebodySentDownWhoBringsThePayrollBeyond32BitsEndsTheRunBehindHisStatus)
{
    LeagueData.SalaryCapMode = 0;
    LeagueData.FarmSalaryPct = 32767;
    Players[12].Salary = 10000000;
    PutSkater(19, 5, position::RightWing, status::Farm, 90).Salary = 0;
    PutOnLines(12);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "6 - Overflow in AutoRoster!"}));
    EXPECT_FALSE(IsOnLines(12));
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(RosterChanges[12].Status, 0);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoRosterCapTest, WithoutCallUpsNoSumIsMade)
{
    LeagueData.SalaryCapMode = 2;
    LeagueData.SalaryCap = 2147483647;
    Teams[5].Cash = 1;
    EXPECT_THAT(Run(), ElementsAre(Success));
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

} // namespace
} // namespace dravik
