#include "league/Field.h"

#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace dravik {
namespace {

template <class T>
std::string BytesOf(const T& field)
{
    return {reinterpret_cast<const char*>(&field), sizeof(T)};
}

int NumberThrownBy(auto&& action)
{
    try {
        action();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

// A broken number goes into no field by itself: a rule says how it is rounded.
template <class Field>
constexpr bool TakesBrokenNumbers = std::is_constructible_v<Field, double> || std::is_convertible_v<float, Field> ||
                                    std::is_assignable_v<Field&, double> || requires(Field& field)
{
    field += 2.9;
}
|| requires(Field& field) { field -= 2.9F; };
static_assert(!TakesBrokenNumbers<Byte> && !TakesBrokenNumbers<Int16> && !TakesBrokenNumbers<Int32>);
template <class Word>
constexpr bool IsTrueOrFalseAlone = !std::is_constructible_v<Word, double> && !std::is_constructible_v<Word, int> &&
                                    !std::is_assignable_v<Word&, int> && !requires(Word & field)
{
    field.SetWord(2.9);
};
static_assert(IsTrueOrFalseAlone<Boolean>);

TEST(FieldTest, NumbersAreLittleEndian)
{
    EXPECT_EQ(BytesOf(Int16(0x1234)), "\x34\x12");
    EXPECT_EQ(BytesOf(Int16(-2)), "\xFE\xFF");
    EXPECT_EQ(BytesOf(Int32(0x01020304)), "\x04\x03\x02\x01");
    EXPECT_EQ(BytesOf(Byte(200)), "\xC8");
}

TEST(FieldTest, NumbersReadBackSigned)
{
    EXPECT_EQ(Int16(-32768), -32768);
    EXPECT_EQ(Int32(-1), -1);
    EXPECT_EQ(Byte(255), 255);
}

TEST(FieldTest, AValueThatDoesNotFitFailsWithNumber6AndChangesNothing)
{
    Int16 word = 7;
    EXPECT_EQ(NumberThrownBy([&] { word = 32768; }), 6);
    EXPECT_EQ(NumberThrownBy([&] { word = -32769; }), 6);
    EXPECT_EQ(word, 7);
    Byte byte = 9;
    EXPECT_EQ(NumberThrownBy([&] { byte = 256; }), 6);
    EXPECT_EQ(NumberThrownBy([&] { byte = -1; }), 6);
    EXPECT_EQ(byte, 9);
}

TEST(FieldTest, AnExpressionOnFieldsDoesNotWrap)
{
    const Int32 big = 2147483647;
    EXPECT_EQ(big + big, 4294967294LL);
}

TEST(FieldTest, AFieldIsRaisedLoweredAndCountedUpWithinItsLimits)
{
    Int16 word = 5;
    EXPECT_EQ(word += 3, 8);
    EXPECT_EQ(word -= 10, -2);
    EXPECT_EQ(++word, -1);
    EXPECT_EQ(++word, 0);
    word = 32767;
    EXPECT_EQ(NumberThrownBy([&] { ++word; }), 6);
    EXPECT_EQ(NumberThrownBy([&] { word += 1; }), 6);
    EXPECT_EQ(NumberThrownBy([&] { word -= 65536; }), 6);
    EXPECT_EQ(word, 32767);
}

TEST(FieldTest, AFloatStandsAsItsIeeeBytes)
{
    EXPECT_EQ(BytesOf(Float64(1.0)), std::string("\0\0\0\0\0\0\xF0\x3F", 8));
    EXPECT_EQ(static_cast<double>(Float64(-2.5)), -2.5);
}

TEST(FieldTest, OnlyMinusOneIsTrue)
{
    Boolean truth;
    EXPECT_FALSE(truth);
    truth = true;
    EXPECT_EQ(truth.Word(), -1);
    EXPECT_TRUE(truth);
    truth.SetWord(1);
    EXPECT_FALSE(truth);
    EXPECT_EQ(truth.Word(), 1);
    EXPECT_EQ(Boolean(true).Word(), -1);
    EXPECT_EQ(Boolean(false).Word(), 0);
}

TEST(FieldTest, ATextIsPaddedWithBlanksAndCutAtItsWidth)
{
    EXPECT_EQ(BytesOf(Text<5>("ab")), "ab   ");
    EXPECT_EQ(BytesOf(Text<3>("abcdef")), "abc");
    EXPECT_EQ(Text<5>(" ab ").Raw(), " ab  ");
    EXPECT_EQ(Text<6>(" a b").Trimmed(), "a b");
}

TEST(FieldTest, AnUnwrittenTextReadsAsEmpty)
{
    EXPECT_EQ(Text<4>().Trimmed(), "");
    EXPECT_EQ(Text<4>().Raw(), std::string(4, '\0'));
}

TEST(FieldTest, AssigningNothingMakesATextUnwrittenAgain)
{
    Text<4> text = "abcd";
    text = {};
    EXPECT_EQ(text.Raw(), std::string(4, '\0'));
}

TEST(FieldTest, AnIndexOutsideARowFailsWithNumber9)
{
    Row<Int16, 1, 5> row;
    EXPECT_EQ(NumberThrownBy([&] { row[0] = 1; }), 9);
    EXPECT_EQ(NumberThrownBy([&] { row[6] = 1; }), 9);
    Row<Int16, 0, 2> fromZero;
    EXPECT_EQ(NumberThrownBy([&] { fromZero[0] = 1; }), 0);
    EXPECT_EQ(NumberThrownBy([&] { fromZero[3] = 1; }), 9);
}

TEST(FieldTest, TheFirstIndexOfAGridRunsFastest)
{
    Grid<4, 3> grid;
    grid(2, 1) = 1;
    grid(1, 2) = 2;
    const std::string bytes = BytesOf(grid);
    EXPECT_EQ(bytes[2], 1);
    EXPECT_EQ(bytes[8], 2);
}

TEST(FieldTest, AnIndexOutsideAGridFailsWithNumber9)
{
    Grid<4, 3> grid;
    EXPECT_EQ(NumberThrownBy([&] { grid(5, 1) = 1; }), 9);
    EXPECT_EQ(NumberThrownBy([&] { grid(1, 4) = 1; }), 9);
    EXPECT_EQ(NumberThrownBy([&] { grid(0, 2) = 1; }), 9);
    EXPECT_EQ(NumberThrownBy([&] { grid(1, 0) = 1; }), 9);
    EXPECT_EQ(NumberThrownBy([&] { grid(5, 0) = 1; }), 9);
}

} // namespace
} // namespace dravik
