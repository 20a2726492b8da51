#pragma once

#include "files/SlotFile.h"
#include "league/Tables.h"

#include <string>

namespace dravik {

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
