#include "terminal/Utf8.h"

#include "league/Failure.h"

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

} // namespace
} // namespace dravik::terminal
