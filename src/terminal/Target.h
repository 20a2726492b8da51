#pragma once

#include "files/VerifyFile.h"

#include <string>
#include <vector>

namespace dravik::terminal {

// What a verb is about to write, and what it reads meanwhile.
struct Target {
    std::string Path;
    SystemFile Kind = SystemFile::Unknown; // what is written; Unknown is what no file of the system is
    std::vector<std::string> Read;         // files of the command line; empty names count for nothing
};

// Refuses, with a Problem that names it, to lose what stands under the name of the target: a file that the verb reads, under
// whatever name or link; a file of the system of another kind, as its first bytes tell; a file that cannot be looked into; and
// what is no file. A folder that is not there is refused too. Nothing is touched; anything else there may be replaced.
void RequireReplaceable(const Target& target);

} // namespace dravik::terminal
