#pragma once

#include "desk/Differences.h"

#include <filesystem>
#include <optional>
#include <vector>

// What changed in the open league since its last client file. Of each league the digest of the latest file that was opened is kept;
// without a folder for it nothing is.
namespace dravik {

// Keeps the digests in `folder` from the next opening of a league on; in no folder if that is empty. Whoever calls it first is
// the program.
void KeepDigests(const std::filesystem::path& folder);

// Holds the open league, which was just made ready, against what is kept of it, and keeps what it is now. An older file than the
// one that is kept, and a damaged one, are neither compared nor kept. Whatever cannot be read or written counts as not there;
// nothing fails.
void LookForChanges(bool isDamaged) noexcept;
// No league is open any more.
void ForgetChanges() noexcept;

// What is different since then, and the date of the file at that time, in days since 30 December 1899; none where nothing was
// kept, where the file is the same, or where nothing differs.
struct ChangesSince {
    std::optional<double> FileDate;
    std::vector<Difference> All;
};
const ChangesSince& OpenChanges();

// What `team` may see of it (0 = none), as `ToldTo` says.
std::vector<Difference> ChangesToldTo(int team, bool isProved);

} // namespace dravik
