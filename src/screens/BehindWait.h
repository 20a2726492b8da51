#pragma once

#include "session/Routines.h"

#include <utility>

namespace dravik {

// Runs `work` behind the wait screen, which goes as soon as it has come to its end, or has failed; the failure goes on. A
// `work` that returns false was stopped by something already told, and leaves the wait screen up. True when it was done.
template <class Work>
bool BehindWait(Work&& work)
{
    bool done = false;
    try {
        ShowWait();
        done = std::forward<Work>(work)();
    } catch (...) {
        CloseWait();
        throw;
    }
    if (done)
        CloseWait();
    return done;
}

} // namespace dravik
