#include "files/TeamFilePath.h"

#include "league/Failure.h"
#include "league/LetterCase.h"
#include "league/Trimming.h"

#include <algorithm>
#include <iterator>

namespace dravik {

namespace {

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

std::string TeamFilePath(Disk& disk, std::string_view teamName, std::string_view extension)
{
    const std::string name = RemoveSpaces(teamName);
    if (name.find_first_of("\\/:*?\"<>|") != std::string::npos || IsDevice(name))
        Fail(failure::PathAccess);
    return disk.ProgramFolder() + PathSeparator + name + std::string(extension);
}

} // namespace dravik
