#include "desk/TeamFigures.h"

#include "league/Arithmetic.h"
#include "rules/LineStrength.h"
#include "rules/NextGames.h"
#include "rules/People.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr int MostYears = 9;

// Calls `visit` with everybody of the team.
template <class League, class Visit>
void EachOf(League& league, int team, Visit&& visit)
{
    EachOfTeam(league.Players, team, [&](auto& player, int /*index*/) { visit(player); });
    EachOfTeam(league.Goalies, team, [&](auto& keeper, int /*index*/) { visit(keeper); });
}

int LongestContract(const Tables& league, int team)
{
    int longest = 0;
    EachOf(league, team, [&](const auto& person) { longest = std::max(longest, static_cast<int>(person.Contract)); });
    return std::min(longest, MostYears);
}

// How many skaters a bar of a day's strength stands for.
int SkatersIn(const StrengthPlace& place)
{
    switch (place.Kind) {
    case StrengthOf::Forwards:
        return 3;
    case StrengthOf::Pair:
        return 2;
    case StrengthOf::Goalie:
        break;
    }
    return 0;
}

// The mean over skaters, of what is known of lines and pairs.
std::optional<int> MeanOfLines(const LineStrength& strength)
{
    int sum = 0;
    int skaters = 0;
    for (std::size_t place = 0; place < strength.size(); ++place) {
        const int count = SkatersIn(StrengthPlaces[place]);
        if (!strength[place] || count == 0)
            continue;
        sum += *strength[place] * count;
        skaters += count;
    }
    if (skaters == 0)
        return std::nullopt;
    return RoundToInt16(static_cast<double>(sum) / skaters);
}

} // namespace

std::vector<CapStanding> PayrollByYears(const Tables& league, int team)
{
    std::vector<CapStanding> years{StandingAgainstCap(league, team)};
    const int longest = LongestContract(league, team);
    if (longest < 2)
        return years;
    const auto later = Copy(league);
    for (int year = 2; year <= longest; ++year) {
        EachOf(*later, team, [](auto& person) {
            if (person.Contract > 0)
                person.Contract -= 1;
        });
        years.push_back(StandingAgainstCap(*later, team));
    }
    return years;
}

Ages AgesOf(const Tables& league, int team)
{
    Ages ages{};
    EachOf(league, team, [&](const auto& person) {
        const int position = PositionOf(person);
        if (position < position::Center || position > position::Goalie)
            return;
        const auto row = std::find_if(AgeRows.begin(), AgeRows.end(),
                                      [&](const AgeRow& at) { return person.Age >= at.From && person.Age <= at.To; });
        ++ages[static_cast<std::size_t>(row - AgeRows.begin())][static_cast<std::size_t>(position - position::Center)];
    });
    return ages;
}

std::vector<DayStrength> StrengthOfDays(const Tables& league, int team)
{
    std::vector<DayStrength> days;
    if (!league.LeagueData.ShowOverall)
        return days;
    const TeamStrengths strengths = StrengthOfTeams(league);
    const std::vector<NextGame> games = NextGames(league, team, Side::Pro);
    for (int day = 1; day <= LineDays; ++day) {
        const LineStrength lines = StrengthOfLines(league, LinesOf(league, team, day, Side::Pro));
        DayStrength strength{.Own = MeanOfLines(lines), .Goalie = lines.back(), .OpponentNumber = {}, .Opponent = {}};
        if (const auto at = static_cast<std::size_t>(day - 1); at < games.size()) {
            strength.OpponentNumber = games[at].Opponent;
            if (TeamTable::Has(games[at].Opponent))
                strength.Opponent = strengths[games[at].Opponent];
        }
        days.push_back(strength);
    }
    return days;
}

} // namespace dravik
