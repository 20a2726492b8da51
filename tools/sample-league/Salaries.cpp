#include "Random.h"
#include "rules/Overall.h"
#include "session/Session.h"
#include "Subjects.h"

namespace dravik::sample {

namespace {

constexpr long long Step = 25000;

long long InSteps(long long amount) { return amount / Step * Step; }

// What a rating weighs when the pay of a team is shared out: stars earn most of it.
long long WeightOf(int overall)
{
    const long long above = overall > 58 ? overall - 58 : 0;
    return above * above * above;
}

// Shares out `pay` among the pro side: the least legal salary to everybody, the rest by rating.
void PayPros(int team, long long pay)
{
    struct Payee {
        Int32* Salary;
        long long Weight;
    };
    std::vector<Payee> payees;
    for (const int status : {status::Scratch, status::Pro}) {
        for (const int index : SkatersOf(team, status)) {
            Player& player = Players[index];
            payees.push_back({&player.Salary, WeightOf(CalculateOverall(OpenLeague, Machine(),
                                                                        static_cast<int>(player.Position), index))});
        }
        for (const int index : GoaliesOf(team, status))
            payees.push_back(
                {&Goalies[index].Salary, WeightOf(CalculateOverall(OpenLeague, Machine(), position::Goalie, index))});
    }
    long long weights = 1;
    for (const Payee& payee : payees)
        weights += payee.Weight;
    const long long least = LeagueData.MinSalary;
    const long long rest = pay - least * static_cast<long long>(payees.size());
    for (const Payee& payee : payees)
        *payee.Salary = std::min<long long>(InSteps(least + rest * payee.Weight / weights), LeagueData.MaxSalary);
}

template <class Table>
void PayModestly(Random& random, Table& table)
{
    for (auto& person : table)
        if (person.Number != 0)
            person.Salary = LeagueData.MinSalary + Step * random.Between(0, 24);
}

} // namespace

void PaySalaries(const SampleOptions& options)
{
    Random random(options.Seed, "salaries");
    PayModestly(random, Players);
    PayModestly(random, Goalies);
    for (const int team : TeamsInUse()) {
        const int percent = random.Between(82, 98);
        PayPros(team, LeagueData.SalaryCap * percent / 100 - Teams[team].PayrollBonus);
    }
}

} // namespace dravik::sample
