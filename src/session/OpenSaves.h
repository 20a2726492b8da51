#pragma once

#include "desk/History.h"
#include "desk/WorkLedger.h"

#include <functional>
#include <optional>
#include <string>

// Which files of the open league hold what was done to it since it was opened.
namespace dravik {

// How a file of a team stands.
struct FileState {
    std::optional<double>
        UnsavedSince;            // when the team first did what the file does not hold; days since 30 December 1899
    std::optional<double> Saved; // when it was saved, by this run of the program
    std::string Path;            // where to; empty before
    bool IsEarlierKept = true;   // whether what it replaced is in the folder of earlier versions

    // "Not saved since 21:03", with the day in front of the time where that is not today's; "Saved 21:10"; or nothing.
    [[nodiscard]] std::string Words() const;
};
FileState StateOf(SavedFile file, int team);
// Of a team's files together: since when any is not saved, else the one that was saved last.
FileState StateOfTeam(int team);

// `team` saved its file, which lies at `path` now.
void NoteSaved(SavedFile file, int team, const std::string& path) noexcept;
// `team` closed the screen of its offers or of its ranking, and what stands there is kept for it.
void NoteKept(SavedFile file, int team) noexcept;
// Keeps the file `path`, which a save is about to replace.
void KeepEarlier(const std::string& path) noexcept;

// What hears all that the history tells.
HistoryWatcher& SavesWatcher() noexcept;
// What was done was brought back, with what of it is in files.
void TakeOverLedger(const WorkLedger& ledger);
// Another league was opened, or none.
void ForgetSaves() noexcept;

// The time, in days since 30 December 1899, comes from `clock`; from the machine's if that is empty, as at first.
void TellTimeBy(std::function<double()> clock);

} // namespace dravik
