#include "session/PinnedPeople.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PinnedPeopleTest : public SmallLeague {
protected:
    PinnedPeopleTest()
    {
        for (int slot = 1; slot <= 6; ++slot) {
            PutSkater(slot, 5, position::Center, status::Pro).Name = "Skater " + std::to_string(slot);
            PutGoalie(slot, 5, status::Pro).Name = "Goalie " + std::to_string(slot);
        }
    }
    static constexpr PersonId Skater(int slot) { return {.IsGoalie = false, .Slot = slot}; }
    static constexpr PersonId Goaler(int slot) { return {.IsGoalie = true, .Slot = slot}; }

    PinnedPeople Pins;
};

TEST_F(PinnedPeopleTest, NobodyIsInSlot0OrInNone)
{
    Players[0].InUse = true;
    Goalies[0].InUse = true;
    for (const int slot : {0, -1, 32000}) {
        EXPECT_FALSE(Pins.Toggle(OpenLeague, Skater(slot))) << slot;
        EXPECT_FALSE(Pins.Toggle(OpenLeague, Goaler(slot))) << slot;
    }
}

TEST_F(PinnedPeopleTest, PinsInOrderAndLetsGo)
{
    for (const int slot : {3, 1, 2})
        EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(slot)));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Goaler(3)));
    EXPECT_THAT(Pins.Of(OpenLeague, false), ElementsAre(Skater(3), Skater(1), Skater(2)));
    EXPECT_EQ(Pins.First(OpenLeague, false), Skater(3));
    EXPECT_EQ(Pins.First(OpenLeague, true), Goaler(3));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(3)));
    EXPECT_FALSE(Pins.Has(OpenLeague, Skater(3)));
    EXPECT_EQ(Pins.First(OpenLeague, false), Skater(1));
    Pins.LetGoOfAll();
    EXPECT_EQ(Pins.First(OpenLeague, false), std::nullopt);
    EXPECT_EQ(Pins.First(OpenLeague, true), std::nullopt);
}

TEST_F(PinnedPeopleTest, FourOfAKindAreTheMost)
{
    for (int slot = 1; slot <= 4; ++slot)
        EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(slot)));
    EXPECT_FALSE(Pins.Toggle(OpenLeague, Skater(5)));
    EXPECT_FALSE(Pins.Has(OpenLeague, Skater(5)));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Goaler(5)));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(4)));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(5)));
}

TEST_F(PinnedPeopleTest, NobodyIsPinned)
{
    for (const PersonId nobody : {Skater(0), Skater(-1), Skater(7), Goaler(0), Goaler(20000), Skater(100000)})
        EXPECT_FALSE(Pins.Toggle(OpenLeague, nobody)) << nobody.Slot;
    EXPECT_THAT(Pins.Of(OpenLeague, false), IsEmpty());
}

TEST_F(PinnedPeopleTest, WhoeverHasHisSlotNowIsNotPinnedAndTakesNoPlace)
{
    for (int slot = 1; slot <= 4; ++slot)
        Pins.Toggle(OpenLeague, Skater(slot));
    Players[2].Name = "Somebody Else";
    Players[3].InUse = false;
    EXPECT_THAT(Pins.Of(OpenLeague, false), ElementsAre(Skater(1), Skater(4)));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(2)));
    EXPECT_TRUE(Pins.Has(OpenLeague, Skater(2)));
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(5)));
    EXPECT_THAT(Pins.Of(OpenLeague, false), ElementsAre(Skater(1), Skater(4), Skater(2), Skater(5)));
}

// Two leagues that began with the same people have the same names in the same slots.
TEST_F(PinnedPeopleTest, NobodyIsPinnedInAnotherLeague)
{
    LeagueData.LeagueCode = "AAAAA";
    for (int slot = 1; slot <= 4; ++slot)
        Pins.Toggle(OpenLeague, Skater(slot));
    LeagueData.LeagueCode = "BBBBB";
    EXPECT_THAT(Pins.Of(OpenLeague, false), IsEmpty());
    EXPECT_FALSE(Pins.Has(OpenLeague, Skater(1)));
    EXPECT_EQ(Pins.First(OpenLeague, false), std::nullopt);
    EXPECT_TRUE(Pins.Toggle(OpenLeague, Skater(1)));
    EXPECT_THAT(Pins.Of(OpenLeague, false), ElementsAre(Skater(1)));
}

} // namespace
} // namespace dravik
