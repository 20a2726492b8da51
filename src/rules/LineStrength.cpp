#include "rules/LineStrength.h"

#include "league/Arithmetic.h"
#include "league/Positions.h"
#include "rules/Overall.h"

namespace dravik {

namespace {

std::optional<int> OverallOfSkater(const Tables& league, long long id)
{
    if (id == 0 || !PlayerTable::Has(id))
        return std::nullopt;
    return OverallAt(league, static_cast<int>(league.Players[id].Position), static_cast<int>(id));
}

std::optional<int> MeanOf(const Tables& league, const Lines& lines, LineField field, int number, int places)
{
    int sum = 0;
    for (int place = 1; place <= places; ++place) {
        const auto overall = OverallOfSkater(league, At(lines, SlotOf(field, number, place)));
        if (!overall)
            return std::nullopt;
        sum += *overall;
    }
    return RoundToInt16(static_cast<double>(sum) / places);
}

std::optional<int> StrengthAt(const Tables& league, const Lines& lines, const StrengthPlace& at)
{
    switch (at.Kind) {
    case StrengthOf::Forwards:
        return MeanOf(league, lines, LineField::NormalForward, at.Number, 3);
    case StrengthOf::Pair:
        return MeanOf(league, lines, LineField::NormalDefense, at.Number, 2);
    case StrengthOf::Goalie:
        break;
    }
    const long long id = lines.StartGoalie;
    if (id == 0 || !GoalieTable::Has(id))
        return std::nullopt;
    return OverallAt(league, position::Goalie, static_cast<int>(id));
}

} // namespace

LineStrength StrengthOfLines(const Tables& league, const Lines& lines)
{
    LineStrength strength;
    for (std::size_t place = 0; place < strength.size(); ++place)
        strength[place] = StrengthAt(league, lines, StrengthPlaces[place]);
    return strength;
}

} // namespace dravik
