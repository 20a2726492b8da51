#pragma once

#include "support/BitStream.h"
#include "support/ClientFileBytes.h"

namespace dravik {

// Writes a deflate stream bit by bit, as no compressor would.
class DeflateBits {
public:
    static constexpr unsigned EndOfBlock = 256;

    // `count` bits of `value`, the lowest first.
    DeflateBits& Put(unsigned value, unsigned count)
    {
        bits.Put(value, count);
        return *this;
    }

    // The head of a block with the fixed codes.
    DeflateBits& FixedBlock(bool last) { return Put(last ? 1 : 0, 1).Put(1, 2); }

    // A literal, a length without its further bits, or the end of the block.
    DeflateBits& FixedSymbol(unsigned symbol)
    {
        if (symbol < 144)
            return Code(0x30 + symbol, 8);
        if (symbol < 256)
            return Code(0x190 + symbol - 144, 9);
        if (symbol < 280)
            return Code(symbol - 256, 7);
        return Code(0xC0 + symbol - 280, 8);
    }

    // A distance without its further bits.
    DeflateBits& FixedDistance(unsigned symbol) { return Code(symbol, 5); }

    [[nodiscard]] const ByteVector& Stream() const { return bits.Bytes; }

    // A wrapper of the stream that claims to hold `content` and ends with its checksum.
    [[nodiscard]] ByteVector WrapperOf(const ByteVector& content) const
    {
        constexpr unsigned head = 0xDA78;
        return WrapperAround(bits.Bytes, content.size(), head, content);
    }

private:
    DeflateBits& Code(unsigned code, unsigned count)
    {
        bits.PutCode(code, count);
        return *this;
    }

    BitStream bits;
};

} // namespace dravik
