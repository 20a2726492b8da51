#include "desk/Evening.h"

#include "desk/LinesOfAllDays.h"
#include "desk/MarketDoors.h"
#include "rules/RosterJudge.h"
#include "support/LeagueImage.h"
#include "support/LineFindings.h"
#include "support/PlainFormats.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class EveningTest : public SmallLeague {
protected:
    EveningTest()
    {
        LeagueData.FarmEnabled = true;
        TeamMaker pro(5);
        pro.DressesFullRoster();
        TeamMaker farm(5);
        farm.FarmsFullRoster();
        for (int day = 1; day <= LineDays; ++day) {
            FillDay(Teams[5].ProLines[day], pro);
            FillDay(Teams[5].Farm.FarmLines[day], farm);
        }
    }

    EveningItem Of(EveningTask task, const OnTheMarket& market = {})
    {
        return LookAtEvening(OpenLeague, Shown, 5, market, *Scratch).at(static_cast<std::size_t>(task));
    }

    PlainFormats Shown;
    std::unique_ptr<Tables> Scratch = MakeTables();
};

TEST_F(EveningTest, AllIsDoneWhereTheJudgesAreContent)
{
    LeagueData.SalaryCapMode = 0;
    const EveningItem roster = Of(EveningTask::Roster);
    EXPECT_EQ(roster.State, EveningState::Done);
    EXPECT_THAT(roster.Findings, IsEmpty());
    EXPECT_EQ(roster.Words, "complete, payroll " +
                                Shown.CurrencyNoDecimals(static_cast<double>(StandingAgainstCap(OpenLeague, 5).Total)));
    for (const EveningTask lines : {EveningTask::Lines, EveningTask::FarmLines}) {
        EXPECT_EQ(Of(lines).State, EveningState::Done);
        EXPECT_EQ(Of(lines).Words, "10 of 10 days complete");
    }
}

TEST_F(EveningTest, APayrollThatNobodyCanCountIsLeftOut)
{
    LeagueData.SalaryCapMode = 0;
    LeagueData.MaxSalary = 2000000000;
    Players[1].Salary = 2000000000;
    Players[2].Salary = 2000000000;
    const EveningItem roster = Of(EveningTask::Roster);
    EXPECT_EQ(roster.State, EveningState::Done);
    EXPECT_EQ(roster.Words, "complete");
    EXPECT_THAT(roster.Findings, IsEmpty());
}

TEST_F(EveningTest, TheCapStandsBesideThePayroll)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 90000000;
    EXPECT_THAT(Of(EveningTask::Roster).Findings, ElementsAre("The payroll may reach 90000000.000000."));
    LeagueData.SalaryCap = 10;
    const EveningItem roster = Of(EveningTask::Roster);
    EXPECT_EQ(roster.State, EveningState::Wrong);
    EXPECT_EQ(roster.Count, 1);
    EXPECT_EQ(roster.Words, "1 finding");
    ASSERT_EQ(roster.Findings.size(), 1U);
}

TEST_F(EveningTest, WhatTheRosterJudgeFindsIsCountedAndSaid)
{
    LeagueData.SalaryCapMode = 0;
    Goalies[1].Team = 0;
    Goalies[2].Team = 0;
    MuteVoice mute;
    bool modified = false;
    auto copy = Copy(OpenLeague);
    const RosterVerdict verdict = CheckRoster({*copy, mute, Shown, modified}, 5, false, true, false);
    ASSERT_FALSE(verdict.Findings.empty());
    const EveningItem roster = Of(EveningTask::Roster);
    EXPECT_EQ(roster.State, EveningState::Wrong);
    EXPECT_EQ(roster.Count, static_cast<int>(verdict.Findings.size()));
    EXPECT_EQ(roster.Findings.at(0), WordsOf(*copy, verdict.Findings.front()));
}

TEST_F(EveningTest, DaysOfLinesThatAreIncompleteAreCounted)
{
    Teams[5].ProLines[3].NormalForward(1, 1) = 0;
    Teams[5].ProLines[7].StartGoalie = 0;
    Teams[5].ProLines[7].BackupGoalie = 0;
    const EveningItem lines = Of(EveningTask::Lines);
    EXPECT_EQ(lines.State, EveningState::Wrong);
    EXPECT_EQ(lines.Count, 2);
    EXPECT_EQ(lines.Words, "8 of 10 days complete");
    ASSERT_EQ(lines.Findings.size(), 2U);
    EXPECT_TRUE(lines.Findings[0].starts_with("Day 3: ")) << lines.Findings[0];
    EXPECT_TRUE(lines.Findings[1].starts_with("Day 7: ")) << lines.Findings[1];
    EXPECT_EQ(Of(EveningTask::FarmLines).State, EveningState::Done);
}

TEST_F(EveningTest, TheFarmIsClosedInALeagueWithoutOne)
{
    LeagueData.FarmEnabled = false;
    EXPECT_EQ(Of(EveningTask::FarmLines).State, EveningState::Closed);
}

TEST_F(EveningTest, PricesAreToldFromTheCheapestToTheDearest)
{
    for (int place = 1; place <= 5; ++place)
        Teams[5].TicketPrice[place] = 10 * place;
    EXPECT_EQ(Of(EveningTask::Tickets).Words, "10.000000 to 50.000000 a seat");
    for (int place = 1; place <= 5; ++place)
        Teams[5].TicketPrice[place] = 7;
    EXPECT_EQ(Of(EveningTask::Tickets).Words, "7.000000 a seat");
}

TEST_F(EveningTest, TheMarketIsCountedWhereItIsOpen)
{
    LeagueData.OffSeason = true;
    LeagueData.EntryDraft = true;
    EXPECT_EQ(Of(EveningTask::Offers).State, EveningState::Empty);
    EXPECT_EQ(Of(EveningTask::Offers).Words, "none");
    EXPECT_EQ(Of(EveningTask::Offers, {.Offers = 1}).Words, "1 offer");
    EXPECT_EQ(Of(EveningTask::Offers, {.Offers = 2}).State, EveningState::Done);
    EXPECT_EQ(Of(EveningTask::Ranking, {.Ranked = 12}).Words, "12 names");
    LeagueData.OffSeason = false;
    EXPECT_EQ(Of(EveningTask::Ranking, {.Ranked = 12}).State, EveningState::Closed);
    LeagueData.TradeDeadlinePassed = true;
    LeagueData.TradeDeadlineInForce = true;
    EXPECT_EQ(Of(EveningTask::Offers, {.Offers = 2}).State,
              DoorsOf(LeagueData).AreFreeAgentsOpen ? EveningState::Done : EveningState::Closed);
    EXPECT_FALSE(DoorsOf(LeagueData).AreFreeAgentsOpen);
}

TEST_F(EveningTest, LookingChangesNothingInRandomLeagues)
{
    for (unsigned seed = 1; seed <= 10; ++seed) {
        Dice dice(seed);
        RollLeague(dice);
        const auto before = Copy(OpenLeague);
        for (int team = 1; team <= 3; ++team) {
            const EveningBoard board = LookAtEvening(OpenLeague, Shown, team, {}, *Scratch);
            EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0) << seed;
            const DayVerdicts days = LookAtAllDays(OpenLeague, Shown, team, Side::Pro, *Scratch);
            const auto wrong = std::count_if(days.begin(), days.end(), [](const LineVerdict& verdict) {
                return !verdict.Complete || verdict.Failed.has_value();
            });
            EXPECT_EQ(board[1].Count, wrong) << seed;
        }
    }
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

} // namespace
} // namespace dravik
