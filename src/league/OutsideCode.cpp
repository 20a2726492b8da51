#include "league/OutsideCode.h"

#include "league/Failure.h"
#include "league/ZlibWrapper.h"

#include <algorithm>
#include <iterator>
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

std::string UpperCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return text;
}

// Whether one of the systems keeps the file name `name` for a device, as it does whatever stands behind the name's first
// point. Such a name is refused on all of them: a league's files go from one to the other.
bool IsDevice(const std::string& name)
{
    constexpr std::string_view devices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::string_view ports[] = {"COM", "LPT"};
    constexpr std::string_view portNumbers = "123456789\xB9\xB2\xB3"; // the last three are raised digits
    const auto isOneOf = [](const auto& names, const std::string& text) {
        return std::find(std::begin(names), std::end(names), text) != std::end(names);
    };
    const std::string device = UpperCase(name.substr(0, name.find('.')));
    return isOneOf(devices, device) || (device.size() == 4 && isOneOf(ports, device.substr(0, 3)) &&
                                        portNumbers.find(device[3]) != std::string_view::npos);
}

} // namespace

bool ZlibCompress(Disk& disk, Voice& says, const std::string& source, const std::string& target)
{
    return Compressing(says, [&] {
        FileSource from(disk, source);
        WholeFile to(disk, target);
        DeflateStream wrapper(to, disk.FileLength(source));
        for (Bytes piece = from.Next(); !piece.empty(); piece = from.Next())
            wrapper.Write(piece);
        wrapper.Finish();
        to.Commit();
    });
}

bool ZlibDecompress(Disk& disk, Voice& says, const std::string& source, const std::string& target)
{
    return Decompressing(says, [&] {
        FileSource from(disk, source);
        std::optional<WholeFile> to;
        const auto read = [&](ByteSource& bytes) {
            Bytes piece = bytes.Next();
            to.emplace(disk, target);
            for (; !piece.empty(); piece = bytes.Next())
                to->Write(piece);
        };
        ReadWrapper(from, read, [&] { to.reset(); });
        to->Commit();
    });
}

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

std::string TeamFilePath(Disk& disk, std::string_view teamName, std::string_view extension)
{
    const std::string name = RemoveSpaces(teamName);
    if (name.find_first_of("\\/:*?\"<>|") != std::string::npos || IsDevice(name))
        Fail(failure::PathAccess);
    return disk.ProgramFolder() + PathSeparator + name + std::string(extension);
}

bool SkipZIPClient(Settings& settings)
{
    return UpperCase(WithoutOuterBlanks(settings.GetSetting("Settings", "SkipZIPClient", "No"))) == "YES";
}

} // namespace dravik
