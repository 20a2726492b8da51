#pragma once

#include "league/Tables.h"

#include <array>
#include <string_view>

namespace dravik {

// The fields of a line-up that hold skaters.
enum class LineField {
    NormalForward,
    NormalDefense,
    PPForward,
    PPDefense,
    PKForward,
    PKDefense,
    FourVsFourForward,
    FourVsFourDefense,
    PK3Forward,
    PK3Defense,
    ExtraForward,
    ExtraDefense,
    PenaltyShot
};

// One skater slot of a line-up.
struct LineSlot {
    LineField Field;
    int Number; // line 1..4, unit 1..2, or number 1..5 in the three lists
    int Place;  // position or pair place from 1; 1 in the three lists and for PK3Forward
    int Word;   // where it stands among the 76 words of the record
};

// Whether a slot is dealt to forwards (position 1..3) or to defensemen (position 4).
constexpr bool WantsDefense(LineField field)
{
    switch (field) {
    case LineField::NormalDefense:
    case LineField::PPDefense:
    case LineField::PKDefense:
    case LineField::FourVsFourDefense:
    case LineField::PK3Defense:
    case LineField::ExtraDefense:
        return true;
    default:
        return false;
    }
}

// The slot (field, number, place). Fails with 9 when the field has no such number or place.
LineSlot SlotOf(LineField field, int number, int place = 1);

// Where the two goalies stand among those words.
inline constexpr int StartGoalieWord = 54;
inline constexpr int BackupGoalieWord = 55;

// All 67 skater slots in the order in which a person's slots are told: normal lines, power play, 4 vs 4, 5 vs 4 penalty
// kill, penalty kill with three, and the three lists interleaved by number. Everything that walks a line-up reads them
// from here.
extern const std::array<LineSlot, 67> SkaterSlots;

// What stands in a slot.
Int16& At(Lines& lines, const LineSlot& slot);
const Int16& At(const Lines& lines, const LineSlot& slot);

// The number of days that have lines, and whether there is such a team and such a day.
inline constexpr int LineDays = static_cast<int>(decltype(Team::ProLines)::last);
bool HasLineDay(int team, int day);

// The line-up of a team's day, pro or farm. `team` 1..100, `day` 1..10; anything else fails with 9.
enum class Side { Pro, Farm };
Lines& LinesOf(Tables& league, int team, int day, Side side);
const Lines& LinesOf(const Tables& league, int team, int day, Side side);

} // namespace dravik
