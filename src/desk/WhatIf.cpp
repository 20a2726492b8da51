#include "desk/WhatIf.h"

#include "files/OffersFile.h"
#include "league/Arithmetic.h"
#include "machine/Voice.h"
#include "rules/Finance.h"
#include "rules/People.h"
#include "rules/ReleaseCost.h"

namespace dravik {

namespace {

// Whoever is offered something becomes one of the team's.
void Sign(Tables& league, int team, const FreeAgentOffer& offer)
{
    OnPerson(league, PersonOf(static_cast<int>(offer.Id)), [&](auto& person) {
        if (person.Team != team)
            person.Status = status::Scratch;
        person.Team = team;
        person.Salary = offer.Salary;
        person.Contract = offer.Duration;
    });
    Team& payer = league.Teams[team];
    payer.Cash = Limit32(payer.Cash - offer.Bonus);
}

} // namespace

PeopleByPosition CountPeople(const Tables& league, int team)
{
    PeopleByPosition count{};
    const auto add = [&count](const auto& person, int /*index*/) {
        const int position = PositionOf(person);
        if (position >= position::Center && position <= position::Goalie)
            ++count[static_cast<std::size_t>(position - position::Center)];
    };
    EachOfTeam(league.Players, team, add);
    EachOfTeam(league.Goalies, team, add);
    return count;
}

TeamStanding StandingOf(const Tables& league, int team)
{
    MuteVoice mute;
    return {.People = CountPeople(league, team),
            .Payroll = StandingAgainstCap(league, team),
            .Money = league.Teams[team].Cash,
            .PerGame = ExpensePerGame(league, mute, team)};
}

AllTaken WithAllOffersTaken(const Tables& league, int team, const OfferTable& offers)
{
    AllTaken taken;
    taken.Now = StandingOf(league, team);
    const auto copy = Copy(league);
    EachOfferToSave(league.LeagueData, offers, [&](const FreeAgentOffer& offer) {
        ++taken.Offers;
        Sign(*copy, team, offer);
    });
    taken.Then = StandingOf(*copy, team);
    return taken;
}

Released WithRelease(const Tables& league, int team, PersonId who)
{
    Released released;
    released.RestOfContract = OnPerson(league, who, [&](const auto& person) {
        return RestOfContract(league.Teams[team], person.Contract, person.Salary);
    });
    released.Before = StandingAgainstCap(league, team);
    const auto copy = Copy(league);
    OnPerson(*copy, who, [](auto& person) {
        person.Team = 0;
        person.Contract = 0;
    });
    released.After = StandingAgainstCap(*copy, team);
    return released;
}

} // namespace dravik
