#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// What every fuzz target is made of. A target defines `RunTarget`; libFuzzer drives it where the build is one for fuzzing,
// and Replay.cpp runs it over files everywhere else.
namespace dravik::fuzz {

using Input = std::span<const std::uint8_t>;

// Runs the target on one input. What must not happen ends the process.
void RunTarget(Input input);

// Ends the process, as a crash does, unless `holds`.
void Require(bool holds);

} // namespace dravik::fuzz
