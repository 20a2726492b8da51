#include "CodePage.h"

#include "league/Failure.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace dravik::sample {

namespace {

struct Pair {
    unsigned CodePoint;
    unsigned char Byte;
};

// The letters of the code page that do not stand at their own code point.
constexpr std::array Moved{Pair{0x160, 0x8A}, Pair{0x161, 0x9A}, Pair{0x152, 0x8C}, Pair{0x153, 0x9C},
                           Pair{0x17D, 0x8E}, Pair{0x17E, 0x9E}, Pair{0x178, 0x9F}};

char ByteOf(unsigned codePoint)
{
    if (codePoint >= 0xA0 && codePoint <= 0xFF)
        return static_cast<char>(codePoint);
    const auto* found =
        std::find_if(Moved.begin(), Moved.end(), [codePoint](const Pair& pair) { return pair.CodePoint == codePoint; });
    if (found == Moved.end())
        Fail(failure::InvalidCall);
    return static_cast<char>(found->Byte);
}

} // namespace

std::string SingleByte(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            bytes += text[i];
            continue;
        }
        // Two bytes reach to U+07FF, beyond every letter of the code page.
        if (lead < 0xC0 || lead > 0xDF || i + 1 == text.size())
            Fail(failure::InvalidCall);
        bytes += ByteOf((lead & 0x1FU) << 6U | (static_cast<unsigned char>(text[++i]) & 0x3FU));
    }
    return bytes;
}

} // namespace dravik::sample
