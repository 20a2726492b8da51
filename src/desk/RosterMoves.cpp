#include "desk/RosterMoves.h"

#include "rules/FarmLimits.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/Waivers.h"
#include "rules/WipeLines.h"

#include <string>

namespace dravik {

namespace {

// Whether nothing stands against the move of a person, and his waivers are settled.
template <class Person>
bool MayMove(const Work& work, int team, PersonId who, const Person& person, status::Number to)
{
    const std::string kind = who.IsGoalie ? "Goalie" : "Player";
    Voice& says = work.Says;
    if (!IsHealthy(person)) {
        says.ShowBox("Cannot Move an Injured " + kind + "!", box::Warning);
        return false;
    }
    if (person.Suspension != 0) { // a goalie is a player here
        says.ShowBox("Cannot Move an Suspended Player!", box::Warning);
        return false;
    }
    if (person.Contract == 0) {
        says.ShowBox(kind + " without a contract can not be move!", box::Warning);
        return false;
    }
    if (to != status::Farm)
        return true;
    const League& rules = work.League.LeagueData;
    if (IsTooDearForFarm(rules, person.Salary)) {
        says.ShowBox(kind + " Salary is too high to be send in the Farm!", box::Warning);
        return false;
    }
    if (WaiverCheck(work.League, says, who.CommonId())) {
        const std::string question =
            std::string("Do you want to send this ") + (who.IsGoalie ? "goalie" : "player") + " to waiver?";
        if (says.ShowBox(question, box::YesNo) != button::Yes)
            return false;
        if (!who.IsGoalie) // a goalie is asked about, and goes down without being placed on waivers
            MarkWaived(work.League, says, team, who.Slot);
    }
    return true;
}

} // namespace

Permission MayGoToFarm(const Work& work, long long overall)
{
    const League& rules = work.League.LeagueData;
    if (IsTooGoodForFarm(rules, overall)) {
        work.Says.ShowBox("Player Overall is too high to be sent to farm!", box::Warning);
        return Permission::Refused;
    }
    if (DeadlineHasPassed(rules)) {
        work.Says.ShowBox("Trade Deadline is Passed!", box::Information);
        return Permission::Ended;
    }
    return Permission::Given;
}

Permission MayLeaveFarm(const Work& work, const RosterCounts& counts)
{
    if (counts[3] >= work.League.LeagueData.MaxProPlayers) {
        work.Says.ShowBox("Maximum Pro Players Limit Reached!", box::Warning);
        return Permission::Ended;
    }
    return Permission::Given;
}

void KeepOffFarm(const Work& work, PersonId who)
{
    const League& rules = work.League.LeagueData;
    OnPerson(work.League, who, [&](auto& person) {
        const int overall = CalculateOverall(work.League, work.Says, who);
        if (IsTooGoodForFarm(rules, overall) || IsTooDearForFarm(rules, person.Salary))
            person.Status = status::Scratch;
    });
}

bool MoveOnRoster(const Work& work, int team, PersonId who, status::Number from, status::Number to,
                  RosterCounts& counts)
{
    return OnPerson(work.League, who, [&](auto& person) {
        if (!MayMove(work, team, who, person, to))
            return false;
        WipePlayerFromTeamLines(work.League, work.Says, team, who.CommonId());
        person.Status = to;
        ChangeOf(work.League, who).Status = to;
        counts[from] -= 1;
        counts[to] += 1;
        if (to == status::Farm)
            counts[3] -= 1;
        if (to == status::Scratch && from == status::Farm)
            counts[3] += 1;
        work.Modified = true;
        return true;
    });
}

void SendToWaivers(const Work& work, int team, PersonId who, const std::function<bool()>& scratch)
{
    Voice& says = work.Says;
    if (DeadlineHasPassed(work.League.LeagueData)) {
        says.ShowBox("Trade Deadline is Passed!", box::Information);
        return;
    }
    const long long standing =
        OnPerson(work.League, who, [](const auto& person) -> long long { return person.Status; });
    if (standing == status::Pro && !scratch())
        says.ShowIntegrityFailure();
    MarkWaived(work.League, says, team, who.CommonId());
    const std::string name = OnPerson(work.League, who, [](const auto& person) { return person.Name.Trimmed(); });
    says.ShowBox(name + " was sent to Waiver.", box::Information);
}

} // namespace dravik
