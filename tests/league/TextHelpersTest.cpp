#include "league/OutsideCode.h"

#include <gtest/gtest.h>
#include <string>

namespace dravik {
namespace {

TEST(TextHelpersTest, BlanksAtBothEndsAndInTheMiddleGoAndTheLettersCloseUp)
{
    EXPECT_EQ(RemoveSpaces("  New York "), "NewYork");
}

TEST(TextHelpersTest, OfAll256CharactersThoseFrom33OnStay)
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

TEST(TextHelpersTest, ControlCharactersGoWhereverTheyStand)
{
    using namespace std::string_literals;
    EXPECT_EQ(RemoveSpaces("\tA\r\nB\0C\x1F"s), "ABC");
}

TEST(TextHelpersTest, AccentedLettersAndTheHardSpaceOf160Stay)
{
    EXPECT_EQ(RemoveSpaces("Montr\xE9"
                           "al\xA0X"),
              "Montr\xE9"
              "al\xA0X");
}

TEST(TextHelpersTest, NothingButBlanksLeavesTheEmptyText)
{
    EXPECT_EQ(RemoveSpaces("   "), "");
    EXPECT_EQ(RemoveSpaces(""), "");
}

} // namespace
} // namespace dravik
