#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"
#include "rules/NextGames.h"
#include "rules/TeamStrength.h"

#include <optional>
#include <vector>

namespace dravik {

// A game of the season that is left to a team.
struct CalendarDay {
    NextGame Game;
    int InARow = 1;                       // how many days with a game this one ends, without a day off in between
    std::optional<TeamStrength> Opponent; // none where the league hides overalls, or where nobody is the opponent
    std::optional<int> Day;               // 1..10, the day of the lines that are for it; none behind the tenth
    int Starter = 0;                      // who starts in goal by those lines, his slot; 0 for nobody
};

// The season that is left to the pro team of `team` (1..100), in the order of the calendar. Nothing where the league hides it.
// Games that were played are no part of it, nor of the days in a row.
std::vector<CalendarDay> SeasonLeft(const Tables& league, int team);

// Whether the goalies of `team` may be chosen, as its pro lines may be made: with a complete roster alone. A copy is judged,
// and nobody is told anything.
bool MayChooseStarters(const Tables& league, const Formats& shown, int team);

// Has a goalie start on a day (1..10) of the pro lines of `team` (1..100). The backup of that day and the starter change
// places; anybody else takes the starter's. False, with nothing done, for one who starts already, and for no goalie.
bool StartInGoal(const Work& work, int team, int day, PersonId keeper);

} // namespace dravik
