#include "machine/Md5.h"

#include <bit>
#include <cmath>
#include <string>

namespace dravik {

namespace {

using State = std::array<std::uint32_t, 4>;

// Element i is the integer part of 2^32 x |sin(i + 1)|, i + 1 in radians. It is made where it is used: below the session
// nothing stands outside of functions that a program would have to fill at its start.
std::array<std::uint32_t, 64> MakeSines()
{
    std::array<std::uint32_t, 64> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<std::uint32_t>(4294967296.0 * std::fabs(std::sin(static_cast<double>(i + 1))));
    return table;
}

constexpr int Shifts[4][4] = {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

void Step(State& state, const unsigned char* block, const std::array<std::uint32_t, 64>& sines)
{
    std::array<std::uint32_t, 16> words{};
    for (std::size_t i = 0; i < 64; ++i)
        words[i / 4] |= static_cast<std::uint32_t>(block[i]) << (8 * (i % 4));

    auto [a, b, c, d] = state;
    for (unsigned i = 0; i < 64; ++i) {
        std::uint32_t mix = 0;
        unsigned word = 0;
        switch (i / 16) {
        case 0:
            mix = (b & c) | (~b & d);
            word = i;
            break;
        case 1:
            mix = (b & d) | (c & ~d);
            word = (5 * i + 1) % 16;
            break;
        case 2:
            mix = b ^ c ^ d;
            word = (3 * i + 5) % 16;
            break;
        default:
            mix = c ^ (b | ~d);
            word = (7 * i) % 16;
        }
        const std::uint32_t turned = b + std::rotl(a + mix + words[word] + sines[i], Shifts[i / 16][i % 4]);
        a = d;
        d = c;
        c = b;
        b = turned;
    }
    state[0] += a;
    state[1] += b;
    state[2] += c;
    state[3] += d;
}

} // namespace

std::array<std::uint8_t, 16> Md5Of(std::string_view bytes)
{
    std::string padded(bytes);
    padded += static_cast<char>(0x80);
    while (padded.size() % 64 != 56)
        padded += '\0';
    const std::uint64_t bits = static_cast<std::uint64_t>(bytes.size()) * 8;
    for (int i = 0; i < 8; ++i)
        padded += static_cast<char>(bits >> (8 * i) & 0xFFU);

    State state{0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    const auto sines = MakeSines();
    for (std::size_t at = 0; at < padded.size(); at += 64)
        Step(state, reinterpret_cast<const unsigned char*>(padded.data()) + at, sines);

    std::array<std::uint8_t, 16> digest{};
    for (std::size_t i = 0; i < digest.size(); ++i)
        digest[i] = static_cast<std::uint8_t>(state[i / 4] >> (8 * (i % 4)));
    return digest;
}

} // namespace dravik
