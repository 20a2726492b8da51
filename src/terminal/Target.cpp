#include "terminal/Target.h"

#include "league/Failure.h"
#include "terminal/Machine.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"

#include <algorithm>
#include <filesystem>

namespace dravik::terminal {

namespace {

namespace fs = std::filesystem;

bool IsSameFile(const std::string& one, const std::string& other)
{
    std::error_code error;
    return !other.empty() && fs::equivalent(PathOf(one), PathOf(other), error) && !error;
}

SystemFile KindOf(const std::string& path)
{
    Machine machine;
    try {
        return SystemFileOf(machine, path);
    } catch (const Failure& failed) {
        throw Problem(path + ": " + failed.what() + "; what stands there is not replaced");
    }
}

} // namespace

void RequireReplaceable(const Target& target)
{
    std::error_code error;
    const fs::path path = PathOf(target.Path);
    const fs::path folder = path.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, error))
        throw Problem(target.Path + ": " + Failure(failure::PathNotFound).what());
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        return;
    if (!fs::is_regular_file(status))
        throw Problem(target.Path + ": what stands there is no file, and is not replaced");
    if (std::any_of(target.Read.begin(), target.Read.end(),
                    [&](const std::string& read) { return IsSameFile(target.Path, read); }))
        throw Problem(target.Path + ": this file is read for it, and is not replaced");
    const SystemFile kind = KindOf(target.Path);
    if (kind != SystemFile::Unknown && kind != target.Kind)
        throw Problem(target.Path + ": a " + std::string(NameOf(kind)) + " stands there, and is not replaced");
}

} // namespace dravik::terminal
