#pragma once

#include "league/Field.h"

#include <string_view>

namespace dravik {

// Indices of the named ratings within `Stats`.
namespace skater {
inline constexpr int CK = 1, FG = 2, DI = 3, SK = 4, ST = 5, DU = 6, PH = 7, FO = 8, PA = 9, SC = 10, DF = 11, EX = 12,
                     LD = 13, MO = 14, PO = 15;
} // namespace skater
namespace goalie {
inline constexpr int SK = 1, DU = 2, ST = 3, SZ = 4, AG = 5, RB = 6, SC = 7, HS = 8, RT = 9, EX = 10, LD = 11, MO = 12,
                     PO = 13;
} // namespace goalie

// Captions of the ratings in the order of `Stats`, the overall behind them; the second table of each pair holds the
// captions of the group values, shown when the league hides the single ratings.
extern const Row<std::string_view, 1, 16> SkaterStatName;
extern const Row<std::string_view, 1, 8> SkaterGroupName;
extern const Row<std::string_view, 1, 14> GoalieStatName;
extern const Row<std::string_view, 1, 8> GoalieGroupName;

} // namespace dravik
