#pragma once

#include "league/Positions.h"
#include "rules/LineSlots.h"

#include <array>

namespace dravik {

// Who may be put into a slot.
enum class Takes { Skater, Forward, Defense, Goalie };

// One slot of a day that a general manager fills, a skater's or a goalie's.
struct DaySlot {
    Takes Rule;
    int Word; // where it stands among the 76 words of the record

    [[nodiscard]] constexpr bool IsGoalies() const { return Rule == Takes::Goalie; }
};

// All slots of a day: those of SkaterSlots in their order, then the starting goalie and the backup.
extern const std::array<DaySlot, 69> DaySlots;

// What stands in a slot.
Int16& At(Lines& lines, const DaySlot& slot);
const Int16& At(const Lines& lines, const DaySlot& slot);

// Whether a position (1..5) is a forward's.
constexpr bool IsForward(long long position) { return position >= position::Center && position <= position::RightWing; }

} // namespace dravik
