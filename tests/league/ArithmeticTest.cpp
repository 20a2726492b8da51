#include "league/Arithmetic.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace dravik {
namespace {

int NumberThrownBy(auto&& action)
{
    try {
        action();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

TEST(ArithmeticTest, AHalfRoundsToTheEvenNeighbour)
{
    EXPECT_EQ(RoundToInt16(0.5), 0);
    EXPECT_EQ(RoundToInt16(1.5), 2);
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_EQ(RoundToInt16(-0.5), 0);
    EXPECT_EQ(RoundToInt16(-1.5), -2);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
    EXPECT_EQ(RoundToInt32(1234566.5), 1234566);
    EXPECT_EQ(RoundToInt32(1234567.5), 1234568);
}

TEST(ArithmeticTest, WhatIsNoTieRoundsToTheNearest)
{
    EXPECT_EQ(RoundToInt16(std::nextafter(0.5, 1)), 1);
    EXPECT_EQ(RoundToInt16(std::nextafter(0.5, 0)), 0);
    EXPECT_EQ(RoundToInt16(std::nextafter(2.5, 3)), 3);
    EXPECT_EQ(RoundToInt16(-7.6), -8);
    EXPECT_EQ(RoundToInt32(99.4), 99);
}

TEST(ArithmeticTest, EveryHalfOf16BitsRoundsAsTheParityOfItsFloorSays)
{
    for (long long whole = -32768; whole < 32767; ++whole) {
        const long long even = whole % 2 == 0 ? whole : whole + 1;
        ASSERT_EQ(RoundToInt16(static_cast<double>(whole) + 0.5), even) << whole;
        ASSERT_EQ(RoundToInt32(static_cast<double>(whole) + 0.5), even) << whole;
    }
}

TEST(ArithmeticTest, ARoundedNumberThatDoesNotFit16BitsFailsWith6)
{
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768); // the tie goes to the even one, which fits
    EXPECT_EQ(NumberThrownBy([] { RoundToInt16(32767.5); }), 6);
    EXPECT_EQ(NumberThrownBy([] { RoundToInt16(std::nextafter(-32768.5, -40000)); }), 6);
    EXPECT_EQ(NumberThrownBy([] { RoundToInt16(1e300); }), 6);
}

TEST(ArithmeticTest, ARoundedNumberThatDoesNotFit32BitsFailsWith6)
{
    EXPECT_EQ(RoundToInt32(2147483647.4), 2147483647);
    EXPECT_EQ(RoundToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(NumberThrownBy([] { RoundToInt32(2147483647.5); }), 6);
    EXPECT_EQ(NumberThrownBy([] { RoundToInt32(-2147483649.0); }), 6);
}

TEST(ArithmeticTest, WhatIsNoNumberFailsWith6)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {nan, infinity, -infinity}) {
        EXPECT_EQ(NumberThrownBy([&] { RoundToInt16(value); }), 6);
        EXPECT_EQ(NumberThrownBy([&] { RoundToInt32(value); }), 6);
    }
}

TEST(ArithmeticTest, ASumIsLimitedTo16Bits)
{
    EXPECT_EQ(Limit16(32767), 32767);
    EXPECT_EQ(Limit16(-32768), -32768);
    EXPECT_EQ(NumberThrownBy([] { Limit16(32768); }), 6);
    EXPECT_EQ(NumberThrownBy([] { Limit16(-32769); }), 6);
    EXPECT_EQ(NumberThrownBy([] { Limit16(65536); }), 6); // it does not wrap to 0
}

TEST(ArithmeticTest, ASumIsLimitedTo32Bits)
{
    EXPECT_EQ(Limit32(2147483647LL), 2147483647LL);
    EXPECT_EQ(Limit32(-2147483648LL), -2147483648LL);
    EXPECT_EQ(NumberThrownBy([] { Limit32(2147483648LL); }), 6);
    EXPECT_EQ(NumberThrownBy([] { Limit32(-2147483649LL); }), 6);
    EXPECT_EQ(NumberThrownBy([] { Limit32(4294967296LL); }), 6);
}

// The 32-bit float nearest to `value`, ties to the even one, found without any float conversion: from the bits of the
// 64-bit float, whose last 29 bits of fraction are dropped. For normal numbers in the range of a 32-bit float.
double NearestSingle(double value)
{
    constexpr std::uint64_t dropped = (1ULL << 29U) - 1;
    constexpr std::uint64_t half = 1ULL << 28U;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    const std::uint64_t rest = bits & dropped;
    bits &= ~dropped;
    if (rest > half || (rest == half && (bits >> 29U & 1U) != 0))
        bits += 1ULL << 29U;
    std::memcpy(&value, &bits, sizeof bits);
    return value;
}

TEST(ArithmeticTest, ASingleIsRoundedBackAfterEachTerm)
{
    Single sum;
    sum += 16777216.0; // beyond it a 32-bit float skips the odd numbers
    sum += 1.0;
    EXPECT_EQ(sum.Value(), 16777216.0F);
    sum += 1.0;
    EXPECT_EQ(sum.Value(), 16777216.0F);
    sum += 2.0;
    EXPECT_EQ(sum.Value(), 16777218.0F);
}

TEST(ArithmeticTest, TheTermOfASingleKeepsIts64Bits)
{
    // As a 32-bit float the term would be 16777216, and the sum 16777217 would lie on a tie that goes down.
    Single sum;
    sum += 1.0;
    sum += 16777216.5;
    EXPECT_EQ(sum.Value(), 16777218.0F);
}

TEST(ArithmeticTest, ASingleEqualsASecondReadingOverRandomSums)
{
    std::mt19937_64 random(20240229);
    std::uniform_int_distribution<int> rating(0, 99);
    std::uniform_int_distribution<int> percent(1, 300);
    for (int run = 0; run < 2000; ++run) {
        Single sum;
        double reading = 0;
        for (int term = 0; term < 15; ++term) {
            const double product = rating(random) * (percent(random) / 100.0);
            sum += product;
            reading = reading + product == 0 ? 0 : NearestSingle(reading + product);
            ASSERT_EQ(static_cast<double>(sum.Value()), reading) << run << " " << term;
        }
    }
}

TEST(ArithmeticTest, ASingleTakesAwayAsItAdds)
{
    Single sum;
    sum += 0.3;
    sum -= 0.1;
    EXPECT_EQ(static_cast<double>(sum.Value()), NearestSingle(NearestSingle(0.3) - 0.1));
}

TEST(ArithmeticTest, ASingleBeyondItsRangeFailsWith6AndKeepsItsValue)
{
    Single sum;
    sum += 3e38;
    EXPECT_EQ(NumberThrownBy([&] { sum += 3e38; }), 6);
    EXPECT_EQ(sum.Value(), 3e38F);
    EXPECT_EQ(NumberThrownBy([&] { sum -= 1e300; }), 6);
}

TEST(ArithmeticTest, TheLeadingNumberIsReadAsFarAsItIsOne)
{
    struct Reading {
        const char* Text;
        double Number;
    };
    const Reading readings[] = {
        {"5", 5},       {"5-", 5},       {"1-2", 1},      {"-5", -5}, {"--5", 0}, {"-5-", -5}, {"", 0},
        {"abc", 0},     {"12abc34", 12}, {"-", 0},        {"+7", 7},  {"+-7", 0}, {"-+7", 0},  {"1.5", 1.5},
        {"1.5.5", 1.5}, {".5", 0.5},     {"-.25", -0.25}, {"5.", 5},  {".", 0},   {"-.", 0},   {"1e3", 1},
        {"0x1F", 0},    {"007", 7},      {"1,234", 1},    {"nan", 0}, {"inf", 0}, {"$5", 0},   {"-12.75%", -12.75},
    };
    for (const Reading& reading : readings)
        EXPECT_EQ(LeadingNumber(reading.Text), reading.Number) << reading.Text;
}

TEST(ArithmeticTest, BlanksAreSkippedBeforeANumberAndEndItWithin)
{
    EXPECT_EQ(LeadingNumber("  42"), 42);
    EXPECT_EQ(LeadingNumber("  -42"), -42);
    EXPECT_EQ(LeadingNumber("   "), 0);
    EXPECT_EQ(LeadingNumber("12 34"), 12);
    EXPECT_EQ(LeadingNumber(" 1 2 . 5 x"), 1);
    EXPECT_EQ(LeadingNumber("12. 5"), 12);
    EXPECT_EQ(LeadingNumber("- 5"), 0) << "a sign alone is no number";
    EXPECT_EQ(LeadingNumber("+ 5"), 0);
}

TEST(ArithmeticTest, EveryWholeNumberReadsBackFromItsText)
{
    for (const int number : {0, 1, -1, 9, 10, 99, -32768, 32767, 2147483647, -2147483647}) {
        EXPECT_EQ(LeadingNumber(std::to_string(number)), number);
        EXPECT_EQ(LeadingNumber(std::to_string(number) + "-"), number);
    }
}

TEST(ArithmeticTest, ANumberBeyondA64BitFloatFailsWith6)
{
    for (char digit = '1'; digit <= '9'; ++digit) {
        EXPECT_EQ(NumberThrownBy([&] { LeadingNumber(std::string(400, digit)); }), 6) << digit;
        EXPECT_EQ(NumberThrownBy([&] { LeadingNumber("-" + std::string(400, digit)); }), 6) << digit;
        EXPECT_EQ(NumberThrownBy([&] { LeadingNumber(std::string(400, digit) + ".5"); }), 6) << digit;
    }
}

TEST(ArithmeticTest, ANumberTooSmallForA64BitFloatIs0)
{
    for (char digit = '1'; digit <= '9'; ++digit)
        EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + digit), 0) << digit;
}

} // namespace
} // namespace dravik
