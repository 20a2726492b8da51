#include "desk/PlayerFlags.h"

#include <algorithm>

namespace dravik {

namespace {

void Store(Tables& league, PersonId who, bool available)
{
    OnPerson(league, who, [available](auto& person) { person.TradeAvailable = available; });
    ChangeOf(league, who).TradeAvailable = available;
}

} // namespace

bool TakeBarredOffMarket(const Work& work, PersonId who)
{
    if (!OnPerson(work.League, who, [](const auto& person) { return static_cast<bool>(person.NoTrade); }))
        return false;
    Store(work.League, who, false);
    work.Says.ShowIntegrityFailure();
    return true;
}

void SetTradeAvailable(const Work& work, PersonId who, bool available)
{
    Store(work.League, who, available);
    work.Modified = true;
}

bool IsTradeAvailable(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [](const auto& person) { return static_cast<bool>(person.TradeAvailable); });
}

void SetProtected(const Work& work, int number, PersonId who, bool isProtected)
{
    Team& team = work.League.Teams[number];
    const auto store = [&] {
        OnPerson(work.League, who, [isProtected](auto& person) { person.Protected = isProtected; });
        ChangeOf(work.League, who).Protected = isProtected;
    };
    if (!isProtected) {
        team.ProtectedCount = std::max(0LL, team.ProtectedCount - 1);
        store();
    } else if (team.ProtectedCount >= work.League.LeagueData.MaxProtected) {
        work.Says.ShowBox("Maximum Number of Protected Players Reached!", box::Information);
    } else {
        ++team.ProtectedCount;
        store();
    }
    work.Modified = true;
}

void SetNoApplyRerate(const Work& work, PersonId who, bool noApplyRerate)
{
    OnPerson(work.League, who, [noApplyRerate](auto& person) { person.NoApplyRerate = noApplyRerate; });
    work.Modified = true;
}

void SetNoTrade(const Work& work, PersonId who, bool noTrade)
{
    OnPerson(work.League, who, [noTrade](auto& person) { person.NoTrade = noTrade; });
    work.Modified = true;
}

} // namespace dravik
