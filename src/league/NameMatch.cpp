#include "league/NameMatch.h"

#include "league/Trimming.h"

#include <array>

namespace dravik {

namespace {

// What a byte of the code page is read as: one plain letter or two. Whatever is no letter, blank or apostrophe is itself.
struct PlainLetters {
    char First = 0;
    char Second = 0;
};

// The bytes that are read as others, beside the letters A to Z: letters with their accents, the blanks and hyphens, the
// apostrophes.
struct Reading {
    std::string_view Bytes;
    PlainLetters As;
};

constexpr Reading Readings[] = {
    {"\xC0\xC1\xC2\xC3\xC4\xC5\xE0\xE1\xE2\xE3\xE4\xE5", {'a'}},
    {"\xC6\xE6", {'a', 'e'}},
    {"\xC7\xE7", {'c'}},
    {"\xD0\xF0", {'d'}},
    {"\xC8\xC9\xCA\xCB\xE8\xE9\xEA\xEB", {'e'}},
    {"\x83", {'f'}},
    {"\xCC\xCD\xCE\xCF\xEC\xED\xEE\xEF", {'i'}},
    {"\xD1\xF1", {'n'}},
    {"\xD2\xD3\xD4\xD5\xD6\xD8\xF2\xF3\xF4\xF5\xF6\xF8", {'o'}},
    {"\x8C\x9C", {'o', 'e'}},
    {"\x8A\x9A", {'s'}},
    {"\xDF", {'s', 's'}},
    {"\xDE\xFE", {'t', 'h'}},
    {"\xD9\xDA\xDB\xDC\xF9\xFA\xFB\xFC", {'u'}},
    {"\xDD\xFD\xFF\x9F", {'y'}},
    {"\x8E\x9E", {'z'}},
    {"-\x96\x97\xA0\xAD", {' '}},
    {"`\x91\x92\xB4", {'\''}},
};

constexpr std::size_t NumberOf(char byte) { return static_cast<unsigned char>(byte); }

constexpr std::array<PlainLetters, 256> ReadAllBytes()
{
    std::array<PlainLetters, 256> plain{};
    for (std::size_t byte = 0; byte < plain.size(); ++byte)
        plain[byte].First = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte);
    for (const Reading& reading : Readings)
        for (const char byte : reading.Bytes)
            plain[NumberOf(byte)] = reading.As;
    return plain;
}

constexpr std::array<PlainLetters, 256> Plain = ReadAllBytes();

PlainLetters PlainOf(char byte) { return Plain[NumberOf(byte)]; }

bool NeedNotBeTyped(char byte)
{
    const char plain = PlainOf(byte).First;
    return plain == '\'' || plain == '.';
}

bool BeginsWord(std::string_view name, std::size_t at)
{
    const auto isOfWord = [](char plain) { return (plain >= 'a' && plain <= 'z') || (plain >= '0' && plain <= '9'); };
    return at == 0 || !isOfWord(PlainOf(name[at - 1]).First);
}

// How many bytes of `name`, from its byte `first` on, are `sought`; none where they are something else. With `half`, only
// the second of the two letters that the first byte stands for counts.
std::optional<std::size_t> LengthFrom(std::string_view name, std::size_t first, bool half, std::string_view sought)
{
    std::size_t done = 0;
    std::size_t at = first;
    while (at < name.size()) {
        const PlainLetters letters = PlainOf(name[at]);
        const char letter = half ? letters.Second : letters.First;
        if (letter == sought[done]) {
            half = !half && letters.Second != 0;
            at += half ? 0 : 1;
            if (++done == sought.size())
                return at + (half ? 1 : 0) - first;
        } else if (done > 0 && NeedNotBeTyped(name[at])) {
            ++at;
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

// `text` byte by byte as it is read.
std::string ReadPlainly(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (const char byte : text) {
        const PlainLetters letters = PlainOf(byte);
        plain += letters.First;
        if (letters.Second != 0)
            plain += letters.Second;
    }
    return plain;
}

} // namespace

NameMatch::NameMatch(std::string_view typed) : sought(ReadPlainly(typed)) {}

std::string PlainLettersOf(std::string_view name) { return WithoutOuterBlanks(ReadPlainly(name)); }

std::optional<NamePart> NameMatch::In(std::string_view name) const
{
    if (sought.empty())
        return NamePart{.BeginsWord = true};
    std::optional<NamePart> within;
    for (std::size_t first = 0; first < name.size(); ++first) {
        const PlainLetters letters = PlainOf(name[first]);
        if (letters.First == sought.front())
            if (const auto length = LengthFrom(name, first, false, sought)) {
                if (BeginsWord(name, first))
                    return NamePart{first, *length, true};
                if (!within)
                    within = NamePart{first, *length, false};
            }
        if (letters.Second != 0 && letters.Second == sought.front() && !within)
            if (const auto length = LengthFrom(name, first, true, sought))
                within = NamePart{first, *length, false};
    }
    return within;
}

} // namespace dravik
