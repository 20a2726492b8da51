// Runs the judges, the money rules and the small lookups over tables of any bytes.

#include "fuzz/TableScript.h"
#include "league/Failure.h"
#include "rules/Finance.h"
#include "rules/LineJudge.h"
#include "rules/LineLookups.h"
#include "rules/Overall.h"
#include "rules/RosterJudge.h"
#include "rules/SalaryCap.h"
#include "rules/SeasonProjection.h"
#include "rules/StatRows.h"
#include "rules/Waivers.h"
#include "rules/WipeLines.h"
#include "session/Session.h"

#include <array>
#include <cmath>
#include <limits>

namespace dravik::fuzz {

namespace {

// A routine that tells its caller of a failure instead of the general manager. It may fail, with a number that is known.
template <class Body>
void MayFail(Body&& body)
{
    try {
        body();
    } catch (const Failure& failed) {
        Require(failed.Number == failure::Overflow || failed.Number == failure::OutOfRange);
    }
}

void RequireMoney(float sum) { Require(std::isfinite(sum)); }

void RequireOverall(int overall) { Require(overall <= 99 && overall >= std::numeric_limits<std::int16_t>::min()); }

constexpr Routine Routines[] = {
    [](const Call& call) { CheckRoster(OpenWork(), call.Team, call.First, call.Second, call.Third); },
    [](const Call& call) { CheckSalaryCap(OpenWork(), call.Team, call.First); },
    [](const Call& call) { CheckLine(OpenWork(), call.Team, call.First, call.Day, call.Second); },
    [](const Call& call) { CheckLineFarm(OpenWork(), call.Team, call.First, call.Day, call.Second); },
    [](const Call& call) { CheckLineEmpty(OpenLeague, Machine(), call.Team, call.Day); },
    [](const Call& call) { WaiverCheck(OpenLeague, Machine(), call.Id); },
    [](const Call& call) {
        RequireMoney(ProPayroll(OpenLeague, Machine(), call.Team));
        RequireMoney(FarmPayroll(OpenLeague, Machine(), call.Team));
        RequireMoney(CoachPayroll(OpenLeague, Machine(), call.Team));
        ExpensePerGame(OpenLeague, Machine(), call.Team);
    },
    [](const Call& call) { RequireOverall(CalculateOverall(OpenLeague, Machine(), call.Day, call.Id)); },
    [](const Call& call) { WipesLines(OpenLeague, Machine(), call.Team, call.Day, call.First); },
    [](const Call& call) { WipePlayerFromTeamLines(OpenLeague, Machine(), call.Team, call.Id); },
    [](const Call& call) {
        MayFail([&] {
            PlayOnLineString(OpenLeague, call.Team, call.Id, call.Day);
            PlayOnLineStringFarm(OpenLeague, call.Team, call.Id, call.Day);
            Require(PlayOnLineInteger(OpenLeague, call.Team, call.Id, call.Day) <= 67);
            Require(PlayOnLineIntegerFarm(OpenLeague, call.Team, call.Id, call.Day) <= 67);
        });
    },
    [](const Call& call) { MayFail([&] { StandingAgainstCap(OpenLeague, call.Team); }); },
    [](const Call& call) {
        MayFail([&] {
            SeasonFigures figures;
            ProjectSeason(OpenLeague, Machine(), call.Team, figures);
        });
    },
    [](const Call& call) {
        PlayerStatCount = call.First ? 15 : 7;
        GoalieStatCount = call.First ? 13 : 7;
        MayFail([&] { SkaterStatRows(OpenLeague, Machine(), call.Id, static_cast<int>(PlayerStatCount)); });
        MayFail([&] { GoalieStatRows(OpenLeague, Machine(), call.Id, static_cast<int>(GoalieStatCount)); });
    },
};

} // namespace

void RunTarget(Input input) { RunScript(input, Routines); }

} // namespace dravik::fuzz
