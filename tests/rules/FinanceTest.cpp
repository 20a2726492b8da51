#include "rules/Finance.h"
#include "session/Session.h"
#include "support/FailingBoxes.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <cmath>

namespace dravik {
namespace {

using ::testing::ElementsAre;

class FinanceTest : public SmallLeague {
protected:
    FinanceTest() { TeamMaker(5); }

    static Player& Pro(int index) { return PutSkater(index, 5, position::Center, status::Pro); }
    static Player& OnFarm(int index) { return PutSkater(index, 5, position::Center, status::Farm); }
    static void PutCoach(int index, int team, int salary)
    {
        Coaches[index].InUse = true;
        Coaches[index].Team = team;
        Coaches[index].Salary = salary;
    }
};

TEST_F(FinanceTest, HealthyPlayerWithContract0CostsNothingInThePayrollButCountsInTheExpense)
{
    Pro(7).Contract = 0;
    OnFarm(8).Contract = 0;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 13415); // 1100000 / 82
}

TEST_F(FinanceTest, Condition0CostsNothingAboveAMinimumOf0AndCondition1CostsTheSalary)
{
    LeagueData.PayrollMinCondition = 0;
    Pro(7).Condition = 0;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    Players[7].Condition = 1;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1000000);
}

TEST_F(FinanceTest, ConditionEqualToTheMinimumCostsNothing)
{
    LeagueData.PayrollMinCondition = 80;
    Pro(7).Condition = 80;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    Players[7].Condition = 81;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1000000);
}

TEST_F(FinanceTest, SuspendedPlayerCancelsOutTo0)
{
    LeagueData.PayrollSkipsSuspended = true;
    Pro(7).Suspension = 3;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    LeagueData.PayrollSkipsSuspended = false;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1000000);
}

TEST_F(FinanceTest, SuspendedAndHurtPersonLowersThePayroll)
{
    LeagueData.PayrollSkipsSuspended = true;
    LeagueData.PayrollMinCondition = 50;
    Pro(7).Suspension = 3;
    Players[7].Condition = 50;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), -1000000);
    Players[7].Status = status::Farm;
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), -100000);
    PutGoalie(7, 5, status::Pro).Suspension = 1;
    Goalies[7].Condition = 10;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), -1000000);
}

TEST_F(FinanceTest, OnlyTheWordMinus1SkipsTheSuspended)
{
    LeagueData.PayrollSkipsSuspended.SetWord(1);
    Pro(7).Suspension = 3;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1000000);
}

TEST_F(FinanceTest, ScratchedPlayerCountsInTheProPayroll)
{
    PutSkater(7, 5, position::Center, status::Scratch);
    PutGoalie(7, 5, status::Scratch);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 2000000);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, StatusAbove2CountsInTheProPayrollAndNotInTheExpense)
{
    PutSkater(7, 5, position::Center, 3);
    PutGoalie(7, 5, 255);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 2000000);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, BonusIsInTheProPayrollOnlyAndOnlyWhenTheLeagueSaysSo)
{
    Pro(7);
    Teams[5].PayrollBonus = 250000;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1000000);
    LeagueData.PayrollIncludesBonus = true;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1250000);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 12195); // 1000000 / 82
}

TEST_F(FinanceTest, OnlyTheWordMinus1IncludesTheBonus)
{
    Pro(7);
    Teams[5].PayrollBonus = 250000;
    LeagueData.PayrollIncludesBonus.SetWord(1);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 1000000);
}

TEST_F(FinanceTest, WithFarmPayMinGames0EveryFarmPlayerCostsThePercentage)
{
    LeagueData.FarmSalaryPct = 25;
    OnFarm(7).ProGames = 0;
    OnFarm(8).ProGames = 500;
    PutGoalie(1, 5, status::Farm).ProGames = 500;
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 750000);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, FarmPlayerWithGamesEqualToTheMinimumCostsHisFullSalary)
{
    LeagueData.FarmPayMinGames = 40;
    OnFarm(7).ProGames = 40;
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 1000000);
    Players[7].ProGames = 39;
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 100000);
}

TEST_F(FinanceTest, NegativeFarmPayMinGamesMakeEverybodyCostHisFullSalary)
{
    LeagueData.FarmPayMinGames = -1;
    OnFarm(7);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 1000000);
}

TEST_F(FinanceTest, LeagueWithoutFarmTeamsHasNoFarmPayroll)
{
    OnFarm(7);
    LeagueData.FarmEnabled = false;
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, FarmPayrollTreatsConditionAndSuspensionAsTheProPayrollDoes)
{
    LeagueData.PayrollMinCondition = 80;
    LeagueData.PayrollSkipsSuspended = true;
    OnFarm(7).Condition = 80;
    OnFarm(8).Suspension = 1;
    OnFarm(9);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 100000);
}

TEST_F(FinanceTest, OtherTeamsAndUnusedRecordsCostNothing)
{
    PutSkater(7, 6, position::Center, status::Pro);
    PutSkater(8, 0, position::Center, status::Pro);
    Pro(9).InUse = false;
    Pro(10).InUse.SetWord(1);
    PutGoalie(7, 6, status::Farm);
    PutCoach(1, 6, 500000);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(CoachPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, PlaceholderIsNobody)
{
    PutSkater(0, 5, position::Center, status::Pro);
    PutGoalie(0, 5, status::Pro);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, LastRecordsOfTheTablesAreCounted)
{
    Pro(10000);
    PutGoalie(1000, 5, status::Pro);
    PutCoach(500, 5, 3);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 2000000);
    EXPECT_EQ(CoachPayroll(OpenLeague, Machine, 5), 3);
}

TEST_F(FinanceTest, CoachPayrollLooksAtNothingButUseTeamAndSalary)
{
    PutCoach(1, 5, 300000);
    PutCoach(2, 5, 200000);
    PutCoach(3, 5, 100000);
    Coaches[2].Contract = 0;
    Coaches[3].InUse.SetWord(1);
    EXPECT_EQ(CoachPayroll(OpenLeague, Machine, 5), 500000);
}

// The next larger 32-bit float after 2^24 is 2 away: a 1 added to it is lost, two of them added first are not.
TEST_F(FinanceTest, PayrollIsRoundedAfterEachAdditionInIndexOrder)
{
    Pro(1).Salary = 1;
    Pro(2).Salary = 1;
    Pro(3).Salary = 16777216;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 16777218.0F);
    Players[1].Salary = 16777216;
    Players[3].Salary = 1;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 16777216.0F);
}

TEST_F(FinanceTest, GoaliesAreAddedBehindAllPlayers)
{
    PutGoalie(1, 5, status::Pro).Salary = 16777216;
    Pro(5000).Salary = 1;
    Pro(9000).Salary = 1;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 16777218.0F);
}

TEST_F(FinanceTest, CoachesAreAddedOneByOne)
{
    PutCoach(1, 5, 16777216);
    PutCoach(2, 5, 1);
    PutCoach(3, 5, 1);
    EXPECT_EQ(CoachPayroll(OpenLeague, Machine, 5), 16777216.0F);
    Pro(1).Salary = 16777216;
    Coaches[1].Salary = 0;
    Teams[5].SeasonGames = 1;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 16777216);
}

TEST_F(FinanceTest, SuspensionIsTakenOffInAStepOfItsOwn)
{
    LeagueData.PayrollSkipsSuspended = true;
    Pro(1).Salary = 1;
    Pro(2).Salary = 16777216;
    Players[2].Suspension = 1;
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0); // 1 + 16777216 loses the 1 before 16777216 goes
}

TEST_F(FinanceTest, ExpenseLooksAtSuspensionAndNotAtContractOrCondition)
{
    Teams[5].SeasonGames = 10;
    Pro(1).Condition = 0;
    Pro(2).Suspension = 1;
    Pro(3).Contract = 0;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 200000);
    LeagueData.PayrollMinCondition = 100;
    LeagueData.PayrollSkipsSuspended = true;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 200000);
}

TEST_F(FinanceTest, ExpenseAddsProScratchesFarmAndCoaches)
{
    Teams[5].SeasonGames = 10;
    Pro(1);
    PutSkater(2, 5, position::Center, status::Scratch);
    OnFarm(3);
    PutGoalie(1, 5, status::Pro);
    PutGoalie(2, 5, status::Farm);
    PutCoach(1, 5, 500000);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 370000);
}

TEST_F(FinanceTest, ExpenseFlagMakesAGameFree)
{
    Pro(1);
    LeagueData.ExpenseFlag = true;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
}

TEST_F(FinanceTest, OnlyTheWordMinus1MakesAGameFree)
{
    Pro(7);
    LeagueData.ExpenseFlag.SetWord(1);
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 12195); // 1000000 / 82
}

TEST_F(FinanceTest, SeasonWithoutGamesCostsNothing)
{
    Pro(1);
    Teams[5].SeasonGames = 0;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(FinanceTest, SeasonOfNegativeLengthIsDividedByAsItStands)
{
    Pro(1);
    Teams[5].SeasonGames = -4;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), -250000);
}

TEST_F(FinanceTest, ExpenseGoesToTheEvenNumberBetweenTwo)
{
    Teams[5].SeasonGames = 2;
    Pro(1).Salary = 5;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 2);
    Players[1].Salary = 7;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 4);
}

TEST_F(FinanceTest, ExpenseBeyond32BitsIsAnOverflow)
{
    Teams[5].SeasonGames = 1;
    Pro(1).Salary = 2000000000;
    Pro(2).Salary = 2000000000;
    EXPECT_EQ(ExpensePerGame(OpenLeague, Machine, 5), 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in ExpensePerGame!"}));
}

TEST_F(FinanceTest, TeamOutOfRangeFailsTheIntegrityCheck)
{
    const auto isRefused = [this](auto&& routine) {
        for (const int team : {-1, 0, 101}) {
            EXPECT_EQ(routine(team), 0);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
        }
    };
    LeagueData.ExpenseFlag = true;
    LeagueData.FarmEnabled = false;
    isRefused([](int team) { return ProPayroll(OpenLeague, dravik::Machine(), team); });
    isRefused([](int team) { return FarmPayroll(OpenLeague, dravik::Machine(), team); });
    isRefused([](int team) { return CoachPayroll(OpenLeague, dravik::Machine(), team); });
    isRefused([](int team) { return ExpensePerGame(OpenLeague, dravik::Machine(), team); });
}

TEST_F(FinanceTest, AFailureIsReportedWithTheNameOfItsRoutine)
{
    FailingBoxes failing;
    UseMachine(failing);
    const auto fails = [&failing](auto&& routine, const char* ending) {
        failing.FailuresLeft = 1;
        EXPECT_EQ(routine(0), 0);
        EXPECT_THAT(failing.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in " + std::string(ending)}));
    };
    fails([](int team) { return ProPayroll(OpenLeague, dravik::Machine(), team); }, "ProPayroll!");
    fails([](int team) { return FarmPayroll(OpenLeague, dravik::Machine(), team); }, "FarmPayroll!");
    fails([](int team) { return CoachPayroll(OpenLeague, dravik::Machine(), team); }, "CoachPayroll!");
    fails([](int team) { return ExpensePerGame(OpenLeague, dravik::Machine(), team); }, "ExpensePerGame!");
    UseMachine(Machine);
}

// A second reading of the four figures: one table of people, rounded through memory.
struct PlainPerson {
    long long Team, Status, Contract, Condition, Suspension, Salary, Games;
};

std::vector<PlainPerson> Everybody()
{
    std::vector<PlainPerson> all;
    const auto add = [&](const auto& p) {
        if (p.InUse.Word() == -1)
            all.push_back({p.Team, p.Status, p.Contract, p.Condition, p.Suspension, p.Salary, p.ProGames});
    };
    for (int i = 1; i <= 10000; ++i)
        add(Players[i]);
    for (int i = 1; i <= 1000; ++i)
        add(Goalies[i]);
    return all;
}

void PlainAdd(volatile float& sum, double term)
{
    volatile double wide = static_cast<double>(sum) + term;
    sum = static_cast<float>(wide);
}

double PlainCost(const PlainPerson& p, bool farm)
{
    const auto salary = static_cast<double>(p.Salary);
    if (!farm)
        return salary;
    const bool full = LeagueData.FarmPayMinGames != 0 && p.Games >= LeagueData.FarmPayMinGames;
    return full ? salary : static_cast<double>(LeagueData.FarmSalaryPct) / 100.0 * salary;
}

float PlainPayroll(const std::vector<PlainPerson>& people, int team, bool farm)
{
    volatile float sum = 0;
    if (farm && LeagueData.FarmEnabled.Word() != -1)
        return sum;
    for (const PlainPerson& p : people) {
        if (p.Team != team || (p.Status == 0) != farm || p.Contract == 0)
            continue;
        if (p.Condition > LeagueData.PayrollMinCondition)
            PlainAdd(sum, PlainCost(p, farm));
        if (p.Suspension != 0 && LeagueData.PayrollSkipsSuspended.Word() == -1)
            PlainAdd(sum, -PlainCost(p, farm));
    }
    if (!farm && LeagueData.PayrollIncludesBonus.Word() == -1)
        PlainAdd(sum, static_cast<double>(Teams[team].PayrollBonus));
    return sum;
}

TEST_F(FinanceTest, RandomLeaguesAgreeWithThePlainReadingAndNothingChanges)
{
    Dice dice(61);
    for (int round = 0; round < 400; ++round) {
        RollLeague(dice);
        const auto before = ImageOf(Players);
        const auto people = Everybody();
        for (int team = 1; team <= 3; ++team) {
            ASSERT_EQ(ProPayroll(OpenLeague, Machine, team), PlainPayroll(people, team, false)) << "round " << round;
            ASSERT_EQ(FarmPayroll(OpenLeague, Machine, team), PlainPayroll(people, team, true)) << "round " << round;

            volatile float coaches = 0;
            volatile float expense = 0;
            for (const PlainPerson& p : people)
                if (p.Team == team && p.Suspension == 0 && p.Status <= 2 && (p.Status > 0 || LeagueData.FarmEnabled))
                    PlainAdd(expense, PlainCost(p, p.Status == 0));
            for (const Coach& coach : Coaches)
                if (coach.InUse && coach.Team == team) {
                    PlainAdd(coaches, static_cast<double>(coach.Salary));
                    PlainAdd(expense, static_cast<double>(coach.Salary));
                }
            ASSERT_EQ(CoachPayroll(OpenLeague, Machine, team), coaches);
            const auto games = static_cast<double>(Teams[team].SeasonGames);
            const bool free = LeagueData.ExpenseFlag || games == 0;
            ASSERT_EQ(ExpensePerGame(OpenLeague, Machine, team),
                      free ? 0 : std::llrint(static_cast<double>(expense) / games))
                << "round " << round;
        }
        ASSERT_EQ(ImageOf(Players), before);
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

} // namespace
} // namespace dravik
