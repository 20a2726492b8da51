#pragma once

#include "league/Tables.h"

#include <memory>
#include <string>

namespace dravik {

// Another client file beside the open league, which stays as it is.
struct OtherLeague {
    std::unique_ptr<Tables> League; // null when there is none
    std::string FileName;           // without its folder
    bool IsDamaged = false;         // on its way: some of it may be wrong
};
const OtherLeague& TheOtherLeague();

// Reads the client file `path` and makes it ready, in place of the one before. A file that is missing or not whole is told in a
// critical box, and there is none then. Whether there is. Fails as the disk does, and without room.
bool OpenOtherLeague(const std::string& path);
void CloseOtherLeague() noexcept;

} // namespace dravik
