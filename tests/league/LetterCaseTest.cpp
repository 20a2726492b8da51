#include "league/LetterCase.h"

#include <gtest/gtest.h>
#include <string>

namespace dravik {
namespace {

TEST(LetterCaseTest, OfAll256CharactersTheLettersFromAToZAloneChange)
{
    std::string all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    std::string expected = all;
    expected.replace(expected.find("abc"), 26, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(UpperCase(all), expected);
}

TEST(LetterCaseTest, ATextWithoutLettersStaysAsItIs)
{
    EXPECT_EQ(UpperCase(""), "");
    EXPECT_EQ(UpperCase("\xE9-7 _"), "\xE9-7 _");
}

} // namespace
} // namespace dravik
