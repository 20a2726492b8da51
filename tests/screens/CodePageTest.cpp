#include "screens/platform/CodePage.h"

#include "league/Trimming.h"
#include "support/PublishedCodePage.h"

#include <QList>
#include <QStringList>

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace dravik {
namespace {

QString Character(char32_t character)
{
    if (!QChar::requiresSurrogates(character))
        return QChar(static_cast<char16_t>(character));
    return QString(QChar(QChar::highSurrogate(character))) + QChar(QChar::lowSurrogate(character));
}

std::string Bytes(const char* text) { return text; }

TEST(CodePage, EveryByteIsItsPublishedCharacter)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(ToQString(text), QString(QChar(PublishedCharacter(byte)))) << byte;
    }
}

TEST(CodePage, EveryByteSurvivesARoundTripTheUndefinedOnesToo)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(FromQString(ToQString(text)), text) << byte;
    }
}

TEST(CodePage, EveryCharacterOutsideTheCodePageBecomesAQuestionMark)
{
    std::set<char32_t> inside;
    for (int byte = 0; byte < 256; ++byte)
        inside.insert(PublishedCharacter(byte));
    std::size_t outside = 0;
    for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
        if (inside.count(character) != 0)
            continue;
        ++outside;
        if (FromQString(Character(character)) != "?")
            FAIL() << std::hex << static_cast<unsigned>(character);
    }
    EXPECT_EQ(outside, 0x110000U - 256U);
}

TEST(CodePage, EveryCharacterOfAPathSurvives)
{
    constexpr char32_t block = 0x100;
    for (char32_t first = 0; first <= QChar::LastValidCodePoint; first += block) {
        QString path = "/";
        for (char32_t character = first; character < first + block; ++character)
            path += Character(character);
        ASSERT_EQ(PathToDesktop(PathToProgram(path)), path) << std::hex << static_cast<unsigned>(first);
    }
}

TEST(CodePage, LineBreaksAndZeroBytesStand)
{
    const std::string text("a\r\nb\0c", 6);
    EXPECT_EQ(ToQString(text), QString::fromLatin1("a\r\nb\0c", 6));
    EXPECT_EQ(FromQString(ToQString(text)), text);
}

TEST(CodePage, APathWithCyrillicAndChineseLettersIsEscapedLetterByLetter)
{
    EXPECT_EQ(PathToProgram(u"/Лёд/冰.dvs"_qs), Bytes("/\x1A{41B}\x1A{451}\x1A{434}/\x1A{51B0}.dvs"));
}

TEST(CodePage, ACharacterOfTwoSurrogatesIsOneEscapeAndOneQuestionMark)
{
    EXPECT_EQ(PathToProgram(u"/🏒"_qs), Bytes("/\x1A{1F3D2}"));
    EXPECT_EQ(FromQString(u"🏒"_qs), "?");
}

TEST(CodePage, AccentedLettersOfTheCodePageAreNotEscaped)
{
    EXPECT_EQ(PathToProgram(u"/Équipe œ €"_qs), "/\xC9quipe \x9C \x80");
}

TEST(CodePage, ATextWithAnEscapedPathShowsTheRealCharacters)
{
    EXPECT_EQ(ToQString("Saved to " + PathToProgram(u"/Лёд/Ёж.dvl"_qs) + "!"), u"Saved to /Лёд/Ёж.dvl!"_qs);
}

TEST(CodePage, AFolderNamedLikeAnEscapeIsNotTakenForOne)
{
    const QString path = u"/\u001A{416}/x"_qs;
    EXPECT_EQ(PathToProgram(path), Bytes("/\x1A{1A}{416}/x"));
    EXPECT_EQ(PathToDesktop(PathToProgram(path)), path);
}

TEST(CodePage, WhatOnlyLooksLikeAnEscapeIsText)
{
    for (const char* text : {"\x1A", "\x1A{", "\x1A{}", "\x1A{416", "\x1A{41}", "\x1A{0416}", "\x1A{ 416}",
                             "\x1A{+416}", "\x1A{-1}", "\x1A{51b0}", "\x1A{110000}", "\x1A{FFFFFFFF}", "\x1A{20AC}",
                             "{416}", "\x1A(416)", "\x1A{0x416}", "\x1A{4_16}"}) {
        QString expected;
        for (const char* at = text; *at != '\0'; ++at)
            expected += QChar(PublishedCharacter(static_cast<unsigned char>(*at)));
        EXPECT_EQ(ToQString(text), expected) << text;
        EXPECT_EQ(FromQString(ToQString(text)), text);
    }
}

TEST(CodePage, APathLosesItsLastCharactersWhateverTheyAre)
{
    const QString name = QString::fromUtf8("Équipe Лёд 冰🏒€\x1A{41}.dvs");
    QStringList characters;
    for (const char32_t character : name.toUcs4())
        characters << Character(character);
    for (qsizetype left = characters.size(); left >= 0; --left) {
        const auto cut = static_cast<std::size_t>(characters.size() - left);
        EXPECT_EQ(WithoutLastCharacters(PathToProgram(name), cut),
                  PathToProgram(characters.first(left).join(QString())));
    }
}

TEST(CodePage, RandomPathsSurvive)
{
    std::mt19937 random(1917);
    const QString alphabet = u"\u001A{}16AF/é€\u0081Ж冰\xD83C\xDFD2"_qs; // both halves of a pair also appear alone
    for (int round = 0; round < 20000; ++round) {
        QString path;
        for (auto length = random() % 12; length > 0; --length)
            path += alphabet[static_cast<qsizetype>(random() % static_cast<std::size_t>(alphabet.size()))];
        ASSERT_EQ(PathToDesktop(PathToProgram(path)), path) << qPrintable(path);
    }
}

} // namespace
} // namespace dravik
