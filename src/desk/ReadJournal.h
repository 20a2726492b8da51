#pragma once

#include "desk/History.h"
#include "desk/Journal.h"
#include "desk/WorkLedger.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// What is to be brought back of a journal: how the league was when its last whole entry was written.
struct JournalRead {
    JournalHead Head;
    ByteDifference Beginning;           // what changed in front of the first step that can be undone
    std::vector<Step> Steps;            // in their order; a password alone leaves one without a change
    std::size_t Done = 0;               // how many of them are not undone
    WorkLedger Ledger;                  // who did it, and what of it is in files
    std::optional<UnsavedWork> Unsaved; // of the team that worked last, if there is any
    std::size_t Whole = 0;              // how many bytes the head and the whole entries are
    Seal Sealed = 0;                    // of the last of them
};

// Reads a journal from bytes that nobody has to trust: its entries up to the first that is not whole, or that tells what cannot
// have been. Without a whole head there is none, nor where more than `mostWork` bytes have to be put together, and `Refused` says
// why. Without room it fails with std::bad_alloc.
struct JournalOutcome {
    std::optional<JournalRead> Journal;
    std::string Refused;
};
JournalOutcome ReadJournal(std::string_view bytes, std::size_t mostWork = std::size_t{1} << 30U);

} // namespace dravik
