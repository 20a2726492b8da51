#include "rules/SeasonProjection.h"

#include "league/Arithmetic.h"
#include "league/ClientVariable.h"
#include "rules/Function.h"

namespace dravik {

SeasonProjection ProjectSeason(int team)
{
    const Team& record = Teams[team];
    SeasonProjection season;
    season.Cash = static_cast<int>(record.Cash);
    season.BankAccount = season.Cash;
    season.ProPayroll = RoundToInt32(ProPayroll(team));
    season.FarmPayroll = RoundToInt32(FarmPayroll(team));
    if (record.SeasonGames < 2)
        return season;

    const int expense = ExpensePerGame(team);
    const long long gamesLeft = record.SeasonGames - record.GamesPlayed;
    const long long seasonExpense = Limit32(gamesLeft * expense);
    season.HomeGamesLeft = static_cast<double>(record.SeasonGames) / 2 - static_cast<double>(record.HomeGames);
    season.GamesLeft = static_cast<int>(gamesLeft);
    season.Form = SeasonForm::NoAverages;
    if (record.HomeGames <= 0 || LeagueData.HideFinanceAverages)
        return season;

    const auto homeGames = static_cast<double>(record.HomeGames);
    season.Form = SeasonForm::Full;
    season.ExpensePerGame = expense;
    season.SeasonExpense = static_cast<int>(seasonExpense);
    season.AverageAttendance = static_cast<double>(record.TotalAttendance) / homeGames;
    season.AverageIncome = static_cast<double>(record.TotalIncome) / homeGames;
    season.Revenue = RoundToInt32(season.HomeGamesLeft * season.AverageIncome);
    season.BankAccount = static_cast<int>(Limit32(Limit32(record.Cash + season.Revenue) - seasonExpense));
    return season;
}

} // namespace dravik
