#pragma once

#include "desk/ReadJournal.h"

#include <memory>
#include <string>

namespace dravik {

// Does once more, on the league and the market of `history`, what a journal tells: they stand as where it was begun, with nothing
// done since. What was undone can be done again, as far as it still fits. An offer is the person's whom it is to (`Id`), as it
// was when he was chosen. What does not fit byte for byte is refused: then all stays as it is, and the answer says so in words;
// else it is empty. Without room it fails with std::bad_alloc, and nothing has changed.
std::string BringBack(History& history, Tables& league, Market& market, const JournalRead& journal);

// What stood on a screen of the market that was closed, each offer being the person's in whose row it stands.
std::unique_ptr<Market> MarketOf(const KeptThere& kept);

} // namespace dravik
