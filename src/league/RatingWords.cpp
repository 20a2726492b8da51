#include "league/RatingWords.h"

namespace dravik {

namespace {

template <long long Count>
constexpr Row<std::string_view, 1, Count> Words(const std::string_view (&all)[Count])
{
    Row<std::string_view, 1, Count> words;
    for (long long i = 1; i <= Count; ++i)
        words[i] = all[i - 1];
    return words;
}

} // namespace

constexpr Row<std::string_view, 1, 16> SkaterStatWords =
    Words<16>({"Checking", "Fighting", "Discipline", "Skating", "Strength", "Durability", "Puck handling", "Face-offs",
               "Passing", "Scoring", "Defense", "Experience", "Leadership", "Morale", "Potential", "Overall"});
constexpr Row<std::string_view, 1, 8> SkaterGroupWords =
    Words<8>({"Intensity", "Physique", "Puck control", "Scoring", "Defense", "Mental", "Potential", "Overall"});
constexpr Row<std::string_view, 1, 14> GoalieStatWords =
    Words<14>({"Skating", "Durability", "Strength", "Size", "Agility", "Rebounds", "Shot control", "Hand speed",
               "Reaction", "Experience", "Leadership", "Morale", "Potential", "Overall"});
constexpr Row<std::string_view, 1, 8> GoalieGroupWords =
    Words<8>({"Physique", "Rebounds", "Shot control", "Hand speed", "Reaction", "Mental", "Potential", "Overall"});

} // namespace dravik
