#pragma once

#include "league/PersonId.h"
#include "league/Positions.h"
#include "machine/Work.h"

#include <functional>
#include <string>
#include <vector>

namespace dravik {

// The slot of a new skater or goalie: the first that is free. The last one of a table is never looked at, and so never given
// out. None is 0, which is told in a warning box.
int FreeSlotFor(const Work& work, bool isGoalie);

// What is typed and ticked for a new record.
struct NewRecord {
    std::string Name;
    std::string Country;
    std::string Age;
    std::string Weight;
    std::string Height;
    std::string Contract;
    std::string Salary;
    std::string Condition;
    std::vector<std::string> Ratings = {}; // from the first on: as many as the kind has, or more
    int Position = position::Center;       // a goalie has none
    bool Rookie = false;
    bool NoTrade = false;
    bool NoApplyRerate = false;
};

// Makes `who` of `record`, in no team; what a record does not name stays as it is in the slot. The news tell it, `list` runs,
// and it is told in an information box. False, with nothing stored, when one of the texts is empty, which is told in a warning
// box. No limits hold here: fails with 6 at the first number that does not fit its field, and what was stored by then stays.
bool CreatePlayer(const Work& work, PersonId who, const NewRecord& record, const std::function<void()>& list);

} // namespace dravik
