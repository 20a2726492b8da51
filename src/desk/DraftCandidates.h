#pragma once

#include "league/Field.h"
#include "league/Tables.h"

#include <functional>
#include <optional>
#include <string>

namespace dravik {

// Somebody who can be drafted.
struct DraftCandidate {
    int Id;                     // a skater's number, a goalie's + 10000, a prospect's slot + 20000
    std::string Text;           // "Ward Tilton (LW)", a prospect's name alone
    std::optional<int> Overall; // of a free agent, where the league shows it
};

// Which positions, by their numbers, are told of free agents.
using PositionFilter = Row<bool, 1, 5>;

// Whether the league has an entry draft ahead of it, and which draft it has at all: "Fantasy Draft", "Entry Draft", which
// goes before the other, or nothing.
bool IsEntryDraftAhead(const League& rules);
std::string DraftTypeOf(const League& rules);

// Tells everybody who can be drafted, each in order of the slots: in a fantasy draft the skaters and then the goalies without a
// team whose position `shown` lets through, in an entry draft the prospects who have a name; where both are ahead, all of them.
void EachDraftCandidate(const Tables& league, const PositionFilter& shown,
                        const std::function<void(const DraftCandidate&)>& tell);

// How a ranking names the person of an id. An id beyond the tables fails with 9.
std::string RankedName(const Tables& league, int id);

} // namespace dravik
