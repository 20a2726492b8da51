#include "league/Message.h"
#include "league/Reporting.h"
#include "rules/Function.h"
#include "rules/LineJudge.h"

namespace dravik {

namespace {

constexpr LineRules StrictRules{.Side = Side::Farm,
                                .Status = status::Farm,
                                .JudgesEmptySlots = true,
                                .ComparesLinesOneAndTwo = true,
                                .PPForwardHead = "PP line",
                                .PK3ForwardCaption = " RW",
                                .HeadCount = HeadCount::AtLeastToo,
                                .Closing = ""};

constexpr LineRules LenientRules{.Side = Side::Farm,
                                 .Status = status::Farm,
                                 .JudgesEmptySlots = false,
                                 .ComparesLinesOneAndTwo = false,
                                 .PPForwardHead = "",
                                 .PK3ForwardCaption = "",
                                 .HeadCount = HeadCount::AtMost,
                                 .Closing = ""};

// A farm line-up must be as complete as a pro one. Its failures are told under the pro judge's name.
bool CheckLineFarmStrict(int team, bool showMessage, int day, bool log)
{
    bool complete = false;
    Reporting(" in CheckLine!", [&] { complete = JudgeLines(team, day, StrictRules, showMessage, log); });
    return complete;
}

} // namespace

bool CheckLineFarm(int team, bool showMessage, int day, bool log)
{
    bool complete = false;
    Reporting(" in CheckLineFarm!", [&] {
        ForgetLineVerdict();
        if (!LeagueData.FarmEnabled)
            complete = true;
        else if (!HasLineDay(team, day))
            ShowIntegrityFailure();
        else if (LeagueData.FarmRosterRequired)
            complete = CheckLineFarmStrict(team, showMessage, day, log);
        else
            complete = JudgeLines(team, day, LenientRules, showMessage, log);
    });
    return complete;
}

LineVerdict VerdictOnLineFarm(int team, bool showMessage, int day, bool log)
{
    return LastLineVerdict(CheckLineFarm(team, showMessage, day, log));
}

} // namespace dravik
