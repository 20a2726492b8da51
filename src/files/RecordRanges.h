#pragma once

#include "league/FreeAgentOffer.h"
#include "league/Tables.h"

#include <functional>
#include <string>

// What the fields of a record may hold. Wherever a record has a truth value, it is one of the two words; a record that is not in
// use may hold anything.
namespace dravik {

// Told of a field that holds something else: "Position: 9 is not from 1 to 4".
using TellOutOfRange = std::function<void(const std::string& words)>;

// Each tells of every such field of a record; `slot` is the number that the record should have.
void CheckRanges(const League& record, const TellOutOfRange& tell);
void CheckRanges(const Team& record, long long slot, const TellOutOfRange& tell);
void CheckRanges(const Player& record, long long slot, const TellOutOfRange& tell);
void CheckRanges(const Goalie& record, long long slot, const TellOutOfRange& tell);
void CheckRanges(const Coach& record, long long slot, const TellOutOfRange& tell);
void CheckRanges(const ScheduleRow& record, const TellOutOfRange& tell);
void CheckRanges(const RosterChange& record, const TellOutOfRange& tell);
void CheckRanges(const FreeAgentOffer& record, const TellOutOfRange& tell);

} // namespace dravik
