#include "desk/TeamCheck.h"

#include "rules/LineJudge.h"
#include "rules/People.h"

#include <algorithm>

namespace dravik {

namespace {

// What the judge of a roster changes: people of the team, the word on each, and the team's lines.
template <class People, class Changes>
void PutBack(const People& from, const Changes& changesFrom, int team, People& people, Changes& changes)
{
    EachOfTeam(from, team, [&](const auto& person, int index) {
        people[index] = person;
        changes[index] = changesFrom[index];
    });
}

bool AreAllComplete(const DayVerdicts& days)
{
    return std::all_of(days.begin(), days.end(), [](const LineVerdict& day) { return day.Complete; });
}

} // namespace

bool TeamCheck::IsComplete() const { return Roster.Complete && AreAllComplete(Pro) && AreAllComplete(Farm); }

DayVerdicts LookAtDaysOn(const Tables& league, const Formats& shown, int team, Side side, Tables& scratch)
{
    MuteVoice mute;
    bool modified = false;
    const Work look{scratch, mute, shown, modified};
    DayVerdicts verdicts;
    for (int day = 1; day <= LineDays; ++day) {
        verdicts[static_cast<std::size_t>(day - 1)] = JudgeDay(look, team, side, day, false);
        // Whom the judge takes out leaves the lines of all days, and lines are all that he changes.
        scratch.Teams[team] = league.Teams[team];
    }
    return verdicts;
}

TeamCheck LookAtTeam(const Tables& league, const Formats& shown, int team, Tables& scratch)
{
    TeamCheck check;
    check.Pro = LookAtDaysOn(league, shown, team, Side::Pro, scratch);
    check.Farm = LookAtDaysOn(league, shown, team, Side::Farm, scratch);
    MuteVoice mute;
    bool modified = false;
    check.Roster = CheckRoster({scratch, mute, shown, modified}, team, false, true, false);
    if (!check.Roster.Repaired && !check.Roster.Failed)
        return check; // he has moved nobody
    PutBack(league.Players, league.RosterChanges, team, scratch.Players, scratch.RosterChanges);
    PutBack(league.Goalies, league.RosterChangesGoalie, team, scratch.Goalies, scratch.RosterChangesGoalie);
    scratch.Teams[team] = league.Teams[team];
    return check;
}

} // namespace dravik
