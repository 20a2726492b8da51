#pragma once

namespace dravik {

// How much of a season can be told.
enum class SeasonForm {
    NoSeason,   // fewer than two games: every figure is 0, the account stands as it is
    NoAverages, // no home game played, or averages hidden: games left are told, money is 0, the account stands as it is
    Full
};

// The money of a team's season. Figures that the form does not tell are 0.
struct SeasonProjection {
    SeasonForm Form = SeasonForm::NoSeason;
    int Cash = 0;
    int ProPayroll = 0;
    int FarmPayroll = 0;
    double HomeGamesLeft = 0; // an odd season leaves a half
    int GamesLeft = 0;        // home and away
    int ExpensePerGame = 0;
    int SeasonExpense = 0;
    double AverageAttendance = 0; // in form Full shown with two digits behind the point, otherwise as 0
    double AverageIncome = 0;
    int Revenue = 0;
    int BankAccount = 0;
};

// Works out the season of `team` (1..100; anything else fails with 9). Counts home games only for income, and all games
// left for expenses. Fails with 6 when a figure does not fit 32 bits; shows nothing of its own.
SeasonProjection ProjectSeason(int team);

} // namespace dravik
