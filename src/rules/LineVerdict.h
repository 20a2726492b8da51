#pragma once

#include "rules/LineSlots.h"

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace dravik {

struct LineRules;

// What a judge of lines may hold against a day.
enum class LineFault {
    Stranger,    // somebody who is not on the roster of these lines
    Unfit,       // somebody injured or suspended
    Empty,       // a slot without anybody
    Double,      // a skater twice in a line, a unit or a list
    LinesShared, // a skater in lines 1 and 2
    SameGoalies, // a goalie who is his own backup
    TooMany,     // more different skaters than the league dresses
    TooFew       // fewer than a line-up needs
};

// One finding. `Slots` are the slots that it is about as words of the record (a skater's by LineSlot::Word, a goalie's by
// StartGoalieWord and BackupGoalieWord): one about somebody who may not stand there holds all slots of the day that he was
// taken out of; one about all slots together holds none.
struct LineFinding {
    LineFault Fault;
    int Person; // a Player index, in the goalies' slots a Goalie index; 0 for an empty slot, and for nobody
    std::bitset<76> Slots = {};
    LineSlot At = {};    // the skater slot that is empty, or the first of those that hold the same skater
    long long Limit = 0; // that the number of skaters was held against
};

// What a judge of lines found in one day, as far as he came. The findings stand in the order in which he found them.
struct LineVerdict {
    bool Complete = false;
    std::optional<int> Failed; // the number of the failure that ended the judgement, which was told
    std::vector<LineFinding> Findings;
    const LineRules* Rules = nullptr; // what the day was held against; none when nothing was judged
    bool Ended = false;               // all slots were looked at

    explicit operator bool() const { return Complete; }
};

// Whether whoever stands in a slot, named by its word of the record, was found a second time where he may stand but once.
bool FindsTwice(const LineVerdict& verdict, std::size_t word);

// The words of one finding of a verdict, without a line break. Names are those that `league` holds: the league that was judged,
// or a copy of it.
std::string WordsOf(const Tables& league, const LineVerdict& verdict, const LineFinding& finding);

// What the judge has to say: the words of all findings, a line break behind each, and what closes them, which is "Lines are
// perfect!" when there are none. A judgement that broke off has no close. Empty when nothing was judged.
std::string TextOf(const Tables& league, const LineVerdict& verdict);

} // namespace dravik
