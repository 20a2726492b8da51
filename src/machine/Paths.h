#pragma once

#include "machine/Disk.h"

#include <string>

namespace dravik {

// Whether an entry of this path is there, whatever the case of its name. Any failure counts as no; shows nothing.
bool FileExist(Disk& disk, const std::string& path);

// The path of the entry that FileExist found: `path` with the name as it stands on the disk. Without one, `path` itself.
std::string ExistingPath(Disk& disk, const std::string& path);

// The part of `path` behind its last separator; without one the whole text.
std::string GetFileName(const std::string& path);

// Deletes the file if it is there. A file whose name is the same but for the case of its letters is the same file only where
// the file system takes both for one.
void DeleteIfExists(Disk& disk, const std::string& path);

} // namespace dravik
