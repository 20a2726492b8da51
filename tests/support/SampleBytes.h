#pragma once

#include "support/ClientFileBytes.h"

#include <random>

namespace dravik {

enum class Kind { Zeros, Text, Random, Mixed, FarRepeats, RepeatAtReach };

// Deterministic on every library: only the engine's own bits are used.
inline ByteVector Sample(Kind kind, std::size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    ByteVector bytes(size);
    const auto text = [&] { return static_cast<unsigned char>("abcdefgh  \n"[(random() >> 8) % 11]); };
    for (std::size_t at = 0; at < size; ++at) {
        switch (kind) {
        case Kind::Zeros:
            break;
        case Kind::Text:
            bytes[at] = text();
            break;
        case Kind::Random:
            bytes[at] = static_cast<unsigned char>(random());
            break;
        case Kind::Mixed:
            bytes[at] = at / 5000 % 3 == 0 ? text() : at / 5000 % 3 == 1 ? static_cast<unsigned char>(random()) : '\0';
            break;
        case Kind::FarRepeats:
            bytes[at] = at < 32506 ? static_cast<unsigned char>(random()) : bytes[at - 32506];
            break;
        case Kind::RepeatAtReach:
            // One repeat at the very reach of the compressor, beginning where its window is about to slide: whether it
            // is found depends on how much input the compressor was given by then.
            bytes[at] = at < 65274 ? static_cast<unsigned char>(random()) : bytes[at - 32506];
            break;
        }
    }
    return bytes;
}

} // namespace dravik
