#include "desk/FirstDay.h"

#include "LinesDesk.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FirstDayTest : public LinesDesk {};

TEST_F(FirstDayTest, ACompleteFirstDayIsNotWarnedOf)
{
    for (const Side side : Sides)
        WarnOfFirstDay(OpenWork(), Own, side);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(FirstDayTest, AnIncompleteOneIsWarnedOfInTheWordsOfItsSide)
{
    LeagueData.FarmRosterRequired = true;
    for (const Side side : Sides)
        Day(side).StartGoalie = 0;
    Remember();
    for (const Side side : Sides)
        WarnOfFirstDay(OpenWork(), Own, side);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "Lines for Day #1 are Incomplete!"},
                                             Box{box::Warning, "Farm Lines for Day #1 are Incomplete!"}));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(FirstDayTest, OtherDaysDoNotCount)
{
    ASSERT_EQ(Day(Side::Pro, 2).StartGoalie, 0);
    WarnOfFirstDay(OpenWork(), Own, Side::Pro);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(FirstDayTest, TheJudgeRepairsAsAlways)
{
    const auto starting = static_cast<int>(Day(Side::Pro).StartGoalie);
    Goalies[starting].Suspension = 1;
    Remember();
    WarnOfFirstDay(OpenWork(), Own, Side::Pro);
    ExpectedDay(Side::Pro).StartGoalie = 0;
    EXPECT_TRUE(IsAsExpected());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "Lines for Day #1 are Incomplete!"}));
}

TEST_F(FirstDayTest, AJudgementThatFailsIsToldAndWarnedOf)
{
    Day(Side::Pro).NormalForward(1, 1) = 20000;
    WarnOfFirstDay(OpenWork(), Own, Side::Pro);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in CheckLine!"},
                                             Box{box::Warning, "Lines for Day #1 are Incomplete!"}));
}

TEST_F(FirstDayTest, AWarningThatCannotBeShownFails)
{
    Day(Side::Pro).StartGoalie = 0;
    FailingBoxes failing(1);
    EXPECT_EQ(FailureOfCommand([&] {
                  WarnOfFirstDay({OpenLeague, failing, failing, Modified}, Own, Side::Pro);
              }),
              failure::Overflow);
}

} // namespace
} // namespace dravik
