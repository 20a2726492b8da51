#pragma once

#include <optional>

namespace dravik {

// What came of a number that was typed into a box.
struct TypedNumber {
    bool Accepted = false;               // false: the text was refused, which was told, and nothing is stored
    std::optional<long long> Shown = {}; // what the box shows instead of the text that was typed
};

} // namespace dravik
