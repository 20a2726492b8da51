#include "league/NameMatch.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace dravik {
namespace {

// The part of `name` that is found when `typed` is typed; "-" where none is.
std::string Found(const std::string& typed, const std::string& name)
{
    const auto part = NameMatch(typed).In(name);
    return part ? name.substr(part->First, part->Length) : "-";
}

TEST(NameMatchTest, AnyPartOfAnyWordIsFound)
{
    EXPECT_EQ(Found("vand", "Karl Vanderson"), "Vand");
    EXPECT_EQ(Found("ders", "Karl Vanderson"), "ders");
    EXPECT_EQ(Found("karl", "Karl Vanderson"), "Karl");
    EXPECT_EQ(Found("son", "Karl Vanderson"), "son");
    EXPECT_EQ(Found("karl vanderson", "Karl Vanderson"), "Karl Vanderson");
    EXPECT_EQ(Found("l v", "Karl Vanderson"), "l V");
    EXPECT_EQ(Found("lv", "Karl Vanderson"), "-");
    EXPECT_EQ(Found("vandersons", "Karl Vanderson"), "-");
    EXPECT_EQ(Found("v", ""), "-");
}

TEST(NameMatchTest, CaseDoesNotCount)
{
    EXPECT_EQ(Found("VAND", "Karl Vanderson"), "Vand");
    EXPECT_EQ(Found("vand", "KARL VANDERSON"), "VAND");
    EXPECT_EQ(Found("\xC9ric", "\xE9RIC"), "\xE9RIC");
}

TEST(NameMatchTest, AccentsDoNotCountWhicheverSideHasThem)
{
    EXPECT_EQ(Found("remi", "R\xE9mi Gauthi\xE8re"), "R\xE9mi");
    EXPECT_EQ(Found("gauthiere", "R\xE9mi Gauthi\xE8re"), "Gauthi\xE8re");
    EXPECT_EQ(Found("r\xE9mi", "Remi"), "Remi");
    EXPECT_EQ(Found("\xE8", "R\xE9mi"), "\xE9");
}

TEST(NameMatchTest, LettersOfTheCodePagesHighControlsAreLettersToo)
{
    EXPECT_EQ(Found("simek", "Jan \x8Aimek"), "\x8Aimek");
    EXPECT_EQ(Found("zizka", "Jan \x8Ei\x9Eka"), "\x8Ei\x9Eka");
    EXPECT_EQ(Found("y", "Lo\x9F"), "\x9F");
    EXPECT_EQ(Found("\x9A", "Jan Simek"), "S");
}

TEST(NameMatchTest, ALetterThatStandsForTwoIsFoundByBothAndByEach)
{
    EXPECT_EQ(Found("weiss", "Uwe Wei\xDF"), "Wei\xDF");
    EXPECT_EQ(Found("weis", "Uwe Wei\xDF"), "Wei\xDF");
    EXPECT_EQ(Found("wei\xDF", "Uwe Weiss"), "Weiss");
    EXPECT_EQ(Found("noel c\x9Cur", "No\xEBl Coeur"), "No\xEBl Coeur");
    EXPECT_EQ(Found("coeur", "No\xEBl C\x9Cur"), "C\x9Cur");
    EXPECT_EQ(Found("eur", "C\x9Cur"), "\x9Cur");
    EXPECT_EQ(Found("co", "C\x9Cur"), "C\x9C");
    EXPECT_EQ(Found("aeg", "\xC6gir"), "\xC6g");
    EXPECT_EQ(Found("thor", "\xDE"
                            "\xF3r"),
              "\xDE"
              "\xF3r");
    EXPECT_EQ(Found("ou", "C\x9Cur"), "-");
}

TEST(NameMatchTest, ApostrophesAndPointsWithinANameNeedNotBeTyped)
{
    EXPECT_EQ(Found("aubre", "Luc D'Aubremont"), "Aubre");
    EXPECT_EQ(Found("daubre", "Luc D'Aubremont"), "D'Aubre");
    EXPECT_EQ(Found("d'aubre", "Luc D\x92"
                               "Aubremont"),
              "D\x92"
              "Aubre");
    EXPECT_EQ(Found("st pierre", "Guy St. Pierre"), "St. Pierre");
    EXPECT_EQ(Found("jp", "J.P. Roux"), "J.P");
    EXPECT_EQ(Found("d'o", "Odo"), "-") << "what was typed has to be there";
    EXPECT_EQ(Found("'", "O'Brien"), "'");
}

TEST(NameMatchTest, AHyphenIsABlankWhicheverSideHasIt)
{
    EXPECT_EQ(Found("jean luc", "Jean-Luc Roy"), "Jean-Luc");
    EXPECT_EQ(Found("jean-luc", "Jean Luc Roy"), "Jean Luc");
    EXPECT_EQ(Found("nl", "Jean-Luc Roy"), "-");
    EXPECT_EQ(Found("luc r", "Jean-Luc\xA0Roy"), "Luc\xA0R");
}

TEST(NameMatchTest, ABeginningOfAWordComesBeforeWhatStandsWithinOne)
{
    const std::string name = "Karl Arlander";
    EXPECT_EQ(NameMatch("arl").In(name), (NamePart{5, 3, true}));
    EXPECT_EQ(NameMatch("rl").In(name), (NamePart{2, 2, false}));
    EXPECT_EQ(NameMatch("karl").In(name), (NamePart{0, 4, true}));
    EXPECT_EQ(NameMatch("aubre").In("D'Aubremont"), (NamePart{2, 5, true}));
    EXPECT_EQ(NameMatch("luc").In("Jean-Luc"), (NamePart{5, 3, true}));
    EXPECT_EQ(NameMatch("e").In("C\x9C"), (NamePart{1, 1, false}));
}

TEST(NameMatchTest, WhatStandsInFrontOfANameIsNoPartOfIt)
{
    const std::string_view row = "xKarl";
    EXPECT_EQ(NameMatch("karl").In(row.substr(1)), (NamePart{0, 4, true}));
}

TEST(NameMatchTest, WhoTypedNothingFindsEverybodyAtTheBeginning)
{
    EXPECT_EQ(NameMatch("").In("Karl"), (NamePart{0, 0, true}));
    EXPECT_EQ(NameMatch("").In(""), (NamePart{0, 0, true}));
}

TEST(NameMatchTest, DigitsAndSignsAreThemselves)
{
    EXPECT_EQ(Found("12", "Skater 123"), "12");
    EXPECT_EQ(Found("(", "Karl (C)"), "(");
    EXPECT_EQ(Found(std::string(1, '\0'), "Karl"), "-");
    EXPECT_EQ(Found(std::string(1, '\0'), std::string("A\0B", 3)), std::string(1, '\0'));
    EXPECT_EQ(Found("\x80", "\x80"), "\x80");
}

// A second reading of the same rules, as slow as it likes.
class Slow {
public:
    Slow()
    {
        const std::pair<const char*, const char*> readings[] = {
            {"a", "\xC0\xC1\xC2\xC3\xC4\xC5"}, {"ae", "\xC6"}, {"c", "\xC7"},  {"e", "\xC8\xC9\xCA\xCB"},
            {"i", "\xCC\xCD\xCE\xCF"},         {"d", "\xD0"},  {"n", "\xD1"},  {"o", "\xD2\xD3\xD4\xD5\xD6\xD8"},
            {"u", "\xD9\xDA\xDB\xDC"},         {"y", "\xDD"},  {"th", "\xDE"},
        };
        for (const auto& [plain, capitals] : readings)
            for (const char capital : std::string(capitals)) {
                read[capital] = plain;
                read[static_cast<char>(capital + 0x20)] = plain; // the small letter of each
            }
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            read[letter] = std::string(1, static_cast<char>(letter + 0x20));
        read['\xDF'] = "ss";
        read['\xFF'] = read['\x9F'] = "y";
        read['\x8A'] = read['\x9A'] = "s";
        read['\x8C'] = read['\x9C'] = "oe";
        read['\x8E'] = read['\x9E'] = "z";
        read['\x83'] = "f";
        for (const char blank : {'-', '\x96', '\x97', '\xA0', '\xAD'})
            read[blank] = " ";
        for (const char apostrophe : {'`', '\x91', '\x92', '\xB4'})
            read[apostrophe] = "'";
    }

    [[nodiscard]] std::optional<NamePart> Find(const std::string& typed, const std::string& name) const
    {
        std::string sought;
        for (const char byte : typed)
            sought += Of(byte);
        if (sought.empty())
            return NamePart{0, 0, true};
        std::optional<NamePart> best;
        for (std::size_t first = 0; first < name.size(); ++first)
            for (std::size_t length = 1; first + length <= name.size(); ++length) {
                const bool begins = first == 0 || !IsOfWord(Of(name[first - 1]).front());
                const std::string part = name.substr(first, length);
                // From its first letter on, or from its second, which is no beginning of a word.
                for (const std::size_t skipped : {0, 1}) {
                    if (skipped == 1 && Of(part.front()).size() == 1)
                        continue;
                    if (!Reads(part, skipped, sought))
                        continue;
                    const NamePart found{first, length, begins && skipped == 0};
                    if (!best || (found.BeginsWord && !best->BeginsWord))
                        best = found;
                }
            }
        return best;
    }

private:
    [[nodiscard]] std::string Of(char byte) const
    {
        const auto known = read.find(byte);
        return known == read.end() ? std::string(1, byte) : known->second;
    }
    static bool IsOfWord(char plain) { return (plain >= 'a' && plain <= 'z') || (plain >= '0' && plain <= '9'); }

    // Whether `part` is `sought`: each apostrophe and point behind its beginning is there or not, in all ways. Of the last
    // letters one half may be left over.
    [[nodiscard]] bool Reads(const std::string& part, std::size_t skipped, const std::string& sought) const
    {
        std::vector<std::string> all{Of(part.front()).substr(skipped)};
        std::string lastLetters = all.front();
        for (const char byte : part.substr(1)) {
            lastLetters = Of(byte);
            const std::size_t ways = all.size();
            for (std::size_t way = 0; way < ways; ++way) {
                if (lastLetters == "'" || lastLetters == ".")
                    all.push_back(all[way]);
                all[way] += lastLetters;
            }
        }
        return std::any_of(all.begin(), all.end(), [&](const std::string& way) {
            return way == sought || (lastLetters.size() == 2 && way.substr(0, way.size() - 1) == sought);
        });
    }

    std::map<char, std::string> read;
};

TEST(NameMatchTest, ReadsEveryByteAsTheSlowReadingDoes)
{
    const Slow slow;
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second) {
            const std::string typed(1, static_cast<char>(first));
            const std::string name = "o" + std::string(1, static_cast<char>(second)) + "e";
            ASSERT_EQ(NameMatch(typed).In(name), slow.Find(typed, name)) << first << " in " << second;
        }
}

TEST(NameMatchTest, FindsWhatTheSlowReadingFinds)
{
    // Few letters, so that much is found, and those of two letters among them.
    const std::string letters = "aaeosSO\xE9\xD6 \xDF\x9C\xC6-'.\x92h\xDE";
    std::mt19937 random(5);
    const auto make = [&](std::size_t longest) {
        std::string text(random() % (longest + 1), ' ');
        for (char& byte : text)
            byte = letters[random() % letters.size()];
        return text;
    };
    const Slow slow;
    int found = 0;
    int within = 0;
    constexpr int rounds = 60000;
    for (int round = 0; round < rounds; ++round) {
        const std::string typed = make(4);
        const std::string name = make(9);
        const auto part = NameMatch(typed).In(name);
        ASSERT_EQ(part, slow.Find(typed, name)) << '"' << typed << "\" in \"" << name << '"';
        found += part ? 1 : 0;
        within += part && !part->BeginsWord ? 1 : 0;
    }
    EXPECT_GT(found, rounds / 5);
    EXPECT_LT(found, rounds * 4 / 5);
    EXPECT_GT(within, rounds / 50);
}

} // namespace
} // namespace dravik
