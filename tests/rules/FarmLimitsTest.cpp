#include "rules/FarmLimits.h"

#include "support/SmallLeague.h"

namespace dravik {
namespace {

class FarmLimitsTest : public SmallLeague {};

TEST_F(FarmLimitsTest, WhoIsAtTheLimitMayStayAndWhoIsAboveItMayNot)
{
    LeagueData.FarmMaxOverall = 70;
    EXPECT_FALSE(IsTooGoodForFarm(LeagueData, 70));
    EXPECT_TRUE(IsTooGoodForFarm(LeagueData, 71));
    LeagueData.FarmMaxSalary = 1;
    EXPECT_FALSE(IsTooDearForFarm(LeagueData, 1));
    EXPECT_TRUE(IsTooDearForFarm(LeagueData, 2));
}

TEST_F(FarmLimitsTest, ASalaryLimitBelowOneIsNone)
{
    for (const int none : {0, -1}) {
        LeagueData.FarmMaxSalary = none;
        EXPECT_FALSE(IsTooDearForFarm(LeagueData, 2000000000)) << none;
    }
}

} // namespace
} // namespace dravik
