#pragma once

#include "fuzz/Target.h"

namespace dravik::fuzz {

// What a call of a routine under test can choose from. `Team` and `Day` are mostly ones that exist; `Id` is any word.
struct Call {
    int Team;
    int Day;
    int Id;
    bool First;
    bool Second;
    bool Third;
};

using Routine = void (*)(const Call& call);

// Runs an input as a script over the small league, which is reset first. A step is one byte that tells what it is:
//
//     change     kind, number, offset (2 bytes), length, bytes
//     fill       kind, number, offset (2 bytes), length, one byte: the same with that byte repeated
//     clone      number, count: up to 63 more of one player, or of one goalie
//     crowd      number: more of one player than any list has room for
//     call       team, day, flags, id (2 bytes): `routines`, chosen by the step's byte
//
// Numbers are little-endian. At most eight calls are made.
void RunScript(Input input, std::span<const Routine> routines);

} // namespace dravik::fuzz
