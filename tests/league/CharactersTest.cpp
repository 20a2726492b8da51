#include "league/Characters.h"

#include <gtest/gtest.h>

#include <optional>
#include <set>

namespace dravik {
namespace {

TEST(CharactersTest, EveryByteHasACharacterOfItsOwnAndIsFoundByIt)
{
    std::set<char32_t> characters;
    for (int number = 0; number < 256; ++number) {
        const char byte = static_cast<char>(number);
        EXPECT_EQ(ByteOf(CharacterOf(byte)), byte) << number;
        characters.insert(CharacterOf(byte));
    }
    EXPECT_EQ(characters.size(), 256U);
}

TEST(CharactersTest, TheCodePageDiffersFromTheNumbersBetween128And159)
{
    EXPECT_EQ(CharacterOf('\x7F'), U'\x7F');
    EXPECT_EQ(CharacterOf('\x80'), U'\u20AC');
    EXPECT_EQ(CharacterOf('\x8A'), U'\u0160');
    EXPECT_EQ(CharacterOf('\x9F'), U'\u0178');
    EXPECT_EQ(CharacterOf('\xA0'), static_cast<char32_t>(0xA0));
    EXPECT_EQ(CharacterOf('\xFF'), U'\u00FF');
}

TEST(CharactersTest, AnUndefinedByteIsTheControlCharacterOfItsNumber)
{
    for (const int number : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(CharacterOf(static_cast<char>(number)), static_cast<char32_t>(number));
}

TEST(CharactersTest, WhatTheCodePageLacksHasNoByte)
{
    for (const char32_t character : {U'\u0100', U'\u20AD', U'\U0001F3D2', static_cast<char32_t>(0x80),
                                     static_cast<char32_t>(0x8A), static_cast<char32_t>(0x9F)})
        EXPECT_EQ(ByteOf(character), std::nullopt) << static_cast<unsigned>(character);
    EXPECT_EQ(ByteOf(U'\u017D'), '\x8E');
}

} // namespace
} // namespace dravik
