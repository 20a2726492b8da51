#pragma once

#include "league/Tables.h"

#include <array>
#include <optional>
#include <vector>

// How strong the teams of a league are by the overalls of their people, whatever list those stand on: facts of persons, and
// nothing that a general manager decides. Where a league hides overalls, whoever shows them does not ask.
namespace dravik {

// The mean overall of a team's best eighteen skaters, or of those that it has, to the nearest integer, ties to even, and the
// overall of its best goalie. None where there is nobody with an overall.
struct TeamStrength {
    std::optional<int> Skaters;
    std::optional<int> Goalie;

    bool operator==(const TeamStrength&) const = default;
};

// Of each team, in the order of the table.
using TeamStrengths = Row<TeamStrength, 1, 100>;
TeamStrengths StrengthOfTeams(const Tables& league);

// What of a team is held against the other teams.
enum class StrongIn { CenterPair, Wings, DefensePairs, Goalies };

struct StrongInRow {
    StrongIn What;
    const char* Words;       // "Center pair"
    const char* BestOf;      // who counts: "its best two centers"
    std::size_t PerPosition; // how many of each position
};
inline constexpr std::array<StrongInRow, 4> StrongInTable{{
    {StrongIn::CenterPair, "Center pair", "its best two centers", 2},
    {StrongIn::Wings, "Wings", "its best two wings on each side", 2},
    {StrongIn::DefensePairs, "Defense pairs", "its best four defensemen", 4},
    {StrongIn::Goalies, "Goalies", "its best two goalies", 2},
}};

// Where a team stands in one of them: the mean overall of those who count, its rank (1 is the best; teams that are alike
// share one), how many teams are ranked, and the best and the median mean of the league.
struct PositionRank {
    std::optional<double> Mean; // none, and no rank, where the team lacks somebody who counts
    int Rank = 0;
    int Teams = 0;
    double Best = 0;
    double Median = 0;

    bool operator==(const PositionRank&) const = default;
};
// Of `team` (1..100) against all teams in use, in the order of StrongInTable. A team that lacks somebody who counts is not
// ranked.
std::array<PositionRank, StrongInTable.size()> RanksOf(const Tables& league, int team);

} // namespace dravik
