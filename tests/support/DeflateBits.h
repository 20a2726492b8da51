#pragma once

#include "support/ClientFileBytes.h"

#include <zlib.h>

namespace dravik {

// Writes a deflate stream bit by bit, as no compressor would.
class DeflateBits {
public:
    static constexpr unsigned EndOfBlock = 256;

    // `count` bits of `value`, the lowest first.
    DeflateBits& Put(unsigned value, unsigned count)
    {
        for (unsigned i = 0; i < count; ++i, ++used) {
            if (used % 8 == 0)
                stream.push_back(0);
            stream.back() |= static_cast<unsigned char>((value >> i & 1U) << used % 8);
        }
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

    [[nodiscard]] const ByteVector& Stream() const { return stream; }

    // A wrapper of the stream that claims to hold `content` and ends with its checksum.
    [[nodiscard]] ByteVector WrapperOf(const ByteVector& content) const
    {
        ByteVector wrapper;
        for (std::size_t i = 0; i < 4; ++i)
            wrapper.push_back(static_cast<unsigned char>(content.size() >> (8 * i)));
        wrapper.insert(wrapper.end(), {0x78, 0xDA});
        wrapper.insert(wrapper.end(), stream.begin(), stream.end());
        const auto sum = adler32(adler32(0, nullptr, 0), content.data(), static_cast<uInt>(content.size()));
        for (unsigned shift = 32; shift > 0; shift -= 8)
            wrapper.push_back(static_cast<unsigned char>(sum >> (shift - 8)));
        return wrapper;
    }

private:
    // Codes are written with their highest bit first.
    DeflateBits& Code(unsigned code, unsigned count)
    {
        while (count-- > 0)
            Put(code >> count & 1U, 1);
        return *this;
    }

    ByteVector stream;
    std::size_t used = 0;
};

} // namespace dravik
