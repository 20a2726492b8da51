#include "session/PinnedPeople.h"

#include <algorithm>

namespace dravik {

namespace {

std::optional<std::string> NameOfSomebody(const Tables& league, PersonId who)
{
    if (who.Slot == 0 || !who.HasSlot())
        return std::nullopt;
    return OnPerson(league, who, [](const auto& person) {
        return person.InUse ? std::optional(person.Name.Trimmed()) : std::nullopt;
    });
}

} // namespace

bool PinnedPeople::IsStill(const Tables& league, const Pin& pin)
{
    return league.LeagueData.LeagueCode.Raw() == pin.League && NameOfSomebody(league, pin.Who) == pin.Name;
}

bool PinnedPeople::Toggle(const Tables& league, PersonId who)
{
    const auto name = NameOfSomebody(league, who);
    if (!name)
        return false;
    const bool wasPinned = Has(league, who);
    // Whoever was pinned in another league, or in a slot that is somebody else's by now, takes nobody's place.
    std::erase_if(pinned, [&](const Pin& pin) { return pin.Who == who || !IsStill(league, pin); });
    if (wasPinned)
        return true;
    if (HasNoRoomFor(league, who))
        return false;
    pinned.push_back({who, *name, league.LeagueData.LeagueCode.Raw()});
    return true;
}

bool PinnedPeople::HasNoRoomFor(const Tables& league, PersonId who) const
{
    return NameOfSomebody(league, who) && !Has(league, who) && Of(league, who.IsGoalie).size() >= Most;
}

bool PinnedPeople::Has(const Tables& league, PersonId who) const
{
    return std::any_of(pinned.begin(), pinned.end(),
                       [&](const Pin& pin) { return pin.Who == who && IsStill(league, pin); });
}

std::vector<PersonId> PinnedPeople::Of(const Tables& league, bool goalies) const
{
    std::vector<PersonId> people;
    for (const Pin& pin : pinned)
        if (pin.Who.IsGoalie == goalies && IsStill(league, pin))
            people.push_back(pin.Who);
    return people;
}

std::optional<PersonId> PinnedPeople::First(const Tables& league, bool goalies) const
{
    const std::vector<PersonId> people = Of(league, goalies);
    return people.empty() ? std::nullopt : std::optional(people.front());
}

PinnedPeople& OpenPins()
{
    static PinnedPeople pins;
    return pins;
}

} // namespace dravik
