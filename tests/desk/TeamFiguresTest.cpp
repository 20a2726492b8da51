#include "desk/TeamFigures.h"

#include "LinesDesk.h"
#include "rules/LineStrength.h"
#include "rules/Overall.h"
#include "rules/StatRows.h"
#include "support/RandomLeague.h"

#include <cmath>

namespace dravik {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class TeamFiguresTest : public LinesDesk {
protected:
    TeamFiguresTest()
    {
        LeagueData.SalaryCapMode = 1;
        LeagueData.SalaryCap = 60000000;
        LeagueData.ScheduleShown = true;
        Remember();
    }
};

TEST_F(TeamFiguresTest, ThePayrollOfTheFirstYearIsTheJudgesOwn)
{
    Players[Pro.Skaters[0]].Contract = 3;
    Remember();
    const auto years = PayrollByYears(OpenLeague, Own);
    EXPECT_TRUE(IsAsExpected());
    ASSERT_THAT(years, SizeIs(3));
    EXPECT_EQ(years[0], StandingAgainstCap(OpenLeague, Own));
    EXPECT_EQ(years[2].Total, Players[Pro.Skaters[0]].Salary);
    EXPECT_EQ(years[2].Cap, 60000000);
}

TEST_F(TeamFiguresTest, AContractOfMoreThanNineYearsIsToldForNine)
{
    Players[Pro.Skaters[0]].Contract = 200;
    EXPECT_THAT(PayrollByYears(OpenLeague, Own), SizeIs(9));
}

TEST_F(TeamFiguresTest, ATeamWithoutContractsHasThisYearAlone)
{
    EXPECT_THAT(PayrollByYears(OpenLeague, 77), SizeIs(1));
    EXPECT_EQ(FailureOfCommand([] { PayrollByYears(OpenLeague, 101); }), failure::OutOfRange);
}

// The second reading: whoever is still under contract in a year, added up.
TEST_F(TeamFiguresTest, RandomContractsAddUpTheSame)
{
    Dice dice(5);
    for (int round = 0; round < 10; ++round) {
        long long years[9] = {};
        int longest = 1;
        for (int slot = 1; slot <= 60; ++slot) {
            Player& player = PutSkater(slot, static_cast<int>(dice.Roll(5, 6)), 1, status::Pro);
            player.Contract = dice.Roll(0, 6);
            player.Salary = dice.Roll(1, 50) * 100000;
            PutGoalie(slot, 7, status::Pro);
            if (player.Team != Own)
                continue;
            longest = std::max(longest, static_cast<int>(player.Contract));
            for (int year = 0; year < player.Contract; ++year)
                years[year] += player.Salary;
        }
        const auto standing = PayrollByYears(OpenLeague, Own);
        ASSERT_THAT(standing, SizeIs(longest)) << round;
        for (int year = 0; year < longest; ++year)
            EXPECT_EQ(standing[static_cast<std::size_t>(year)].Pro, years[year]) << round << ' ' << year;
    }
}

TEST_F(TeamFiguresTest, AgesCountInTheirBandsAndPositions)
{
    TeamMaker(7).Dresses(3, position::Defense).FarmsGoalies(1);
    const int first = Pro.Skaters.size() + Farm.Skaters.size() + 1;
    Players[first].Age = 20;
    Players[first + 1].Age = 21;
    Players[first + 2].Age = 32000;
    const Ages ages = AgesOf(OpenLeague, 7);
    EXPECT_EQ(ages[0][3], 1);
    EXPECT_EQ(ages[1][3], 1);
    EXPECT_EQ(ages[6][3], 1);
    int all = 0;
    for (const auto& row : ages)
        for (const int count : row)
            all += count;
    EXPECT_EQ(all, 4);
    Players[first].Position = 0;
    EXPECT_EQ(AgesOf(OpenLeague, 7)[0][3], 0);
}

TEST_F(TeamFiguresTest, EveryAgeIsInOneBand)
{
    for (std::size_t row = 1; row < AgeRows.size(); ++row)
        EXPECT_EQ(AgeRows[row].From, AgeRows[row - 1].To + 1);
}

TEST_F(TeamFiguresTest, ADayIsTheMeanOfItsLinesBesideItsOpponent)
{
    TeamMaker(6).Dresses(2, position::Center, 70).DressesGoalies(1, 80);
    ScheduleRow& game = GameSchedule[9];
    game.ProGame = true;
    game.ProHome = 6;
    game.ProAway = Own;
    for (Player& player : Players) // a pair counts less than a line
        if (player.InUse && player.Team == Own && player.Position == position::Defense)
            for (auto stat = SkaterRatings::first; stat <= SkaterRatings::last; ++stat)
                player.Stats[stat] = 90;
    Remember();
    const auto days = StrengthOfDays(OpenLeague, Own);
    EXPECT_TRUE(IsAsExpected());
    ASSERT_THAT(days, SizeIs(10));
    const LineStrength lines = StrengthOfLines(OpenLeague, Day(Side::Pro));
    const double sum =
        3 * (*lines[0] + *lines[1] + *lines[2] + *lines[3]) + 2 * (*lines[4] + *lines[5] + *lines[6] + *lines[7]);
    EXPECT_EQ(days[0].Own, static_cast<int>(std::nearbyint(sum / 20)));
    EXPECT_EQ(days[0].Goalie, OverallAt(OpenLeague, position::Goalie, static_cast<int>(Day(Side::Pro).StartGoalie)));
    EXPECT_EQ(days[0].OpponentNumber, 6);
    EXPECT_EQ(days[0].Opponent, StrengthOfTeams(OpenLeague)[6]);
    EXPECT_EQ(days[1].Own, std::nullopt);
    EXPECT_EQ(days[1].OpponentNumber, std::nullopt);
}

TEST_F(TeamFiguresTest, WhatTheLeagueHidesIsNotTold)
{
    GameSchedule[9].ProGame = true;
    GameSchedule[9].ProHome = Own;
    GameSchedule[9].ProAway = 6;
    LeagueData.ScheduleShown = false;
    EXPECT_EQ(StrengthOfDays(OpenLeague, Own)[0].OpponentNumber, std::nullopt);
    EXPECT_EQ(StrengthOfDays(OpenLeague, Own)[0].Opponent, TeamStrength{});
    LeagueData.ShowOverall = false;
    EXPECT_THAT(StrengthOfDays(OpenLeague, Own), IsEmpty());
}

} // namespace
} // namespace dravik
