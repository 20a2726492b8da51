#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"

#include <optional>
#include <string_view>

// When a team pulls its goalie for another one.
namespace dravik {

// The two values of a day: the least number of goals against, and the save percentage under which it happens.
enum class GoaliePull { MinGoal, MinPct };

// What is shown of a value of a day (1..10) of `team` (1..100): the team's own, or the league's default where that is 0. Fails
// with 9 out of range.
long long ShownGoaliePull(const Tables& league, int team, int day, Side side, GoaliePull value);

// The number that a text stands for, of whatever size: the one at its head. Nothing for a text that is none, which is told in
// a warning box.
std::optional<double> GoaliePullNumber(Voice& says, std::string_view text);

// Stores such a number, rounded to nearest with ties to even. Beyond 16 bits it fails with 6, and the team's value stays.
void SetGoaliePull(const Work& work, int team, int day, Side side, GoaliePull value, double number);

} // namespace dravik
