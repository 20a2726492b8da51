#include "desk/PlayerHealth.h"

#include "rules/People.h"
#include "rules/WipeLines.h"

#include <string_view>

namespace dravik {

namespace {

void SetInjury(Tables& league, PersonId who, std::string_view injury)
{
    OnPerson(league, who, [injury](auto& person) { person.Injury = injury; });
}

// Takes a person who can no longer play out of the dressed ones and out of the lines of his team.
void Bench(const Work& work, PersonId who)
{
    // The goalie form of an id is the slot + 10000 everywhere else. Here it is + 100, which names a skater: whoever has
    // that number leaves the lines, and the goalie stays in them.
    constexpr int goalieForm = 100;
    OnPerson(work.League, who, [&](auto& person) {
        if (person.Status == status::Pro)
            person.Status = status::Scratch;
        if (person.Team != 0)
            WipePlayerFromTeamLines(work.League, work.Says, static_cast<int>(person.Team),
                                    who.IsGoalie ? who.Slot + goalieForm : who.Slot);
    });
}

} // namespace

std::optional<std::string> InjuryOf(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [](const auto& person) -> std::optional<std::string> {
        constexpr int perfect = 100;
        if (person.Condition >= perfect)
            return std::nullopt;
        return person.Injury.Trimmed();
    });
}

void FollowCondition(const Work& work, PersonId who, long long before, long long now, const TellTurn& turns)
{
    if (now >= HealthyCondition) {
        turns(HealthTurn::Healed);
        SetInjury(work.League, who, "");
    } else if (before >= HealthyCondition) {
        turns(HealthTurn::Injured);
        SetInjury(work.League, who, "Unknown"); // until somebody types what it is
        Bench(work, who);
    }
}

void FollowSuspension(const Work& work, PersonId who, long long before, long long now, const TellTurn& turns)
{
    if (before != 0 || now <= 0)
        return;
    turns(HealthTurn::Suspended);
    Bench(work, who);
    OnPerson(work.League, who, [&](const auto& person) {
        const std::string team = person.Team == 0 ? std::string() : work.League.Teams[person.Team].Name.Trimmed();
        work.Says.LeagueNews(person.Name.Trimmed() + " from " + team + " suspended for " + std::to_string(now) +
                             " game(s)");
    });
}

} // namespace dravik
