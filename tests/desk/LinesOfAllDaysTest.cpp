#include "desk/LinesOfAllDays.h"

#include "desk/LineMakers.h"
#include "LinesDesk.h"
#include "rules/LineJudge.h"
#include "support/NotingVoice.h"
#include "support/RandomLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class LinesOfAllDaysTest : public LinesDesk {
protected:
    LinesOfAllDaysTest()
    {
        for (const Side side : Sides)
            for (int day = 2; day <= LineDays; ++day)
                Day(side, day) = Day(side);
        LeagueData.FarmRosterRequired = true;
        Remember();
    }

    DayVerdicts Look(Side side) { return LookAtAllDays(OpenLeague, Machine, Own, side, *Scratch); }

    // What a press a day does, from day 1 on: the screen judges the day that it comes to and behind the press.
    static void PressDayByDay(const Work& work, int team, Side side)
    {
        const auto judge = [&](int day) {
            const LineVerdict verdict = JudgeDay(work, team, side, day, false);
            if (side == Side::Pro)
                CheckLine(work, team, false, 1, false);
            return verdict.Complete;
        };
        for (int day = 1; day <= LineDays; ++day) {
            if (judge(day))
                continue;
            if (side == Side::Pro)
                MakeRestOfDay(work, team, day);
            else
                MakeDay(work, team, day, side);
            judge(day);
        }
    }

    std::unique_ptr<Tables> Scratch = MakeTables();
};

TEST_F(LinesOfAllDaysTest, EachDayIsToldByItself)
{
    Day(Side::Pro, 3).NormalForward(2, 1) = 0;
    Day(Side::Pro, 9).BackupGoalie = Day(Side::Pro, 9).StartGoalie;
    Remember();
    const DayVerdicts days = Look(Side::Pro);
    for (int day = 1; day <= LineDays; ++day)
        EXPECT_EQ(days[static_cast<std::size_t>(day - 1)].Complete, day != 3 && day != 9) << day;
    ASSERT_EQ(days[2].Findings.size(), 1U);
    EXPECT_EQ(days[2].Findings[0].Fault, LineFault::Empty);
    ASSERT_EQ(days[8].Findings.size(), 1U);
    EXPECT_EQ(days[8].Findings[0].Fault, LineFault::SameGoalies);
    for (const LineVerdict& day : Look(Side::Farm))
        EXPECT_TRUE(day.Complete);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// The judge of day 1 takes an injured skater out of the lines of all days; day 2 is told as it stands all the same.
TEST_F(LinesOfAllDaysTest, WhomOneDayRefusesIsStillThereForTheNext)
{
    Players[Pro.Skaters[0]].Condition = 50;
    Remember();
    const DayVerdicts days = Look(Side::Pro);
    for (const LineVerdict& day : days) {
        ASSERT_FALSE(day.Findings.empty());
        EXPECT_EQ(day.Findings[0].Fault, LineFault::Unfit);
        EXPECT_EQ(day.Findings[0].Person, Pro.Skaters[0]);
        EXPECT_EQ(day.Findings.size(), days[0].Findings.size());
    }
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LinesOfAllDaysTest, ADayThatCannotBeJudgedSaysSo)
{
    Day(Side::Pro, 4).NormalForward(1, 1) = -7;
    Remember();
    const DayVerdicts days = Look(Side::Pro);
    EXPECT_EQ(days[3].Failed, failure::OutOfRange);
    EXPECT_FALSE(days[3].Complete);
    EXPECT_TRUE(days[4].Complete);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LinesOfAllDaysTest, LookingChangesNoByteAndTellsWhatTheJudgeTellsOfEachDay)
{
    for (unsigned seed = 1; seed <= 25; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice);
        const auto before = Copy(OpenLeague);
        for (const Side side : Sides)
            for (int team = 1; team <= 3; ++team) {
                const DayVerdicts days = LookAtAllDays(OpenLeague, Machine, team, side, *Scratch);
                EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0) << seed;
                for (int day = 1; day <= LineDays; ++day) {
                    const auto copy = Copy(OpenLeague);
                    MuteVoice mute;
                    bool modified = false;
                    const LineVerdict alone = JudgeDay({*copy, mute, Machine, modified}, team, side, day, false);
                    const LineVerdict& shown = days[static_cast<std::size_t>(day - 1)];
                    EXPECT_EQ(shown.Complete, alone.Complete);
                    EXPECT_EQ(shown.Failed, alone.Failed);
                    EXPECT_EQ(TextOf(OpenLeague, shown), TextOf(OpenLeague, alone)) << seed << ' ' << day;
                }
            }
    }
}

TEST_F(LinesOfAllDaysTest, AllDaysAreMendedInSilenceAndToldOnce)
{
    for (const int day : {2, 5, 6}) {
        Day(Side::Pro, day).NormalForward(2, 1) = 0;
        Day(Side::Farm, day).NormalForward(2, 1) = 0;
    }
    for (const Side side : Sides) {
        RepairAllDaysAndTell(OpenWork(), Own, side);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Mended: days 2, 5 and 6."}));
        for (const LineVerdict& day : Look(side))
            EXPECT_TRUE(day.Complete);
    }
    EXPECT_TRUE(Modified);
}

TEST_F(LinesOfAllDaysTest, DaysThatAreCompleteStayToTheByte)
{
    const std::string complete = "All days are complete.";
    for (const Side side : Sides) {
        RepairAllDaysAndTell(OpenWork(), Own, side);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, complete}));
    }
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LinesOfAllDaysTest, WhatStaysIncompleteIsToldWithTheFirstThreeFindings)
{
    // Without its left wings the roster is short, and no maker can help.
    for (int place = 4; place < 8; ++place)
        Players[Pro.Skaters[static_cast<std::size_t>(place)]].Condition = 50;
    for (const int id : Farm.Skaters)
        Players[id].Contract = 0;
    RepairAllDaysAndTell(OpenWork(), Own, Side::Pro);
    const std::vector<Box> boxes = Machine.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_THAT(boxes[0].Text, StartsWith("Still incomplete: days 1, 2, 3, 4, 5, 6, 7, 8, 9 and 10.\r\n  "));
    EXPECT_THAT(boxes[0].Text, ::testing::HasSubstr(" more.\r\nTold meanwhile:\r\n  Roster for Team 5 is incomplete! "
                                                    "Trying Auto Rosters Function for Team 5.\r\n"));
    EXPECT_THAT(boxes[0].Text, ::testing::EndsWith("\r\n  Roster for Team 5 is still incomplete! Cannot make lines for "
                                                   "Team 5."));
}

TEST_F(LinesOfAllDaysTest, OfMoreFindingsThanThreeTheRestIsCounted)
{
    LeagueData.LinesOneTwoExclusive = false;
    Lines& day = Day(Side::Pro, 3);
    for (int pair = 1; pair <= 4; ++pair) // defensemen twice are no maker's to take out
        day.NormalDefense(pair, 1) = day.NormalDefense(pair, 2);
    const auto telling = [&] {
        RepairAllDaysAndTell(OpenWork(), Own, Side::Pro);
        const std::vector<Box> boxes = Machine.TakeBoxes();
        return boxes.size() == 1 ? boxes[0].Text : std::string();
    };
    const auto findings = RepairAllDays(OpenWork(), Own, Side::Pro).Left.at(0).Findings;
    ASSERT_EQ(findings.size(), 4U);
    const std::string three =
        "Still incomplete: day 3.\r\n  " + findings[0] + "\r\n  " + findings[1] + "\r\n  " + findings[2];
    EXPECT_EQ(telling(), three + "\r\n  and 1 more.");
    day.BackupGoalie = day.StartGoalie;
    EXPECT_EQ(telling(), three + "\r\n  and 2 more.");
    day.BackupGoalie = Day(Side::Pro, 1).BackupGoalie;
    day.NormalDefense(4, 1) = Day(Side::Pro, 1).NormalDefense(4, 1);
    EXPECT_EQ(telling(), three);
}

TEST_F(LinesOfAllDaysTest, DaysWithOtherFindingsStandApart)
{
    LeagueData.LinesOneTwoExclusive = false;
    for (const int day : {3, 7}) // a defenseman twice is no maker's to take out
        Day(Side::Pro, day).NormalDefense(1, 1) = Day(Side::Pro, day).NormalDefense(1, 2);
    Day(Side::Pro, 8).BackupGoalie = Day(Side::Pro, 8).StartGoalie;
    const RepairedDays days = RepairAllDays(OpenWork(), Own, Side::Pro);
    EXPECT_THAT(days.Mended, IsEmpty());
    EXPECT_THAT(days.Told, IsEmpty());
    ASSERT_EQ(days.Left.size(), 3U);
    EXPECT_EQ(days.Left[0].Day, 3);
    EXPECT_EQ(days.Left[0].Findings, days.Left[1].Findings);
    EXPECT_EQ(days.Left[2].Day, 8);
    RepairAllDaysAndTell(OpenWork(), Own, Side::Pro);
    const std::string text = "Still incomplete: days 3 and 7.\r\n  " + days.Left[0].Findings[0] +
                             "\r\nStill incomplete: day 8.\r\n  " + days.Left[2].Findings[0];
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, text}));
}

TEST_F(LinesOfAllDaysTest, ALeagueWithoutMakersClosesTheCommand)
{
    Day(Side::Pro, 3).NormalForward(2, 1) = 0;
    LeagueData.AutoRosterDisabled = true;
    Remember();
    for (const Side side : Sides)
        RepairAllDaysAndTell(OpenWork(), Own, side);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LinesOfAllDaysTest, NewsAndLogAreHeardAndNothingElseIs)
{
    Day(Side::Pro, 3).NormalForward(2, 1) = 0;
    NotingVoice voice;
    bool modified = false;
    RepairAllDays({OpenLeague, voice, Machine, modified}, Own, Side::Pro);
    EXPECT_EQ(voice.Heard, "league: Auto Lines Partial Function has been run for Team 5.\n");
}

TEST_F(LinesOfAllDaysTest, ItLeavesWhatAPressADayLeaves)
{
    int mended = 0;
    int left = 0;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice, {.Teams = 3, .Skaters = 150, .Goalies = 18, .Coaches = 6});
        if (dice.Chance(70)) // most leagues let their people play
            for (int id = 1; id <= 150; ++id) {
                Players[id].Contract = 2;
                Players[id].Condition = 100;
                Players[id].Suspension = 0;
            }
        for (const Side side : Sides)
            for (int team = 1; team <= 3; ++team) {
                const auto once = Copy(OpenLeague);
                const auto byDay = Copy(OpenLeague);
                MuteVoice mute;
                bool modified = false;
                const RepairedDays days = RepairAllDays({*once, mute, Machine, modified}, team, side);
                if (AreMakersClosed(LeagueData))
                    continue;
                PressDayByDay({*byDay, mute, Machine, modified}, team, side);
                EXPECT_EQ(std::memcmp(once.get(), byDay.get(), sizeof(Tables)), 0) << seed << ' ' << team;
                mended += static_cast<int>(days.Mended.size());
                left += static_cast<int>(days.Left.size());
            }
    }
    EXPECT_GT(mended, 50);
    EXPECT_GT(left, 50);
}

} // namespace
} // namespace dravik
