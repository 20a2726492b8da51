#include "desk/PlaceOnLine.h"

#include "LinesDesk.h"

#include <set>

namespace dravik {
namespace {

using ::testing::IsEmpty;

class PlaceOnLineTest : public LinesDesk {
protected:
    bool Place(Side side, const DaySlot& slot, PersonId who, int position, int day = 1)
    {
        return PlaceOnLine(OpenWork(), Own, day, side, slot, who, position);
    }

    // Who may be put into a slot, as the words of the record tell it: extra forwards and extra defensemen stand in words 56 to
    // 65, the goalies in 54 and 55.
    static bool Accepts(int word, int position)
    {
        if (word == 54 || word == 55)
            return position == position::Goalie;
        if (word >= 56 && word <= 60)
            return position <= 3;
        if (word >= 61 && word <= 65)
            return position == position::Defense;
        return position != position::Goalie;
    }
    static PersonId SomebodyAt(int position) { return {.IsGoalie = position == position::Goalie, .Slot = 7}; }
};

TEST_F(PlaceOnLineTest, TheSlotsAreAllWordsOfTheDayThatHoldPeople)
{
    std::set<int> words;
    int goalies = 0;
    for (const DaySlot& slot : DaySlots) {
        words.insert(slot.Word);
        goalies += slot.IsGoalies() ? 1 : 0;
    }
    EXPECT_EQ(words.size(), 69U);
    EXPECT_EQ(goalies, 2);
    for (int word = 0; word < 71; ++word)
        EXPECT_EQ(words.count(word), word == 46 || word == 47 ? 0U : 1U) << word; // these are reserved
}

TEST_F(PlaceOnLineTest, EverySlotTakesWhomItsRuleNamesAndNobodyElse)
{
    for (const Side side : Sides)
        for (int position = 1; position <= 5; ++position)
            for (const DaySlot& slot : DaySlots) {
                const bool accepts = Accepts(slot.Word, position);
                EXPECT_EQ(TakesSomebody(slot, side, SomebodyAt(position), position), accepts) << slot.Word;
                At(Day(side), slot) = 3;
                Remember();
                EXPECT_EQ(Place(side, slot, SomebodyAt(position), position), accepts) << slot.Word;
                At(ExpectedDay(side), slot) = accepts ? 7 : 3;
                EXPECT_TRUE(IsAsExpected()) << slot.Word << " and " << position;
            }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(PlaceOnLineTest, ThePlaceholderPlaysDefenseAmongTheFarmsExtrasOnly)
{
    for (const Side side : Sides)
        for (const DaySlot& slot : DaySlots) {
            const bool isExtraDefense = slot.Rule == Takes::Defense;
            EXPECT_EQ(TakesSomebody(slot, side, Skater(0), position::Center),
                      isExtraDefense ? side == Side::Farm : !slot.IsGoalies())
                << slot.Word;
            EXPECT_EQ(TakesSomebody(slot, side, Keeper(0), position::Goalie), slot.IsGoalies()) << slot.Word;
        }
}

TEST_F(PlaceOnLineTest, ThePlaceholderEmptiesASlot)
{
    for (const DaySlot& slot : DaySlots) {
        Remember();
        EXPECT_TRUE(Place(Side::Farm, slot, slot.IsGoalies() ? Keeper(0) : Skater(0),
                          slot.IsGoalies() ? position::Goalie : position::Center));
        At(ExpectedDay(Side::Farm), slot) = 0;
        EXPECT_TRUE(IsAsExpected()) << slot.Word;
    }
}

TEST_F(PlaceOnLineTest, NobodyAsksWhetherHeMayPlayOrStandsTwice)
{
    Players[7].Condition = 1;
    Players[7].Team = 6;
    Players[7].Status = status::Scratch;
    Remember();
    const DaySlot& first = DaySlots[0];
    const DaySlot& second = DaySlots[1];
    EXPECT_TRUE(Place(Side::Pro, first, Skater(7), position::Defense));
    EXPECT_TRUE(Place(Side::Pro, second, Skater(7), position::Defense));
    At(ExpectedDay(Side::Pro), first) = At(ExpectedDay(Side::Pro), second) = 7;
    EXPECT_TRUE(IsAsExpected());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlaceOnLineTest, APositionOfNobodyIsASkatersEverywhereButAmongTheExtras)
{
    for (const int position : {0, 6, -1})
        for (const DaySlot& slot : DaySlots)
            EXPECT_EQ(TakesSomebody(slot, Side::Pro, Skater(7), position), slot.Rule == Takes::Skater) << slot.Word;
}

TEST_F(PlaceOnLineTest, TheFirstAndTheLastDayAreReachedAndNoOther)
{
    for (const int day : {1, 10}) {
        EXPECT_TRUE(Place(Side::Pro, DaySlots[3], Skater(9), position::Center, day));
        At(ExpectedDay(Side::Pro, day), DaySlots[3]) = 9;
    }
    for (const int day : {0, 11, -1})
        EXPECT_EQ(FailureOfCommand([&] { Place(Side::Pro, DaySlots[3], Skater(9), position::Center, day); }),
                  failure::OutOfRange);
    for (const int team : {0, 101})
        EXPECT_EQ(FailureOfCommand(
                      [&] { PlaceOnLine(OpenWork(), team, 1, Side::Farm, DaySlots[3], Skater(9), position::Center); }),
                  failure::OutOfRange);
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(PlaceOnLineTest, SomebodyBeyondSixteenBitsFailsAndTheSlotStays)
{
    EXPECT_EQ(FailureOfCommand([&] { Place(Side::Pro, DaySlots[0], Skater(40000), position::Center); }),
              failure::Overflow);
    EXPECT_TRUE(IsAsExpected());
}

} // namespace
} // namespace dravik
