#pragma once

#include "desk/Market.h"

#include <map>
#include <vector>

namespace dravik {

// What the manager has on the market of the open league. Made when somebody asks for it first, and kept as long as the program
// runs.
Market& OpenMarket();

// What was left there when its screens closed: by the number of the team (1..100), until another league is opened. It is a team's
// own, so nobody is shown another one's.
struct KeptMarket {
    std::map<int, std::vector<FreeAgentOffer>> Offers;
    std::map<int, DraftRanking> Rankings;
    int OffersBy = 0;  // who made the offers that the market holds; 0 = nobody
    int RankingBy = 0; // and its ranking
};
KeptMarket& KeptWork();

// Takes everything off the market, and forgets what was kept.
void EmptyOpenMarket();

} // namespace dravik
