#include "fuzz/TableScript.h"

#include "fuzz/MemoryPlatform.h"
#include "fuzz/Script.h"
#include "fuzz/TableLeague.h"
#include "league/Failure.h"
#include "session/Session.h"

#include <algorithm>
#include <array>

namespace dravik::fuzz {

namespace {

void Change(Script& script)
{
    const int kind = script.Byte();
    const int number = script.Byte();
    const int offset = script.Word();
    ChangeTables(kind, number, offset, script.Bytes(script.Byte()));
}

void Fill(Script& script)
{
    const int kind = script.Byte();
    const int number = script.Byte();
    const int offset = script.Word();
    const auto length = static_cast<std::size_t>(script.Byte());
    std::array<std::uint8_t, 256> bytes{};
    bytes.fill(static_cast<std::uint8_t>(script.Byte()));
    ChangeTables(kind, number, offset, Input(bytes).first(length));
}

Call ReadCall(Script& script)
{
    constexpr int teams[] = {1, 1, 1, 1, 2, 3, 100, 0, 101, -1};
    constexpr int days = 12; // 0 and 11 are none
    const int team = teams[static_cast<std::size_t>(script.Byte()) % std::size(teams)];
    const int day = (script.Byte() + 1) % days;
    const int flags = script.Byte();
    return {team, day, script.Word(), (flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0};
}

} // namespace

void RunScript(Input input, std::span<const Routine> routines)
{
    constexpr int firstCall = 64;
    constexpr int mostCalls = 8;
    constexpr int mostClones = 64;
    constexpr int crowd = 1100; // more than any list of skaters has room for
    static MemoryPlatform machine;
    static const bool made = [] {
        UseMachine(machine);
        MakeTableLeague();
        return true;
    }();
    Require(made);
    ResetTableLeague();
    Script script(input);
    for (int calls = 0; !script.Ended() && calls < mostCalls;) {
        const int step = script.Byte();
        if (step >= firstCall) {
            const Routine routine = routines[static_cast<std::size_t>(step - firstCall) % routines.size()];
            routine(ReadCall(script));
            ++calls;
        } else if (step % 4 == 0) {
            Fill(script);
        } else if (step == 1) {
            const int number = script.Byte();
            ClonePlayer(number, script.Byte() % mostClones);
        } else if (step == 2) {
            const int number = script.Byte();
            CloneGoalie(number, script.Byte() % mostClones);
        } else if (step == 5) {
            ClonePlayer(script.Byte(), crowd);
        } else {
            Change(script);
        }
    }
}

} // namespace dravik::fuzz
