#include "desk/Strategy.h"

#include "LinesDesk.h"

namespace dravik {
namespace {

using ::testing::IsEmpty;

class StrategyTest : public LinesDesk {
protected:
    static StrategyBars Bars(int physical, int defense, int offense)
    {
        StrategyBars bars;
        bars[0] = physical;
        bars[1] = defense;
        bars[2] = offense;
        return bars;
    }
    std::optional<int> Give(Side side, int style, const StrategyBars& bars, int day = 1)
    {
        return GiveStrategyPoints(OpenWork(), Own, day, side, style, bars);
    }
};

TEST_F(StrategyTest, UpToFivePointsAreTakenForThatStyleAlone)
{
    for (const Side side : Sides)
        for (int physical = 0; physical <= 6; ++physical)
            for (int defense = 0; defense <= 6; ++defense)
                for (int offense = 0; offense <= 6; ++offense)
                    for (int style = 0; style <= 2; ++style) {
                        const StrategyBars bars = Bars(physical, defense, offense);
                        const int sum = physical + defense + offense;
                        const auto left = Give(side, style, bars);
                        EXPECT_EQ(left, sum <= 5 ? std::optional(5 - sum) : std::nullopt);
                        if (sum <= 5)
                            ExpectedDay(side).Strategy[style] = bars[style];
                        EXPECT_EQ(Day(side).Strategy[style], ExpectedDay(side).Strategy[style]);
                    }
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(StrategyTest, TheBarsCountAndNotWhatTheRecordHolds)
{
    Day(Side::Pro).Strategy[0] = 9;
    Remember();
    EXPECT_EQ(Give(Side::Pro, 1, Bars(4, 1, 0)), 0);
    ExpectedDay(Side::Pro).Strategy[1] = 1;
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(StrategyTest, OutOfRangeItFails)
{
    for (const int style : {-1, 3})
        EXPECT_EQ(FailureOfCommand([&] { Give(Side::Pro, style, Bars(1, 1, 1)); }), failure::OutOfRange);
    for (const int day : {0, 11})
        EXPECT_EQ(FailureOfCommand([&] { Give(Side::Farm, 0, Bars(1, 1, 1), day); }), failure::OutOfRange);
    EXPECT_TRUE(IsAsExpected());
}

} // namespace
} // namespace dravik
