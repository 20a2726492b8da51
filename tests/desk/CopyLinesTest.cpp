#include "desk/CopyLines.h"

#include "LinesDesk.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CopyLinesTest : public LinesDesk {
protected:
    CopyLinesTest()
    {
        for (const Side side : Sides) {
            Lines& lines = Day(side);
            lines.Strategy[0] = 3;
            lines.Strategy[2] = 1;
            lines.PullGoalerMinGoal = 2;
            lines.PullGoalerMinPct = 85;
            lines.PK3Reserved[1] = 77;
            Day(side, 3).PK3Reserved[2] = 12;
        }
        Remember();
    }

    // What copying should leave in a day.
    void ExpectCopied(Side side, int from, int to)
    {
        Lines copied = ExpectedDay(side, from);
        copied.PK3Reserved = ExpectedDay(side, to).PK3Reserved;
        ExpectedDay(side, to) = copied;
    }

    static constexpr const char* Ask = "What day do you have to copy your lines?";
};

TEST_F(CopyLinesTest, EverythingOfTheDayIsCopiedButTheReservedWords)
{
    for (const Side side : Sides) {
        CopyLines(OpenWork(), Own, side, 1, 3);
        ExpectCopied(side, 1, 3);
        EXPECT_TRUE(IsAsExpected());
        EXPECT_EQ(Day(side, 3).PullGoalerMinPct, 85);
        EXPECT_EQ(Day(side, 3).PK3Reserved[2], 12);
    }
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(CopyLinesTest, ADayCopiedToItselfStays)
{
    CopyLines(OpenWork(), Own, Side::Pro, 1, 1);
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(CopyLinesTest, ADayOrTeamOutOfRangeIsToldAndNothingIsCopied)
{
    const std::pair<int, int> days[] = {{0, 1}, {1, 0}, {11, 1}, {1, 11}};
    for (const auto& [from, to] : days) {
        CopyLines(OpenWork(), Own, Side::Pro, from, to);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Copy!"}));
    }
    CopyLines(OpenWork(), 101, Side::Farm, 1, 2);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Copy!"}));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(CopyLinesTest, CopyingToADayAsksForItAndForAYesAndTells)
{
    Machine.Type("3");
    CopyLinesToDay(OpenWork(), Own, Side::Farm, 1, 4);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{Ask}));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::YesNo, "Are you want to you want to copy the lines from day 1 to day 3?"},
                            Box{box::Information, "Lines 1 was successfully copy to Lines 3."}));
    ExpectCopied(Side::Farm, 1, 3);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
}

TEST_F(CopyLinesTest, ANoCopiesNothing)
{
    Machine.Type("3");
    Machine.Answer(button::No);
    CopyLinesToDay(OpenWork(), Own, Side::Pro, 1, 10);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::YesNo, "Are you want to you want to copy the lines from day 1 to day 3?"}));
    Machine.Answer(button::No);
    CopyLinesToAllDays(OpenWork(), Own, Side::Pro, 1);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::YesNo,
                                "Are you want to you want to copy the lines from day 1 to day all the others day?"}));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(CopyLinesTest, ANumberOutsideTheDaysIsWarnedOf)
{
    for (const char* typed : {"", "x", "0", "0.5", "-1", "8", "7.6", "10"}) {
        Machine.Type(typed);
        CopyLinesToDay(OpenWork(), Own, Side::Pro, 1, 7);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Please entry a number between 1 and 7."}))
            << typed;
    }
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(CopyLinesTest, TheFirstAndTheLastDayAreWithinTheRange)
{
    for (const char* typed : {"1", "7", "7.4", "6.5"}) {
        Machine.Type(typed);
        Machine.Answer(button::No);
        CopyLinesToDay(OpenWork(), Own, Side::Pro, 2, 7);
        EXPECT_EQ(Machine.TakeBoxes().at(0).Kind, box::YesNo) << typed;
    }
}

TEST_F(CopyLinesTest, TheNumberIsRoundedTiesToEven)
{
    for (const auto& [typed, day] : {std::pair("2.5", "2"), std::pair("3.5", "4"), std::pair(" 6th", "6")}) {
        Machine.Type(typed);
        Machine.Answer(button::No);
        CopyLinesToDay(OpenWork(), Own, Side::Pro, 9, 10);
        EXPECT_EQ(Machine.TakeBoxes().at(0).Text,
                  std::string("Are you want to you want to copy the lines from day 9 to day ") + day + "?");
    }
}

TEST_F(CopyLinesTest, ANumberBeyondSixteenBitsFailsWithoutABox)
{
    for (const char* typed : {"32768", "-32769"}) {
        Machine.Type(typed);
        EXPECT_EQ(FailureOfCommand([&] { CopyLinesToDay(OpenWork(), Own, Side::Pro, 1, 10); }), failure::Overflow);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(CopyLinesTest, CopyingToAllDaysWritesTheOtherNine)
{
    CopyLinesToAllDays(OpenWork(), Own, Side::Pro, 1);
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{box::YesNo, "Are you want to you want to copy the lines from day 1 to day all the others day?"},
                    Box{box::Information, "Lines 1 was successfully copy to day all the others day."}));
    for (int day = 2; day <= 10; ++day)
        ExpectCopied(Side::Pro, 1, day);
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(CopyLinesTest, ADayInTheMiddleIsCopiedBothWays)
{
    CopyLinesToAllDays(OpenWork(), Own, Side::Farm, 4);
    for (int day = 1; day <= 10; ++day)
        if (day != 4)
            ExpectCopied(Side::Farm, 4, day);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_EQ(Day(Side::Farm, 1).StartGoalie, 0);
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{box::YesNo, "Are you want to you want to copy the lines from day 4 to day all the others day?"},
                    Box{box::Information, "Lines 4 was successfully copy to day all the others day."}));
}

TEST_F(CopyLinesTest, AQuestionThatCannotBeAskedCopiesNothing)
{
    SilentInput silent;
    EXPECT_EQ(FailureOfCommand([&] {
                  CopyLinesToDay({OpenLeague, silent, silent, Modified}, Own, Side::Pro, 1, 10);
              }),
              failure::OutOfMemory);
    FailingBoxes failing(2);
    failing.Type("3");
    const Work work{OpenLeague, failing, failing, Modified};
    EXPECT_EQ(FailureOfCommand([&] { CopyLinesToDay(work, Own, Side::Pro, 1, 10); }), failure::Overflow);
    EXPECT_EQ(FailureOfCommand([&] { CopyLinesToAllDays(work, Own, Side::Pro, 1); }), failure::Overflow);
    EXPECT_TRUE(IsAsExpected());
}

// Answers the question, and fails to tell what came of it.
class FailingTold : public ScriptedPlatform {
public:
    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        if (kind == box::Information)
            Fail(failure::OutOfMemory);
        return ScriptedPlatform::MessageBox(text, kind, title);
    }
};

TEST_F(CopyLinesTest, WhatWasCopiedBeforeTheLastBoxFailedStays)
{
    FailingTold failing;
    failing.Type("3");
    EXPECT_EQ(FailureOfCommand([&] {
                  CopyLinesToDay({OpenLeague, failing, failing, Modified}, Own, Side::Pro, 1, 10);
              }),
              failure::OutOfMemory);
    ExpectCopied(Side::Pro, 1, 3);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_THAT(failing.Boxes(),
                ElementsAre(Box{box::YesNo, "Are you want to you want to copy the lines from day 1 to day 3?"}));
}

} // namespace
} // namespace dravik
