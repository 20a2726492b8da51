#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"
#include "rules/DaySlots.h"
#include "rules/LineSlots.h"

#include <optional>
#include <vector>

namespace dravik {

// Somebody who may be put into a slot.
struct SlotPick {
    PersonId Who;
    int Position;               // 1..4, a goalie's 5
    std::optional<int> Overall; // at the position that the slot is for; none where the league hides overalls

    bool operator==(const SlotPick&) const = default;
};

// The position (1..5) at which a slot judges whoever stands there: its own where it names one, otherwise a forward's or a
// defenseman's. A shooter is judged at his own: 0.
int PositionOfSlot(const DaySlot& slot);

// Whom the list of the lines of a side of `team` (1..100) offers and the slot takes: the best overall at the slot's position
// first, as in the list where overalls are alike or hidden. The farm's placeholder, where there is one, stands last. Nobody is
// told anything.
std::vector<SlotPick> PicksFor(const Work& work, int team, Side side, const DaySlot& slot);

} // namespace dravik
