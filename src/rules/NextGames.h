#pragma once

#include "rules/LineSlots.h"

#include <vector>

namespace dravik {

// One of the games that a team has still to play.
struct NextGame {
    int Row;      // of the calendar, 1..5000
    int GameDay;  // as the calendar numbers its days
    int Opponent; // a team's number; a damaged calendar may name a team that is none
    bool IsAway;  // `team` is the visitor; one that plays itself is at home

    bool operator==(const NextGame&) const = default;
};

// Whether the league lets its general managers see the calendar.
bool IsScheduleOpen(const League& rules);

// The next games of `team` (1..100), pro or farm, at most ten, in the order of the calendar: lines of day 1 are for the
// first of them. None where the league hides its calendar.
std::vector<NextGame> NextGames(const Tables& league, int team, Side side);

// All of them to the end of the season, which NextGames begins with.
std::vector<NextGame> GamesToCome(const Tables& league, int team, Side side);

// What a row (1..5000) of the calendar says to the home team or to the visitor. Fails with 9 outside the calendar.
NextGame GameInRow(const Tables& league, Side side, long long row, bool isAway);

} // namespace dravik
