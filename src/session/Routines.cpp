#include "session/Routines.h"

#include "session/RosterFixed.h"

namespace dravik {

namespace {

// What was said last.
std::string RosterText;
std::string CapText;
std::string LinesText;

LineVerdict Kept(LineVerdict verdict)
{
    LinesText = TextOf(OpenLeague, verdict);
    return verdict;
}

} // namespace

bool CheckRoster(int team, bool log, bool withSalaryCap, bool showMessage)
{
    const RosterVerdict verdict = CheckRoster(OpenWork(), team, log, withSalaryCap, showMessage);
    if (TeamTable::Has(team)) {
        RosterFixed = verdict.Repaired ? 1 : 0;
        RosterText = TextOf(OpenLeague, team, verdict);
        if (withSalaryCap)
            CapText = verdict.Cap ? TextOf(OpenLeague, Machine(), team, *verdict.Cap) : std::string();
    }
    return verdict.Complete;
}

const std::string& LastRosterText() { return RosterText; }

bool CheckSalaryCap(int team, bool showMessage)
{
    const CapVerdict verdict = CheckSalaryCap(OpenWork(), team, showMessage);
    if (TeamTable::Has(team))
        CapText = TextOf(OpenLeague, Machine(), team, verdict);
    return verdict.Within;
}

const std::string& LastCapText() { return CapText; }

LineVerdict VerdictOnLine(int team, bool showMessage, int day, bool log)
{
    return Kept(CheckLine(OpenWork(), team, showMessage, day, log));
}

LineVerdict VerdictOnLineFarm(int team, bool showMessage, int day, bool log)
{
    return Kept(CheckLineFarm(OpenWork(), team, showMessage, day, log));
}

bool CheckLine(int team, bool showMessage, int day, bool log)
{
    return VerdictOnLine(team, showMessage, day, log).Complete;
}

bool CheckLineFarm(int team, bool showMessage, int day, bool log)
{
    return VerdictOnLineFarm(team, showMessage, day, log).Complete;
}

const std::string& LastLinesText() { return LinesText; }

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
