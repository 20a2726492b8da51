#include "rules/SlotPositions.h"

#include <algorithm>

namespace dravik {

namespace {

// Sets of positions, a bit each.
constexpr unsigned Only(int position) { return 1U << static_cast<unsigned>(position); }
constexpr unsigned Wings = Only(position::LeftWing) | Only(position::RightWing);
constexpr unsigned Forwards = Only(position::Center) | Wings;
constexpr unsigned Skaters = Forwards | Only(position::Defense);

// Who is at home in the places of a field, from place 1 on.
struct FieldPositions {
    LineField Field;
    std::array<unsigned, 3> Places;
};

constexpr FieldPositions AtHome[] = {
    {LineField::NormalForward, {Only(position::Center), Only(position::LeftWing), Only(position::RightWing)}},
    {LineField::PPForward, {Only(position::Center), Only(position::LeftWing), Only(position::RightWing)}},
    {LineField::PKForward, {Only(position::Center), Wings}},
    {LineField::FourVsFourForward, {Only(position::Center), Wings}},
    {LineField::PK3Forward, {Forwards}},
    {LineField::ExtraForward, {Forwards}},
    {LineField::PenaltyShot, {Skaters}},
};

unsigned PositionsIn(const LineSlot& slot)
{
    if (WantsDefense(slot.Field))
        return Only(position::Defense);
    const auto* row = std::find_if(std::begin(AtHome), std::end(AtHome),
                                   [&slot](const FieldPositions& field) { return field.Field == slot.Field; });
    return row->Places.at(static_cast<std::size_t>(slot.Place - 1));
}

} // namespace

bool IsOutOfPosition(const DaySlot& slot, long long position)
{
    if (position < position::Center || position > position::Defense)
        return false;
    const auto* row = std::find_if(SkaterSlots.begin(), SkaterSlots.end(),
                                   [&slot](const LineSlot& skaters) { return skaters.Word == slot.Word; });
    return row != SkaterSlots.end() && (PositionsIn(*row) & Only(static_cast<int>(position))) == 0;
}

int SlotsHeld(const Lines& day, PersonId who)
{
    if (who.Slot == 0)
        return 0;
    const auto held = std::count_if(DaySlots.begin(), DaySlots.end(), [&](const DaySlot& slot) {
        return slot.IsGoalies() == who.IsGoalie && At(day, slot) == who.Slot;
    });
    return static_cast<int>(held);
}

} // namespace dravik
