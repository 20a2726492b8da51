#pragma once

#include <stdexcept>
#include <string>

namespace dravik::terminal {

// What ends the work on a file, in words in UTF-8 that stand behind the file's name on one line.
struct Problem : std::runtime_error {
    explicit Problem(const std::string& words) : std::runtime_error(words) {}
};

// How the program ends.
namespace ending {
inline constexpr int Done = 0;     // and all is well
inline constexpr int Findings = 1; // done, and something was found
inline constexpr int Failed = 2;   // not done
} // namespace ending

} // namespace dravik::terminal
