#pragma once

#include "makers/Dealing.h"
#include "session/Session.h"

namespace dravik {

// A run of a maker of lines on the open league, for team 5, as one of its steps finds it.
struct OpenRun {
    dravik::Work Work = OpenWork();
    Made Told;
    LinesRun Lines{.At = Work, .Team = 5, .Told = Told};

    operator LinesRun&() { return Lines; } // NOLINT: a step takes it as it is
    [[nodiscard]] int Count() const { return Lines.List.Count(); }
    [[nodiscard]] long long IdAt(int place) const { return Lines.List.Ids[place]; }
};

} // namespace dravik
