#include "makers/AutoRosterTeam.h"

#include <functional>
#include <vector>

// What the automatic roster does first where the order decides, and which of the league's numbers it does not ask.
namespace dravik {
namespace {

using ::testing::ElementsAre;

class AutoRosterOrderTest : public AutoRosterTest {
protected:
    // Salaries of nothing but for whom a test pays, under a cap.
    AutoRosterOrderTest()
    {
        for (int id = 1; id <= 18; ++id)
            Players[id].Salary = 0;
        for (int id = 1; id <= 2; ++id)
            Goalies[id].Salary = 0;
        LeagueData.SalaryCapMode = 1;
        LeagueData.FarmSalaryPct = 0;
    }

    // Whether a call-up of salary `room` fits under the cap of `cap` and one who costs 1 more does not: the payroll with
    // which the run began is then exactly the rest.
    void ExpectOpeningPayroll(int payroll)
    {
        constexpr int room = 100;
        for (const int excess : {0, 1}) {
            PutSkater(99, 5, position::Center, status::Farm, 90).Salary = room + excess;
            Players[99].Contract = 2;
            LeagueData.SalaryCap = payroll + room;
            Run();
            EXPECT_EQ(Players[99].Status, excess == 0 ? 2 : 0) << payroll << " with " << excess;
            for (int id = 1; id <= 4; ++id)
                Players[id].Status = status::Pro;
        }
    }
};

// ---- The payroll with which a run begins ---------------------------------------------------------------------------

// A farm skater who costs `salary` on the farm in full, and who cannot be called up.
void KeepOnFarm(int id, int salary)
{
    Player& player = PutSkater(id, 5, position::Center, status::Farm, 1);
    player.Salary = salary;
    player.ProGames = 1;
}

TEST_F(AutoRosterOrderTest, TheFarmsPayrollIsAddedAndRoundedToTheNearestAndTiesToEven)
{
    struct Share {
        int Pct;
        int Rounded;
    };
    LeagueData.FarmPayrollInCap = true;
    for (const Share& share : {Share{104, 1010}, {105, 1010}, {106, 1011}, {114, 1011}, {115, 1012}, {116, 1012}}) {
        // 1000 and the share of 10: 10.4, 10.5, 10.6 and 11.4, 11.5, 11.6. The share of the call-up leaves with him.
        Players[18].Salary = 1000;
        PutSkater(50, 5, position::Center, status::Farm, 1).Salary = 10;
        LeagueData.FarmSalaryPct = share.Pct;
        PutSkater(99, 5, position::Center, status::Farm, 90).Salary = 0;
        LeagueData.SalaryCap = share.Rounded;
        Run();
        EXPECT_EQ(Players[99].Status, 2) << share.Pct;

        for (int id = 1; id <= 4; ++id)
            Players[id].Status = status::Pro;
        PutSkater(99, 5, position::Center, status::Farm, 90).Salary = 0;
        LeagueData.SalaryCap = share.Rounded - 1;
        Run();
        EXPECT_EQ(Players[99].Status, 0) << share.Pct;
        for (int id = 1; id <= 4; ++id)
            Players[id].Status = status::Pro;
    }
}

TEST_F(AutoRosterOrderTest, TheFarmsRoundingComesBeforeTheCoaches)
{
    // 1000.5 rounds down to the even 1000 before 1 is added. Rounded after that, 1001.5 would be 1002.
    Players[18].Salary = 990;
    LeagueData.FarmPayrollInCap = true;
    LeagueData.CoachPayrollInCap = true;
    LeagueData.FarmSalaryPct = 105;
    PutSkater(50, 5, position::Center, status::Farm, 1).Salary = 10;
    Coaches[1].InUse = true;
    Coaches[1].Team = 5;
    Coaches[1].Salary = 1;
    PutSkater(99, 5, position::Center, status::Farm, 90).Salary = 0;
    LeagueData.SalaryCap = 1001;
    Run();
    EXPECT_EQ(Players[99].Status, 2);
}

TEST_F(AutoRosterOrderTest, AProPayrollBeyond24BitsIsRoundedAsItWasAddedUp)
{
    // A 32-bit float holds 16777216 and not 16777217.
    Players[17].Salary = 16777216;
    Players[18].Salary = 1;
    LeagueData.MaxSalary = 20000000;
    ExpectOpeningPayroll(16777216);
}

TEST_F(AutoRosterOrderTest, TheFarmsAndTheCoachesPayrollsAreAddedWithoutLosingADollar)
{
    // Added up in a 32-bit float the dollar would be lost.
    Players[18].Salary = 16777216;
    LeagueData.MaxSalary = 20000000;
    LeagueData.CoachPayrollInCap = true;
    Coaches[1].InUse = true;
    Coaches[1].Team = 5;
    Coaches[1].Salary = 1;
    ExpectOpeningPayroll(16777217);

    LeagueData.CoachPayrollInCap = false;
    LeagueData.FarmPayrollInCap = true;
    LeagueData.FarmPayMinGames = 1;
    KeepOnFarm(50, 1);
    ExpectOpeningPayroll(16777217);
}

TEST_F(AutoRosterOrderTest, AnOpeningPayrollBeyond32BitsEndsTheRunBeforeAnythingIsDone)
{
    constexpr int half = 2000000000;
    Coaches[1].InUse = true;
    Coaches[1].Team = 5;
    LeagueData.MaxSalary = half;
    LeagueData.FarmPayMinGames = 1;
    LeagueData.FarmPayrollInCap = true;
    LeagueData.CoachPayrollInCap = true;
    KeepOnFarm(50, 0);
    PutSkater(51, 5, position::Center, status::Pro, 90).Condition = 94;
    Players[51].Salary = 0;
    Players[18].Salary = half;
    // The second half comes from the pro team, the farm and the coaches in turn.
    for (Int32* const salary : {&Players[17].Salary, &Players[50].Salary, &Coaches[1].Salary}) {
        *salary = half;
        EXPECT_THAT(Run(), ElementsAre(Box{16, "6 - Overflow in AutoRoster!"}));
        EXPECT_EQ(Players[51].Status, 2);
        *salary = 0;
    }
}

// ---- The order of the picks ----------------------------------------------------------------------------------------

TEST_F(AutoRosterOrderTest, CentersComeUpBeforeLeftWingsBeforeRightWingsBeforeDefensemen)
{
    LeagueData.SalaryCap = 100;
    for (int first = position::Center; first < position::Defense; ++first) {
        const int second = first + 1;
        PutSkater(50, 5, second, status::Farm, 95).Salary = 100;
        PutSkater(51, 5, first, status::Farm, 90).Salary = 100;
        Run();
        EXPECT_EQ(Players[51].Status, 2) << first;
        EXPECT_EQ(Players[50].Status, 0) << first;
        for (const int id : {50, 51})
            Players[id] = {};
        for (int id = 1; id <= 18; ++id)
            Players[id].Status = status::Pro;
    }
}

TEST_F(AutoRosterOrderTest, DefensemenWhoAreRequiredComeUpBeforeTheBestOfTheRest)
{
    // Three of four centers are required, so the fourth comes with the rest, behind all defensemen.
    LeagueData.SalaryCap = 100;
    Players[4].Status = status::Farm;
    Players[4].Salary = 100;
    for (int id = 1; id <= 3; ++id)
        for (auto& stat : Players[id].Stats)
            stat = 99;
    for (auto& stat : Players[4].Stats)
        stat = 98;
    PutSkater(50, 5, position::Defense, status::Farm, 70).Salary = 100;
    LeagueData.FarmMaxOverall = 99;
    Run();
    EXPECT_EQ(Players[50].Status, 2);
    EXPECT_EQ(Players[4].Status, 0);
}

TEST_F(AutoRosterOrderTest, EvenTheBestOfAllIsScratchedWhereNobodyAsksForHisPosition)
{
    LeagueData.RequiredCenters = 0;
    LeagueData.RequiredLeftWings = 4;
    LeagueData.RequiredRightWings = 4;
    LeagueData.RequiredDefensemen = 6;
    LeagueData.ProDressedSkaters = 14;
    LeagueData.FarmMaxOverall = 50;
    for (auto& stat : Players[1].Stats)
        stat = 99;
    PutOnLines(1);
    Run();
    for (int id = 1; id <= 4; ++id) {
        EXPECT_EQ(Players[id].Status, 1) << id;
        EXPECT_EQ(RosterChanges[id].Status, 1) << id;
    }
    EXPECT_FALSE(IsOnLines(1));
    for (int id = 5; id <= 18; ++id)
        EXPECT_EQ(Players[id].Status, 2) << id;
}

// ---- What is not asked ---------------------------------------------------------------------------------------------

TEST_F(AutoRosterOrderTest, TwoGoaliesAreDressedWhateverTheLeaguesMaximum)
{
    LeagueData.FarmMaxOverall = 0;
    for (const int maximum : {0, 1, 2, 3, 100}) {
        LeagueData.MaxDressedGoalies = maximum;
        PutGoalie(3, 5, status::Pro, 50).Salary = 0;
        EXPECT_THAT(Run(), ElementsAre(Success)) << maximum;
        EXPECT_EQ(Goalies[1].Status, 2) << maximum;
        EXPECT_EQ(Goalies[2].Status, 2) << maximum;
        EXPECT_EQ(Goalies[3].Status, 1) << maximum;
    }
}

TEST_F(AutoRosterOrderTest, ALeagueWithoutFarmsSendsPeopleThereAllTheSame)
{
    LeagueData.FarmEnabled = false;
    PutSkater(50, 5, position::Center, status::Scratch, 1).Salary = 0;
    PutGoalie(3, 5, status::Scratch, 1).Salary = 0;
    Run();
    EXPECT_EQ(Players[50].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);
}

TEST_F(AutoRosterOrderTest, ALeagueWithoutFarmsCallsPeopleUpAllTheSame)
{
    LeagueData.FarmEnabled = false;
    LeagueData.SalaryCap = 0;
    PutSkater(50, 5, position::Center, status::Farm, 90).Salary = 0;
    PutGoalie(3, 5, status::Farm, 90).Salary = 0;
    Run();
    EXPECT_EQ(Players[50].Status, 2);
    EXPECT_EQ(Goalies[3].Status, 2);
}

TEST_F(AutoRosterOrderTest, ALeagueWithoutFarmsAsksForTwiceTheNumberWhereFarmRostersAreRequired)
{
    LeagueData.FarmEnabled = false;
    LeagueData.FarmRosterRequired = true;
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough Players available!"}, Box{48, "Not Enough C available!"},
                                   Box{48, "Not Enough LW available!"}, Box{48, "Not Enough RW available!"},
                                   Box{48, "Not Enough D available!"}));
}

} // namespace
} // namespace dravik
