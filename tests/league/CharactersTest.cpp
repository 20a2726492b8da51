#include "league/Characters.h"
#include "support/PublishedCodePage.h"

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

TEST(CharactersTest, EveryByteIsItsPublishedCharacter)
{
    for (int number = 0; number < 256; ++number)
        EXPECT_EQ(CharacterOf(static_cast<char>(number)), PublishedCharacter(number)) << number;
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
