#pragma once

#include "rules/LineSlots.h"
#include "rules/StatRows.h"

#include <array>
#include <span>
#include <string_view>

// The lines and units whose averages a general manager looks at.
namespace dravik {

// One slot of a line or unit.
struct GroupMember {
    LineField Field;
    int Place;
};

// A sort of line or unit: the label that heads each of them, and who belongs to it.
struct LineGroup {
    const char* Heading;     // name of the control
    const char* Caption;     // what the heading reads, in front of the number
    std::string_view Prefix; // stands before that where the averages are shown
    int Count;               // lines or units of this sort
    std::span<const GroupMember> Members;
};

// Normal lines, power play, 4 vs 4, penalty kill and penalty kill with three.
extern const std::array<LineGroup, 5> LineGroups;

// The averages of one line or unit: each sum, divided by the number of its slots, to the nearest integer, ties to even.
struct GroupAverages {
    SkaterRatings Ratings;
    int Overall = 0;
};

// Averages line or unit `number` of `group` as it stands in `lines`. An empty slot counts like the placeholder in record 0.
// A slot that holds a number outside the table fails with 9, an average beyond 16 bits with 6; a skater without a position
// is told in CalculateOverall's box.
GroupAverages AveragesOf(const Lines& lines, const LineGroup& group, int number);

} // namespace dravik
