#include "rules/SeasonProjection.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

class SeasonProjectionTest : public SmallLeague {
protected:
    SeasonProjectionTest() { TeamMaker(5); }
    Team& team = Teams[5];
};

TEST_F(SeasonProjectionTest, OddSeasonLeavesAHalfHomeGame)
{
    team.SeasonGames = 81;
    team.HomeGames = 40;
    EXPECT_EQ(ProjectSeason(5).HomeGamesLeft, 0.5);
}

} // namespace
} // namespace dravik
