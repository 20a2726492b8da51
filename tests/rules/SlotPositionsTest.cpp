#include "rules/SlotPositions.h"
#include "support/LineFindings.h"

#include <map>

namespace dravik {
namespace {

// Who is at home in each kind of slot, written out by hand: the positions' letters.
const std::map<std::pair<LineField, int>, std::string> AtHome{
    {{LineField::NormalForward, 1}, "C"},     {{LineField::NormalForward, 2}, "L"},
    {{LineField::NormalForward, 3}, "R"},     {{LineField::NormalDefense, 1}, "D"},
    {{LineField::NormalDefense, 2}, "D"},     {{LineField::PPForward, 1}, "C"},
    {{LineField::PPForward, 2}, "L"},         {{LineField::PPForward, 3}, "R"},
    {{LineField::PPDefense, 1}, "D"},         {{LineField::PPDefense, 2}, "D"},
    {{LineField::PKForward, 1}, "C"},         {{LineField::PKForward, 2}, "LR"},
    {{LineField::PKDefense, 1}, "D"},         {{LineField::PKDefense, 2}, "D"},
    {{LineField::FourVsFourForward, 1}, "C"}, {{LineField::FourVsFourForward, 2}, "LR"},
    {{LineField::FourVsFourDefense, 1}, "D"}, {{LineField::FourVsFourDefense, 2}, "D"},
    {{LineField::PK3Forward, 1}, "CLR"},      {{LineField::PK3Defense, 1}, "D"},
    {{LineField::PK3Defense, 2}, "D"},        {{LineField::ExtraForward, 1}, "CLR"},
    {{LineField::ExtraDefense, 1}, "D"},      {{LineField::PenaltyShot, 1}, "CLRD"}};

TEST(SlotPositions, EverySlotOfSkatersKnowsWhoIsAtHomeThere)
{
    const std::string letters = "CLRD";
    for (std::size_t index = 0; index < SkaterSlots.size(); ++index) {
        const std::string& home = AtHome.at({SkaterSlots[index].Field, SkaterSlots[index].Place});
        for (int position = position::Center; position <= position::Defense; ++position) {
            const bool isAtHome = home.find(letters[static_cast<std::size_t>(position - 1)]) != std::string::npos;
            EXPECT_EQ(IsOutOfPosition(DaySlots[index], position), !isAtHome) << index << ' ' << position;
        }
    }
}

TEST(SlotPositions, NobodyWithoutAPositionAndNoGoalieIsOutOfIt)
{
    for (const DaySlot& slot : DaySlots)
        for (const int position : {-1, 0, 5, 255})
            EXPECT_FALSE(IsOutOfPosition(slot, position));
    for (const DaySlot& slot : DaySlots)
        if (slot.IsGoalies()) {
            EXPECT_FALSE(IsOutOfPosition(slot, position::Defense));
        }
}

class SlotsHeldTest : public SmallLeague {};

TEST_F(SlotsHeldTest, ASkaterHoldsSlotsOfSkatersAndAGoalieThoseOfGoalies)
{
    Lines& day = Teams[5].ProLines[1];
    day.NormalForward(1, 1) = 3;
    day.PPForward(1, 1) = 3;
    day.PenaltyShot[5] = 3;
    day.StartGoalie = 3;
    day.NormalForward(2, 1) = 4;
    EXPECT_EQ(SlotsHeld(day, {.IsGoalie = false, .Slot = 3}), 3);
    EXPECT_EQ(SlotsHeld(day, {.IsGoalie = true, .Slot = 3}), 1);
    EXPECT_EQ(SlotsHeld(day, {.IsGoalie = false, .Slot = 4}), 1);
    EXPECT_EQ(SlotsHeld(day, {.IsGoalie = false, .Slot = 5}), 0);
    day.BackupGoalie = 3;
    EXPECT_EQ(SlotsHeld(day, {.IsGoalie = true, .Slot = 3}), 2);
}

TEST_F(SlotsHeldTest, ThePlaceholderHoldsNone)
{
    EXPECT_EQ(SlotsHeld(Teams[5].ProLines[1], {.IsGoalie = false, .Slot = 0}), 0);
    EXPECT_EQ(SlotsHeld(Teams[5].ProLines[1], {.IsGoalie = true, .Slot = 0}), 0);
}

} // namespace
} // namespace dravik
