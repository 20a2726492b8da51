#include "Random.h"
#include "session/Session.h"
#include "Subjects.h"

namespace dravik::sample {

namespace {

// Two teams have not named their captains yet.
constexpr std::array CaptainlessTeams{10, 28};

void NameCaptains(int team)
{
    if (std::ranges::find(CaptainlessTeams, team) != CaptainlessTeams.end())
        return;
    std::vector<int> leaders = SkatersOf(team, status::Pro);
    std::ranges::stable_sort(leaders, std::greater(), [](int index) {
        return Players[index].Stats[skater::LD] * 2 + Players[index].Stats[skater::EX];
    });
    Teams[team].Captain = leaders[0];
    Teams[team].Assistant[1] = leaders[1];
    Teams[team].Assistant[2] = leaders[2];
}

template <class Table>
void AddClauses(Random& random, Table& table)
{
    for (auto& person : table) {
        if (!person.InUse || person.Team == 0)
            continue;
        person.NoTrade = person.Age >= 27 && person.Salary >= 2500000 && random.Chance(50);
        person.TradeAvailable = !person.NoTrade && random.Chance(5);
    }
}

// The best paid of a team, before the summer's drafts as many as the league allows, else only a few here and there.
void Protect(Random& random, int team, bool offSeason)
{
    const auto most = static_cast<int>(LeagueData.MaxProtected);
    int left = offSeason ? random.Between(most - 3, most) : random.Chance(50) ? random.Between(1, 5) : 0;
    if (left > 0) {
        const std::vector<int> goalies = GoaliesOf(team, status::Pro);
        Goalies[goalies.front()].Protected = true;
        Teams[team].ProtectedCount += 1;
        --left;
    }
    std::vector<int> skaters = SkatersOf(team, status::Pro);
    std::ranges::stable_sort(skaters, std::greater(), [](int index) -> long long { return Players[index].Salary; });
    for (int i = 0; i < left; ++i)
        Players[skaters.at(static_cast<std::size_t>(i))].Protected = true;
    Teams[team].ProtectedCount += left;
}

} // namespace

void AwardMarks(const SampleOptions& options)
{
    Random random(options.Seed, "marks");
    AddClauses(random, Players);
    AddClauses(random, Goalies);
    for (const int team : TeamsInUse()) {
        NameCaptains(team);
        Protect(random, team, options.OffSeason);
    }
}

} // namespace dravik::sample
