#include "terminal/Utf8.h"

#include "league/Failure.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace dravik::terminal {
namespace {

TEST(Utf8Test, LettersOfTheCodePageComeAndGo)
{
    EXPECT_EQ(ToUtf8("C\xF4te \x8A\x9C\x80 O'Neil"), "Côte Šœ€ O'Neil");
    EXPECT_EQ(FromUtf8("Côte Šœ€ O'Neil"), "C\xF4te \x8A\x9C\x80 O'Neil");
}

TEST(Utf8Test, EveryByteSurvivesTheRoundTrip)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << byte;
    }
}

TEST(Utf8Test, WhatTheCodePageLacksAndWhatIsNoUtf8Fails)
{
    for (const char* text : {"日", "Ā", "😀", "\xFF", "\x80", "\xC3", "\xC3(", "\xE2\x82", "\xC0\x80"})
        EXPECT_THROW(FromUtf8(text), Failure) << text;
}

TEST(Utf8Test, ControlCharactersBecomeBlanksButTabsAndEndsOfLines)
{
    EXPECT_EQ(WithoutControls("a\x1B[1m\tb\r\nc\rd\x7F\xC2\x9D\xC2\xA0é\n"), "a [1m\tb\r\nc d  \xC2\xA0é\n");
    EXPECT_EQ(WithoutControls("\xC2"), "\xC2");
}

TEST(Utf8Test, ControlCharactersThatJsonLeavesAreEscaped)
{
    EXPECT_EQ(WithEscapedControls("{\"é\": \"\\u001b\x7F\xC2\x80\xC2\x9F\xC2\xA0\"\n}"),
              "{\"é\": \"\\u001b\\u007f\\u0080\\u009f\xC2\xA0\"\n}");
}

TEST(Utf8Test, TheMarkInFrontIsNoLetter)
{
    EXPECT_EQ(WithoutByteOrderMark("\xEF\xBB\xBF"
                                   "7 x"),
              "7 x");
    EXPECT_EQ(WithoutByteOrderMark("7 \xEF\xBB\xBF"), "7 \xEF\xBB\xBF");
}

TEST(Utf8Test, APathHasTheLettersOfTheTextThatNamesIt)
{
    struct Pair {
        const char* Text;
        const char16_t* Letters;
    };
    for (const Pair& pair :
         {Pair{"Ligue.dvs", u"Ligue.dvs"}, Pair{"C\xC3\xB4te/\xC5\x81uka.dvs", u"C\u00F4te/\u0141uka.dvs"},
          Pair{"\xE6\x97\xA5.dvs", u"\u65E5.dvs"}}) {
        const std::filesystem::path path = PathOf(pair.Text);
        EXPECT_EQ(path.generic_u16string(), pair.Letters);
        EXPECT_EQ(TextOf(path), pair.Text);
    }
}

} // namespace
} // namespace dravik::terminal
