#include "rules/SeasonProjection.h"

#include "rules/Finance.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace dravik {
namespace {

using ::testing::ElementsAre;

class SeasonProjectionTest : public SmallLeague {
protected:
    SeasonProjectionTest()
    {
        TeamMaker(5);
        PutSkater(1, 5, position::Center, status::Pro).Salary = 8200000;
        PutSkater(2, 5, position::Center, status::Farm).Salary = 1640000;
        team.Cash = 5000000;
        team.GamesPlayed = 60;
        team.HomeGames = 30;
        team.TotalIncome = 9000000;
        team.TotalAttendance = 450015;
    }

    // The season of a team that comes to its end.
    static SeasonFigures SeasonOf(int number)
    {
        SeasonFigures season;
        ProjectSeason(number, season);
        return season;
    }

    static int NumberThrown(int number = 5)
    {
        try {
            SeasonOf(number);
        } catch (const Failure& failed) {
            return failed.Number;
        }
        return 0;
    }

    // Works out the season of team 5, which has to end in an overflow, and gives what was reached.
    static SeasonFigures ReachedBeforeTheOverflow()
    {
        SeasonFigures season = SeasonOfAnotherDay();
        int thrown = 0;
        try {
            ProjectSeason(5, season);
        } catch (const Failure& failed) {
            thrown = failed.Number;
        }
        EXPECT_EQ(thrown, failure::Overflow);
        return season;
    }

    // A record that is full already.
    static SeasonFigures SeasonOfAnotherDay() { return {SeasonForm::Full, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}; }

    Team& team = Teams[5];
};

// The number of figures in a row, in the order of telling, that were reached; -1 when one behind an empty one was.
int CountReached(const SeasonFigures& season)
{
    const bool reached[] = {season.Cash.has_value(),          season.ProPayroll.has_value(),
                            season.FarmPayroll.has_value(),   season.HomeGamesLeft.has_value(),
                            season.GamesLeft.has_value(),     season.ExpensePerGame.has_value(),
                            season.SeasonExpense.has_value(), season.AverageAttendance.has_value(),
                            season.AverageIncome.has_value(), season.BankAccount.has_value(),
                            season.Revenue.has_value()};
    const auto end = std::find(std::begin(reached), std::end(reached), false);
    return std::find(end, std::end(reached), true) == std::end(reached) ? static_cast<int>(end - std::begin(reached))
                                                                        : -1;
}

TEST_F(SeasonProjectionTest, FullSeasonIsProjected)
{
    const SeasonFigures season = SeasonOf(5);
    EXPECT_EQ(season.Form, SeasonForm::Full);
    EXPECT_EQ(season.Cash, 5000000);
    EXPECT_EQ(season.ProPayroll, 8200000);
    EXPECT_EQ(season.FarmPayroll, 164000);
    EXPECT_EQ(season.HomeGamesLeft, 11);
    EXPECT_EQ(season.GamesLeft, 22);
    EXPECT_EQ(season.ExpensePerGame, 102000); // 8364000 / 82
    EXPECT_EQ(season.SeasonExpense, 2244000); // home and away
    EXPECT_EQ(season.AverageAttendance, 15000.5);
    EXPECT_EQ(season.AverageIncome, 300000);
    EXPECT_EQ(season.Revenue, 3300000); // home only
    EXPECT_EQ(season.BankAccount, 6056000);
}

TEST_F(SeasonProjectionTest, SeasonOf1GameShowsZerosAndOneOf2ShowsFigures)
{
    team.SeasonGames = 1;
    SeasonFigures season = SeasonOf(5);
    EXPECT_EQ(season.Form, SeasonForm::NoSeason);
    EXPECT_EQ(season.Cash, 5000000);
    EXPECT_EQ(season.ProPayroll, 8200000);
    EXPECT_EQ(season.FarmPayroll, 164000);
    EXPECT_EQ(season.HomeGamesLeft, 0);
    EXPECT_EQ(season.GamesLeft, 0);
    EXPECT_EQ(season.ExpensePerGame, 0);
    EXPECT_EQ(season.SeasonExpense, 0);
    EXPECT_EQ(season.AverageAttendance, 0);
    EXPECT_EQ(season.AverageIncome, 0);
    EXPECT_EQ(season.Revenue, 0);
    EXPECT_EQ(season.BankAccount, 5000000);

    team.SeasonGames = 2;
    season = SeasonOf(5);
    EXPECT_EQ(season.Form, SeasonForm::Full);
    EXPECT_EQ(season.HomeGamesLeft, -29);
    EXPECT_EQ(season.GamesLeft, -58);
    EXPECT_EQ(season.ExpensePerGame, 4182000);
    EXPECT_EQ(season.SeasonExpense, -242556000);
    EXPECT_EQ(season.AverageIncome, 300000);
    EXPECT_EQ(season.Revenue, -8700000);
    EXPECT_EQ(season.BankAccount, 238856000);
}

TEST_F(SeasonProjectionTest, WithoutAHomeGameTheAveragesAre0AndNothingIsDivided)
{
    for (const int homeGames : {0, -3}) {
        team.HomeGames = homeGames;
        const SeasonFigures season = SeasonOf(5);
        EXPECT_EQ(season.Form, SeasonForm::NoAverages);
        EXPECT_EQ(season.ProPayroll, 8200000);
        EXPECT_EQ(season.HomeGamesLeft, 41 - homeGames);
        EXPECT_EQ(season.GamesLeft, 22);
        EXPECT_EQ(season.ExpensePerGame, 0);
        EXPECT_EQ(season.SeasonExpense, 0);
        EXPECT_EQ(season.AverageAttendance, 0);
        EXPECT_EQ(season.AverageIncome, 0);
        EXPECT_EQ(season.Revenue, 0);
        EXPECT_EQ(season.BankAccount, 5000000);
    }
}

TEST_F(SeasonProjectionTest, HiddenAveragesHideTheExpensesToo)
{
    LeagueData.HideFinanceAverages = true;
    const SeasonFigures season = SeasonOf(5);
    EXPECT_EQ(season.Form, SeasonForm::NoAverages);
    EXPECT_EQ(season.HomeGamesLeft, 11);
    EXPECT_EQ(season.GamesLeft, 22);
    EXPECT_EQ(season.ExpensePerGame, 0);
    EXPECT_EQ(season.SeasonExpense, 0);
    EXPECT_EQ(season.BankAccount, 5000000);
}

TEST_F(SeasonProjectionTest, OddSeasonLeavesAHalfHomeGame)
{
    team.SeasonGames = 81;
    team.HomeGames = 40;
    EXPECT_EQ(SeasonOf(5).HomeGamesLeft, 0.5);
}

TEST_F(SeasonProjectionTest, WithExpenseFlagTheAccountIsCashAndRevenue)
{
    LeagueData.ExpenseFlag = true;
    const SeasonFigures season = SeasonOf(5);
    EXPECT_EQ(season.ExpensePerGame, 0);
    EXPECT_EQ(season.SeasonExpense, 0);
    EXPECT_EQ(season.BankAccount, 8300000);
}

TEST_F(SeasonProjectionTest, RevenueIsRoundedOnceToTheEvenNumber)
{
    team.SeasonGames = 81;
    team.HomeGames = 40;
    team.TotalIncome = 200; // half a game of 5
    EXPECT_EQ(SeasonOf(5).Revenue, 2);
    team.TotalIncome = 280; // half a game of 7
    EXPECT_EQ(SeasonOf(5).Revenue, 4);
    team.TotalIncome = 100; // half a game of 2.5, no average is rounded on the way
    EXPECT_EQ(SeasonOf(5).Revenue, 1);
    EXPECT_EQ(SeasonOf(5).AverageIncome, 2.5);
}

TEST_F(SeasonProjectionTest, PayrollsAreRoundedToTheEvenNumber)
{
    Players[2].Salary = 25; // a tenth of it on the farm
    EXPECT_EQ(SeasonOf(5).FarmPayroll, 2);
    Players[2].Salary = 35;
    EXPECT_EQ(SeasonOf(5).FarmPayroll, 4);
}

TEST_F(SeasonProjectionTest, PayrollBeyond32BitsIsAnOverflow)
{
    Players[1].Salary = 2000000000;
    PutSkater(3, 5, position::Center, status::Pro).Salary = 2000000000;
    EXPECT_EQ(NumberThrown(), failure::Overflow);
}

TEST_F(SeasonProjectionTest, SeasonExpenseBeyond32BitsIsAnOverflowEvenWhereItIsNotShown)
{
    Players[1].Salary = 2000000000;
    Teams[5].SeasonGames = 2;
    team.GamesPlayed = 0;
    EXPECT_EQ(NumberThrown(), 0);
    team.GamesPlayed = -1;
    EXPECT_EQ(NumberThrown(), failure::Overflow);
    LeagueData.HideFinanceAverages = true;
    EXPECT_EQ(NumberThrown(), failure::Overflow);
    Teams[5].SeasonGames = 1;
    EXPECT_EQ(NumberThrown(), 0);
}

TEST_F(SeasonProjectionTest, RevenueBeyond32BitsIsAnOverflow)
{
    team.HomeGames = 1;
    team.TotalIncome = 2000000000;
    EXPECT_EQ(NumberThrown(), failure::Overflow);
}

TEST_F(SeasonProjectionTest, AccountBeyond32BitsIsAnOverflowOnTheWay)
{
    team.Cash = 2147483647;
    EXPECT_EQ(NumberThrown(), failure::Overflow); // Cash + Revenue, although the expense would bring it back
    team.Cash = 2147483647 - 3300000;
    EXPECT_EQ(SeasonOf(5).BankAccount, 2147483647 - 2244000);
}

TEST_F(SeasonProjectionTest, TeamOutOfRangeFailsWithNumber9)
{
    for (const int number : {0, 101})
        EXPECT_EQ(NumberThrown(number), failure::OutOfRange);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

// ---- Where a season stops ------------------------------------------------------------------------------------------

TEST_F(SeasonProjectionTest, ATeamOutOfRangeReachesNothing)
{
    SeasonFigures season = SeasonOfAnotherDay();
    EXPECT_THROW(ProjectSeason(101, season), Failure);
    EXPECT_EQ(CountReached(season), 0);
    EXPECT_EQ(season.Form, SeasonForm::NoSeason);
}

TEST_F(SeasonProjectionTest, AnOverflowOfTheProPayrollLeavesTheCash)
{
    Players[1].Salary = 2000000000;
    PutSkater(3, 5, position::Center, status::Pro).Salary = 2000000000;
    const SeasonFigures season = ReachedBeforeTheOverflow();
    EXPECT_EQ(CountReached(season), 1);
    EXPECT_EQ(season.Cash, 5000000);
}

TEST_F(SeasonProjectionTest, AnOverflowOfTheFarmPayrollLeavesTheProPayroll)
{
    Players[2].Salary = 2000000000;
    LeagueData.FarmSalaryPct = 200;
    const SeasonFigures season = ReachedBeforeTheOverflow();
    EXPECT_EQ(CountReached(season), 2);
    EXPECT_EQ(season.ProPayroll, 8200000);
}

TEST_F(SeasonProjectionTest, AnOverflowOfTheSeasonExpenseLeavesThePayrolls)
{
    Players[1].Salary = 2000000000;
    team.SeasonGames = 2;
    team.GamesPlayed = -1;
    const SeasonFigures season = ReachedBeforeTheOverflow();
    EXPECT_EQ(CountReached(season), 3);
    EXPECT_EQ(season.FarmPayroll, 164000);
    EXPECT_EQ(season.Form, SeasonForm::NoSeason);
}

TEST_F(SeasonProjectionTest, AnOverflowOfTheRevenueLeavesTheExpenses)
{
    team.HomeGames = 1;
    team.TotalIncome = 2000000000;
    const SeasonFigures season = ReachedBeforeTheOverflow();
    EXPECT_EQ(CountReached(season), 7);
    EXPECT_EQ(season.HomeGamesLeft, 40);
    EXPECT_EQ(season.GamesLeft, 22);
    EXPECT_EQ(season.ExpensePerGame, 102000);
    EXPECT_EQ(season.SeasonExpense, 2244000);
    EXPECT_EQ(season.Form, SeasonForm::Full);
}

TEST_F(SeasonProjectionTest, AnOverflowOfTheAccountLeavesTheAveragesAndNotTheRevenue)
{
    team.Cash = 2147483647;
    const SeasonFigures season = ReachedBeforeTheOverflow();
    EXPECT_EQ(CountReached(season), 9);
    EXPECT_EQ(season.AverageAttendance, 15000.5);
    EXPECT_EQ(season.AverageIncome, 300000);
}

TEST_F(SeasonProjectionTest, AnExpenseThatBringsTheAccountBelow32BitsIsTheSameStop)
{
    team.Cash = -2147483647;
    team.TotalIncome = 0;
    EXPECT_EQ(CountReached(ReachedBeforeTheOverflow()), 9);
}

TEST_F(SeasonProjectionTest, AnExpensePerGameThatFailsIsToldAndTheSeasonGoesOnWith0)
{
    // Without contract they cost in a game and not in the payroll: three halves of the largest salary.
    for (const int index : {3, 4, 6})
        PutSkater(index, 5, position::Center, status::Scratch).Salary = 2147483647;
    for (const int index : {3, 4, 6})
        Players[index].Contract = 0;
    team.SeasonGames = 2;
    SeasonFigures season;
    ProjectSeason(5, season);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in ExpensePerGame!"}));
    EXPECT_EQ(CountReached(season), 11);
    EXPECT_EQ(season.ExpensePerGame, 0);
    EXPECT_EQ(season.BankAccount, 5000000 + season.Revenue.value());
}

TEST_F(SeasonProjectionTest, EveryFormReachesItsEnd)
{
    SeasonFigures season;
    ProjectSeason(5, season);
    EXPECT_EQ(CountReached(season), 11);
    EXPECT_EQ(season.Form, SeasonForm::Full);

    LeagueData.HideFinanceAverages = true;
    ProjectSeason(5, season);
    EXPECT_EQ(CountReached(season), 11);
    EXPECT_EQ(season.Form, SeasonForm::NoAverages);
    EXPECT_EQ(season.BankAccount, 5000000);

    team.SeasonGames = 1;
    ProjectSeason(5, season);
    EXPECT_EQ(CountReached(season), 11);
    EXPECT_EQ(season.Form, SeasonForm::NoSeason);
    EXPECT_EQ(season.HomeGamesLeft, 0);
    EXPECT_EQ(season.BankAccount, 5000000);
}

TEST_F(SeasonProjectionTest, AveragesAreHiddenByMinusOneAlone)
{
    LeagueData.HideFinanceAverages.SetWord(1);
    EXPECT_EQ(SeasonOf(5).Form, SeasonForm::Full);
}

TEST_F(SeasonProjectionTest, RandomSeasonsAddUpAndChangeNothing)
{
    Dice dice(62);
    for (int round = 0; round < 300; ++round) {
        RollLeague(dice);
        const auto before = ImageOf(Teams);
        for (int number = 1; number <= 3; ++number) {
            const Team& record = Teams[number];
            const SeasonFigures season = SeasonOf(number);
            const auto games = static_cast<double>(record.SeasonGames);
            const auto home = static_cast<double>(record.HomeGames);
            const bool none = games < 2;
            const bool hidden = home <= 0 || LeagueData.HideFinanceAverages;
            ASSERT_EQ(season.Form, none ? SeasonForm::NoSeason : hidden ? SeasonForm::NoAverages : SeasonForm::Full);
            ASSERT_EQ(season.ProPayroll, std::llrint(static_cast<double>(ProPayroll(OpenLeague, Machine, number))));
            ASSERT_EQ(season.FarmPayroll, std::llrint(static_cast<double>(FarmPayroll(OpenLeague, Machine, number))));
            ASSERT_EQ(season.HomeGamesLeft, none ? 0 : games / 2 - home);
            ASSERT_EQ(season.GamesLeft, none ? 0 : record.SeasonGames - record.GamesPlayed);
            const bool full = season.Form == SeasonForm::Full;
            ASSERT_EQ(season.ExpensePerGame, full ? ExpensePerGame(OpenLeague, Machine, number) : 0);
            ASSERT_EQ(season.SeasonExpense, *season.GamesLeft * *season.ExpensePerGame);
            const double income = full ? static_cast<double>(record.TotalIncome) / home : 0;
            ASSERT_EQ(season.AverageIncome, income);
            ASSERT_EQ(season.AverageAttendance, full ? static_cast<double>(record.TotalAttendance) / home : 0);
            ASSERT_EQ(season.Revenue, std::llrint(*season.HomeGamesLeft * income));
            ASSERT_EQ(season.BankAccount, record.Cash + *season.Revenue - *season.SeasonExpense);
        }
        ASSERT_EQ(ImageOf(Teams), before);
    }
}

} // namespace
} // namespace dravik
