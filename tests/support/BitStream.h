#pragma once

#include <cstddef>
#include <vector>
#include <zlib.h>

namespace dravik {

// A stream that is written bit by bit. The lowest bit of a byte comes first.
class BitStream {
public:
    // `count` bits of `value`, the lowest first.
    void Put(unsigned value, unsigned count)
    {
        for (unsigned i = 0; i < count; ++i, ++used) {
            if (used % 8 == 0)
                Bytes.push_back(0);
            Bytes.back() |= static_cast<unsigned char>((value >> i & 1U) << used % 8);
        }
    }
    // A code of `count` bits: the highest comes first.
    void PutCode(unsigned code, unsigned count)
    {
        while (count-- > 0)
            Put(code >> count & 1U, 1);
    }
    // What is put next begins a byte of its own, behind all that stand here.
    void ToByte() { used = Bytes.size() * 8; }

    std::vector<unsigned char> Bytes;

private:
    std::size_t used = 0;
};

// A wrapper around a stream by hand: the length that it claims, a head of two bytes, the stream and the checksum of `content`.
inline std::vector<unsigned char> WrapperAround(const std::vector<unsigned char>& stream, std::size_t claimed,
                                                unsigned head, const std::vector<unsigned char>& content)
{
    BitStream wrapper;
    wrapper.Put(static_cast<unsigned>(claimed), 32);
    wrapper.Put(head, 16);
    wrapper.Bytes.insert(wrapper.Bytes.end(), stream.begin(), stream.end());
    const auto sum = adler32(adler32(0, nullptr, 0), content.data(), static_cast<uInt>(content.size()));
    for (unsigned shift = 32; shift > 0; shift -= 8)
        wrapper.Bytes.push_back(static_cast<unsigned char>(sum >> (shift - 8)));
    return wrapper.Bytes;
}

} // namespace dravik
