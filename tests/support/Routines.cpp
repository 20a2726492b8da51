#include "support/Routines.h"

#include <optional>
#include <utility>

namespace dravik {

Int16 RosterFixed;

namespace {

// A judgement and whom it was about.
template <class Verdict>
struct Judged {
    int Team = 0;
    Verdict Found = {};
};

// What was found last. The words are made when somebody asks for them.
Judged<RosterVerdict> LastRoster;
Judged<std::optional<CapVerdict>> LastCap;
LineVerdict LastLines;

void KeepRosterFixed(std::optional<bool> repaired)
{
    if (repaired)
        RosterFixed = *repaired ? 1 : 0;
}

} // namespace

bool CheckRoster(int team, bool log, bool withSalaryCap, bool showMessage)
{
    RosterVerdict verdict = CheckRoster(OpenWork(), team, log, withSalaryCap, showMessage);
    const bool complete = verdict.Complete;
    if (TeamTable::Has(team)) {
        KeepRosterFixed(verdict.Repaired);
        if (withSalaryCap)
            LastCap = {team, verdict.Cap};
        LastRoster = {team, std::move(verdict)};
    }
    return complete;
}

std::string LastRosterText() { return TextOf(OpenLeague, LastRoster.Team, LastRoster.Found); }

bool CheckSalaryCap(int team, bool showMessage)
{
    const CapVerdict verdict = CheckSalaryCap(OpenWork(), team, showMessage);
    if (TeamTable::Has(team))
        LastCap = {team, verdict};
    return verdict.Within;
}

std::string LastCapText()
{
    return LastCap.Found ? TextOf(OpenLeague, Machine(), LastCap.Team, *LastCap.Found) : std::string();
}

bool CheckLine(int team, bool showMessage, int day, bool log)
{
    LastLines = CheckLine(OpenWork(), team, showMessage, day, log);
    return LastLines.Complete;
}

bool CheckLineFarm(int team, bool showMessage, int day, bool log)
{
    LastLines = CheckLineFarm(OpenWork(), team, showMessage, day, log);
    return LastLines.Complete;
}

LineVerdict VerdictOnLine(int team, bool showMessage, int day, bool log)
{
    CheckLine(team, showMessage, day, log);
    return LastLines;
}

LineVerdict VerdictOnLineFarm(int team, bool showMessage, int day, bool log)
{
    CheckLineFarm(team, showMessage, day, log);
    return LastLines;
}

std::string LastLinesText() { return TextOf(OpenLeague, LastLines); }

void AutoRoster(int team, bool verbose, bool partial)
{
    KeepRosterFixed(AutoRoster(OpenWork(), team, verbose, partial).RosterRepaired);
}
void AutoLines(int team, bool verbose, int day)
{
    KeepRosterFixed(AutoLines(OpenWork(), team, verbose, day).RosterRepaired);
}
void AutoLinesPartial(int team, bool verbose, int day)
{
    KeepRosterFixed(AutoLinesPartial(OpenWork(), team, verbose, day).RosterRepaired);
}
void AutoLinesFarm(int team, bool verbose, int day)
{
    KeepRosterFixed(AutoLinesFarm(OpenWork(), team, verbose, day).RosterRepaired);
}

} // namespace dravik
