#pragma once

#include "league/Field.h"

#include <string_view>

namespace dravik {

// Numbers of the positions. A goalie has no position field; 5 stands for it.
namespace position {
inline constexpr int Center = 1;
inline constexpr int LeftWing = 2;
inline constexpr int RightWing = 3;
inline constexpr int Defense = 4;
inline constexpr int Goalie = 5;
} // namespace position

inline constexpr Row<std::string_view, 1, 5> PositionName = [] {
    Row<std::string_view, 1, 5> names;
    const std::string_view all[] = {"C", "LW", "RW", "D", "G"};
    for (int i = 1; i <= 5; ++i)
        names[i] = all[i - 1];
    return names;
}();

// Where a person stands.
namespace status {
inline constexpr int Farm = 0;
inline constexpr int Scratch = 1;
inline constexpr int Pro = 2;
} // namespace status

// What one number carrying both kinds adds for a goalie, and for a prospect.
inline constexpr int GoalieOffset = 10000;
inline constexpr int ProspectOffset = 20000;

} // namespace dravik
