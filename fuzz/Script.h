#pragma once

#include "fuzz/Target.h"

#include <algorithm>

namespace dravik::fuzz {

// An input that is read as a script: step by step from its first byte on. What lies behind its end reads as 0.
class Script {
public:
    explicit Script(Input all) : input(all) {}

    [[nodiscard]] bool Ended() const { return input.empty(); }
    int Byte()
    {
        if (input.empty())
            return 0;
        const int byte = input[0];
        input = input.subspan(1);
        return byte;
    }
    // Two bytes, the lower one first.
    int Word()
    {
        const int low = Byte();
        return low + 256 * Byte();
    }
    // The next `count` bytes, or as many as are left.
    Input Bytes(int count)
    {
        const Input bytes = input.first(std::min(static_cast<std::size_t>(count), input.size()));
        input = input.subspan(bytes.size());
        return bytes;
    }

private:
    Input input;
};

} // namespace dravik::fuzz
