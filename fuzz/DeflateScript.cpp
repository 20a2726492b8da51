#include "fuzz/DeflateScript.h"

#include "fuzz/Script.h"
#include "tests/support/BitStream.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace dravik::fuzz {

namespace {

using ByteVector = std::vector<std::uint8_t>;

constexpr unsigned EndOfBlock = 256;
constexpr unsigned FirstLength = 257;
constexpr unsigned Literals = 286;
constexpr unsigned Distances = 30;
constexpr unsigned LongestCode = 15;
// A block more than this at most. In small pieces the faster inflater moves its whole reach for each of them.
constexpr std::size_t MostContent = 1 << 16;

// A code by the lengths of its symbols. One that is over-subscribed gives some sequences of bits to two symbols.
class Code {
public:
    explicit Code(ByteVector all) : Lengths(std::move(all)), codes(Lengths.size())
    {
        unsigned next = 0;
        for (unsigned length = 1; length <= LongestCode; ++length, next <<= 1U)
            for (std::size_t symbol = 0; symbol < Lengths.size(); ++symbol)
                if (Lengths[symbol] == length)
                    codes[symbol] = next++;
        for (std::size_t symbol = 0; symbol < Lengths.size(); ++symbol)
            if (Lengths[symbol] > 0)
                Symbols.push_back(static_cast<unsigned>(symbol));
    }

    void Put(BitStream& bits, unsigned symbol) const { bits.PutCode(codes[symbol], Lengths[symbol]); }

    ByteVector Lengths;
    std::vector<unsigned> Symbols; // those that have a code

private:
    std::vector<unsigned> codes;
};

// The lengths of a complete code over some of `count` symbols, `first` among them.
ByteVector CompleteLengths(Script& script, unsigned count, unsigned first, unsigned (*choose)(Script&))
{
    ByteVector lengths(count);
    std::vector<unsigned> symbols;
    const auto take = [&](unsigned wanted) {
        while (lengths[wanted] > 0)
            wanted = (wanted + 1) % count;
        symbols.push_back(wanted);
        return wanted;
    };
    lengths[take(first)] = 1;
    lengths[take(choose(script))] = 1;
    for (int more = script.Byte() % 24; more > 0; --more) {
        const unsigned split = symbols[static_cast<unsigned>(script.Byte()) % symbols.size()];
        if (lengths[split] == LongestCode)
            continue;
        const unsigned added = take(choose(script));
        lengths[added] = ++lengths[split];
    }
    return lengths;
}

unsigned ChooseLiteral(Script& script)
{
    const auto byte = static_cast<unsigned>(script.Byte());
    return byte < 128 ? byte * 2 : FirstLength + byte % (Literals - FirstLength);
}

unsigned ChooseDistance(Script& script) { return static_cast<unsigned>(script.Byte()) % Distances; }

// What can be wrong with a code. `at` is a symbol that has one.
using Damage = void (*)(ByteVector& lengths, unsigned at);
constexpr Damage Damages[] = {
    [](ByteVector& lengths, unsigned at) { lengths[at] = 0; },
    [](ByteVector& lengths, unsigned at) { lengths[at] += lengths[at] < LongestCode ? 1 : 0; },
    [](ByteVector& lengths, unsigned at) { lengths[at] -= lengths[at] > 1 ? 1 : 0; },
    [](ByteVector& lengths, unsigned at) {
        lengths.assign(lengths.size(), 0);
        lengths[at] = 1;
    },
    [](ByteVector& lengths, unsigned /*at*/) { lengths.assign(lengths.size(), 0); },
    [](ByteVector& lengths, unsigned /*at*/) { lengths.resize(lengths.size() + 2); },
    [](ByteVector& lengths, unsigned at) {
        // Complete, and with one symbol too many.
        lengths.resize(lengths.size() + 2);
        if (lengths[at] < LongestCode)
            lengths.back() = ++lengths[at];
    },
};

Code MakeCode(Script& script, unsigned count, unsigned first, unsigned (*choose)(Script&))
{
    ByteVector lengths = CompleteLengths(script, count, first, choose);
    const auto what = static_cast<std::size_t>(script.Byte());
    if (what < std::size(Damages)) {
        auto at = static_cast<unsigned>(script.Byte()) % lengths.size();
        while (lengths[at] == 0)
            at = (at + 1) % lengths.size();
        Damages[what](lengths, static_cast<unsigned>(at));
    }
    return Code(std::move(lengths));
}

// What is left of the lengths when those behind the last symbol with a code are not written.
std::size_t Written(const ByteVector& lengths, std::size_t usual, std::size_t least)
{
    std::size_t count = lengths.size();
    while (count <= usual && count > least && lengths[count - 1] == 0)
        --count;
    return count;
}

// The head of a block with codes of its own. Their lengths are written by a code of lengths in which 16 repeats the length
// before, 17 and 18 repeat zero; it too can be incomplete.
void PutCodes(BitStream& bits, Script& script, const Code& literals, const Code& distances)
{
    const std::size_t literalCount = Written(literals.Lengths, Literals, FirstLength);
    const std::size_t distanceCount = Written(distances.Lengths, Distances, 1);
    bits.Put(static_cast<unsigned>(literalCount - 257), 5);
    bits.Put(static_cast<unsigned>(distanceCount - 1), 5);
    constexpr std::array<std::uint8_t, 19> order = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
    bits.Put(order.size() - 4, 4);
    ByteVector lengthLengths(order.size(), 5);
    lengthLengths[16] = 2;
    lengthLengths[17] = lengthLengths[18] = 3;
    const int flags = script.Byte();
    if (flags == 1)
        lengthLengths[LongestCode] = 0; // seldom needed
    for (const std::uint8_t symbol : order)
        bits.Put(lengthLengths[symbol], 3);
    const Code code(lengthLengths);

    ByteVector all(literals.Lengths.begin(), literals.Lengths.begin() + static_cast<std::ptrdiff_t>(literalCount));
    all.insert(all.end(), distances.Lengths.begin(),
               distances.Lengths.begin() + static_cast<std::ptrdiff_t>(distanceCount));
    if (flags == 2) { // a repeat of what is not there
        code.Put(bits, 16);
        bits.Put(0, 2);
    }
    for (std::size_t at = 0; at < all.size();) {
        std::size_t run = 1;
        while (at + run < all.size() && all[at + run] == all[at])
            ++run;
        const bool isZero = all[at] == 0;
        const bool isLast = flags == 3 && at + run == all.size();
        if (isZero && run >= 11) {
            const std::size_t most = std::min<std::size_t>(run, 138);
            code.Put(bits, 18);
            // A repeat can go beyond the end.
            bits.Put(static_cast<unsigned>((isLast ? std::min<std::size_t>(most + 1, 138) : most) - 11), 7);
            at += most;
        } else if (isZero && run >= 3) {
            code.Put(bits, 17);
            bits.Put(static_cast<unsigned>(run - 3 + (isLast && run < 10 ? 1 : 0)), 3);
            at += run;
        } else if (!isZero && at > 0 && all[at - 1] == all[at] && run >= 3) {
            const std::size_t most = std::min<std::size_t>(run, 6);
            code.Put(bits, 16);
            bits.Put(static_cast<unsigned>(most - 3), 2);
            at += most;
        } else {
            code.Put(bits, all[at]);
            ++at;
        }
    }
}

// What a lenient reader makes of a stream, while it is written.
class Writer {
public:
    explicit Writer(Script& all) : script(all) {}

    // False when nothing can follow.
    bool Block()
    {
        const int what = script.Byte();
        const bool isLast = (what & 4) != 0 || script.Ended();
        Stream.Put(isLast ? 1 : 0, 1);
        if ((what & 0xF8) == 0xF8) {
            constexpr unsigned unknownKind = 3;
            Stream.Put(unknownKind, 2);
            return false;
        }
        switch (what & 3) {
        case 0:
            Stored(what);
            break;
        case 1:
            Fixed();
            break;
        default:
            OwnCodes();
            break;
        }
        return !isLast && Content.size() < MostContent;
    }

    BitStream Stream;
    ByteVector Content;

private:
    void Stored(int what)
    {
        Stream.Put(0, 2);
        Stream.ToByte();
        const auto length = static_cast<unsigned>((what & 8) != 0 ? script.Word() : script.Byte());
        const bool disagrees = (what & 0xF0) == 0xE0;
        Stream.Put(length, 16);
        Stream.Put((length ^ 0xFFFFU) ^ (disagrees ? 1U << static_cast<unsigned>(script.Byte()) % 16 : 0), 16);
        int byte = script.Byte();
        const int step = script.Byte();
        for (unsigned i = 0; i < length; ++i, byte += step) {
            Content.push_back(static_cast<std::uint8_t>(byte));
            Stream.Bytes.push_back(Content.back());
        }
        Stream.ToByte();
    }

    void Fixed()
    {
        Stream.Put(1, 2);
        ByteVector literals(288, 8);
        std::fill(literals.begin() + 144, literals.begin() + 256, std::uint8_t{9});
        std::fill(literals.begin() + 256, literals.begin() + 280, std::uint8_t{7});
        PutSymbols(Code(literals), Code(ByteVector(32, 5)));
    }

    void OwnCodes()
    {
        Stream.Put(2, 2);
        const Code literals = MakeCode(script, Literals, EndOfBlock, ChooseLiteral);
        const Code distances = MakeCode(script, Distances, 0, ChooseDistance);
        PutCodes(Stream, script, literals, distances);
        PutSymbols(literals, distances);
    }

    void PutSymbols(const Code& literals, const Code& distances)
    {
        for (int count = script.Byte() % 64; count > 0 && !literals.Symbols.empty(); --count) {
            const auto choice = static_cast<std::size_t>(script.Byte());
            // Where there are more symbols than a byte can choose from, all of them can be met all the same.
            const std::size_t spread = literals.Symbols.size() > 256 ? choice + choice / 4 : choice;
            const unsigned symbol = literals.Symbols[spread % literals.Symbols.size()];
            if (symbol < EndOfBlock) {
                literals.Put(Stream, symbol);
                Content.push_back(static_cast<std::uint8_t>(symbol));
            } else if (symbol > EndOfBlock && !distances.Symbols.empty()) {
                literals.Put(Stream, symbol);
                PutRepeat(symbol, distances);
            }
        }
        literals.Put(Stream, EndOfBlock);
    }

    // The bits behind a length, and a distance. Mostly one that is not too far, as long as there is one.
    void PutRepeat(unsigned symbol, const Code& distances)
    {
        constexpr unsigned longest = 285;
        std::size_t length = 0;
        if (symbol < longest) {
            const unsigned number = symbol - FirstLength;
            const unsigned extra = number < 8 ? 0 : number / 4 - 1;
            const unsigned more = extra > 0 ? static_cast<unsigned>(script.Byte()) & ((1U << extra) - 1) : 0;
            Stream.Put(more, extra);
            length = 3 + (number < 8 ? number : (4 + number % 4) << extra) + more;
        } else if (symbol == longest)
            length = 258;
        const int choice = script.Byte();
        std::size_t at = static_cast<std::size_t>(choice) % distances.Symbols.size();
        const bool canBeTooFar = (choice & 0xF0) == 0xF0;
        while (at > 0 && !canBeTooFar && NearestOf(distances.Symbols[at]) > Content.size())
            --at;
        const unsigned distanceSymbol = distances.Symbols[at];
        const unsigned extra = distanceSymbol < 4 ? 0 : distanceSymbol / 2 - 1;
        std::size_t more = static_cast<std::size_t>(extra > 8 ? script.Word() : extra > 0 ? script.Byte() : 0);
        more &= (std::size_t{1} << extra) - 1;
        const std::size_t nearest = NearestOf(distanceSymbol);
        if (!canBeTooFar && nearest <= Content.size())
            more = std::min(more, Content.size() - nearest);
        distances.Put(Stream, distanceSymbol);
        Stream.Put(static_cast<unsigned>(more), extra);
        const std::size_t distance = nearest + more;
        for (; length > 0; --length)
            Content.push_back(distance <= Content.size() ? Content[Content.size() - distance] : std::uint8_t{0});
    }

    static std::size_t NearestOf(unsigned distanceSymbol)
    {
        if (distanceSymbol < 4)
            return 1 + distanceSymbol;
        return 1 + (std::size_t{2 + distanceSymbol % 2} << (distanceSymbol / 2 - 1));
    }

    Script& script;
};

} // namespace

std::vector<std::uint8_t> WriteDeflate(Input input)
{
    Script script(input);
    const int flags = script.Byte();
    const bool hasOwnHead = (flags & 0xF0) == 0xF0;
    const bool hasOwnLength = (flags & 0x0F) == 0x0F;
    constexpr unsigned usualHead = 0xDA78;
    const auto head = hasOwnHead ? static_cast<unsigned>(script.Word()) : usualHead;
    const auto claimed = hasOwnLength ? static_cast<std::size_t>(script.Word()) : 0;
    Writer writer(script);
    while (writer.Block()) {
    }
    return WrapperAround(writer.Stream.Bytes, hasOwnLength ? claimed : writer.Content.size(), head, writer.Content);
}

} // namespace dravik::fuzz
