#pragma once

#include "machine/Disk.h"

#include <string>
#include <string_view>

namespace dravik {

// Where a file of the team named `teamName` is saved: the program's folder, the name without spaces, `extension`. Fails
// with 75 when the name holds a character that no file name may hold, or is one that a system keeps for a device ("con").
std::string TeamFilePath(Disk& disk, std::string_view teamName, std::string_view extension);

} // namespace dravik
