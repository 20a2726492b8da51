#include "rules/PersonSigns.h"

#include "machine/Voice.h"
#include "rules/FarmLimits.h"
#include "rules/People.h"
#include "rules/Waivers.h"

#include <algorithm>
#include <limits>

namespace dravik {

namespace {

constexpr std::array<SignRow, 15> Rows{{
    {Sign::MayNotPlay, SignPlace::Lines, "May not play", "May not play: he is injured, suspended or not on this team"},
    {Sign::UsedTwice, SignPlace::Lines, "Used twice", "Stands where he may not stand a second time"},
    {Sign::Injured, SignPlace::Anybody, "Injured, condition #", "Injured, with his condition"},
    {Sign::Suspended, SignPlace::Anybody, "Suspended for # games", "Suspended, with the games that are left of it"},
    {Sign::OnWaivers, SignPlace::Anybody, "On waivers", "On waivers"},
    {Sign::NoContract, SignPlace::Anybody, "No contract", "Has no contract"},
    {Sign::OutOfPosition, SignPlace::Lines, "Out of position", "Stands out of his position"},
    {Sign::InSlots, SignPlace::Lines, "In # slots", "How many slots of the day he holds"},
    {Sign::NotUsed, SignPlace::Lines, "Not used", "Holds no slot of the day"},
    {Sign::Captain, SignPlace::Own, "Captain", "Captain"},
    {Sign::Assistant, SignPlace::Own, "Assistant", "Assistant"},
    {Sign::NeedsWaivers, SignPlace::Own, "Needs waivers to go down", "Has to pass waivers to go down to the farm"},
    {Sign::NoTrade, SignPlace::Own, "No trade", "May not be traded"},
    {Sign::Rookie, SignPlace::Anybody, "Rookie", "Rookie"},
    {Sign::Pinned, SignPlace::Anybody, "Pinned", "Pinned: others are held against him"},
}};
static_assert([] {
    for (std::size_t index = 0; index < Rows.size(); ++index)
        if (Rows[index].Kind != static_cast<Sign>(index))
            return false;
    return static_cast<std::size_t>(Sign::Pinned) + 1 == Rows.size();
}());

constexpr int WaivedGames = 99; // how a record says that somebody is on waivers

// Nobody is sent down whom the farm's limits keep up, nor somebody who is down already.
template <class Person>
bool NeedsWaiversToGoDown(const Tables& league, const Person& person, PersonId who)
{
    const League& rules = league.LeagueData;
    if (!rules.ShowOverall || person.Status == status::Farm || IsTooDearForFarm(rules, person.Salary))
        return false;
    MuteVoice mute;
    return WaiverCheck(league, mute, who.CommonId());
}

template <class Person>
void AddFacts(PersonSigns& signs, const Person& person)
{
    if (!IsHealthy(person))
        signs.Add(Sign::Injured, static_cast<int>(person.Condition));
    if (person.Suspension == WaivedGames)
        signs.Add(Sign::OnWaivers);
    else if (person.Suspension != 0)
        signs.Add(Sign::Suspended, static_cast<int>(person.Suspension));
    if (person.Contract == 0)
        signs.Add(Sign::NoContract);
    if (person.Rookie)
        signs.Add(Sign::Rookie);
}

void AddOffice(PersonSigns& signs, const Team& team, PersonId who)
{
    if (who.IsGoalie)
        return;
    if (team.Captain == who.Slot)
        signs.Add(Sign::Captain);
    else if (team.Assistant[1] == who.Slot || team.Assistant[2] == who.Slot)
        signs.Add(Sign::Assistant);
}

} // namespace

const std::array<SignRow, 15> SignTable = Rows;

std::string WordsOf(const PersonSign& sign)
{
    std::string words(SignTable[static_cast<std::size_t>(sign.Kind)].Words);
    if (const auto place = words.find('#'); place != std::string::npos) {
        words.replace(place, 1, std::to_string(sign.Number));
        if (sign.Number == 1 && words.back() == 's')
            words.pop_back();
    }
    return words;
}

void PersonSigns::Add(Sign kind, int number)
{
    kinds |= BitOf(kind);
    const auto kept = static_cast<std::uint8_t>(std::clamp(number, 0, int{std::numeric_limits<std::uint8_t>::max()}));
    if (kind == Sign::Injured)
        condition = kept;
    else if (kind == Sign::Suspended)
        games = kept;
    else if (kind == Sign::InSlots)
        held = kept;
}

PersonSigns PersonSigns::Without(Sign kind) const
{
    PersonSigns rest;
    Each([&](const PersonSign& sign) {
        if (sign.Kind != kind)
            rest.Add(sign.Kind, sign.Number);
    });
    return rest;
}

int PersonSigns::NumberOf(Sign kind) const
{
    switch (kind) {
    case Sign::Injured:
        return condition;
    case Sign::Suspended:
        return games;
    case Sign::InSlots:
        return held;
    default:
        return 0;
    }
}

PersonSigns SignsOf(const Tables& league, PersonId who, int team)
{
    PersonSigns signs;
    if (!who.HasSlot() || who.Slot == 0)
        return signs;
    OnPerson(league, who, [&](const auto& person) {
        if (!person.InUse)
            return;
        AddFacts(signs, person);
        if (!TeamTable::Has(team) || person.Team != team)
            return;
        if (NeedsWaiversToGoDown(league, person, who))
            signs.Add(Sign::NeedsWaivers);
        if (person.NoTrade)
            signs.Add(Sign::NoTrade);
        AddOffice(signs, league.Teams[team], who);
    });
    return signs;
}

} // namespace dravik
