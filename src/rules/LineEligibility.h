#pragma once

#include "league/PersonId.h"
#include "league/Positions.h"
#include "rules/LineSlots.h"
#include "rules/LineVerdict.h"
#include "rules/People.h"

#include <optional>

namespace dravik {

// The status of those who may stand in the lines of a side.
constexpr status::Number StatusOn(Side side) { return side == Side::Pro ? status::Pro : status::Farm; }

// What stands against a person in the lines of `team`, pro or farm: he is a stranger there or unfit. Nothing when he may
// stand in them.
template <class Person>
std::optional<LineFault> FaultInLines(const Person& person, int team, Side side)
{
    if (person.Status != StatusOn(side) || person.Team != team)
        return LineFault::Stranger;
    if (!IsDressable(person))
        return LineFault::Unfit;
    return std::nullopt;
}

// Whether anybody judges the lines of a side: in a league without farm teams nobody judges the farm's.
inline bool AreLinesJudged(const League& rules, Side side) { return side == Side::Pro || rules.FarmEnabled; }

// Whether the judge of the lines of `team` holds something against whoever stands in a slot: never against the placeholder
// of slot 0, always against somebody outside his table.
bool IsRefusedInLines(const Tables& league, int team, Side side, PersonId who);

} // namespace dravik
