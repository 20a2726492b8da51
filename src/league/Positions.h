#pragma once

#include "league/Field.h"

#include <string_view>

namespace dravik {

// Numbers of the positions. A goalie has no position field; 5 stands for it. A record may hold any other number, so what is read
// from one stays a plain number.
namespace position {
enum Number : int { Center = 1, LeftWing, RightWing, Defense, Goalie };
} // namespace position

inline constexpr Row<std::string_view, 1, 5> PositionName = [] {
    Row<std::string_view, 1, 5> names;
    const std::string_view all[] = {"C", "LW", "RW", "D", "G"};
    for (int i = 1; i <= 5; ++i)
        names[i] = all[i - 1];
    return names;
}();

// Where a person stands. A record may hold any other number here too.
namespace status {
enum Number : int { Farm, Scratch, Pro };
} // namespace status

// What one number carrying both kinds adds for a goalie, and for a prospect.
inline constexpr int GoalieOffset = 10000;
inline constexpr int ProspectOffset = 20000;

} // namespace dravik
