#include "session/Session.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

TEST(TablesTest, ARosterWordThatNobodyHasTouchedIs10)
{
    ResetClientVariables();
    RosterChanges[3].Protected = true;
    MarkRosterChangesUntouched(OpenLeague);
    for (const RosterChange& change : RosterChanges)
        ASSERT_EQ(change.Status, 10);
    for (const RosterChange& change : RosterChangesGoalie)
        ASSERT_EQ(change.Status, 10);
    EXPECT_TRUE(RosterChanges[3].Protected); // only the word itself is set
    ResetClientVariables();
}

TEST(TablesTest, TheTablesHaveTheirSlots)
{
    EXPECT_EQ(sizeof Teams / sizeof(Team), 100U);
    EXPECT_EQ(sizeof Players / sizeof(Player), 10001U);
    EXPECT_EQ(sizeof Goalies / sizeof(Goalie), 1001U);
    EXPECT_EQ(sizeof Coaches / sizeof(Coach), 500U);
    EXPECT_EQ(sizeof Prospects / sizeof(Prospect), 300U);
    EXPECT_EQ(sizeof GameSchedule / sizeof(ScheduleRow), 5000U);
    EXPECT_EQ(sizeof RosterChanges / sizeof(RosterChange), 10000U);
    EXPECT_EQ(sizeof RosterChangesGoalie / sizeof(RosterChange), 1000U);
}

template <class Table>
void ReachesFromTo(Table& table, long long first, long long last)
{
    EXPECT_NO_THROW((void)table[first]);
    EXPECT_NO_THROW((void)table[last]);
    EXPECT_THROW((void)table[first - 1], Failure);
    EXPECT_THROW((void)table[last + 1], Failure);
}

TEST(TablesTest, OnlySkatersAndGoaliesHaveASlot0)
{
    ReachesFromTo(Teams, 1, 100);
    ReachesFromTo(Players, 0, 10000);
    ReachesFromTo(Goalies, 0, 1000);
    ReachesFromTo(Coaches, 1, 500);
    ReachesFromTo(Prospects, 1, 300);
    ReachesFromTo(GameSchedule, 1, 5000);
    ReachesFromTo(RosterChanges, 1, 10000);
    ReachesFromTo(RosterChangesGoalie, 1, 1000);
}

} // namespace
} // namespace dravik
