#include "rules/LineSlots.h"
#include "support/SmallLeague.h"

#include <set>

namespace dravik {
namespace {

class LineSlotsTest : public SmallLeague {};

TEST_F(LineSlotsTest, SixtySevenSlotsStandAtDifferentWords)
{
    std::set<int> words;
    for (const LineSlot& slot : SkaterSlots)
        words.insert(slot.Word);
    EXPECT_EQ(words.size(), 67U);
}

TEST_F(LineSlotsTest, ASlotIsTheFieldsOwnElement)
{
    Lines lines;
    At(lines, SlotOf(LineField::NormalForward, 4, 2)) = 11;
    At(lines, SlotOf(LineField::PK3Forward, 2)) = 12;
    At(lines, SlotOf(LineField::PenaltyShot, 5)) = 13;
    At(lines, SlotOf(LineField::PK3Defense, 1, 2)) = 14;
    EXPECT_EQ(lines.NormalForward(4, 2), 11);
    EXPECT_EQ(lines.PK3Forward[2], 12);
    EXPECT_EQ(lines.PenaltyShot[5], 13);
    EXPECT_EQ(lines.PK3Defense(1, 2), 14);
}

TEST_F(LineSlotsTest, NoSlotIsAGoalieOrAReservedWordOrAPoint)
{
    Lines lines;
    for (const LineSlot& slot : SkaterSlots)
        At(lines, slot) = 7;
    EXPECT_EQ(lines.StartGoalie, 0);
    EXPECT_EQ(lines.BackupGoalie, 0);
    EXPECT_EQ(lines.PK3Reserved[1], 0);
    EXPECT_EQ(lines.PK3Reserved[2], 0);
    EXPECT_EQ(lines.Strategy[0], 0);
    EXPECT_EQ(lines.PullGoalerMinGoal, 0);
}

TEST_F(LineSlotsTest, AnUnknownPlaceFailsWithNumber9)
{
    EXPECT_THROW((void)SlotOf(LineField::PPForward, 3, 1), Failure);
    EXPECT_THROW((void)SlotOf(LineField::NormalDefense, 1, 3), Failure);
    EXPECT_THROW((void)SlotOf(LineField::ExtraForward, 0), Failure);
}

} // namespace
} // namespace dravik
