#include "league/RatingNames.h"

#include "league/RatingWords.h"

namespace dravik {

namespace {

template <long long Count>
constexpr Row<std::string_view, 1, Count> Captions(const std::string_view (&all)[Count])
{
    Row<std::string_view, 1, Count> captions;
    for (long long i = 1; i <= Count; ++i)
        captions[i] = all[i - 1];
    return captions;
}

} // namespace

constexpr Row<std::string_view, 1, 16> SkaterStatName =
    Captions<16>({"CK", "FG", "DI", "SK", "ST", "DU", "PH", "FO", "PA", "SC", "DF", "EX", "LD", "MO", "PO", "OV"});
constexpr Row<std::string_view, 1, 8> SkaterGroupName = Captions<8>({"IT", "PY", "PC", "SC", "DF", "ME", "PO", "OV"});
constexpr Row<std::string_view, 1, 14> GoalieStatName =
    Captions<14>({"SK", "DU", "ST", "SZ", "AG", "RB", "SC", "HS", "RT", "EX", "LD", "MO", "PO", "OV"});
constexpr Row<std::string_view, 1, 8> GoalieGroupName = Captions<8>({"PH", "RD", "SC", "HS", "RT", "ME", "PO", "OV"});

constexpr Row<std::string_view, 1, 16> SkaterStatWords = Captions<16>(
    {"Checking", "Fighting", "Discipline", "Skating", "Strength", "Durability", "Puck handling", "Face-offs", "Passing",
     "Scoring", "Defense", "Experience", "Leadership", "Morale", "Potential", "Overall"});
constexpr Row<std::string_view, 1, 8> SkaterGroupWords =
    Captions<8>({"Intensity", "Physique", "Puck control", "Scoring", "Defense", "Mental", "Potential", "Overall"});
constexpr Row<std::string_view, 1, 14> GoalieStatWords =
    Captions<14>({"Skating", "Durability", "Strength", "Size", "Agility", "Rebounds", "Shot control", "Hand speed",
                  "Reaction", "Experience", "Leadership", "Morale", "Potential", "Overall"});
constexpr Row<std::string_view, 1, 8> GoalieGroupWords =
    Captions<8>({"Physique", "Rebounds", "Shot control", "Hand speed", "Reaction", "Mental", "Potential", "Overall"});

} // namespace dravik
