// Runs the makers over tables of any bytes, and the judges over what they made.

#include "fuzz/TableScript.h"
#include "makers/Makers.h"
#include "rules/LineJudge.h"
#include "session/Session.h"

namespace dravik::fuzz {

namespace {

constexpr Routine Routines[] = {
    [](const Call& call) { AutoRoster(OpenWork(), call.Team, call.First, call.Second); },
    [](const Call& call) { AutoLines(OpenWork(), call.Team, call.First, call.Day); },
    [](const Call& call) { AutoLinesPartial(OpenWork(), call.Team, call.First, call.Day); },
    [](const Call& call) { AutoLinesFarm(OpenWork(), call.Team, call.First, call.Day); },
    [](const Call& call) { CheckLine(OpenWork(), call.Team, call.First, call.Day, call.Second); },
    [](const Call& call) { CheckLineFarm(OpenWork(), call.Team, call.First, call.Day, call.Second); },
};

} // namespace

void RunTarget(Input input) { RunScript(input, Routines); }

} // namespace dravik::fuzz
