#include "rules/Function.h"
#include "rules/LineSlots.h"
#include "support/SmallLeague.h"

#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;

class WipeLinesTest : public SmallLeague {
protected:
    // Sets all 76 words of a day to `value`.
    static void Flood(Lines& lines, int value)
    {
        Int16* words = reinterpret_cast<Int16*>(&lines);
        for (int i = 0; i < 76; ++i)
            words[i] = value;
    }
    static bool Same(const Lines& a, const Lines& b) { return std::memcmp(&a, &b, sizeof(Lines)) == 0; }
};

TEST_F(WipeLinesTest, WipeOfAFarmDayLeavesTheProDayAlone)
{
    Flood(Teams[5].ProLines[4], 3);
    Flood(Teams[5].Farm.FarmLines[4], 3);
    const Lines before = Teams[5].ProLines[4];
    WipesLines(5, 4, false);
    EXPECT_TRUE(Same(Teams[5].ProLines[4], before));
    EXPECT_EQ(Teams[5].Farm.FarmLines[4].NormalForward(1, 1), 0);
}

TEST_F(WipeLinesTest, WipeOfAProDayLeavesTheFarmDayAlone)
{
    Flood(Teams[5].ProLines[4], 3);
    Flood(Teams[5].Farm.FarmLines[4], 3);
    const Lines before = Teams[5].Farm.FarmLines[4];
    WipesLines(5, 4, true);
    EXPECT_TRUE(Same(Teams[5].Farm.FarmLines[4], before));
    EXPECT_EQ(Teams[5].ProLines[4].NormalForward(1, 1), 0);
}

TEST_F(WipeLinesTest, WipingAGoalieLeavesASkaterWithTheSameIndexAlone)
{
    Flood(Teams[5].ProLines[4], 3);
    WipePlayerFromTeamLines(5, GoalieOffset + 3);
    for (const LineSlot& slot : SkaterSlots)
        EXPECT_EQ(At(Teams[5].ProLines[4], slot), 3);
    EXPECT_EQ(Teams[5].ProLines[4].StartGoalie, 0);
    EXPECT_EQ(Teams[5].ProLines[4].BackupGoalie, 0);
}

} // namespace
} // namespace dravik
