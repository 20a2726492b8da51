#include "machine/Paths.h"

#include "league/Failure.h"

#include <exception>
#include <optional>

namespace dravik {

namespace {

// The path under which an entry stands on the disk. Whatever goes wrong on the way counts as no entry.
std::optional<std::string> Entry(Disk& disk, const std::string& path)
{
    try {
        const auto name = disk.FindEntry(path);
        if (name)
            return path.substr(0, path.size() - GetFileName(path).size()) + *name;
    } catch (const std::exception&) { // NOLINT: an entry that cannot be looked for is not there
    }
    return std::nullopt;
}

} // namespace

bool FileExist(Disk& disk, const std::string& path) { return Entry(disk, path).has_value(); }

std::string ExistingPath(Disk& disk, const std::string& path) { return Entry(disk, path).value_or(path); }

std::string GetFileName(const std::string& path)
{
    const auto separator = path.rfind(PathSeparator);
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

void DeleteIfExists(Disk& disk, const std::string& path)
{
    const auto entry = Entry(disk, path);
    if (!entry)
        return;
    try {
        disk.DeleteFile(path);
    } catch (const Failure& failed) {
        // Where the file system tells letters from their other case, an entry of another case is somebody else's file.
        if (*entry == path || failed.Number != failure::FileNotFound)
            throw;
    }
}

} // namespace dravik
