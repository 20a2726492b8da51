#include "terminal/Utf8.h"

#include "league/Failure.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace dravik::terminal {

namespace {

// The characters of the bytes 128 to 159. Where the code page defines none, the byte stands for the control character of its
// number.
constexpr std::array<char32_t, 32> Upper{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned FirstUpper = 0x80;

char ByteOf(char32_t character)
{
    if (character < FirstUpper || (character >= FirstUpper + Upper.size() && character <= 0xFF))
        return static_cast<char>(character);
    const auto* found = std::find(Upper.begin(), Upper.end(), character);
    if (found == Upper.end())
        Fail(failure::InvalidCall);
    return static_cast<char>(FirstUpper + static_cast<unsigned>(found - Upper.begin()));
}

// How many bytes follow the first byte of a character, and what of the character stands in that one.
struct Head {
    std::size_t Following;
    char32_t Bits;
};
Head HeadOf(unsigned char lead)
{
    if (lead < 0x80)
        return {0, lead};
    if (lead >= 0xC2 && lead < 0xE0)
        return {1, lead & 0x1FU};
    if (lead >= 0xE0 && lead < 0xF0)
        return {2, lead & 0x0FU};
    Fail(failure::InvalidCall); // no beginning, or a character far beyond the code page
}

} // namespace

std::string ToUtf8(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const char32_t character =
            byte >= FirstUpper && byte < FirstUpper + Upper.size() ? Upper[byte - FirstUpper] : byte;
        if (character < 0x80) {
            utf8 += static_cast<char>(character);
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xC0U | character >> 6U);
            utf8 += static_cast<char>(0x80U | (character & 0x3FU));
        } else {
            utf8 += static_cast<char>(0xE0U | character >> 12U);
            utf8 += static_cast<char>(0x80U | (character >> 6U & 0x3FU));
            utf8 += static_cast<char>(0x80U | (character & 0x3FU));
        }
    }
    return utf8;
}

std::string FromUtf8(std::string_view text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        auto [following, character] = HeadOf(static_cast<unsigned char>(text[at++]));
        for (; following > 0; --following, ++at) {
            if (at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U)
                Fail(failure::InvalidCall);
            character = character << 6U | (static_cast<unsigned char>(text[at]) & 0x3FU);
        }
        bytes += ByteOf(character);
    }
    return bytes;
}

} // namespace dravik::terminal
