#pragma once

#include "league/Tables.h"
#include "machine/Formats.h"

#include <array>
#include <string>
#include <vector>

// What an evening is for, and how far it is: the board on a team's screen.
namespace dravik {

// What there is to do, in the order of an evening.
enum class EveningTask { Roster, Lines, FarmLines, Tickets, Offers, Ranking };
inline constexpr std::size_t EveningTasks = 6;

enum class EveningState {
    Done,  // nothing is wrong with it
    Wrong, // a judge holds something against it
    Empty, // there is nothing yet, and nothing has to be
    Closed // the league has it closed
};

struct EveningItem {
    EveningTask Task{};
    EveningState State{};
    int Count = 0;                     // of what is wrong: findings of a roster, days of lines
    std::string Words;                 // "7 of 10 days complete"
    std::vector<std::string> Findings; // what more there is to say, a line each: the judges' own words, the cap
};
using EveningBoard = std::array<EveningItem, EveningTasks>;

// What a team has on the market.
struct OnTheMarket {
    int Offers = 0;
    int Ranked = 0;
};

// Looks at all of it for `team` (1..100): the roster with the cap, every day of the lines of both sides, the prices. `scratch` is
// overwritten with a copy of the league, on which the judges repair what they like; `league` does not change, and nobody is told
// anything.
EveningBoard LookAtEvening(const Tables& league, const Formats& shown, int team, const OnTheMarket& market,
                           Tables& scratch);

} // namespace dravik
