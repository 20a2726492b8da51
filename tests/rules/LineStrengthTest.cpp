#include "rules/LineStrength.h"

#include "rules/Overall.h"
#include "support/SmallLeague.h"

#include <cmath>

namespace dravik {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Eq;

class LineStrengthTest : public SmallLeague {
protected:
    LineStrengthTest() : Own(TeamMaker(5).DressesFullRoster())
    {
        const std::vector<int> forwards(Own.Skaters.begin(), Own.Skaters.begin() + 12);
        const std::vector<int> defense(Own.Skaters.begin() + 12, Own.Skaters.end());
        FillLines(Day, forwards, defense, Own.GoalieIds);
    }

    // The overall of whoever stands there.
    static int Of(long long id) { return *OverallAt(OpenLeague, PositionOf(Players[id]), static_cast<int>(id)); }
    static int Mean(double sum, int count) { return static_cast<int>(std::nearbyint(sum / count)); }
    [[nodiscard]] LineStrength Strength() const { return StrengthOfLines(OpenLeague, Day); }

    TeamMaker Own;
    Lines Day{};
};

TEST_F(LineStrengthTest, LinesPairsAndTheStarterInTheirOrder)
{
    const LineStrength strength = Strength();
    for (int line = 1; line <= 4; ++line) {
        const auto at = static_cast<std::size_t>(line - 1);
        const int forwards =
            Of(Day.NormalForward(line, 1)) + Of(Day.NormalForward(line, 2)) + Of(Day.NormalForward(line, 3));
        EXPECT_EQ(strength[at], Mean(forwards, 3)) << line;
        EXPECT_EQ(strength[at + 4], Mean(Of(Day.NormalDefense(line, 1)) + Of(Day.NormalDefense(line, 2)), 2)) << line;
    }
    EXPECT_EQ(strength[8], *OverallAt(OpenLeague, position::Goalie, static_cast<int>(Day.StartGoalie)));
}

TEST_F(LineStrengthTest, AHalfGoesToTheEvenNumber)
{
    const auto rate = [](long long id, int rating) {
        for (auto& stat : Players[id].Stats)
            stat = rating;
        return Of(id);
    };
    int odd = 0;
    for (int rating = 50; rating < 70; ++rating) {
        const int sum = rate(Day.NormalDefense(2, 1), rating) + rate(Day.NormalDefense(2, 2), rating + 1);
        if (sum % 2 == 0)
            continue;
        ++odd;
        EXPECT_EQ(Strength()[5], sum / 2 + (sum / 2) % 2) << sum;
    }
    EXPECT_GT(odd, 3);
}

TEST_F(LineStrengthTest, AnEmptySlotLeavesItsBarOut)
{
    Day.NormalForward(3, 2) = 0;
    Day.NormalDefense(4, 1) = 0;
    Day.StartGoalie = 0;
    const LineStrength strength = Strength();
    for (std::size_t at = 0; at < strength.size(); ++at)
        EXPECT_EQ(strength[at].has_value(), at != 2 && at != 7 && at != 8) << at;
}

TEST_F(LineStrengthTest, WhoeverIsOutsideHisTableOrWithoutAPositionHasNone)
{
    Day.NormalForward(1, 1) = -3;
    Day.NormalDefense(1, 2) = 10001;
    Day.StartGoalie = 1001;
    Players[Day.NormalForward(2, 1)].Position = 0;
    const LineStrength strength = Strength();
    for (std::size_t at = 0; at < strength.size(); ++at)
        EXPECT_EQ(strength[at].has_value(), at != 0 && at != 1 && at != 4 && at != 8) << at;
}

TEST_F(LineStrengthTest, AnEmptyDayHasNone)
{
    Day = {};
    EXPECT_THAT(Strength(), Each(Eq(std::nullopt)));
}

} // namespace
} // namespace dravik
