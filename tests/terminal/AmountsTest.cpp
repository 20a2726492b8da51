#include "terminal/Amounts.h"

#include <gtest/gtest.h>
#include <limits>

namespace dravik::terminal {
namespace {

TEST(AmountsTest, ThousandsArePartedByCommas)
{
    EXPECT_EQ(MoneyText(0, 0), "$0");
    EXPECT_EQ(MoneyText(999, 0), "$999");
    EXPECT_EQ(MoneyText(1000, 0), "$1,000");
    EXPECT_EQ(MoneyText(1234567.891, 2), "$1,234,567.89");
    EXPECT_EQ(MoneyText(-1200.5, 2), "-$1,200.50");
    EXPECT_EQ(MoneyText(-100000, 0), "-$100,000");
}

TEST(AmountsTest, WholeAmountsRoundAHalfToTheEvenNeighbour)
{
    EXPECT_EQ(MoneyText(0.5, 0), "$0");
    EXPECT_EQ(MoneyText(1.5, 0), "$2");
    EXPECT_EQ(MoneyText(-0.25, 0), "$0");
}

TEST(AmountsTest, FixedNumbersHaveAPointAndNoGroups) { EXPECT_EQ(FixedText(12345.678, 2), "12345.68"); }

TEST(AmountsTest, DaysAreCountedFromTheEndOf1899)
{
    EXPECT_EQ(LongDateText(0), "December 30 1899");
    EXPECT_EQ(LongDateText(2), "January 1 1900");
    EXPECT_EQ(LongDateText(46034.75), "January 12 2026");
    EXPECT_EQ(ShortTimeText(46034.75), "18:00");
    EXPECT_EQ(LongDateText(-0.5), "December 29 1899");
    EXPECT_EQ(ShortTimeText(-0.5), "12:00");
    EXPECT_EQ(ShortTimeText(0.9999999), "00:00") << "rounded to the second first";
    EXPECT_EQ(LongDateText(0.9999999), "December 31 1899");
}

TEST(AmountsTest, WhatIsNoDateIsEmpty)
{
    for (const double days : {-657435.0, 2958466.0, 2958465.9999999, std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(LongDateText(days), "");
        EXPECT_EQ(ShortTimeText(days), "");
    }
    EXPECT_EQ(LongDateText(-657434), "January 1 100");
    EXPECT_EQ(LongDateText(2958465), "December 31 9999");
}

} // namespace
} // namespace dravik::terminal
