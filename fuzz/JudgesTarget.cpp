// Runs the judges, the money rules and the small lookups over tables of any bytes.

#include "fuzz/TableScript.h"
#include "league/Failure.h"
#include "session/Routines.h"

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
    [](const Call& call) { CheckRoster(call.Team, call.First, call.Second, call.Third); },
    [](const Call& call) { CheckSalaryCap(call.Team, call.First); },
    [](const Call& call) { CheckLine(call.Team, call.First, call.Day, call.Second); },
    [](const Call& call) { CheckLineFarm(call.Team, call.First, call.Day, call.Second); },
    [](const Call& call) { CheckLineEmpty(OpenLeague, Machine(), call.Team, call.Day); },
    [](const Call& call) { WaiverCheck(OpenLeague, Machine(), call.Id); },
    [](const Call& call) {
        RequireMoney(ProPayroll(OpenLeague, Machine(), call.Team));
        RequireMoney(FarmPayroll(OpenLeague, Machine(), call.Team));
        RequireMoney(CoachPayroll(OpenLeague, Machine(), call.Team));
        ExpensePerGame(OpenLeague, Machine(), call.Team);
    },
    [](const Call& call) { RequireOverall(CalculateOverall(call.Day, call.Id)); },
    [](const Call& call) { WipesLines(call.Team, call.Day, call.First); },
    [](const Call& call) { WipePlayerFromTeamLines(call.Team, call.Id); },
    [](const Call& call) {
        MayFail([&] {
            PlayOnLineString(call.Team, call.Id, call.Day);
            PlayOnLineStringFarm(call.Team, call.Id, call.Day);
            Require(PlayOnLineInteger(call.Team, call.Id, call.Day) <= 67);
            Require(PlayOnLineIntegerFarm(call.Team, call.Id, call.Day) <= 67);
        });
    },
    [](const Call& call) { MayFail([&] { StandingAgainstCap(call.Team); }); },
    [](const Call& call) {
        MayFail([&] {
            SeasonFigures figures;
            ProjectSeason(call.Team, figures);
        });
    },
    [](const Call& call) {
        PlayerStatCount = call.First ? 15 : 7;
        GoalieStatCount = call.First ? 13 : 7;
        MayFail([&] { SkaterStatRows(call.Id); });
        MayFail([&] { GoalieStatRows(call.Id); });
    },
};

} // namespace

void RunTarget(Input input) { RunScript(input, Routines); }

} // namespace dravik::fuzz
