#include "files/ReplacedFile.h"

#include "machine/Paths.h"

#include <exception>

namespace dravik {

ReplacedFile::~ReplacedFile()
{
    if (replaced)
        return;
    try {
        DeleteIfExists(disk, path);
    } catch (const std::exception&) { // NOLINT: the failure that brought us here is the one to tell
    }
}

} // namespace dravik
