#include "machine/Reporting.h"
#include "rules/LineJudge.h"
#include "rules/LineRules.h"

namespace dravik {

namespace {

// A farm line-up must be as complete as a pro one. Its failures are told under the pro judge's name.
void CheckLineFarmStrict(const Work& work, int team, const LineRules& rules, bool showMessage, int day, bool log,
                         LineVerdict& verdict)
{
    verdict.Failed =
        FailureOf(work.Says, " in CheckLine!", [&] { JudgeLines(work, team, day, rules, showMessage, log, verdict); });
}

} // namespace

LineVerdict CheckLineFarm(const Work& work, int team, bool showMessage, int day, bool log)
{
    LineVerdict verdict;
    const League& league = work.League.LeagueData;
    const auto failed = FailureOf(work.Says, " in CheckLineFarm!", [&] {
        const LineRules* rules = LineRulesOf(league, Side::Farm);
        if (rules == nullptr)
            verdict.Complete = true;
        else if (!HasLineDay(team, day))
            work.Says.ShowIntegrityFailure();
        else if (league.FarmRosterRequired)
            CheckLineFarmStrict(work, team, *rules, showMessage, day, log, verdict);
        else
            JudgeLines(work, team, day, *rules, showMessage, log, verdict);
    });
    if (failed)
        verdict.Failed = failed;
    return verdict;
}

} // namespace dravik
