#include "rules/Function.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

class RosterJudgeTest : public SmallLeague {
protected:
    TeamMaker team = TeamMaker(5).DressesFullRoster();
};

TEST_F(RosterJudgeTest, CompleteRosterPassesWithoutAWord)
{
    EXPECT_TRUE(CheckRoster(5, false, true, true));
    EXPECT_EQ(LastRosterText(), "");
    EXPECT_EQ(RosterFixed, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(RosterJudgeTest, TooManyGoaliesShowTheLimit3)
{
    team.DressesGoalies(1);
    EXPECT_FALSE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "Team 5 Roster Error : \r\n"
                                                               "Too many Goalie available in Pro Team! 3 Dressed. 3 "
                                                               "Maximum.\r\n"
                                                               "Some errors will be automatically fixed.\r\n"}));
}

} // namespace
} // namespace dravik
