#pragma once

#include "league/Failure.h"
#include "machine/Voice.h"

#include <exception>
#include <new>
#include <optional>
#include <string_view>

namespace dravik {

// Shows the common failure message: number, " - ", description and `ending` (" in CheckRoster!") in a critical box.
void ReportFailure(Voice& says, int number, std::string_view ending);

// Runs `body`. Whatever it throws goes no further; what `body` changed by then stays. The number of the failure; none when
// `body` came to its end.
template <class Body>
std::optional<int> FailureIn(Body&& body)
{
    try {
        body();
        return std::nullopt;
    } catch (const Failure& failed) {
        return failed.Number;
    } catch (const std::bad_alloc&) {
        return failure::OutOfMemory;
    } catch (const std::exception&) {
        return failure::InvalidCall;
    }
}

// The same, and the failure is reported with `ending`.
template <class Body>
std::optional<int> FailureOf(Voice& says, std::string_view ending, Body&& body)
{
    const auto failed = FailureIn(body);
    if (failed)
        ReportFailure(says, *failed, ending);
    return failed;
}

// The same; true when `body` came to its end.
template <class Body>
bool Reporting(Voice& says, std::string_view ending, Body&& body)
{
    return !FailureOf(says, ending, body);
}

// The same, but a cancelled dialog ends `body` without a word.
template <class Body>
bool ReportingUnlessCancelled(Voice& says, std::string_view ending, Body&& body)
{
    const auto failed = FailureIn(body);
    if (failed && *failed != failure::Cancelled)
        ReportFailure(says, *failed, ending);
    return !failed;
}

} // namespace dravik
