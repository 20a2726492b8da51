#include "rules/Function.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

class WaiversTest : public SmallLeague {
protected:
    WaiversTest()
    {
        LeagueData.WaiverAllowed = true;
        LeagueData.WaiverExemptAge = 24;
        LeagueData.WaiverMinGames = 40;
    }
};

TEST_F(WaiversTest, ExemptAgeNeedsNoWaiversAndAYearMoreDoes)
{
    Player& player = PutSkater(7, 5, position::Center, status::Pro);
    player.ProGames = 40;
    player.Age = 24;
    EXPECT_FALSE(WaiverCheck(7));
    player.Age = 25;
    EXPECT_TRUE(WaiverCheck(7));
}

} // namespace
} // namespace dravik
