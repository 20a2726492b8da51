#pragma once

#include "league/Positions.h"
#include "machine/Formats.h"
#include "rules/LineSlots.h"
#include "rules/SalaryCap.h"
#include "rules/TeamStrength.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

// What a team looks like in numbers, to be drawn and to stand in tables. Nothing is told or changed.
namespace dravik {

// The payroll of `team` (1..100) this season and in the seasons behind it, as far as somebody's contract goes, at most nine: each
// is what the judge of the cap would reckon if every contract had run so many years less, and nothing else had changed. Fails
// like StandingAgainstCap.
std::vector<CapStanding> PayrollByYears(const Tables& league, int team);

// How many people of a team are of an age, position by position.
struct AgeRow {
    std::string_view Words; // "21 to 23"
    int From;
    int To;
};
inline constexpr std::array<AgeRow, 7> AgeRows{{{"20 or less", -32768, 20},
                                                {"21 to 23", 21, 23},
                                                {"24 to 26", 24, 26},
                                                {"27 to 29", 27, 29},
                                                {"30 to 32", 30, 32},
                                                {"33 to 35", 33, 35},
                                                {"36 or more", 36, 32767}}};
using Ages = std::array<std::array<int, position::Goalie>, AgeRows.size()>;
// Those of `team` (any number), in the order of AgeRows; within one centers, left wings, right wings, defensemen, goalies. A
// skater without a position counts nowhere.
Ages AgesOf(const Tables& league, int team);

// A day of the pro lines beside whom they play.
struct DayStrength {
    std::optional<int>
        Own; // the mean over the skaters of its whole normal lines and pairs, each as StrengthOfLines has it
    std::optional<int> Goalie; // the overall of the starting goalie
    std::optional<int> OpponentNumber;
    TeamStrength Opponent; // nothing of a game that the league does not show
};
// The ten days of `team` (1..100), day 1 first; none in a league that hides overalls. Opponents are those of the calendar, as far
// as it is shown. Each counts in the position of his record; rounded to the nearest integer, ties to even.
std::vector<DayStrength> StrengthOfDays(const Tables& league, int team);

} // namespace dravik
