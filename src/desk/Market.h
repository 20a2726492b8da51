#pragma once

#include "files/DraftFile.h"
#include "league/FreeAgentOffer.h"

#include <memory>
#include <type_traits>

namespace dravik {

// What a manager has at work beside the tables of his league: his offers to free agents, and whom he ranks for a draft. No
// league is opened with either of them; both begin empty, and are saved to files of their own.
struct Market {
    OfferTable Offers;
    DraftRanking Ranking;
};

static_assert(std::is_trivially_copyable_v<Market> && alignof(Market) == 1);

// An empty market. It is too large for a stack: it lives on the heap alone.
std::unique_ptr<Market> MakeMarket();

// Takes everything off `market`.
void EmptyMarket(Market& market);

} // namespace dravik
