#pragma once

#include "league/Tables.h"
#include "machine/Voice.h"

#include <optional>

namespace dravik {

// How much of a season can be told.
enum class SeasonForm {
    NoSeason,   // fewer than two games: every figure is 0, the account stands as it is
    NoAverages, // no home game played, or averages hidden: games left are told, money is 0, the account stands as it is
    Full
};

// The money of a team's season, figure by figure. One that was not reached is empty; one that the form does not tell
// is 0.
struct SeasonFigures {
    SeasonForm Form = SeasonForm::NoSeason; // as far as it is known
    std::optional<int> Cash;
    std::optional<int> ProPayroll;
    std::optional<int> FarmPayroll;
    std::optional<double> HomeGamesLeft; // an odd season leaves a half
    std::optional<int> GamesLeft;        // home and away
    std::optional<int> ExpensePerGame;
    std::optional<int> SeasonExpense;
    std::optional<double> AverageAttendance; // in form Full shown with two digits behind the point, otherwise as 0
    std::optional<double> AverageIncome;
    std::optional<int> BankAccount;
    std::optional<int> Revenue;
};

// Works out the season of `team` (1..100; anything else fails with 9) into `season`, from empty, in the order in which
// the figures are told. Counts home games only for income, and all games left for expenses. Fails with 6 when a figure
// does not fit 32 bits; `season` then holds what was reached. Shows nothing of its own.
void ProjectSeason(const Tables& league, Voice& says, int team, SeasonFigures& season);

} // namespace dravik
