#include "desk/PlaceOnLine.h"
#include "LinesDesk.h"

#include <utility>

namespace dravik {
namespace {

class SwapOnLineTest : public LinesDesk {
protected:
    static bool Swap(Side side, const DaySlot& one, const DaySlot& other)
    {
        return SwapOnLine(OpenWork(), Own, 1, side, one, other);
    }

    const DaySlot& Start = SlotIn(StartGoalieWord);
    const DaySlot& Backup = SlotIn(BackupGoalieWord);
    const DaySlot& Center = Of(LineField::NormalForward, 1, 1);
    const DaySlot& Wing = Of(LineField::NormalForward, 2, 2);
    const DaySlot& Defense = Of(LineField::NormalDefense, 1, 1);
    const DaySlot& ExtraForward = Of(LineField::ExtraForward, 3);
    const DaySlot& ExtraDefense = Of(LineField::ExtraDefense, 3);
};

TEST_F(SwapOnLineTest, TwoPeopleChangePlacesAndNothingElseDoes)
{
    for (const Side side : Sides)
        for (const auto& [one, other] :
             {std::pair(Center, Wing), std::pair(Start, Backup), std::pair(Center, ExtraForward),
              std::pair(Defense, ExtraDefense), std::pair(Center, Defense)}) {
            Day(side, 1) = ExpectedDay(side, 1);
            if (At(Day(side), one) == At(Day(side), other))
                At(Day(side), other) = side == Side::Pro ? Pro.Skaters[5] : Farm.Skaters[5];
            Remember();
            ASSERT_TRUE(MaySwapOnLine(OpenLeague, Own, 1, side, one, other)) << one.Word << ' ' << other.Word;
            EXPECT_TRUE(IsAsExpected());
            EXPECT_TRUE(Swap(side, one, other));
            std::swap(At(ExpectedDay(side), one), At(ExpectedDay(side), other));
            EXPECT_TRUE(IsAsExpected());
        }
}

TEST_F(SwapOnLineTest, BothRulesAreAskedInBothOrders)
{
    // A defenseman is none for the extra forwards, nor a forward for the extra defensemen.
    for (const auto& [one, other] :
         {std::pair(ExtraForward, Defense), std::pair(ExtraDefense, Center), std::pair(ExtraForward, ExtraDefense),
          std::pair(Start, Center), std::pair(Backup, Defense)})
        for (const bool turned : {false, true}) {
            EXPECT_FALSE(MaySwapOnLine(OpenLeague, Own, 1, Side::Pro, turned ? other : one, turned ? one : other));
            EXPECT_FALSE(Swap(Side::Pro, turned ? other : one, turned ? one : other));
        }
    EXPECT_TRUE(IsAsExpected());
}

// A goalie and a skater of the same number are two people.
TEST_F(SwapOnLineTest, AGoalieStaysAmongGoaliesWhateverTheNumbers)
{
    Day(Side::Pro).StartGoalie = Pro.Skaters[0];
    Remember();
    EXPECT_FALSE(Swap(Side::Pro, Start, Center));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(SwapOnLineTest, AnEmptySlotHasNobodyToGive)
{
    At(Day(Side::Farm), Center) = 0;
    Remember();
    LeagueData.FarmRosterRequired.SetWord(0);
    Remember();
    EXPECT_FALSE(Swap(Side::Farm, Center, Wing));
    EXPECT_FALSE(Swap(Side::Farm, Wing, Center));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(SwapOnLineTest, TheSameManTwiceAndNumbersOutsideTheTableStay)
{
    At(Day(Side::Pro), Wing) = At(Day(Side::Pro), Center);
    Remember();
    EXPECT_FALSE(Swap(Side::Pro, Center, Wing));
    EXPECT_FALSE(Swap(Side::Pro, Center, Center));
    At(Day(Side::Pro), Wing) = -4;
    Remember();
    EXPECT_FALSE(Swap(Side::Pro, Center, Wing));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(SwapOnLineTest, ATeamOrDayOutOfRangeFails)
{
    EXPECT_EQ(FailureOfCommand([&] { SwapOnLine(OpenWork(), Own, 11, Side::Pro, Center, Wing); }), failure::OutOfRange);
    EXPECT_EQ(FailureOfCommand([&] { MaySwapOnLine(OpenLeague, 0, 1, Side::Pro, Center, Wing); }), failure::OutOfRange);
    EXPECT_TRUE(IsAsExpected());
}

} // namespace
} // namespace dravik
