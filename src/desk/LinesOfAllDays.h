#pragma once

#include "machine/Formats.h"
#include "machine/Work.h"
#include "rules/LineSlots.h"
#include "rules/LineVerdict.h"

#include <array>
#include <string>
#include <vector>

// The lines of a side of a team on all ten days at once: what is wrong with each, and all of them mended by one command.
namespace dravik {

// What the judge says of each day, day 1 first.
using DayVerdicts = std::array<LineVerdict, LineDays>;

// Judges every day of a side of `team` (1..100) in order to look: each by itself, as `league` stands. `scratch` is overwritten
// with a copy of the league, on which the judge takes out whom he likes; `league` does not change, and nobody is told
// anything. A day that cannot be judged says so by its `Failed`.
DayVerdicts LookAtAllDays(const Tables& league, const Formats& shown, int team, Side side, Tables& scratch);

// A day that stays incomplete, with the judge's words on it.
struct DayLeft {
    int Day;
    std::vector<std::string> Findings;

    bool operator==(const DayLeft&) const = default;
};

// What became of the days.
struct RepairedDays {
    std::vector<int> Mended;
    std::vector<DayLeft> Left;
    std::vector<std::string> Told; // what the makers had to say on the way, each once

    bool operator==(const RepairedDays&) const = default;
};

// Goes through the ten days of a side of `team` (1..100) in order, judges each as its screen does, and makes every incomplete
// one: the pro's by the maker that keeps what is usable, the farm's by the farm's maker. What it leaves is what a press a day
// leaves. Nothing is shown meanwhile; news and log go on to `work`'s voice. In a league without makers nothing is done.
RepairedDays RepairAllDays(const Work& work, int team, Side side);

// The same as a command, which tells what became of the days in one information box at its end.
void RepairAllDaysAndTell(const Work& work, int team, Side side);

} // namespace dravik
