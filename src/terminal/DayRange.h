#pragma once

#include "terminal/Verbs.h"

#include <string>

namespace dravik::terminal {

// Days of line-ups, 1 the next game, to 10.
struct DayRange {
    int First;
    int Last;
};

// What `--days` says: "3" or "1-10". Anything else is a Problem.
DayRange DaysOf(const std::string& text);

// The option itself; what stands in `days` is shown as what holds without it.
CLI::Option* AddDays(CLI::App& command, std::string& days);

} // namespace dravik::terminal
