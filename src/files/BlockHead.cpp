#include "files/BlockHead.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace dravik {

namespace {

using Lengths = std::span<const std::uint8_t>;

constexpr std::size_t MostLiterals = 286;
constexpr std::size_t MostDistances = 30;
constexpr std::size_t EndOfBlock = 256;
constexpr unsigned LongestCode = 15;
constexpr unsigned LongestLengthCode = 7;
// The order in which the lengths of the code of lengths are written.
constexpr std::array<std::uint8_t, 19> LengthOrder = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};

struct BeyondEnd {};

class Bits {
public:
    Bits(Bytes stream, std::size_t first) : bytes(stream), at(first) {}

    unsigned Take(unsigned count)
    {
        if (at + count > bytes.size() * 8)
            throw BeyondEnd{};
        unsigned value = 0;
        for (unsigned i = 0; i < count; ++i, ++at)
            value |= (bytes[at / 8] >> at % 8 & 1U) << i;
        return value;
    }
    void SkipToByte() { at = (at + 7) / 8 * 8; }

private:
    Bytes bytes;
    std::size_t at;
};

// Whether codes of these lengths leave no sequence of bits without a meaning, and give none two of them.
bool IsComplete(Lengths lengths)
{
    unsigned taken = 0;
    for (const unsigned length : lengths)
        if (length > 0)
            taken += 1U << (LongestCode - length);
    return taken == 1U << LongestCode;
}

// The code of lengths: complete, so that every sequence of bits is one of its codes.
class LengthCode {
public:
    explicit LengthCode(Lengths lengths)
    {
        for (unsigned length = 1; length <= LongestLengthCode; ++length)
            for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
                if (lengths[symbol] == length) {
                    symbols[used++] = static_cast<std::uint8_t>(symbol);
                    ++counts[length];
                }
    }

    unsigned Take(Bits& bits) const
    {
        unsigned code = 0;
        unsigned first = 0; // the first code of this length, and where its symbol stands
        unsigned index = 0;
        for (unsigned length = 1;; ++length) {
            code |= bits.Take(1);
            if (code - first < counts[length])
                return symbols[index + code - first];
            index += counts[length];
            first = (first + counts[length]) << 1U;
            code <<= 1U;
        }
    }

private:
    std::array<std::uint8_t, LengthOrder.size()> symbols{};
    std::array<std::uint8_t, LongestLengthCode + 1> counts{};
    std::size_t used = 0;
};

// Reads the lengths of literals and distances. False when they do not come out even.
bool TakeLengths(Bits& bits, const LengthCode& code, std::span<std::uint8_t> lengths)
{
    struct Repeat {
        unsigned Bits;
        unsigned Least;
    };
    constexpr unsigned copyPrevious = 16;
    constexpr std::array<Repeat, 3> repeats = {{{2, 3}, {3, 3}, {7, 11}}};
    for (std::size_t at = 0; at < lengths.size();) {
        const unsigned symbol = code.Take(bits);
        if (symbol < copyPrevious) {
            lengths[at++] = static_cast<std::uint8_t>(symbol);
            continue;
        }
        const Repeat& repeat = repeats[symbol - copyPrevious];
        const std::size_t count = repeat.Least + bits.Take(repeat.Bits);
        if (count > lengths.size() - at || (symbol == copyPrevious && at == 0))
            return false;
        std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(at), count,
                    symbol == copyPrevious ? lengths[at - 1] : std::uint8_t{0});
        at += count;
    }
    return true;
}

bool IsUsualStored(Bits& bits)
{
    bits.SkipToByte();
    constexpr unsigned width = 16;
    const unsigned length = bits.Take(width);
    return (length ^ bits.Take(width)) == 0xFFFFU;
}

bool IsUsualCompressed(Bits& bits)
{
    const std::size_t literals = 257 + bits.Take(5);
    const std::size_t distances = 1 + bits.Take(5);
    const std::size_t written = 4 + bits.Take(4);
    if (literals > MostLiterals || distances > MostDistances)
        return false;
    std::array<std::uint8_t, LengthOrder.size()> lengthLengths{};
    for (std::size_t i = 0; i < written; ++i)
        lengthLengths[LengthOrder[i]] = static_cast<std::uint8_t>(bits.Take(3));
    if (!IsComplete(lengthLengths))
        return false;
    std::array<std::uint8_t, MostLiterals + MostDistances> lengths{};
    if (!TakeLengths(bits, LengthCode(lengthLengths), std::span(lengths).first(literals + distances)))
        return false;
    return lengths[EndOfBlock] != 0 && IsComplete(Lengths(lengths).first(literals)) &&
           IsComplete(Lengths(lengths).subspan(literals, distances));
}

bool IsUsual(Bits bits)
{
    constexpr unsigned stored = 0;
    constexpr unsigned fixedCodes = 1;
    constexpr unsigned ownCodes = 2;
    bits.Take(1); // whether it is the last one
    switch (bits.Take(2)) {
    case stored:
        return IsUsualStored(bits);
    case fixedCodes:
        return true;
    case ownCodes:
        return IsUsualCompressed(bits);
    default:
        return false;
    }
}

} // namespace

BlockHead LookAtBlockHead(Bytes stream, unsigned bit)
{
    try {
        return IsUsual(Bits(stream, bit)) ? BlockHead::Usual : BlockHead::Odd;
    } catch (const BeyondEnd&) {
        return BlockHead::Cut;
    }
}

} // namespace dravik
