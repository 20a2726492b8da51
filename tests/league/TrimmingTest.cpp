#include "league/Trimming.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace dravik {
namespace {

TEST(TrimmingTest, BlanksAtBothEndsAndInTheMiddleGoAndTheLettersCloseUp)
{
    EXPECT_EQ(RemoveSpaces("  New York "), "NewYork");
}

TEST(TrimmingTest, OfAll256CharactersThoseFrom33OnStay)
{
    std::string all;
    std::string from33;
    for (int code = 0; code < 256; ++code) {
        all += static_cast<char>(code);
        if (code >= 33)
            from33 += static_cast<char>(code);
    }
    EXPECT_EQ(RemoveSpaces(all), from33);
}

TEST(TrimmingTest, ControlCharactersGoWhereverTheyStand)
{
    using namespace std::string_literals;
    EXPECT_EQ(RemoveSpaces("\tA\r\nB\0C\x1F"s), "ABC");
}

TEST(TrimmingTest, AccentedLettersAndTheHardSpaceOf160Stay)
{
    EXPECT_EQ(RemoveSpaces("Montr\xE9"
                           "al\xA0X"),
              "Montr\xE9"
              "al\xA0X");
}

TEST(TrimmingTest, OuterBlanksGoAndNothingElse)
{
    EXPECT_EQ(WithoutOuterBlanks("  /home/New York  "), "/home/New York");
    EXPECT_EQ(WithoutOuterBlanks("\tX\n"), "\tX\n");
    EXPECT_EQ(WithoutOuterBlanks("   "), "");
    EXPECT_EQ(WithoutOuterBlanks(""), "");
}

TEST(TrimmingTest, NothingButBlanksLeavesTheEmptyText)
{
    EXPECT_EQ(RemoveSpaces("   "), "");
    EXPECT_EQ(RemoveSpaces(""), "");
}

TEST(TrimmingTest, LastCharactersAreCutAsLongAsThereAreAny)
{
    EXPECT_EQ(WithoutLastCharacters("League.dvs", 4), "League");
    EXPECT_EQ(WithoutLastCharacters("abcde", 4), "a");
    EXPECT_EQ(WithoutLastCharacters("abcd", 4), "");
    EXPECT_EQ(WithoutLastCharacters("abc", 4), "");
    EXPECT_EQ(WithoutLastCharacters("", 4), "");
    EXPECT_EQ(WithoutLastCharacters("abc", 0), "abc");
    EXPECT_EQ(WithoutLastCharacters("\xE9\xE8\xE7", 1), "\xE9\xE8");
}

TEST(TrimmingTest, AnEscapedCharacterIsCutAsOne)
{
    EXPECT_EQ(WithoutLastCharacters("A\x1A{43B}bcd", 4), "A");
    EXPECT_EQ(WithoutLastCharacters("A\x1A{43B}bcd", 3), "A\x1A{43B}");
    EXPECT_EQ(WithoutLastCharacters("AB\x1A{41B}\x1A{438}\x1A{433}\x1A{1F3D2}", 4), "AB");
    EXPECT_EQ(WithoutLastCharacters("\x1A{1A}\x1A{10FFFF}", 1), "\x1A{1A}");
    // Three characters are fewer than four, however many bytes they take.
    EXPECT_EQ(WithoutLastCharacters("\x1A{41B}\x1A{438}\x1A{433}", 4), "");
}

TEST(TrimmingTest, WhatOnlyLooksLikeAnEscapedCharacterIsCutByteByByte)
{
    for (const std::string text :
         {"\x1A{}", "\x1A{43b}", "\x1A{1234567}", "\x1A{43B", "\x1A{4 }", "\x1A(43B)", "{43B}"}) {
        EXPECT_EQ(WithoutLastCharacters(text, 1), text.substr(0, text.size() - 1));
        EXPECT_EQ(WithoutLastCharacters(text, text.size() - 1), text.substr(0, 1));
    }
    EXPECT_EQ(WithoutLastCharacters("\x1A", 1), "");
}

TEST(TrimmingTest, WhatStandsBehindTheTextIsNotLookedAt)
{
    const std::string_view longer = "\x1A{43B}";
    EXPECT_EQ(WithoutLastCharacters(longer.substr(0, 5), 1), "\x1A{43");
}

} // namespace
} // namespace dravik
