#include "desk/TakeLines.h"

#include "desk/CopyLines.h"
#include "files/LinesFile.h"
#include "league/PersonId.h"
#include "rules/DaySlots.h"
#include "rules/LineJudge.h"

#include <algorithm>
#include <memory>
#include <set>

namespace dravik {

namespace {

const Lines& DayOf(const Team& team, Side side, int day)
{
    return side == Side::Pro ? team.ProLines[day] : team.Farm.FarmLines[day];
}

// Empties the slots that hold nobody's number: no judge can look them up. Adds whoever is on another team, or on none, to `gone`.
void LookWhoIsGone(const Tables& league, int team, Lines& day, std::set<int>& gone)
{
    for (const DaySlot& slot : DaySlots) {
        const PersonId who{.IsGoalie = slot.IsGoalies(), .Slot = static_cast<int>(At(day, slot))};
        if (who.Slot == 0)
            continue;
        if (!who.HasSlot())
            At(day, slot) = 0;
        else if (OnPerson(league, who, [team](const auto& person) { return person.Team != team; }))
            gone.insert(who.CommonId());
    }
}

} // namespace

LoadedFile TakeLines(const Work& work, const FileAccess& files, int team, const std::string& path,
                     const std::vector<Side>& sides, bool movedOn)
{
    LoadedFile loaded;
    const auto written = std::make_unique<Team>();
    loaded.Outcome = ReadTeamOfLinesFile(work.League, files, team, path, *written);
    const Team& own = work.League.Teams[team];
    loaded.Words = LoadedWords(loaded.Outcome, "Lines", own.Name.Trimmed(), path);
    if (loaded.Outcome != TeamFileRead::Loaded)
        return loaded;
    const auto played = movedOn ? static_cast<int>(own.GamesPlayed) - static_cast<int>(written->GamesPlayed) : 0;
    const int days = LineDays - std::clamp(played, 0, LineDays);
    std::set<int> gone;
    std::vector<std::string> incomplete;
    for (const Side side : sides) {
        for (int day = 1; day <= days; ++day) {
            Lines& to = LinesOf(work.League, team, day, side);
            CopyDay(DayOf(*written, side, day + LineDays - days), to);
            LookWhoIsGone(work.League, team, to, gone);
        }
        for (int day = 1; day <= days; ++day)
            if (!JudgeDay(work, team, side, day, false))
                incomplete.push_back((side == Side::Pro ? "Lines #" : "Farm Lines #") + std::to_string(day) +
                                     " are incomplete!");
    }
    loaded.TakenIn.Count = days;
    std::vector<std::string>& told = loaded.TakenIn.Told;
    if (days == 0)
        told.emplace_back("All of its days have been played.");
    for (const int id : gone)
        told.push_back(NameOfNumber(work.League, id) + " is no more in the team.");
    told.insert(told.end(), incomplete.begin(), incomplete.end());
    return loaded;
}

} // namespace dravik
