#pragma once

#include "rules/LineSlots.h"
#include "support/SmallLeague.h"

#include <string>
#include <vector>

namespace dravik {

// The text of a judge of lines that tells of `findings`: each on a line of its own.
std::string Told(const std::vector<std::string>& findings);

// Everything that the pro judge finds in a day without anybody, in its order, in front of its closing line, in a league
// that does not compare lines 1 and 2.
std::vector<std::string> EmptyDayFindings();

// The slots that no skater may hold two of, from left to right, with the words behind his name when he does: those of
// the two slots at the right end, and those of all others.
struct DoublesCase {
    std::vector<LineSlot> Slots;
    std::string Words;
    std::string PairWords;
};

// All groups of the line-up, in the order of judging.
std::vector<DoublesCase> DoublesCases();

// Fills every slot of a day from a full roster, so that it is perfect: the team's first 12 skaters are its forwards, the
// next 6 its defensemen.
void FillDay(Lines& lines, const TeamMaker& maker);

} // namespace dravik
