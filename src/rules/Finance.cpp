#include "league/Arithmetic.h"
#include "league/ClientVariable.h"
#include "league/Message.h"
#include "league/Reporting.h"
#include "rules/Function.h"
#include "rules/People.h"

#include <string_view>

namespace dravik {

namespace {

template <class Person>
double SalaryOf(const Person& person)
{
    return static_cast<double>(person.Salary);
}

// What a person costs on the farm: a share of his salary, or all of it once he has enough pro games.
template <class Person>
double FarmCost(const Person& person)
{
    const League& league = LeagueData;
    if (league.FarmPayMinGames != 0 && person.ProGames >= league.FarmPayMinGames)
        return SalaryOf(person);
    return static_cast<double>(league.FarmSalaryPct) / 100 * SalaryOf(person);
}

// Calls `visit` with every player, then every goalie of the team.
template <class Visit>
void EachPerson(int team, Visit&& visit)
{
    EachOfTeam(Players, team, [&](const Player& player, int /*index*/) { visit(player); });
    EachOfTeam(Goalies, team, [&](const Goalie& goalie, int /*index*/) { visit(goalie); });
}

// Adds a person's cost when he is healthy enough, and takes it off when he is suspended. Each looks at its own
// condition only, so that who is both suspended and hurt lowers the payroll.
template <class Person>
void AddToPayroll(Single& sum, const Person& person, double cost)
{
    if (person.Condition > LeagueData.PayrollMinCondition)
        sum += cost;
    if (person.Suspension > 0 && LeagueData.PayrollSkipsSuspended)
        sum -= cost;
}

void AddCoaches(Single& sum, int team)
{
    for (const Coach& coach : Coaches)
        if (BelongsTo(coach, team))
            sum += SalaryOf(coach);
}

// The result of `body` for a team that exists; 0 for another, which is told, and after a failure.
template <class Result, class Body>
Result ForTeam(int team, std::string_view ending, Body&& body)
{
    Result result = 0;
    Reporting(ending, [&] {
        if (TeamTable::Has(team))
            result = body();
        else
            ShowIntegrityFailure();
    });
    return result;
}

} // namespace

float ProPayroll(int team)
{
    return ForTeam<float>(team, " in ProPayroll!", [&] {
        Single sum;
        EachPerson(team, [&](const auto& person) {
            if (person.Status > status::Farm && person.Contract > 0)
                AddToPayroll(sum, person, SalaryOf(person));
        });
        if (LeagueData.PayrollIncludesBonus)
            sum += static_cast<double>(Teams[team].PayrollBonus);
        return sum.Value();
    });
}

float FarmPayroll(int team)
{
    return ForTeam<float>(team, " in FarmPayroll!", [&] {
        Single sum;
        if (LeagueData.FarmEnabled)
            EachPerson(team, [&](const auto& person) {
                if (person.Status == status::Farm && person.Contract > 0)
                    AddToPayroll(sum, person, FarmCost(person));
            });
        return sum.Value();
    });
}

float CoachPayroll(int team)
{
    return ForTeam<float>(team, " in CoachPayroll!", [&] {
        Single sum;
        AddCoaches(sum, team);
        return sum.Value();
    });
}

int ExpensePerGame(int team)
{
    return ForTeam<int>(team, " in ExpensePerGame!", [&] {
        if (LeagueData.ExpenseFlag)
            return 0;
        Single sum;
        EachPerson(team, [&](const auto& person) {
            if (person.Suspension != 0)
                return;
            if (person.Status == status::Farm && LeagueData.FarmEnabled)
                sum += FarmCost(person);
            else if (person.Status == status::Scratch || person.Status == status::Pro)
                sum += SalaryOf(person);
        });
        AddCoaches(sum, team);
        const long long games = Teams[team].SeasonGames;
        return games == 0 ? 0 : RoundToInt32(static_cast<double>(sum.Value()) / static_cast<double>(games));
    });
}

} // namespace dravik
