#pragma once

#include "rules/LineSlots.h"

#include <array>
#include <optional>

// How strong a day's lines are, to compare days with.
namespace dravik {

// What a bar of a day's strength stands for.
enum class StrengthOf { Forwards, Pair, Goalie };

struct StrengthPlace {
    StrengthOf Kind;
    int Number; // line or pair 1..4; 1 of the goalie
};

inline constexpr std::array<StrengthPlace, 9> StrengthPlaces{{{StrengthOf::Forwards, 1},
                                                              {StrengthOf::Forwards, 2},
                                                              {StrengthOf::Forwards, 3},
                                                              {StrengthOf::Forwards, 4},
                                                              {StrengthOf::Pair, 1},
                                                              {StrengthOf::Pair, 2},
                                                              {StrengthOf::Pair, 3},
                                                              {StrengthOf::Pair, 4},
                                                              {StrengthOf::Goalie, 1}}};

// The mean overalls of the forwards of the four normal lines, of their pairs, and the overall of the starting goalie, in the
// order of StrengthPlaces; each in the position of his record, as a line's average counts him, to the nearest integer, ties to
// even. None where a slot of it is empty, or holds somebody without an overall or a number outside his table.
using LineStrength = std::array<std::optional<int>, StrengthPlaces.size()>;
LineStrength StrengthOfLines(const Tables& league, const Lines& lines);

} // namespace dravik
