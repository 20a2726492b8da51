#include "Random.h"
#include "session/Session.h"
#include "Subjects.h"

#include <utility>

namespace dravik::sample {

namespace {

constexpr int SeasonGames = 82;
constexpr int BreakAfterDay = 82; // the league rests for five days in the middle of the season
constexpr int BreakDays = 5;

struct Game {
    int Away;
    int Home;
};

// All teams play in a round, each against one other.
using Round = std::vector<Game>;

// The ways to pair the teams so that over all of them everybody meets everybody once: one team stays, the others walk
// around a circle.
std::vector<Round> AllPairings(const std::vector<int>& teams)
{
    const std::size_t circle = teams.size() - 1;
    std::vector<Round> rounds;
    for (std::size_t turn = 0; turn < circle; ++turn) {
        Round round{{teams[circle], teams[turn]}};
        for (std::size_t step = 1; step <= circle / 2; ++step)
            round.push_back({teams[(turn + step) % circle], teams[(turn + circle - step) % circle]});
        rounds.push_back(round);
    }
    return rounds;
}

auto DivisionGames(const Round& round)
{
    return std::ranges::count_if(
        round, [](const Game& game) { return Teams[game.Away].Division == Teams[game.Home].Division; });
}

Round Returned(Round round)
{
    for (Game& game : round)
        std::swap(game.Away, game.Home);
    return round;
}

// 82 rounds: every pairing and its return, and the pairings with the most games within divisions a second time. Since
// every game has its return, everybody plays as often at home as away.
std::vector<Round> SeasonRounds(Random& random, const std::vector<int>& teams)
{
    std::vector<Round> halves = AllPairings(teams);
    std::vector<Round> again = halves;
    std::ranges::stable_sort(again, std::greater(), DivisionGames);
    again.resize(static_cast<std::size_t>(SeasonGames / 2) - halves.size());
    halves.insert(halves.end(), again.begin(), again.end());

    std::vector<Round> rounds;
    for (Round& half : halves) {
        // Who is at home first is drawn, or else some teams would play most of their home games early.
        for (Game& game : half)
            if (random.Chance(50))
                std::swap(game.Away, game.Home);
        random.Shuffle(half);
        rounds.push_back(half);
        random.Shuffle(half);
        rounds.push_back(Returned(half));
    }
    random.Shuffle(rounds);
    return rounds;
}

void SetPro(ScheduleRow& row, const Game& game, bool played)
{
    row.ProGame = true;
    row.ProPlayed = played;
    row.ProAway = game.Away;
    row.ProHome = game.Home;
}

void SetFarm(ScheduleRow& row, const Game& game, bool played)
{
    row.FarmGame = true;
    row.FarmPlayed = played;
    row.FarmAway = game.Away;
    row.FarmHome = game.Home;
}

// Writes the rounds of pro and farm side by side. A round takes two days, so that nobody plays twice on one. Most rows
// hold a game of both; a few games have a row of their own.
void WriteRows(Random& random, const std::vector<Round>& pro, const std::vector<Round>& farm, int lastPlayedDay)
{
    int row = 0;
    int day = 0;
    for (std::size_t number = 0; number < pro.size(); ++number) {
        const std::size_t games = pro[number].size();
        for (std::size_t game = 0; game < games; ++game) {
            if (game == 0 || game == (games + 1) / 2)
                ++day;
            if (day == BreakAfterDay + 1) {
                day += BreakDays;
                ++row; // a row without a game stands for the break
            }
            const bool played = day <= lastPlayedDay;
            GameSchedule[++row].GameDay = day;
            SetPro(GameSchedule[row], pro[number][game], played);
            if (random.Chance(6))
                GameSchedule[++row].GameDay = day;
            SetFarm(GameSchedule[row], farm[number][game], played);
        }
    }
}

void CountGames()
{
    for (const ScheduleRow& row : GameSchedule) {
        if (!row.ProGame || !row.ProPlayed)
            continue;
        ++Teams[row.ProAway].GamesPlayed;
        ++Teams[row.ProHome].GamesPlayed;
        ++Teams[row.ProHome].HomeGames;
    }
}

} // namespace

void MakeCalendar(const SampleOptions& options)
{
    const std::vector<int> teams = TeamsInUse();
    for (const int team : teams)
        Teams[team].SeasonGames = SeasonGames;
    if (options.OffSeason) {
        for (const int team : teams) {
            Teams[team].GamesPlayed = SeasonGames;
            Teams[team].HomeGames = SeasonGames / 2;
        }
        return;
    }
    Random random(options.Seed, "calendar");
    const std::vector<Round> pro = SeasonRounds(random, teams);
    const std::vector<Round> farm = SeasonRounds(random, teams);
    // An even day behind the break is the first of a round's two, so that some teams are a game ahead of the others.
    const int today = 2 * (options.Deadline ? random.Between(65, 69) : random.Between(46, 50));
    WriteRows(random, pro, farm, today);
    CountGames();
}

} // namespace dravik::sample
