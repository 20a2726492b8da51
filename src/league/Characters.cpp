#include "league/Characters.h"

#include <algorithm>
#include <array>

namespace dravik {

namespace {

// The characters of the bytes 0x80 to 0x9F. All other bytes are characters of their own number.
constexpr std::array<char16_t, 32> HighControls{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char32_t FirstHighControl = 0x80;
constexpr char32_t FirstBehind = FirstHighControl + HighControls.size();

} // namespace

char32_t CharacterOf(char byte)
{
    const char32_t number = static_cast<unsigned char>(byte);
    return number >= FirstHighControl && number < FirstBehind ? HighControls[number - FirstHighControl] : number;
}

std::optional<char> ByteOf(char32_t character)
{
    if (character < FirstHighControl || (character >= FirstBehind && character <= 0xFF))
        return static_cast<char>(character);
    const auto* found = std::find(HighControls.begin(), HighControls.end(), character);
    if (found == HighControls.end())
        return std::nullopt;
    return static_cast<char>(FirstHighControl + static_cast<char32_t>(found - HighControls.begin()));
}

} // namespace dravik
