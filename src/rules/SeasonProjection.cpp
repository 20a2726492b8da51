#include "rules/SeasonProjection.h"

#include "league/Arithmetic.h"
#include "rules/Finance.h"

namespace dravik {

namespace {

// What stands where the season tells no expenses, averages and revenue.
void TellNoMoney(SeasonFigures& season)
{
    season.ExpensePerGame = 0;
    season.SeasonExpense = 0;
    season.AverageAttendance = 0;
    season.AverageIncome = 0;
    season.BankAccount = season.Cash;
    season.Revenue = 0;
}

} // namespace

void ProjectSeason(const Tables& league, Voice& says, int team, SeasonFigures& season)
{
    season = {};
    const Team& record = league.Teams[team];
    const auto cash = static_cast<int>(record.Cash);
    season.Cash = cash;
    season.ProPayroll = RoundToInt32(ProPayroll(league, says, team));
    season.FarmPayroll = RoundToInt32(FarmPayroll(league, says, team));
    if (record.SeasonGames < 2) {
        season.HomeGamesLeft = 0;
        season.GamesLeft = 0;
        TellNoMoney(season);
        return;
    }

    const int expense = ExpensePerGame(league, says, team);
    const long long gamesLeft = record.SeasonGames - record.GamesPlayed;
    const long long seasonExpense = Limit32(gamesLeft * expense);
    const double homeLeft = static_cast<double>(record.SeasonGames) / 2 - static_cast<double>(record.HomeGames);
    season.HomeGamesLeft = homeLeft;
    season.GamesLeft = static_cast<int>(gamesLeft);
    season.Form = SeasonForm::NoAverages;
    if (record.HomeGames <= 0 || league.LeagueData.HideFinanceAverages) {
        TellNoMoney(season);
        return;
    }

    const auto homeGames = static_cast<double>(record.HomeGames);
    season.Form = SeasonForm::Full;
    season.ExpensePerGame = expense;
    season.SeasonExpense = static_cast<int>(seasonExpense);
    const double averageIncome = static_cast<double>(record.TotalIncome) / homeGames;
    const int revenue = RoundToInt32(homeLeft * averageIncome);
    season.AverageAttendance = static_cast<double>(record.TotalAttendance) / homeGames;
    season.AverageIncome = averageIncome;
    season.BankAccount = static_cast<int>(Limit32(Limit32(cash + static_cast<long long>(revenue)) - seasonExpense));
    season.Revenue = revenue;
}

} // namespace dravik
