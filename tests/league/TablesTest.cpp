#include "league/Tables.h"

#include "league/FreeAgentOffer.h"
#include "session/Session.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>

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

TEST(TablesTest, EveryCommonNumberHasItsOffer)
{
    const auto offers = std::make_unique<OfferTable>();
    EXPECT_EQ(sizeof *offers / sizeof(FreeAgentOffer), 11000U);
    ReachesFromTo(*offers, 1, 11000);
}

// A league whose bytes are all 1.
std::unique_ptr<Tables> LeagueOfOnes()
{
    auto league = MakeTables();
    std::memset(static_cast<void*>(league.get()), 1, sizeof *league);
    return league;
}

template <class Table>
bool IsAll(int value, const Table& table)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&table);
    return std::all_of(bytes, bytes + sizeof table, [value](unsigned char byte) { return byte == value; });
}

TEST(TablesTest, ANewLeagueIsAllZero) { EXPECT_TRUE(IsAll(0, *MakeTables())); }

TEST(TablesTest, ACopyHasEveryByteAndIsALeagueOfItsOwn)
{
    const auto league = LeagueOfOnes();
    const auto copy = Copy(*league);
    EXPECT_TRUE(IsAll(1, *copy));
    copy->Teams[1].Cash = 0;
    EXPECT_TRUE(IsAll(1, *league));
}

TEST(TablesTest, TheFiveTablesThatALoadReplacesAreEmptiedAndTheOthersStay)
{
    const auto league = LeagueOfOnes();
    EmptyLeagueTables(*league);
    EXPECT_TRUE(IsAll(0, league->Prospects));
    EXPECT_TRUE(IsAll(0, league->Players));
    EXPECT_TRUE(IsAll(0, league->Goalies));
    EXPECT_TRUE(IsAll(0, league->Teams));
    EXPECT_TRUE(IsAll(0, league->GameSchedule));
    EXPECT_TRUE(IsAll(1, league->LeagueData));
    EXPECT_TRUE(IsAll(1, league->Coaches));
    EXPECT_TRUE(IsAll(1, league->RosterChanges));
    EXPECT_TRUE(IsAll(1, league->RosterChangesGoalie));
}

} // namespace
} // namespace dravik
