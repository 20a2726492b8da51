#include "Names.h"
#include "Random.h"
#include "session/Session.h"
#include "Subjects.h"

#include <numeric>

namespace dravik::sample {

namespace {

// The team that looks for coaches: its last ones have just left.
constexpr int CoachlessTeam = 24;
constexpr int UnemployedCoaches = 45;
constexpr int NamedProspects = 200;

// Indices 1 to `count` in a drawn order.
std::vector<int> ShuffledIndices(Random& random, long long count)
{
    std::vector<int> indices(static_cast<std::size_t>(count));
    std::iota(indices.begin(), indices.end(), 1);
    random.Shuffle(indices);
    return indices;
}

} // namespace

void MakeCoaches(const SampleOptions& options)
{
    Random random(options.Seed, "coaches");
    NameMaker names(options.Seed, "coach names");
    std::vector<int> indices = ShuffledIndices(random, CoachTable::last);
    const auto hire = [&](int team, int level) {
        const int index = indices.back();
        indices.pop_back();
        const PersonName name = names.Next();
        Coach& coach = Coaches[index];
        coach.InUse = true;
        coach.Number = index;
        coach.Name = name.Name;
        coach.Country = name.Country;
        coach.Team = team;
        coach.Age = random.Between(38, 68);
        coach.Contract = team == 0 ? 0 : random.Between(1, 4);
        coach.Salary = random.Between(level * 8, level * 24) * 25000LL;
        for (Byte& rating : coach.Ratings)
            rating = random.Around(50 + level * 10, 18);
        return index;
    };
    for (const int team : TeamsInUse()) {
        if (team == CoachlessTeam)
            continue;
        Teams[team].ProCoach = hire(team, 2);
        Teams[team].Farm.FarmCoach = hire(team, 1);
    }
    const int unemployed = options.Full ? static_cast<int>(indices.size()) : UnemployedCoaches;
    for (int i = 0; i < unemployed; ++i)
        hire(0, 1);
}

void MakeProspects(const SampleOptions& options)
{
    Random random(options.Seed, "prospects");
    NameMaker names(options.Seed, "prospect names");
    std::vector<int> indices = ShuffledIndices(random, ProspectTable::last);
    if (!options.Full)
        indices.resize(NamedProspects);
    for (const int index : indices)
        Prospects[index].Name = names.Next().Name;
}

} // namespace dravik::sample
