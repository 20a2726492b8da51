#pragma once

#include "desk/Journal.h"
#include "desk/JournalWriter.h"

#include <filesystem>
#include <string>

// The journal of the open league: what its manager does is on the disk as soon as it is done, and comes back after the program
// has died. Without a folder for it there is none.
namespace dravik {

// Keeps the journals in `folder` from the next opening of a league on, by the time of `clock`; in no folder if that is empty.
// Whoever calls it first is the program.
void KeepJournals(const std::filesystem::path& folder, JournalWriter::Clock clock);

// Begins a journal of the open league: it was just opened, and its history begun. Nothing is on the disk before the first step.
// What cannot be kept is told by `JournalWords`; nothing fails.
void BeginJournal() noexcept;
// Ends it: no league is open any more.
void EndJournal() noexcept;

// Writes down that a file of `team` was saved, or that its screen of the offers or the ranking was closed. The history has been
// folded.
void TellJournalSaved(SavedFile file, int team) noexcept;
void TellJournalKept(SavedFile file, int team) noexcept;

// "Work of January 12 2026, 21:03, on the Gulls was not saved.", where a journal of an earlier run holds such work on the open
// league, begun where it was opened now; empty where none does.
std::string UnsavedWorkWords();
// Asks for the password of every team that is in that work, as entering the team does, and brings it back: the league is as it
// was, every step of it can be undone, and its journal goes on. A work that does not fit is told in a warning box and changes
// nothing. Whether it is back.
bool BringBackWork();
// Gives that work up for good. Behind it an older one may be at hand.
void ForgetWork() noexcept;

// Says, where the journal could not be written, that nothing is kept; empty otherwise.
std::string JournalWords();

} // namespace dravik
