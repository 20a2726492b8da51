#include "desk/FreeAgents.h"

#include "files/OffersFile.h"

namespace dravik {

namespace {

template <class Person>
bool CanBeMadeAnOffer(const League& rules, const Person& person)
{
    if (!person.InUse)
        return false;
    return person.Team != 0 ? person.Contract == 0 : static_cast<bool>(rules.OfferRuleFlag);
}

template <class Person>
bool IsYoung(const League& rules, const Person& person)
{
    return person.Age < rules.UFAAge;
}

template <class Person>
bool IsYoungOfATeam(const League& rules, const Person& person)
{
    return IsYoung(rules, person) && person.Team != 0;
}

FreeAgent ListedAs(const League& rules, const Player& player)
{
    return {.Id = CommonNumberOf(player),
            .Text = player.Name.Trimmed() + " (" + std::string(PositionName[player.Position]) + ")" +
                    (IsYoungOfATeam(rules, player) ? "-RFA" : "")};
}

// A young skater whom nobody owns goes without a mark; a young goalie has his star either way.
FreeAgent ListedAs(const League& rules, const Goalie& keeper)
{
    return {.Id = CommonNumberOf(keeper), .Text = keeper.Name.Trimmed() + " (G)" + (IsYoung(rules, keeper) ? "*" : "")};
}

} // namespace

void EachFreeAgent(const Tables& league, const OfferTable& offers, const FreeAgentFilter& filter,
                   const std::function<void(const FreeAgent&)>& tell)
{
    const League& rules = league.LeagueData;
    const auto look = [&](const auto& person) {
        if (!CanBeMadeAnOffer(rules, person))
            return;
        const FreeAgent agent = ListedAs(rules, person);
        if (!filter.WithOfferOnly || IsOffer(rules, offers[agent.Id]))
            tell(agent);
    };
    for (long long slot = 1; slot <= PlayerTable::last; ++slot)
        look(league.Players[slot]);
    for (long long slot = 1; slot <= GoalieTable::last; ++slot)
        look(league.Goalies[slot]);
}

std::optional<PersonId> FreeAgentOf(const Tables& league, int id)
{
    const PersonId who = PersonOf(id);
    if (who.IsGoalie && who.Slot >= GoalieTable::last)
        return std::nullopt;
    if (!OnPerson(league, who, [](const auto& person) { return static_cast<bool>(person.InUse); }))
        return std::nullopt;
    return who;
}

bool MayBeAsked(const Tables& league, int team, PersonId who)
{
    const auto isOut = [&league](const auto& person) { return CanBeMadeAnOffer(league.LeagueData, person); };
    return who.HasSlot() && who.Slot != 0 && OnPerson(league, who, isOut) && !IsBarred(league, team, who);
}

bool IsRestricted(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [&league](const auto& person) { return IsYoungOfATeam(league.LeagueData, person); });
}

bool IsBarred(const Tables& league, int team, PersonId who)
{
    return OnPerson(league, who, [&league, team](const auto& person) {
        return person.Age < league.LeagueData.RFAAge && person.Team != 0 && person.Team != team;
    });
}

std::string BarredWords(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [&league](const auto& person) {
        return person.Name.Trimmed() + " is not allowed to sign with another team that " +
               league.Teams[person.Team].Name.Trimmed() + ".";
    });
}

} // namespace dravik
