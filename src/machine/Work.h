#pragma once

#include "league/Tables.h"
#include "machine/Formats.h"
#include "machine/Voice.h"

namespace dravik {

// The work at hand: the league that is worked on, who tells and asks meanwhile, how money is written in what is told, and the
// mark that something was edited.
struct Work {
    Tables& League;
    Voice& Says;
    const Formats& Shown;
    bool& Modified;
};

} // namespace dravik
