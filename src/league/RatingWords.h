#pragma once

#include "league/Field.h"

#include <string_view>

namespace dravik {

// What the captions of the ratings mean in words, in the order of RatingNames: of a skater, of his group values, of a goalie and
// of his.
extern const Row<std::string_view, 1, 16> SkaterStatWords;
extern const Row<std::string_view, 1, 8> SkaterGroupWords;
extern const Row<std::string_view, 1, 14> GoalieStatWords;
extern const Row<std::string_view, 1, 8> GoalieGroupWords;

} // namespace dravik
