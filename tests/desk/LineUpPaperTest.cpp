#include "desk/LineUpPaper.h"

#include "LinesDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

// Team 5 plays team 9 at home first, then away.
class LineUpPaperTest : public LinesDesk {
protected:
    LineUpPaperTest()
    {
        TeamMaker(9); // the opponent
        LeagueData.Name = "Sample League";
        LeagueData.ScheduleShown = true;
        LeagueData.ScheduleBlocked = 0;
        PutGame(1, 31, 9, Own);
        PutGame(2, 33, Own, 9);
        Remember();
    }

    static void PutGame(int row, int gameDay, int away, int home)
    {
        ScheduleRow& game = OpenLeague.GameSchedule[row];
        game.GameDay = gameDay;
        game.ProGame = true;
        game.FarmGame = true;
        game.ProAway = game.FarmAway = away;
        game.ProHome = game.FarmHome = home;
    }

    static Paper OfDay(Side side = Side::Pro, int day = 1) { return LineUpPaper(OpenLeague, Own, side, day, day, ""); }
    static PaperTable TableOn(const Paper& paper, const std::string& heading)
    {
        for (const PaperTable& table : paper.Parts.at(0).Tables)
            if (table.Heading == heading)
                return table;
        return {};
    }
};

TEST_F(LineUpPaperTest, WholeDayReadsSo)
{
    Teams[Own].Captain = Pro.Skaters[0];
    Teams[Own].Assistant[2] = Pro.Skaters[1];
    Day(Side::Pro).Strategy[1] = 3;
    Day(Side::Pro).PullGoalerMinGoal = 4;
    Day(Side::Pro).PullGoalerMinPct = 850;
    EXPECT_EQ(PlainTextOf(LineUpPaper(OpenLeague, Own, Side::Pro, 1, 1, "May 4 2031")),
              "Team 5, pro lines\n"
              "League: Sample League\n"
              "Date: May 4 2031\n"
              "Captain: Skater 1\n"
              "Assistant: Skater 2\n"
              "\n"
              "Lines 1, game day 31 against Team 9\n"
              "===================================\n"
              "Strategy: Physical 0, Defense 3, Offense 0\n"
              "Goalie pull: from 4 goals, save percentage under 850\n"
              "\n"
              "Forward Lines\n"
              "        LW              C               RW\n"
              "Line 1  Skater 2 (78)   Skater 1 (79)   Skater 3 (77)\n"
              "Line 2  Skater 5 (73)   Skater 4 (74)   Skater 6 (72)\n"
              "Line 3  Skater 8 (68)   Skater 7 (69)   Skater 9 (67)\n"
              "Line 4  Skater 11 (63)  Skater 10 (64)  Skater 12 (62)\n"
              "\n"
              "Defense Pairs\n"
              "        D               D\n"
              "Pair 1  Skater 13 (80)  Skater 14 (77)\n"
              "Pair 2  Skater 15 (74)  Skater 16 (71)\n"
              "Pair 3  Skater 17 (68)  Skater 18 (65)\n"
              "Pair 4  Skater 13 (80)  Skater 14 (77)\n"
              "\n"
              "Power Play, Forwards\n"
              "        LW             C              RW\n"
              "Unit 1  Skater 2 (78)  Skater 1 (79)  Skater 3 (77)\n"
              "Unit 2  Skater 5 (73)  Skater 4 (74)  Skater 6 (72)\n"
              "\n"
              "Power Play, Defense\n"
              "        D               D\n"
              "Unit 1  Skater 15 (74)  Skater 16 (71)\n"
              "Unit 2  Skater 17 (68)  Skater 18 (65)\n"
              "\n"
              "4 vs 4\n"
              "        C              W               D               D\n"
              "Unit 1  Skater 7 (69)  Skater 8 (68)   Skater 13 (80)  Skater 14 (77)\n"
              "Unit 2  Skater 9 (67)  Skater 10 (64)  Skater 15 (74)  Skater 16 (71)\n"
              "\n"
              "Penalty Kill\n"
              "        C               W               D               D\n"
              "Unit 1  Skater 11 (63)  Skater 12 (62)  Skater 17 (68)  Skater 18 (65)\n"
              "Unit 2  Skater 1 (79)   Skater 2 (78)   Skater 13 (80)  Skater 14 (77)\n"
              "\n"
              "Penalty Kill with Three\n"
              "        F              D               D\n"
              "Unit 1  Skater 3 (77)  Skater 15 (74)  Skater 16 (71)\n"
              "Unit 2  Skater 4 (74)  Skater 17 (68)  Skater 18 (65)\n"
              "\n"
              "Extra Players and Penalty Shots\n"
              "          Extra Forwards  Extra Defensemen  Penalty Shots\n"
              "Number 1  Skater 1 (79)   Skater 13 (80)    Skater 1 (79)\n"
              "Number 2  Skater 2 (78)   Skater 14 (77)    Skater 2 (78)\n"
              "Number 3  Skater 3 (77)   Skater 15 (74)    Skater 3 (77)\n"
              "Number 4  Skater 4 (74)   Skater 16 (71)    Skater 4 (74)\n"
              "Number 5  Skater 5 (73)   Skater 17 (68)    Skater 5 (73)\n"
              "\n"
              "Goalies\n"
              "         G\n"
              "Starter  Goalie 1 (80)\n"
              "Backup   Goalie 2 (75)\n");
}

TEST_F(LineUpPaperTest, EverySlotStandsOnThePaperOnce)
{
    LeagueData.ShowOverall = false;
    for (const Side side : Sides) {
        for (const DaySlot& slot : DaySlots) {
            Lines& lines = Day(side);
            lines = {};
            At(lines, slot) = slot.IsGoalies() ? Pro.GoalieIds[0] : Pro.Skaters[0];
            const std::string name =
                slot.IsGoalies() ? Goalies[Pro.GoalieIds[0]].Name.Trimmed() : Players[Pro.Skaters[0]].Name.Trimmed();
            int found = 0;
            const Paper paper = OfDay(side);
            for (const PaperTable& table : paper.Parts.at(0).Tables)
                if (table.Heading != "Not Playing")
                    for (const auto& row : table.Rows)
                        found += static_cast<int>(std::count(row.begin(), row.end(), name));
            EXPECT_EQ(found, 1) << "word " << slot.Word;
        }
    }
}

TEST_F(LineUpPaperTest, ForwardLineReadsAsOnTheIce)
{
    LeagueData.ShowOverall = false;
    const auto name = [](const Int16& slot) { return Players[slot].Name.Trimmed(); };
    const Lines& lines = Day(Side::Pro);
    EXPECT_THAT(TableOn(OfDay(), "Forward Lines").Rows.at(1),
                ElementsAre("Line 2", name(lines.NormalForward(2, 2)), name(lines.NormalForward(2, 1)),
                            name(lines.NormalForward(2, 3))));
}

TEST_F(LineUpPaperTest, HiddenCalendarHidesTheOpponent)
{
    EXPECT_EQ(OfDay().Parts.at(0).Heading, "Lines 1, game day 31 against Team 9");
    EXPECT_EQ(OfDay(Side::Farm, 2).Parts.at(0).Heading, "Lines 2, game day 33 at Farm 9");
    EXPECT_EQ(OfDay(Side::Pro, 3).Parts.at(0).Heading, "Lines 3");
    LeagueData.ScheduleShown = false;
    for (const Side side : Sides)
        EXPECT_EQ(OfDay(side).Parts.at(0).Heading, "Lines 1");
}

TEST_F(LineUpPaperTest, HiddenOverallsStandNowhere)
{
    EXPECT_THAT(PlainTextOf(OfDay()), HasSubstr("("));
    LeagueData.ShowOverall = false;
    for (const Side side : Sides)
        EXPECT_THAT(PlainTextOf(OfDay(side)), Not(HasSubstr("(")));
}

TEST_F(LineUpPaperTest, WhoIsScratchedStandsThereWithTheReason)
{
    LeagueData.ShowOverall = false;
    TeamMaker extra(Own);
    extra.Scratches(3, position::LeftWing).ScratchesGoalies(1);
    Players[extra.Skaters[0]].Condition = 87;
    Players[extra.Skaters[0]].Injury = "Knee";
    Players[extra.Skaters[1]].Suspension = 2;
    const auto name = [&](std::size_t at) { return Players[extra.Skaters[at]].Name.Trimmed(); };
    EXPECT_THAT(TableOn(OfDay(), "Not Playing").Rows,
                ElementsAre(ElementsAre(name(0), "LW", "Scratched; Injured, condition 87 (Knee)"),
                            ElementsAre(name(1), "LW", "Scratched; Suspended for 2 games"),
                            ElementsAre(name(2), "LW", "Scratched"),
                            ElementsAre(Goalies[extra.GoalieIds[0]].Name.Trimmed(), "G", "Scratched")));
    EXPECT_EQ(TableOn(OfDay(Side::Farm), "Not Playing").Rows.size(), 0U);
}

TEST_F(LineUpPaperTest, SlotOutsideItsTableReadsAsEmpty)
{
    Day(Side::Pro).NormalForward(1, 1) = -7;
    Day(Side::Pro).StartGoalie = 0;
    EXPECT_EQ(TableOn(OfDay(), "Forward Lines").Rows.at(0).at(2), "-");
    EXPECT_EQ(TableOn(OfDay(), "Goalies").Rows.at(0).at(1), "-");
}

TEST_F(LineUpPaperTest, TenDaysAreTenPartsAndNothingChanges)
{
    const Paper paper = LineUpPaper(OpenLeague, Own, Side::Farm, 1, 10, "");
    ASSERT_EQ(paper.Parts.size(), 10U);
    for (int day = 1; day <= 10; ++day)
        EXPECT_EQ(paper.Parts[static_cast<std::size_t>(day - 1)], OfDay(Side::Farm, day).Parts.at(0));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LineUpPaperTest, TeamOrDayOutOfRangeFails)
{
    for (const auto& [team, first, last] :
         {std::tuple(0, 1, 1), std::tuple(101, 1, 1), std::tuple(5, 0, 1), std::tuple(5, 1, 11)})
        EXPECT_EQ(FailureOfCommand([&] { LineUpPaper(OpenLeague, team, Side::Pro, first, last, ""); }),
                  failure::OutOfRange);
}

} // namespace
} // namespace dravik
