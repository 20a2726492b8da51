#pragma once

#include "session/Session.h"

#include <utility>

namespace dravik {

// Runs `work` behind the wait screen, which goes as soon as it has come to its end, or has failed; the failure goes on. A
// `work` that returns false was stopped by something already told, and leaves the wait screen up. True when it was done.
template <class Work>
bool BehindWait(Work&& work)
{
    bool done = false;
    try {
        Machine().ShowWait();
        done = std::forward<Work>(work)();
    } catch (...) {
        Machine().CloseWait();
        throw;
    }
    if (done)
        Machine().CloseWait();
    return done;
}

} // namespace dravik
