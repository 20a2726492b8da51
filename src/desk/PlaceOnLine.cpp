#include "desk/PlaceOnLine.h"

#include <utility>

namespace dravik {

namespace {

PersonId Standing(const Lines& lines, const DaySlot& slot)
{
    return {.IsGoalie = slot.IsGoalies(), .Slot = static_cast<int>(At(lines, slot))};
}

bool TakesWhoStands(const Tables& league, const DaySlot& slot, Side side, PersonId who)
{
    if (who.Slot == 0 || !who.HasSlot())
        return false;
    const int position = who.IsGoalie ? position::Goalie : PositionOf(league.Players[who.Slot]);
    return TakesSomebody(slot, side, who, position);
}

} // namespace

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

bool MaySwapOnLine(const Tables& league, int team, int day, Side side, const DaySlot& one, const DaySlot& other)
{
    const Lines& lines = LinesOf(league, team, day, side);
    const PersonId first = Standing(lines, one);
    const PersonId second = Standing(lines, other);
    return first != second && TakesWhoStands(league, other, side, first) && TakesWhoStands(league, one, side, second);
}

bool SwapOnLine(const Work& work, int team, int day, Side side, const DaySlot& one, const DaySlot& other)
{
    if (!MaySwapOnLine(work.League, team, day, side, one, other))
        return false;
    Lines& lines = LinesOf(work.League, team, day, side);
    std::swap(At(lines, one), At(lines, other));
    return true;
}

} // namespace dravik
