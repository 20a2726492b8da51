#pragma once

#include "files/SlotFile.h"
#include "league/Tables.h"

#include <string>
#include <string_view>

namespace dravik {

// What is told of a client file whose magics are wrong, and of one whose stream does not fit its checksum: such a one gave
// something all the same, and nobody can tell which records are wrong.
inline constexpr std::string_view NotWholeWords = "File Integrity is incorrect!";
inline constexpr std::string_view DamagedWords =
    "This client file was damaged on its way, and some of it may be wrong. Get it anew.";

// What became of the reading of a client file.
struct ClientFileRead {
    SlotFileRead File = SlotFileRead::NotDecompressed;
    bool Whole = false; // both magics are right
};

// Reads the client file `path` into `league`. A file that cannot be read to its end is not read at all, although its head
// may have been: when the reading fails, `LeagueData` and `Coaches` are as they were before it and the five tables that a
// load replaces are empty. A file that is not whole leaves in the tables what it held. A wrapper that cannot be read is
// told; failures on a plain file are thrown.
ClientFileRead ReadClientFile(Tables& league, const SlotFiles& files, const std::string& path);

} // namespace dravik
