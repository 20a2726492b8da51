#include "desk/Arena.h"

#include "league/Arithmetic.h"
#include "machine/InputCheck.h"

#include <numeric>

namespace dravik {

TypedNumber SetArenaCapacity(const Work& work, int team, int level, std::string_view text)
{
    constexpr int most = 99999;
    if (!CheckInput(work.Says, text, InputMode::Numbers, true))
        return {};
    const double seats = LeadingNumber(text);
    TypedNumber typed{.Accepted = true};
    if (seats > most)
        typed.Shown = most;
    work.League.Teams[team].ArenaCapacity[level] = typed.Shown ? most : RoundToInt32(seats);
    work.Modified = true;
    return typed;
}

bool NameArena(const Work& work, int team, std::string_view text)
{
    if (!CheckInput(work.Says, text, InputMode::NumbersAndLetters, false))
        return false;
    work.League.Teams[team].ArenaName = text;
    work.Modified = true;
    return true;
}

long long TotalCapacity(const Team& team)
{
    return std::accumulate(team.ArenaCapacity.begin(), team.ArenaCapacity.end(), 0LL);
}

} // namespace dravik
