#include "files/ReplacedFile.h"

#include "machine/Paths.h"

#include <exception>
#include <utility>

namespace dravik {

ReplacedFile::ReplacedFile(const FileAccess& access, std::string target) : disk(access.Disk), path(std::move(target))
{
    if (access.BeforeReplaced)
        access.BeforeReplaced(path);
}

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
