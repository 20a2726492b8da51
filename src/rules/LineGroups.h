#pragma once

#include "machine/Voice.h"
#include "rules/LineSlots.h"
#include "rules/StatRows.h"

#include <span>

// The lines and units of a day, whose skaters play together: none of them may stand there twice, and a general manager looks
// at their averages.
namespace dravik {

// One slot of a line or unit.
struct GroupMember {
    LineField Field;
    int Place;
};

// A sort of line or unit.
struct LineGroup {
    int Count;                            // lines or units of this sort
    std::span<const GroupMember> Members; // from left to right
};

namespace group_members {
inline constexpr GroupMember Normal[] = {{LineField::NormalForward, 1},
                                         {LineField::NormalForward, 2},
                                         {LineField::NormalForward, 3},
                                         {LineField::NormalDefense, 1},
                                         {LineField::NormalDefense, 2}};
inline constexpr GroupMember PowerPlay[] = {{LineField::PPForward, 1},
                                            {LineField::PPForward, 2},
                                            {LineField::PPForward, 3},
                                            {LineField::PPDefense, 1},
                                            {LineField::PPDefense, 2}};
inline constexpr GroupMember FourVsFour[] = {{LineField::FourVsFourForward, 1},
                                             {LineField::FourVsFourForward, 2},
                                             {LineField::FourVsFourDefense, 1},
                                             {LineField::FourVsFourDefense, 2}};
inline constexpr GroupMember PenaltyKill[] = {
    {LineField::PKForward, 1}, {LineField::PKForward, 2}, {LineField::PKDefense, 1}, {LineField::PKDefense, 2}};
inline constexpr GroupMember PenaltyKillWithThree[] = {
    {LineField::PK3Forward, 1}, {LineField::PK3Defense, 1}, {LineField::PK3Defense, 2}};
} // namespace group_members

inline constexpr LineGroup NormalLines{4, group_members::Normal};
inline constexpr LineGroup PowerPlayUnits{2, group_members::PowerPlay};
inline constexpr LineGroup FourVsFourUnits{2, group_members::FourVsFour};
inline constexpr LineGroup PenaltyKillUnits{2, group_members::PenaltyKill};
inline constexpr LineGroup PenaltyKillWithThreeUnits{2, group_members::PenaltyKillWithThree};

// The averages of one line or unit: each sum, divided by the number of its slots, to the nearest integer, ties to even.
struct GroupAverages {
    SkaterRatings Ratings;
    int Overall = 0;
};

// Averages line or unit `number` of `group` as it stands in `lines`. An empty slot counts like the placeholder in record 0.
// A slot that holds a number outside the table fails with 9, an average beyond 16 bits with 6; a skater without a position
// is told in CalculateOverall's box.
GroupAverages AveragesOf(const Tables& league, Voice& says, const Lines& lines, const LineGroup& group, int number);

} // namespace dravik
