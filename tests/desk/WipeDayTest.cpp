#include "desk/WipeDay.h"

#include "LinesDesk.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

class WipeDayTest : public LinesDesk {
protected:
    const Box Asked{box::YesNo, "Are you sure you want to wipe your lines?"};
};

TEST_F(WipeDayTest, AYesEmptiesTheDayOfThatSideAndKeepsPullAndReservedWords)
{
    for (const Side side : Sides) {
        Lines& lines = Day(side);
        lines.Strategy[1] = 4;
        lines.PullGoalerMinGoal = 3;
        lines.PullGoalerMinPct = 80;
        lines.PK3Reserved[2] = 9;
        Remember();
        EXPECT_TRUE(WipeDay(OpenWork(), Own, 1, side));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Asked));
        Lines& expected = ExpectedDay(side);
        expected = {};
        expected.PullGoalerMinGoal = 3;
        expected.PullGoalerMinPct = 80;
        expected.PK3Reserved[2] = 9;
        EXPECT_TRUE(IsAsExpected());
    }
    EXPECT_FALSE(Modified);
}

TEST_F(WipeDayTest, ANoLeavesEverything)
{
    Machine.Answer(button::No);
    EXPECT_FALSE(WipeDay(OpenWork(), Own, 1, Side::Pro));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Asked));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(WipeDayTest, ADayOutOfRangeIsToldBehindTheQuestion)
{
    for (const int day : {0, 11}) {
        EXPECT_TRUE(WipeDay(OpenWork(), Own, day, Side::Farm));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Asked, Box{box::Critical, "Integrity Check Failed!"}));
    }
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(WipeDayTest, AQuestionThatCannotBeAskedLeavesEverything)
{
    FailingBoxes failing(1);
    EXPECT_EQ(FailureOfCommand([&] {
                  WipeDay({OpenLeague, failing, failing, Modified}, Own, 1, Side::Pro);
              }),
              failure::Overflow);
    EXPECT_TRUE(IsAsExpected());
}

} // namespace
} // namespace dravik
