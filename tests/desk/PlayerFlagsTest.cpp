#include "desk/PlayerFlags.h"

#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlayerFlagsTest : public SmallLeague {
protected:
    PlayerFlagsTest()
    {
        const TeamMaker made(5);
        PutSkater(1, 5, position::Center, status::Pro);
        PutGoalie(1, 5, status::Pro);
        LeagueData.MaxProtected = 2;
    }

    PersonId Skater{.IsGoalie = false, .Slot = 1};
    PersonId Keeper{.IsGoalie = true, .Slot = 1};
};

TEST_F(PlayerFlagsTest, TheMarketIsWrittenIntoTheRecordAndTheChange)
{
    SetTradeAvailable(OpenWork(), Keeper, true);
    EXPECT_TRUE(IsTradeAvailable(OpenLeague, Keeper));
    EXPECT_TRUE(static_cast<bool>(RosterChangesGoalie[1].TradeAvailable));
    EXPECT_FALSE(IsTradeAvailable(OpenLeague, Skater));
    EXPECT_TRUE(Modified);
}

TEST_F(PlayerFlagsTest, WhoMayNotBeTradedIsTakenOffTheMarketAndTold)
{
    SetTradeAvailable(OpenWork(), Skater, true);
    EXPECT_FALSE(TakeBarredOffMarket(OpenWork(), Skater));
    EXPECT_TRUE(IsTradeAvailable(OpenLeague, Skater));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    SetNoTrade(OpenWork(), Skater, true);
    EXPECT_TRUE(TakeBarredOffMarket(OpenWork(), Skater));
    EXPECT_FALSE(IsTradeAvailable(OpenLeague, Skater));
    EXPECT_FALSE(static_cast<bool>(RosterChanges[1].TradeAvailable));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
}

TEST_F(PlayerFlagsTest, ProtectionIsCountedUpToTheLimit)
{
    Team& five = Teams[5];
    five.ProtectedCount = 1;
    SetProtected(OpenWork(), 5, Skater, true);
    EXPECT_EQ(five.ProtectedCount, 2);
    SetProtected(OpenWork(), 5, Keeper, true);
    EXPECT_EQ(five.ProtectedCount, 2);
    EXPECT_TRUE(static_cast<bool>(Players[1].Protected));
    EXPECT_TRUE(static_cast<bool>(RosterChanges[1].Protected));
    EXPECT_FALSE(static_cast<bool>(Goalies[1].Protected));
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Information, "Maximum Number of Protected Players Reached!"}));
}

TEST_F(PlayerFlagsTest, TheCountOfTheProtectedNeverFallsBelowZero)
{
    Teams[5].ProtectedCount = 0;
    Players[1].Protected = true;
    SetProtected(OpenWork(), 5, Skater, false);
    EXPECT_EQ(Teams[5].ProtectedCount, 0);
    EXPECT_FALSE(static_cast<bool>(Players[1].Protected));
}

TEST_F(PlayerFlagsTest, TheRerateLeavesTheListOfChangesAlone)
{
    const RosterChange before = RosterChanges[1];
    SetNoApplyRerate(OpenWork(), Skater, true);
    EXPECT_TRUE(static_cast<bool>(Players[1].NoApplyRerate));
    EXPECT_EQ(RosterChanges[1].Status, before.Status);
    EXPECT_EQ(RosterChanges[1].TradeAvailable.Word(), before.TradeAvailable.Word());
    EXPECT_EQ(RosterChanges[1].Protected.Word(), before.Protected.Word());
}

} // namespace
} // namespace dravik
