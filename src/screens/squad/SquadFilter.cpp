#include "screens/squad/SquadFilter.h"

#include "desk/FreeAgents.h"
#include "rules/Overall.h"

namespace dravik {

namespace {

// A skater without a position is let through by the whole row of positions alone.
bool IsPositionLetThrough(const SquadFilter& filter, int position)
{
    if (position >= position::Center && position <= position::Defense)
        return filter.Positions[static_cast<std::size_t>(position - position::Center)];
    return filter.Positions == SquadFilter().Positions;
}

template <class Person>
bool IsLetThroughBy(const SquadFilter& filter, const SquadSight& sight, SquadPerson who, const Person& person)
{
    if (filter.Team && person.Team != *filter.Team)
        return false;
    if (who.Kind == SquadKind::Skaters && !IsPositionLetThrough(filter, PositionOf(person)))
        return false;
    if (filter.Status && !(IsOwn(sight, who) && person.Status == *filter.Status))
        return false;
    if ((filter.AgeFrom && person.Age < *filter.AgeFrom) || (filter.AgeTo && person.Age > *filter.AgeTo))
        return false;
    if (filter.ContractTo && person.Contract > *filter.ContractTo)
        return false;
    if (filter.MayBeAsked && !MayBeAsked(*sight.League, sight.Asking, who.Id()))
        return false;
    if (!filter.OverallFrom || !sight.League->LeagueData.ShowOverall)
        return true;
    return OverallAt(*sight.League, PositionOf(person), who.Slot).value_or(0) >= *filter.OverallFrom;
}

} // namespace

bool IsLetThrough(const SquadFilter& filter, const SquadSight& sight, SquadPerson who)
{
    if (who.Kind == SquadKind::Prospects)
        return true;
    return OnPerson(*sight.League, who.Id(),
                    [&](const auto& person) { return IsLetThroughBy(filter, sight, who, person); });
}

} // namespace dravik
