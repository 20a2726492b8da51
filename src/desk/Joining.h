#pragma once

#include "desk/ByteDifference.h"

#include <cstddef>
#include <limits>

namespace dravik {

// Puts differences together and counts the bytes that this takes: what nobody has to trust may ask for more of it than any
// evening does. Beyond `most` every result is empty, and `IsTooMuch` says so.
class Joining {
public:
    explicit Joining(std::size_t most = std::numeric_limits<std::size_t>::max()) : left(most) {}

    ByteDifference Then(const ByteDifference& first, const ByteDifference& second)
    {
        const std::size_t size = first.Stored().size() + second.Stored().size();
        isTooMuch = isTooMuch || size > left;
        if (isTooMuch)
            return {};
        left -= size;
        return dravik::Then(first, second);
    }
    [[nodiscard]] bool IsTooMuch() const { return isTooMuch; }

private:
    std::size_t left;
    bool isTooMuch = false;
};

} // namespace dravik
