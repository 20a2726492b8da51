#pragma once

#include "league/PersonId.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Table.h"

#include <string>
#include <vector>

// People as the terminal shows them.
namespace dravik::terminal {

// What everybody may know of a person of a league: the names of the columns, and his cells. What the league hides, the overall or the
// single ratings, has no column.
std::vector<std::string> FactColumns(const Tables& league);
std::vector<Json> FactsOf(LeagueAtHand& league, PersonId who);

// What his team alone knows: where he stands, and his flags. Null where `isProven` is false.
std::vector<std::string> PrivateColumns();
std::vector<Json> PrivateCells(const Tables& league, PersonId who, bool isProven);

// The columns of one, and behind them those of the other.
template <class Cells>
Cells Joined(Cells first, const Cells& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace dravik::terminal
