#include "rules/Function.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

class SalaryCapTest : public SmallLeague {
protected:
    SalaryCapTest() { TeamMaker(5).Dresses(3, position::Center); }
};

TEST_F(SalaryCapTest, PayrollEqualToTheCapPassesAndOneUnitAboveFails)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 3000000;
    EXPECT_TRUE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
    LeagueData.SalaryCap = 2999999;
    EXPECT_FALSE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "Team 5 is over the salary cap by $1.00!"}));
}

} // namespace
} // namespace dravik
