#pragma once

#include "files/FileAccess.h"
#include "league/Tables.h"

#include <functional>
#include <string>
#include <string_view>

namespace dravik {

// What became of the reading of a team's file.
enum class TeamFileRead {
    Loaded,         // everything taken over
    Refused,        // not such a file of this league and this team, or its end is wrong
    NotDecompressed // told already
};

// Whether the next three records are the head of a team's file: the magic `start`, the code of this league, and `team` (1..100).
bool ReadTeamFileHead(SlotReader& slots, std::string_view start, const Tables& league, int team);

// Reads the file `path`, found whatever the case of its name, in slots of `slot` bytes: `read` says whether it holds what it
// should up to its end, and may be called twice; `takeBack` is called after a reading that counts for nothing. A work file left
// behind is deleted first. A file that is not there, or does not fit its own checksum, is refused. Failures are thrown.
TeamFileRead ReadTeamFile(const FileAccess& access, const std::string& path, std::size_t slot,
                          const std::function<bool(SlotReader&)>& read, const std::function<void()>& takeBack);

} // namespace dravik
