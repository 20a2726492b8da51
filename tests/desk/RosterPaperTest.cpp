#include "desk/RosterPaper.h"

#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::Not;

// Team 5 with somebody everywhere, of whom some have something to tell.
class RosterPaperTest : public SmallLeague {
protected:
    RosterPaperTest() : Own(5)
    {
        Own.Dresses(1, position::Center, 70).Scratches(1, position::Defense, 50).Farms(1, position::LeftWing, 40);
        Own.DressesGoalies(1, 80);
        TeamMaker(6).Dresses(1, position::Center);
        LeagueData.Name = "Sample League";
        Teams[5].Captain = Own.Skaters[0];
        Players[Own.Skaters[1]].Suspension = 1;
    }

    [[nodiscard]] std::string Text() const { return PlainTextOf(RosterPaper(OpenLeague, Machine, 5, "May 4 2031")); }

    TeamMaker Own;
};

TEST_F(RosterPaperTest, WholeRosterReadsSo)
{
    EXPECT_EQ(Text(), "Team 5, roster\n"
                      "League: Sample League\n"
                      "Date: May 4 2031\n"
                      "\n"
                      "Roster\n"
                      "======\n"
                      "\n"
                      "Pro\n"
                      "          Position  Age  Condition  Years  Salary      Overall  Remarks\n"
                      "Skater 1  C         25   100        2      $1,000,000  70       Captain\n"
                      "Goalie 1  G         25   100        2      $1,000,000  80\n"
                      "\n"
                      "Scratches\n"
                      "          Position  Age  Condition  Years  Salary      Overall  Remarks\n"
                      "Skater 2  D         25   100        2      $1,000,000  50       Suspended for 1 game\n"
                      "\n"
                      "Farm\n"
                      "          Position  Age  Condition  Years  Salary      Overall  Remarks\n"
                      "Skater 3  LW        25   100        2      $1,000,000  40\n");
}

TEST_F(RosterPaperTest, HiddenOverallsHaveNoColumn)
{
    LeagueData.ShowOverall = false;
    const Paper paper = RosterPaper(OpenLeague, Machine, 5, "");
    for (const PaperTable& table : paper.Parts.at(0).Tables) {
        EXPECT_THAT(table.Columns, Not(Contains("Overall")));
        for (const auto& row : table.Rows) {
            EXPECT_EQ(row.size(), table.Columns.size());
            EXPECT_THAT(row, Not(Contains("70")));
        }
    }
}

TEST_F(RosterPaperTest, TeamOutOfRangeFails)
{
    for (const int team : {0, 101}) {
        int failed = 0;
        try {
            static_cast<void>(RosterPaper(OpenLeague, Machine, team, ""));
        } catch (const Failure& failure) {
            failed = failure.Number;
        }
        EXPECT_EQ(failed, failure::OutOfRange);
    }
}

} // namespace
} // namespace dravik
