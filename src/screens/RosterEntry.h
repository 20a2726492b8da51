#pragma once

#include "league/PersonId.h"

#include <string>

// How the entries of a roster list name people.
namespace dravik {

// The number of an entry: the digits of the person's `Number`, then the digit of his position.
inline int EntryNumber(long long id, long long position)
{
    constexpr int shift = 10;
    return static_cast<int>(id * shift + (id < 0 ? -position : position));
}
inline int EntryId(int number) { return number / 10; }
inline int EntryPosition(int number) { return number < 0 ? -(number % 10) : number % 10; }
inline PersonId EntryPerson(int number)
{
    return {.IsGoalie = EntryPosition(number) == position::Goalie, .Slot = EntryId(number)};
}

// The mark of a captain or an assistant behind his name. A goalie never carries one.
inline std::string OfficeMark(const Team& team, PersonId who)
{
    if (who.IsGoalie)
        return {};
    if (team.Captain == who.Slot)
        return " (C)";
    return team.Assistant[1] == who.Slot || team.Assistant[2] == who.Slot ? " (A)" : "";
}

// Behind a mark the star stands apart, behind a bare name it does not.
inline std::string EntryText(const std::string& name, const std::string& officeMark, bool isTradeAvailable)
{
    if (!isTradeAvailable)
        return name + officeMark;
    return name + officeMark + (officeMark.empty() ? "*" : " *");
}

} // namespace dravik
