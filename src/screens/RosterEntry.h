#pragma once

#include "session/Session.h"

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

// The mark of a captain or an assistant behind his name. A goalie never carries one.
inline std::string OfficeMark(const Team& team, bool isGoalie, long long id)
{
    if (isGoalie)
        return {};
    if (team.Captain == id)
        return " (C)";
    return team.Assistant[1] == id || team.Assistant[2] == id ? " (A)" : "";
}

// Behind a mark the star stands apart, behind a bare name it does not.
inline std::string EntryText(const std::string& name, const std::string& officeMark, bool isTradeAvailable)
{
    if (!isTradeAvailable)
        return name + officeMark;
    return name + officeMark + (officeMark.empty() ? "*" : " *");
}

// Calls `visit(person)` with the record of a skater or goalie.
template <class Visit>
void WithPerson(bool isGoalie, long long id, Visit&& visit)
{
    if (isGoalie)
        visit(Goalies[id]);
    else
        visit(Players[id]);
}

inline RosterChange& ChangeOf(bool isGoalie, long long id)
{
    return isGoalie ? RosterChangesGoalie[id] : RosterChanges[id];
}

// The number that names a person where skaters and goalies share one.
inline int CommonId(bool isGoalie, long long id) { return static_cast<int>(isGoalie ? id + GoalieOffset : id); }

} // namespace dravik
