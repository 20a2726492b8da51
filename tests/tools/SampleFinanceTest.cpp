#include "rules/Finance.h"
#include "SampleFixture.h"
#include "session/Session.h"

namespace dravik {

namespace {

class SampleFinanceTest : public SampleTables {
protected:
    static long long Seats(const Team& team)
    {
        long long seats = 0;
        for (const Int32& level : team.ArenaCapacity)
            seats += level;
        return seats;
    }

    // What a full house pays.
    static long long FullGate(const Team& team)
    {
        long long gate = 0;
        for (int level = 1; level <= 5; ++level)
            gate += team.ArenaCapacity[level] * team.TicketPrice[level];
        return gate;
    }
};

} // namespace

TEST_F(SampleFinanceTest, ArenasAndPricesAreSensible)
{
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        EXPECT_NE(team.ArenaName.Trimmed(), "");
        EXPECT_GE(Seats(team), 12000) << number;
        EXPECT_LE(Seats(team), 21000) << number;
        for (int level = 1; level <= 5; ++level) {
            EXPECT_GE(team.ArenaCapacity[level], 500);
            EXPECT_GE(team.TicketPrice[level], 20);
            EXPECT_LE(team.TicketPrice[level], 400);
        }
        EXPECT_GT(team.TicketPrice[5], team.TicketPrice[1]); // the luxury boxes
        EXPECT_LT(team.ArenaCapacity[5], team.ArenaCapacity[4]);
    }
}

TEST_F(SampleFinanceTest, AttendanceFitsTheArenaOverTheHomeGames)
{
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        EXPECT_LE(team.TotalAttendance, Seats(team) * team.HomeGames) << number;
        EXPECT_GE(team.TotalAttendance, Seats(team) * team.HomeGames * 6 / 10) << number;
    }
}

// A house is filled alike on all levels, so income stands to a full gate as attendance stands to a full house.
TEST_F(SampleFinanceTest, IncomeIsWhatTheAttendancePaid)
{
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        EXPECT_EQ(team.TotalIncome * Seats(team), team.TotalAttendance * FullGate(team)) << number;
    }
}

TEST_F(SampleFinanceTest, CashIsARoundOpeningSumAndIncomeLessExpenses)
{
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        const long long opening =
            team.Cash - team.TotalIncome + ExpensePerGame(OpenLeague, Machine, number) * team.GamesPlayed;
        EXPECT_EQ(opening % 100000, 0) << number;
        EXPECT_GE(opening, 8000000) << number;
        EXPECT_LE(opening, 45000000) << number;
    }
}

TEST_F(SampleFinanceTest, TheFinancesOfTheOffSeasonAddUpToo)
{
    MakeSampleLeague({.OffSeason = true});
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        EXPECT_EQ(team.HomeGames, 41);
        EXPECT_EQ(team.TotalIncome * Seats(team), team.TotalAttendance * FullGate(team)) << number;
    }
}

TEST_F(SampleFinanceTest, OnlyTheTeamAboveTheCapIsAboveTheCap)
{
    EXPECT_EQ(LeagueData.SalaryCapMode, 1);
    for (const int number : TeamNumbers()) {
        const float payroll = ProPayroll(OpenLeague, Machine, number);
        if (number == TeamWith(Hole::OverCap))
            EXPECT_GT(payroll, static_cast<float>(LeagueData.SalaryCap));
        else
            EXPECT_LE(payroll, static_cast<float>(LeagueData.SalaryCap)) << number;
        EXPECT_GE(payroll, static_cast<float>(LeagueData.MinSalaryCap)) << number;
        EXPECT_LE(FarmPayroll(OpenLeague, Machine, number), static_cast<float>(LeagueData.FarmSalaryCap)) << number;
    }
}

} // namespace dravik
