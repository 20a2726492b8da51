#pragma once

#include "desk/History.h"

#include <functional>

namespace dravik {

// What the manager has done to the open league and its market since he opened it. Made when somebody asks for it first, and kept
// as long as the program runs.
History& OpenHistory();

// Whom it tells what is done, beside those who know what is saved; null for nobody.
void TellJournal(HistoryWatcher* journal) noexcept;

// Begins it anew with the league as it stands: another one was opened, or none.
void BeginHistory();

// Has `give` take off the market what another team than `team` left there. No step of `team` may bring that back: those that it
// has made so far end.
void GiveUpWorkOfOthers(int team, const std::function<void()>& give);

} // namespace dravik
