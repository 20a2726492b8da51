#include "desk/Morale.h"

#include "league/Arithmetic.h"
#include "machine/InputCheck.h"

#include <cmath>

namespace dravik {

namespace {

TypedNumber Take(const Work& work, Int16& morale, std::string_view text)
{
    constexpr int least = 1;
    if (!CheckInput(work.Says, text, InputMode::Numbers, false))
        return {};
    const double value = LeadingNumber(text);
    TypedNumber typed{.Accepted = true};
    if (std::nearbyint(value) < least)
        typed.Shown = least;
    morale = typed.Shown ? least : RoundToInt16(value);
    work.Modified = true;
    return typed;
}

} // namespace

TypedNumber SetMorale(const Work& work, int team, std::string_view text)
{
    return Take(work, work.League.Teams[team].ProMorale, text);
}

TypedNumber SetFarmMorale(const Work& work, int team, std::string_view text)
{
    return Take(work, work.League.Teams[team].Farm.FarmMorale, text);
}

} // namespace dravik
