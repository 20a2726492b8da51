#include "desk/SlotPicks.h"

#include "desk/LineCandidates.h"
#include "desk/PlaceOnLine.h"
#include "rules/Overall.h"

#include <algorithm>

namespace dravik {

namespace {

// The places of a line's forwards are their positions.
int PositionOfSkaters(const LineSlot& slot)
{
    switch (slot.Field) {
    case LineField::NormalForward:
    case LineField::PPForward:
        return slot.Place;
    case LineField::PenaltyShot:
        return 0;
    default:
        return WantsDefense(slot.Field) ? position::Defense : position::Center;
    }
}

std::optional<int> OverallIn(const Tables& league, const DaySlot& slot, PersonId who, int position)
{
    if (!league.LeagueData.ShowOverall)
        return std::nullopt;
    const int wanted = PositionOfSlot(slot);
    return OverallAt(league, wanted == 0 ? position : wanted, who.Slot);
}

} // namespace

int PositionOfSlot(const DaySlot& slot)
{
    if (slot.IsGoalies())
        return position::Goalie;
    const auto skaters = std::find_if(SkaterSlots.begin(), SkaterSlots.end(),
                                      [&](const LineSlot& other) { return other.Word == slot.Word; });
    return PositionOfSkaters(*skaters);
}

std::vector<SlotPick> PicksFor(const Work& work, int team, Side side, const DaySlot& slot)
{
    MuteVoice mute;
    const Work quiet{work.League, mute, work.Shown, work.Modified};
    std::vector<SlotPick> picks;
    EachLineCandidate(quiet, team, side, [&](PersonId who, int position) {
        if (TakesSomebody(slot, side, who, position))
            picks.push_back({who, position, OverallIn(work.League, slot, who, position)});
    });
    std::stable_sort(picks.begin(), picks.end(),
                     [](const SlotPick& one, const SlotPick& other) { return one.Overall > other.Overall; });
    const PersonId placeholder{.IsGoalie = slot.IsGoalies(), .Slot = 0};
    const int atPosition = slot.IsGoalies() ? position::Goalie : position::Center;
    if (ArePlaceholdersCandidates(work.League.LeagueData, side) && TakesSomebody(slot, side, placeholder, atPosition))
        picks.push_back({placeholder, atPosition, std::nullopt});
    return picks;
}

} // namespace dravik
