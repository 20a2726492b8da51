#include "desk/MarketDoors.h"

#include "rules/Waivers.h"

namespace dravik {

MarketDoors DoorsOf(const League& rules)
{
    const bool isOff = static_cast<bool>(rules.OffSeason);
    return {.AreFreeAgentsOpen = isOff || !IsDeadlineInForce(rules),
            .IsFantasyDraftOpen = isOff && rules.FantasyDraft,
            .IsEntryDraftOpen = isOff && rules.EntryDraft && rules.EntryDraftDone == 0};
}

} // namespace dravik
