#pragma once

#include <string>
#include <vector>

namespace dravik {

// What is told of a pro who may not be one.
inline const std::string NotFit = " is injured, suspended, has no contract or incorrect salaries but he's on Pro Team!";

// The whole text of a judgement that has these lines to tell.
inline std::string RosterError(const std::string& teamName, const std::vector<std::string>& lines)
{
    if (lines.empty())
        return {};
    std::string text = teamName + " Roster Error : \r\n";
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text + "Some errors will be automatically fixed.\r\n";
}

} // namespace dravik
