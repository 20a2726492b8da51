#include "Random.h"
#include "rules/Finance.h"
#include "session/Session.h"
#include "Subjects.h"

namespace dravik::sample {

namespace {

struct Level {
    int LeastSeats; // in hundreds, as is `MostSeats`
    int MostSeats;
    int LeastPrice;
    int MostPrice;
};

// The four levels of an arena and its luxury boxes.
constexpr std::array Levels{Level{45, 65, 95, 140}, Level{38, 50, 68, 95}, Level{30, 40, 44, 66}, Level{20, 30, 24, 42},
                            Level{5, 10, 180, 320}};

void BuildArena(Random& random, Team& team)
{
    int index = 1;
    for (const Level& level : Levels) {
        team.ArenaCapacity[index] = 100LL * random.Between(level.LeastSeats, level.MostSeats);
        team.TicketPrice[index] = random.Between(level.LeastPrice, level.MostPrice);
        ++index;
    }
}

// Fills the arena at every home game to some percent on all its levels. Capacities are whole hundreds, so every
// percent of them is a whole number of people.
void SellTickets(Random& random, Team& team)
{
    const int usual = random.Between(76, 94);
    long long percents = 0;
    for (int game = 0; game < team.HomeGames; ++game)
        percents += std::clamp(usual + random.Around(0, 14), 0, 100);
    long long attendance = 0;
    long long income = 0;
    for (int level = 1; level <= 5; ++level) {
        const long long people = team.ArenaCapacity[level] / 100 * percents;
        attendance += people;
        income += people * team.TicketPrice[level];
    }
    team.TotalAttendance = attendance;
    team.TotalIncome = income;
}

} // namespace

void MakeFinances(const SampleOptions& options)
{
    Random random(options.Seed, "finances");
    for (const int number : TeamsInUse()) {
        Team& team = Teams[number];
        BuildArena(random, team);
        SellTickets(random, team);
        const long long opening = 100000LL * random.Between(80, 450);
        team.Cash = opening + team.TotalIncome - ExpensePerGame(OpenLeague, Machine(), number) * team.GamesPlayed;
    }
}

} // namespace dravik::sample
