#include "rules/ReleaseCost.h"

#include <gtest/gtest.h>

namespace dravik {
namespace {

class ReleaseCostTest : public ::testing::Test {
protected:
    Team Five{};
};

TEST_F(ReleaseCostTest, AContractBeforeTheSeasonIsWorthAllItsYears)
{
    Five.SeasonGames = 0;
    EXPECT_EQ(RestOfContract(Five, 3, 1000000), 3000000);
}

TEST_F(ReleaseCostTest, AYearThatHasBegunIsWorthTheGamesLeftInIt)
{
    Five.SeasonGames = 80;
    Five.GamesPlayed = 20;
    EXPECT_EQ(RestOfContract(Five, 3, 1000000), 2750000);
    EXPECT_EQ(RestOfContract(Five, 1, 1000000), 750000);
}

TEST_F(ReleaseCostTest, TheWorthOfAContractIsRoundedToTheNearestEven)
{
    Five.SeasonGames = 2;
    Five.GamesPlayed = 1;
    EXPECT_EQ(RestOfContract(Five, 1, 5), 2);
    EXPECT_EQ(RestOfContract(Five, 1, 7), 4);
}

TEST_F(ReleaseCostTest, AContractBeyond32BitsFailsWith6)
{
    Five.SeasonGames = 0;
    try {
        RestOfContract(Five, 3, 1000000000);
        FAIL() << "three thousand millions fit";
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, failure::Overflow);
    }
}

TEST_F(ReleaseCostTest, AReleaseCostsItsPercentToTheFraction)
{
    EXPECT_EQ(ReleaseCost(50, 3), 1.5);
    EXPECT_EQ(ReleaseCost(0, 2147483647), 0);
    EXPECT_EQ(ReleaseCost(100, 2147483647), 2147483647.0);
    EXPECT_EQ(ReleaseCost(33, -100), -33);
}

} // namespace
} // namespace dravik
