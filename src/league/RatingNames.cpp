#include "league/RatingNames.h"

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

} // namespace dravik
