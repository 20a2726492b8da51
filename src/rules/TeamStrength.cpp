#include "rules/TeamStrength.h"

#include "league/Arithmetic.h"
#include "rules/Overall.h"
#include "rules/People.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace dravik {

namespace {

constexpr std::size_t CountingSkaters = 18;

// The overalls of everybody of a team: those of skaters by position, then those of goalies, each in order of the slots.
using Overalls = std::array<std::vector<int>, position::Goalie>;

// One walk over the tables for all teams.
std::vector<Overalls> OverallsOfTeams(const Tables& league)
{
    std::vector<Overalls> teams(static_cast<std::size_t>(TeamTable::last) + 1);
    const auto add = [&](const auto& person, int position, long long slot) {
        if (!person.InUse || !TeamTable::Has(person.Team))
            return;
        auto& overalls = teams[static_cast<std::size_t>(person.Team)];
        if (const auto overall = OverallAt(league, position, static_cast<int>(slot)))
            overalls[static_cast<std::size_t>(position - position::Center)].push_back(*overall);
    };
    for (long long slot = 1; slot <= PlayerTable::last; ++slot)
        if (const int position = PositionOf(league.Players[slot]); position < position::Goalie)
            add(league.Players[slot], position, slot);
    for (long long slot = 1; slot <= GoalieTable::last; ++slot)
        add(league.Goalies[slot], position::Goalie, slot);
    return teams;
}

// The best `most` of them, best first.
std::vector<int> BestOf(std::vector<int> overalls, std::size_t most)
{
    most = std::min(most, overalls.size());
    std::partial_sort(overalls.begin(), overalls.begin() + static_cast<std::ptrdiff_t>(most), overalls.end(),
                      std::greater<>());
    overalls.resize(most);
    return overalls;
}

double MeanOf(const std::vector<int>& overalls)
{
    return std::accumulate(overalls.begin(), overalls.end(), 0.0) / static_cast<double>(overalls.size());
}

TeamStrength StrengthOf(const Overalls& people)
{
    std::vector<int> skaters;
    for (int position = position::Center; position <= position::Defense; ++position) {
        const auto& those = people[static_cast<std::size_t>(position - position::Center)];
        skaters.insert(skaters.end(), those.begin(), those.end());
    }
    TeamStrength strength;
    if (!skaters.empty())
        strength.Skaters = RoundToInt16(MeanOf(BestOf(std::move(skaters), CountingSkaters)));
    if (const auto& goalies = people.back(); !goalies.empty())
        strength.Goalie = *std::max_element(goalies.begin(), goalies.end());
    return strength;
}

std::vector<int> PositionsOf(StrongIn what)
{
    switch (what) {
    case StrongIn::CenterPair:
        return {position::Center};
    case StrongIn::Wings:
        return {position::LeftWing, position::RightWing};
    case StrongIn::DefensePairs:
        return {position::Defense};
    case StrongIn::Goalies:
        break;
    }
    return {position::Goalie};
}

std::optional<double> MeanIn(const Overalls& people, const StrongInRow& row)
{
    std::vector<int> counting;
    for (const int position : PositionsOf(row.What)) {
        const auto best = BestOf(people[static_cast<std::size_t>(position - position::Center)], row.PerPosition);
        if (best.size() < row.PerPosition)
            return std::nullopt;
        counting.insert(counting.end(), best.begin(), best.end());
    }
    return MeanOf(counting);
}

PositionRank RankIn(const Tables& league, const std::vector<Overalls>& teams, int team, const StrongInRow& row)
{
    std::vector<double> means;
    for (int number = TeamTable::first; number <= TeamTable::last; ++number)
        if (league.Teams[number].InUse)
            if (const auto mean = MeanIn(teams[static_cast<std::size_t>(number)], row))
                means.push_back(*mean);
    std::sort(means.begin(), means.end(), std::greater<>());
    PositionRank rank{.Mean = MeanIn(teams[static_cast<std::size_t>(team)], row)};
    rank.Teams = static_cast<int>(means.size());
    if (means.empty())
        return rank;
    rank.Best = means.front();
    rank.Median = (means[(means.size() - 1) / 2] + means[means.size() / 2]) / 2;
    if (rank.Mean)
        rank.Rank = 1 + static_cast<int>(
                            std::count_if(means.begin(), means.end(), [&](double mean) { return mean > *rank.Mean; }));
    return rank;
}

} // namespace

TeamStrengths StrengthOfTeams(const Tables& league)
{
    const std::vector<Overalls> teams = OverallsOfTeams(league);
    TeamStrengths strengths;
    for (int number = TeamTable::first; number <= TeamTable::last; ++number)
        strengths[number] = StrengthOf(teams[static_cast<std::size_t>(number)]);
    return strengths;
}

std::array<PositionRank, StrongInTable.size()> RanksOf(const Tables& league, int team)
{
    if (!TeamTable::Has(team))
        Fail(failure::OutOfRange);
    const std::vector<Overalls> teams = OverallsOfTeams(league);
    std::array<PositionRank, StrongInTable.size()> ranks;
    std::transform(StrongInTable.begin(), StrongInTable.end(), ranks.begin(),
                   [&](const StrongInRow& row) { return RankIn(league, teams, team, row); });
    return ranks;
}

} // namespace dravik
