#include "desk/GoaliePull.h"

#include "league/Arithmetic.h"
#include "machine/InputCheck.h"

namespace dravik {

namespace {

struct Place {
    Int16 Lines::*Own;
    Int16 League::*Default;
};

constexpr Place PlaceOf(GoaliePull value)
{
    return value == GoaliePull::MinGoal ? Place{&Lines::PullGoalerMinGoal, &League::PullGoalerMinGoalDefault}
                                        : Place{&Lines::PullGoalerMinPct, &League::PullGoalerMinPctDefault};
}

} // namespace

long long ShownGoaliePull(const Tables& league, int team, int day, Side side, GoaliePull value)
{
    const Place place = PlaceOf(value);
    const Int16& own = LinesOf(league, team, day, side).*place.Own;
    return own == 0 ? league.LeagueData.*place.Default : own;
}

std::optional<double> GoaliePullNumber(Voice& says, std::string_view text)
{
    if (!CheckInput(says, text, InputMode::Numbers, false))
        return std::nullopt;
    return LeadingNumber(text);
}

void SetGoaliePull(const Work& work, int team, int day, Side side, GoaliePull value, double number)
{
    LinesOf(work.League, team, day, side).*PlaceOf(value).Own = RoundToInt16(number);
    work.Modified = true;
}

} // namespace dravik
