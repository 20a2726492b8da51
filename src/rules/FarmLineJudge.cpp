#include "machine/Reporting.h"
#include "rules/LineEligibility.h"
#include "rules/LineJudge.h"
#include "rules/LineRules.h"

namespace dravik {

namespace {

constexpr LineRules StrictRules{.Side = Side::Farm,
                                .JudgesEmptySlots = true,
                                .ComparesLinesOneAndTwo = true,
                                .PPForwardHead = "PP line",
                                .PK3ForwardCaption = " RW",
                                .HeadCount = HeadCount::AtLeastToo,
                                .Closing = ""};

constexpr LineRules LenientRules{.Side = Side::Farm,
                                 .JudgesEmptySlots = false,
                                 .ComparesLinesOneAndTwo = false,
                                 .PPForwardHead = "",
                                 .PK3ForwardCaption = "",
                                 .HeadCount = HeadCount::AtMost,
                                 .Closing = ""};

// A farm line-up must be as complete as a pro one. Its failures are told under the pro judge's name.
void CheckLineFarmStrict(const Work& work, int team, bool showMessage, int day, bool log, LineVerdict& verdict)
{
    verdict.Failed = FailureOf(work.Says, " in CheckLine!",
                               [&] { JudgeLines(work, team, day, StrictRules, showMessage, log, verdict); });
}

} // namespace

LineVerdict CheckLineFarm(const Work& work, int team, bool showMessage, int day, bool log)
{
    LineVerdict verdict;
    const League& league = work.League.LeagueData;
    const auto failed = FailureOf(work.Says, " in CheckLineFarm!", [&] {
        if (!AreLinesJudged(league, Side::Farm))
            verdict.Complete = true;
        else if (!HasLineDay(team, day))
            work.Says.ShowIntegrityFailure();
        else if (league.FarmRosterRequired)
            CheckLineFarmStrict(work, team, showMessage, day, log, verdict);
        else
            JudgeLines(work, team, day, LenientRules, showMessage, log, verdict);
    });
    if (failed)
        verdict.Failed = failed;
    return verdict;
}

} // namespace dravik
