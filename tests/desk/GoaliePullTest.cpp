#include "desk/GoaliePull.h"

#include "LinesDesk.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GoaliePullTest : public LinesDesk {
protected:
    GoaliePullTest()
    {
        LeagueData.PullGoalerMinGoalDefault = 4;
        LeagueData.PullGoalerMinPctDefault = 82;
        Remember();
    }

    long long Shown(Side side, GoaliePull value, int day = 1)
    {
        return ShownGoaliePull(OpenLeague, Own, day, side, value);
    }
    void Set(Side side, GoaliePull value, double number, int day = 1)
    {
        SetGoaliePull(OpenWork(), Own, day, side, value, number);
    }
};

TEST_F(GoaliePullTest, WhereTheTeamHasNoneTheLeaguesDefaultIsShown)
{
    Day(Side::Pro).PullGoalerMinGoal = 2;
    Day(Side::Farm).PullGoalerMinPct = -7;
    EXPECT_EQ(Shown(Side::Pro, GoaliePull::MinGoal), 2);
    EXPECT_EQ(Shown(Side::Pro, GoaliePull::MinPct), 82);
    EXPECT_EQ(Shown(Side::Farm, GoaliePull::MinGoal), 4);
    EXPECT_EQ(Shown(Side::Farm, GoaliePull::MinPct), -7);
    EXPECT_EQ(Shown(Side::Pro, GoaliePull::MinGoal, 2), 4);
}

TEST_F(GoaliePullTest, ATextStandsForTheNumberAtItsHead)
{
    for (const auto& [text, number] : {std::pair("7", 7.0), std::pair("-5", -5.0), std::pair("5-", 5.0),
                                       std::pair("1-2", 1.0), std::pair("40000", 40000.0), std::pair("007", 7.0)})
        EXPECT_EQ(GoaliePullNumber(Machine, text), number) << text;
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(GoaliePullTest, ATextThatIsNoNumberIsTold)
{
    const std::pair<const char*, const char*> refused[] = {{"", "No Valid Input!"},
                                                           {"-", "No Valid Input!"},
                                                           {"a12", "No Valid Input!"},
                                                           {" 1", "No Valid Input!"},
                                                           {"12a", "Only numbers are allowed in that textbox!"},
                                                           {"1.5", "Only numbers are allowed in that textbox!"}};
    for (const auto& [text, words] : refused) {
        EXPECT_EQ(GoaliePullNumber(Machine, text), std::nullopt) << text;
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, words})) << text;
    }
}

TEST_F(GoaliePullTest, ARefusalThatCannotBeToldIsReportedAndNoNumber)
{
    FailingBoxes failing(1);
    EXPECT_EQ(GoaliePullNumber(failing, ""), std::nullopt);
    EXPECT_THAT(failing.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckInput"}));
}

TEST_F(GoaliePullTest, ANumberIsStoredInItsDayAndMarksTheLeague)
{
    Set(Side::Pro, GoaliePull::MinGoal, 3);
    EXPECT_TRUE(Modified);
    Set(Side::Pro, GoaliePull::MinPct, -5);
    Set(Side::Farm, GoaliePull::MinPct, 90, 10);
    ExpectedDay(Side::Pro).PullGoalerMinGoal = 3;
    ExpectedDay(Side::Pro).PullGoalerMinPct = -5;
    ExpectedDay(Side::Farm, 10).PullGoalerMinPct = 90;
    EXPECT_TRUE(IsAsExpected());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(GoaliePullTest, AZeroTakesTheTeamsOwnValueAway)
{
    Day(Side::Pro).PullGoalerMinGoal = 3;
    Set(Side::Pro, GoaliePull::MinGoal, 0);
    EXPECT_EQ(Shown(Side::Pro, GoaliePull::MinGoal), 4);
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(GoaliePullTest, TheBordersOfSixteenBitsAreStoredAndWhatIsBeyondFails)
{
    for (const double number : {32767.0, -32768.0}) {
        Set(Side::Pro, GoaliePull::MinPct, number);
        EXPECT_EQ(Day(Side::Pro).PullGoalerMinPct, static_cast<long long>(number));
    }
    Day(Side::Pro).PullGoalerMinPct = 85;
    Remember();
    Modified = false;
    for (const double number : {32768.0, -32769.0, 1e300})
        EXPECT_EQ(FailureOfCommand([&] { Set(Side::Pro, GoaliePull::MinPct, number); }), failure::Overflow) << number;
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
    EXPECT_EQ(Shown(Side::Pro, GoaliePull::MinPct), 85);
}

TEST_F(GoaliePullTest, ADayOutOfRangeFails)
{
    for (const int day : {0, 11}) {
        EXPECT_EQ(FailureOfCommand([&] { Set(Side::Pro, GoaliePull::MinGoal, 1, day); }), failure::OutOfRange);
        EXPECT_EQ(FailureOfCommand([&] { Shown(Side::Pro, GoaliePull::MinGoal, day); }), failure::OutOfRange);
    }
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
