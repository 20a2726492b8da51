#include "rules/NextGames.h"

#include <iterator>

namespace dravik {

namespace {

// The columns of the calendar that belong to a side.
struct Columns {
    Boolean ScheduleRow::*Game;
    Boolean ScheduleRow::*Played;
    Int16 ScheduleRow::*Home;
    Int16 ScheduleRow::*Away;
};

constexpr Columns Pro{&ScheduleRow::ProGame, &ScheduleRow::ProPlayed, &ScheduleRow::ProHome, &ScheduleRow::ProAway};
constexpr Columns Farm{&ScheduleRow::FarmGame, &ScheduleRow::FarmPlayed, &ScheduleRow::FarmHome,
                       &ScheduleRow::FarmAway};

constexpr const Columns& ColumnsOf(Side side) { return side == Side::Pro ? Pro : Farm; }

} // namespace

bool IsScheduleOpen(const League& rules) { return rules.ScheduleShown && rules.ScheduleBlocked == 0; }

NextGame GameInRow(const Tables& league, Side side, long long row, bool isAway)
{
    const Columns& columns = ColumnsOf(side);
    const ScheduleRow& game = league.GameSchedule[row];
    return {.Row = static_cast<int>(row),
            .GameDay = static_cast<int>(game.GameDay),
            .Opponent = static_cast<int>(isAway ? game.*columns.Home : game.*columns.Away),
            .IsAway = isAway};
}

namespace {

std::vector<NextGame> FirstGames(const Tables& league, int team, Side side, std::ptrdiff_t most)
{
    std::vector<NextGame> games;
    if (!IsScheduleOpen(league.LeagueData))
        return games;
    const Columns& columns = ColumnsOf(side);
    for (auto row = ScheduleTable::first; row <= ScheduleTable::last && std::ssize(games) < most; ++row) {
        const ScheduleRow& game = league.GameSchedule[row];
        // A word that is neither True nor False is no game, and a game that is neither played nor not is none to come.
        const bool isToCome = game.*columns.Game && (game.*columns.Played).Word() == 0;
        const bool isHome = game.*columns.Home == team;
        if (isToCome && (isHome || game.*columns.Away == team))
            games.push_back(GameInRow(league, side, row, !isHome));
    }
    return games;
}

} // namespace

std::vector<NextGame> NextGames(const Tables& league, int team, Side side)
{
    return FirstGames(league, team, side, LineDays);
}

std::vector<NextGame> GamesToCome(const Tables& league, int team, Side side)
{
    return FirstGames(league, team, side, ScheduleTable::last);
}

} // namespace dravik
