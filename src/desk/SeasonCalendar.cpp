#include "desk/SeasonCalendar.h"

#include "desk/PlaceOnLine.h"
#include "rules/DaySlots.h"
#include "rules/RosterJudge.h"

#include <algorithm>

namespace dravik {

namespace {

const DaySlot& GoalieSlot(int word)
{
    return *std::find_if(DaySlots.begin(), DaySlots.end(), [word](const DaySlot& slot) { return slot.Word == word; });
}

} // namespace

std::vector<CalendarDay> SeasonLeft(const Tables& league, int team)
{
    std::vector<CalendarDay> season;
    const bool areOverallsShown = static_cast<bool>(league.LeagueData.ShowOverall);
    const TeamStrengths strengths = areOverallsShown ? StrengthOfTeams(league) : TeamStrengths{};
    for (const NextGame& game : GamesToCome(league, team, Side::Pro)) {
        CalendarDay day{.Game = game, .Opponent = {}, .Day = {}};
        if (!season.empty() && game.GameDay == season.back().Game.GameDay + 1)
            day.InARow = season.back().InARow + 1;
        if (areOverallsShown && TeamTable::Has(game.Opponent))
            day.Opponent = strengths[game.Opponent];
        if (const int number = static_cast<int>(season.size()) + 1; number <= LineDays) {
            day.Day = number;
            day.Starter = static_cast<int>(LinesOf(league, team, number, Side::Pro).StartGoalie);
        }
        season.push_back(day);
    }
    return season;
}

bool MayChooseStarters(const Tables& league, const Formats& shown, int team)
{
    const auto copy = Copy(league);
    MuteVoice mute;
    bool modified = false;
    return CheckRoster({*copy, mute, shown, modified}, team, false, true, false).Complete;
}

bool StartInGoal(const Work& work, int team, int day, PersonId keeper)
{
    const Lines& lines = LinesOf(work.League, team, day, Side::Pro);
    if (!keeper.IsGoalie || lines.StartGoalie == keeper.Slot)
        return false;
    const DaySlot& start = GoalieSlot(StartGoalieWord);
    const bool isBackup = lines.BackupGoalie == keeper.Slot;
    const bool changed = (isBackup && SwapOnLine(work, team, day, Side::Pro, start, GoalieSlot(BackupGoalieWord))) ||
                         PlaceOnLine(work, team, day, Side::Pro, start, keeper, position::Goalie);
    work.Modified = work.Modified || changed;
    return changed;
}

} // namespace dravik
