#pragma once

#include "league/Failure.h"

#include <exception>
#include <new>
#include <string_view>

namespace dravik {

// Shows the common failure message: number, " - ", description and `ending` (" in CheckRoster!") in a critical box.
void ReportFailure(int number, std::string_view ending);

// Runs `body`. Whatever it throws is reported with `ending` and goes no further; what `body` changed by then stays. True
// when `body` came to its end.
template <class Body>
bool Reporting(std::string_view ending, Body&& body)
{
    try {
        body();
        return true;
    } catch (const Failure& failed) {
        ReportFailure(failed.Number, ending);
    } catch (const std::bad_alloc&) {
        ReportFailure(failure::OutOfMemory, ending);
    } catch (const std::exception&) {
        ReportFailure(failure::InvalidCall, ending);
    }
    return false;
}

// Like Reporting, but a cancelled dialog ends `body` without a word.
template <class Body>
bool ReportingUnlessCancelled(std::string_view ending, Body&& body)
{
    bool cancelled = false;
    const bool done = Reporting(ending, [&] {
        try {
            body();
        } catch (const Failure& failed) {
            if (failed.Number != failure::Cancelled)
                throw;
            cancelled = true;
        }
    });
    return done && !cancelled;
}

} // namespace dravik
