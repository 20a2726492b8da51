#include "league/OutsideCode.h"

#include "league/Failure.h"
#include "league/Platform.h"
#include "league/ZlibWrapper.h"

#include <algorithm>
#include <optional>

namespace dravik {

namespace {

// The path under which an entry stands on the disk. Whatever goes wrong on the way counts as no entry.
std::optional<std::string> Entry(const std::string& path)
{
    try {
        const auto name = Machine().FindEntry(path);
        if (name)
            return path.substr(0, path.size() - GetFileName(path).size()) + *name;
    } catch (const std::exception&) { // NOLINT: an entry that cannot be looked for is not there
    }
    return std::nullopt;
}

} // namespace

bool ZlibCompress(const std::string& source, const std::string& target)
{
    return Compressing([&] {
        FileSource from(source);
        WholeFile to(target);
        DeflateStream wrapper(to, Machine().FileLength(source));
        for (Bytes piece = from.Next(); !piece.empty(); piece = from.Next())
            wrapper.Write(piece);
        wrapper.Finish();
        to.Commit();
    });
}

bool ZlibDecompress(const std::string& source, const std::string& target)
{
    return Decompressing([&] {
        FileSource from(source);
        InflateStream bytes(from);
        Bytes piece = bytes.Next();
        WholeFile to(target);
        for (; !piece.empty(); piece = bytes.Next())
            to.Write(piece);
        to.Commit();
    });
}

bool FileExist(const std::string& path) { return Entry(path).has_value(); }

std::string ExistingPath(const std::string& path) { return Entry(path).value_or(path); }

std::string GetFileName(const std::string& path)
{
    const auto separator = path.rfind(PathSeparator);
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

void DeleteIfExists(const std::string& path)
{
    if (const auto entry = Entry(path))
        Machine().DeleteFile(*entry);
}

std::string TeamFilePath(std::string_view teamName, std::string_view extension)
{
    const std::string name = RemoveSpaces(teamName);
    if (name.find_first_of("\\/:*?\"<>|") != std::string::npos)
        Fail(failure::PathAccess);
    return Machine().ProgramFolder() + PathSeparator + name + std::string(extension);
}

void ShowWait() { Machine().ShowWait(); }

void CloseWait() { Machine().CloseWait(); }

bool SkipZIPClient()
{
    std::string setting = WithoutOuterBlanks(Machine().GetSetting("Settings", "SkipZIPClient", "No"));
    std::transform(setting.begin(), setting.end(), setting.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return setting == "YES";
}

} // namespace dravik
