#pragma once

#include "desk/ReadJournal.h"

#include <chrono>
#include <filesystem>
#include <optional>

namespace dravik {

// A journal on the disk, and what was read of it.
struct FoundJournal {
    std::filesystem::path Path;
    JournalRead Read;
};

// The folder in which the journals lie, one for each run of the program on a league. A name says the league's code and the
// digest of the beginning, so that those of other leagues are not even opened. What cannot be listed, read or removed is passed
// over.
class JournalFolder {
public:
    explicit JournalFolder(std::filesystem::path folder) : path(std::move(folder)) {}

    // Where a new journal of this beginning is to lie.
    [[nodiscard]] std::filesystem::path NewPath(const JournalHead& head) const;
    // Of the journals of this beginning that hold unsaved work, `besides` left out, the one whose work is the latest.
    [[nodiscard]] std::optional<FoundJournal> LatestUnsaved(const JournalHead& head,
                                                            const std::filesystem::path& besides = {}) const;
    // Removes those that nobody needs once the client file of `opened` is open: whose league has a newer file now and that hold
    // nothing unsaved, and all that nobody has written to for 30 days in front of `now`.
    void Tidy(const JournalHead& opened, std::filesystem::file_time_type now) const;

    // The journal at `path`, if there is one.
    [[nodiscard]] static std::optional<FoundJournal> Read(const std::filesystem::path& path);

private:
    std::filesystem::path path;
};

} // namespace dravik
