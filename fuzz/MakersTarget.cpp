// Runs the makers over tables of any bytes, and the judges over what they made.

#include "fuzz/TableScript.h"
#include "session/Routines.h"

namespace dravik::fuzz {

namespace {

constexpr Routine Routines[] = {
    [](const Call& call) { AutoRoster(call.Team, call.First, call.Second); },
    [](const Call& call) { AutoLines(call.Team, call.First, call.Day); },
    [](const Call& call) { AutoLinesPartial(call.Team, call.First, call.Day); },
    [](const Call& call) { AutoLinesFarm(call.Team, call.First, call.Day); },
    [](const Call& call) { CheckLine(call.Team, call.First, call.Day, call.Second); },
    [](const Call& call) { CheckLineFarm(call.Team, call.First, call.Day, call.Second); },
};

} // namespace

void RunTarget(Input input) { RunScript(input, Routines); }

} // namespace dravik::fuzz
