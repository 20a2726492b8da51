#pragma once

#include "league/League.h"

namespace dravik {

// Which screens of the market the league keeps open. Either draft opens the one screen of the ranking.
struct MarketDoors {
    bool AreFreeAgentsOpen = false;
    bool IsFantasyDraftOpen = false;
    bool IsEntryDraftOpen = false;

    [[nodiscard]] bool IsDraftOpen() const { return IsFantasyDraftOpen || IsEntryDraftOpen; }
};
MarketDoors DoorsOf(const League& rules);

} // namespace dravik
