#include "rules/Finance.h"

#include "league/Arithmetic.h"
#include "league/Positions.h"
#include "machine/Reporting.h"
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
double FarmCost(const League& league, const Person& person)
{
    if (league.FarmPayMinGames != 0 && person.ProGames >= league.FarmPayMinGames)
        return SalaryOf(person);
    return static_cast<double>(league.FarmSalaryPct) / 100 * SalaryOf(person);
}

// Calls `visit` with every player, then every goalie of the team.
template <class Visit>
void EachPerson(const Tables& league, int team, Visit&& visit)
{
    EachOfTeam(league.Players, team, [&](const Player& player, int /*index*/) { visit(player); });
    EachOfTeam(league.Goalies, team, [&](const Goalie& goalie, int /*index*/) { visit(goalie); });
}

// Adds a person's cost when he is healthy enough, and takes it off when he is suspended. Each looks at its own
// condition only, so that who is both suspended and hurt lowers the payroll.
template <class Person>
void AddToPayroll(const League& league, Single& sum, const Person& person, double cost)
{
    if (person.Condition > league.PayrollMinCondition)
        sum += cost;
    if (person.Suspension > 0 && league.PayrollSkipsSuspended)
        sum -= cost;
}

void AddCoaches(const Tables& league, Single& sum, int team)
{
    for (const Coach& coach : league.Coaches)
        if (BelongsTo(coach, team))
            sum += SalaryOf(coach);
}

// The result of `body` for a team that exists; 0 for another, which is told, and after a failure.
template <class Result, class Body>
Result ForTeam(Voice& says, int team, std::string_view ending, Body&& body)
{
    Result result = 0;
    Reporting(says, ending, [&] {
        if (TeamTable::Has(team))
            result = body();
        else
            says.ShowIntegrityFailure();
    });
    return result;
}

} // namespace

Payrolls PayrollsOf(const Tables& league, int team) { return PayrollsOf(league, team, PeopleOf(league, team)); }

Payrolls PayrollsOf(const Tables& league, int team, const TeamPeople& people)
{
    const League& rules = league.LeagueData;
    Single pro;
    Single farm;
    const auto add = [&](const auto& person) {
        if (person.Contract <= 0)
            return;
        if (person.Status > status::Farm)
            AddToPayroll(rules, pro, person, SalaryOf(person));
        else if (person.Status == status::Farm && rules.FarmEnabled)
            AddToPayroll(rules, farm, person, FarmCost(rules, person));
    };
    for (const int player : people.Players)
        add(league.Players[player]);
    for (const int goalie : people.Goalies)
        add(league.Goalies[goalie]);
    if (rules.PayrollIncludesBonus)
        pro += static_cast<double>(league.Teams[team].PayrollBonus);
    return {.Pro = pro.Value(), .Farm = farm.Value()};
}

float CoachesOf(const Tables& league, int team)
{
    Single sum;
    AddCoaches(league, sum, team);
    return sum.Value();
}

float ProPayroll(const Tables& league, Voice& says, int team)
{
    return ForTeam<float>(says, team, " in ProPayroll!", [&] { return PayrollsOf(league, team).Pro; });
}

float FarmPayroll(const Tables& league, Voice& says, int team)
{
    return ForTeam<float>(says, team, " in FarmPayroll!", [&] { return PayrollsOf(league, team).Farm; });
}

float CoachPayroll(const Tables& league, Voice& says, int team)
{
    return ForTeam<float>(says, team, " in CoachPayroll!", [&] { return CoachesOf(league, team); });
}

int ExpensePerGame(const Tables& league, Voice& says, int team)
{
    return ForTeam<int>(says, team, " in ExpensePerGame!", [&] {
        if (league.LeagueData.ExpenseFlag)
            return 0;
        Single sum;
        EachPerson(league, team, [&](const auto& person) {
            if (person.Suspension != 0)
                return;
            if (person.Status == status::Farm && league.LeagueData.FarmEnabled)
                sum += FarmCost(league.LeagueData, person);
            else if (person.Status == status::Scratch || person.Status == status::Pro)
                sum += SalaryOf(person);
        });
        AddCoaches(league, sum, team);
        const long long games = league.Teams[team].SeasonGames;
        return games == 0 ? 0 : RoundToInt32(static_cast<double>(sum.Value()) / static_cast<double>(games));
    });
}

} // namespace dravik
