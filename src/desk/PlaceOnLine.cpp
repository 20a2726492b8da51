#include "desk/PlaceOnLine.h"

namespace dravik {

bool TakesSomebody(const DaySlot& slot, Side side, PersonId who, int position)
{
    switch (slot.Rule) {
    case Takes::Skater:
        return !who.IsGoalie;
    case Takes::Forward:
        return !who.IsGoalie && IsForward(position);
    case Takes::Defense:
        return !who.IsGoalie && (position == position::Defense || (side == Side::Farm && who.Slot == 0));
    case Takes::Goalie:
        return who.IsGoalie;
    }
    return false;
}

bool PlaceOnLine(const Work& work, int team, int day, Side side, const DaySlot& slot, PersonId who, int position)
{
    if (!TakesSomebody(slot, side, who, position))
        return false;
    At(LinesOf(work.League, team, day, side), slot) = who.Slot;
    return true;
}

} // namespace dravik
