#include "rules/StatRows.h"

#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <numeric>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StatRowsTest : public SmallLeague {
protected:
    StatRowsTest()
    {
        PutSkater(7, 5, position::Center, status::Pro);
        PutGoalie(3, 5, status::Pro);
        // 10, 11, 12, ... so that each row tells which rating it shows.
        std::iota(Players[7].Stats.begin(), Players[7].Stats.end(), 10);
        std::iota(Goalies[3].Stats.begin(), Goalies[3].Stats.end(), 10);
        ShowAll(true);
    }

    static void ShowAll(bool all)
    {
        LeagueData.ShowAllRatings = all;
        PlayerStatCount = all ? 15 : 7;
        GoalieStatCount = all ? 13 : 7;
    }

    static int SkaterRow(int row) { return SkaterStatRows(7).Ratings.at(static_cast<std::size_t>(row - 1)).Value; }
    static int GoalieRow(int row) { return GoalieStatRows(3).Ratings.at(static_cast<std::size_t>(row - 1)).Value; }
};

TEST_F(StatRowsTest, SkaterShowsHisFifteenRatingsInOrder)
{
    EXPECT_THAT(SkaterStatRows(7).Ratings,
                ElementsAre(StatRow{"CK", 10}, StatRow{"FG", 11}, StatRow{"DI", 12}, StatRow{"SK", 13},
                            StatRow{"ST", 14}, StatRow{"DU", 15}, StatRow{"PH", 16}, StatRow{"FO", 17},
                            StatRow{"PA", 18}, StatRow{"SC", 19}, StatRow{"DF", 20}, StatRow{"EX", 21},
                            StatRow{"LD", 22}, StatRow{"MO", 23}, StatRow{"PO", 24}));
}

TEST_F(StatRowsTest, GoalieShowsHisThirteenRatingsInOrder)
{
    EXPECT_THAT(GoalieStatRows(3).Ratings,
                ElementsAre(StatRow{"SK", 10}, StatRow{"DU", 11}, StatRow{"ST", 12}, StatRow{"SZ", 13},
                            StatRow{"AG", 14}, StatRow{"RB", 15}, StatRow{"SC", 16}, StatRow{"HS", 17},
                            StatRow{"RT", 18}, StatRow{"EX", 19}, StatRow{"LD", 20}, StatRow{"MO", 21},
                            StatRow{"PO", 22}));
}

TEST_F(StatRowsTest, SkaterShowsSevenGroupsWhereSingleRatingsAreHidden)
{
    ShowAll(false);
    EXPECT_THAT(SkaterStatRows(7).Ratings,
                ElementsAre(StatRow{"IT", 11}, StatRow{"PY", 14}, StatRow{"PC", 17}, StatRow{"SC", 19},
                            StatRow{"DF", 20}, StatRow{"ME", 22}, StatRow{"PO", 24}));
}

TEST_F(StatRowsTest, GoalieShowsSevenGroupsWhereSingleRatingsAreHidden)
{
    ShowAll(false);
    EXPECT_THAT(GoalieStatRows(3).Ratings,
                ElementsAre(StatRow{"PH", 12}, StatRow{"RD", 15}, StatRow{"SC", 16}, StatRow{"HS", 17},
                            StatRow{"RT", 18}, StatRow{"ME", 20}, StatRow{"PO", 22}));
}

// Means of three and five ratings never end in a half, so only thirds and fifths are there to round.
TEST_F(StatRowsTest, MeansOfGroupsAreRoundedToTheNearestInteger)
{
    ShowAll(false);
    for (int stat = 1; stat <= 15; ++stat)
        Players[7].Stats[stat] = 50;
    for (const int last : {skater::DI, skater::DU, skater::PA, skater::MO})
        Players[7].Stats[last] = 51;
    EXPECT_THAT(SkaterStatRows(7).Ratings,
                ElementsAre(StatRow{"IT", 50}, StatRow{"PY", 50}, StatRow{"PC", 50}, StatRow{"SC", 50},
                            StatRow{"DF", 50}, StatRow{"ME", 50}, StatRow{"PO", 50}));
    for (const int middle : {skater::FG, skater::ST, skater::FO, skater::LD})
        Players[7].Stats[middle] = 51;
    EXPECT_EQ(SkaterRow(1), 51);
    EXPECT_EQ(SkaterRow(2), 51);
    EXPECT_EQ(SkaterRow(3), 51);
    EXPECT_EQ(SkaterRow(6), 51);
    for (int stat = 1; stat <= 5; ++stat)
        Goalies[3].Stats[stat] = stat <= 2 ? 51 : 50;
    EXPECT_EQ(GoalieRow(1), 50);
    Goalies[3].Stats[goalie::ST] = 51;
    EXPECT_EQ(GoalieRow(1), 51);
}

TEST_F(StatRowsTest, EachRatingCountsInItsOwnGroupAlone)
{
    ShowAll(false);
    const int skaterGroup[] = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 5, 6, 6, 6, 7};
    const int goalieGroup[] = {1, 1, 1, 1, 1, 2, 3, 4, 5, 6, 6, 6, 7};
    for (int stat = 1; stat <= 15; ++stat) {
        for (auto& other : Players[7].Stats)
            other = 0;
        Players[7].Stats[stat] = 90;
        for (int row = 1; row <= 7; ++row)
            EXPECT_EQ(SkaterRow(row) > 0, row == skaterGroup[stat - 1]) << stat << " in " << row;
    }
    for (int stat = 1; stat <= 13; ++stat) {
        for (auto& other : Goalies[3].Stats)
            other = 0;
        Goalies[3].Stats[stat] = 90;
        for (int row = 1; row <= 7; ++row)
            EXPECT_EQ(GoalieRow(row) > 0, row == goalieGroup[stat - 1]) << stat << " in " << row;
    }
}

TEST_F(StatRowsTest, OverallHasARowOfItsOwnWhereTheLeagueShowsIt)
{
    for (const bool all : {true, false}) {
        ShowAll(all);
        const int skater = CalculateOverall(position::Center, 7);
        const int goalie = CalculateOverall(position::Goalie, 3);
        EXPECT_EQ(SkaterStatRows(7).OverallRow, (StatRow{"OV", skater})) << all;
        EXPECT_EQ(GoalieStatRows(3).OverallRow, (StatRow{"OV", goalie})) << all;
    }
}

TEST_F(StatRowsTest, OverallIsKnownButHasNoRowWhereTheLeagueHidesIt)
{
    LeagueData.ShowOverall = false;
    EXPECT_EQ(SkaterStatRows(7).Overall, CalculateOverall(position::Center, 7));
    EXPECT_EQ(GoalieStatRows(3).Overall, CalculateOverall(position::Goalie, 3));
    EXPECT_EQ(SkaterStatRows(7).OverallRow, std::nullopt);
    EXPECT_EQ(GoalieStatRows(3).OverallRow, std::nullopt);
}

TEST_F(StatRowsTest, AskingForRowsShowsNoBoxAndASlotOutsideTheTableFails)
{
    SkaterStatRows(7);
    SkaterStatRows(10000);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})); // an empty slot has no position
    EXPECT_THROW(SkaterStatRows(10001), Failure);
    EXPECT_THROW(GoalieStatRows(1001), Failure);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(StatRowsTest, RatingsOfNoOneSkaterHaveTheSameRowsAndTheOverallThatCameWithThem)
{
    for (const bool all : {true, false}) {
        ShowAll(all);
        const StatRows rows = SkaterStatRows(Players[7].Stats, 42);
        EXPECT_EQ(rows.Ratings, SkaterStatRows(7).Ratings) << all;
        EXPECT_EQ(rows.Overall, 42) << all;
        EXPECT_EQ(rows.OverallRow, (StatRow{"OV", 42})) << all;
    }
    LeagueData.ShowOverall = false;
    EXPECT_EQ(SkaterStatRows(Players[7].Stats, 42).Overall, 42);
    EXPECT_EQ(SkaterStatRows(Players[7].Stats, 42).OverallRow, std::nullopt);
}

TEST_F(StatRowsTest, RowsOfNobodyAreNone)
{
    const StatRows rows;
    EXPECT_TRUE(rows.Ratings.empty());
    EXPECT_EQ(rows.Overall, 0);
    EXPECT_EQ(rows.OverallRow, std::nullopt);
}

} // namespace
} // namespace dravik
