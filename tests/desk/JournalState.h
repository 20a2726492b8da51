#pragma once

#include "desk/Journal.h"
#include "desk/Market.h"

#include <string>
#include <string_view>

namespace dravik {

// A number for what a journal keeps of a league and its market: all but the passwords. An offer whose person was never chosen is
// his where the journal was brought back.
inline Seal JournalState(const Tables& league, const Market& market)
{
    std::string all = BytesOfBeginning(league);
    for (int id = static_cast<int>(OfferTable::first); id <= OfferTable::last; ++id) {
        FreeAgentOffer offer = market.Offers[id];
        const std::string_view bytes(reinterpret_cast<const char*>(&offer), sizeof offer);
        const std::size_t beside = sizeof offer.Id;
        if (bytes.find_first_not_of('\0', beside) == std::string_view::npos)
            continue;
        if (offer.Id == 0)
            offer.Id = id;
        all += std::to_string(id);
        all += bytes;
    }
    all.append(reinterpret_cast<const char*>(&market.Ranking), sizeof market.Ranking);
    return SealOver(0, all);
}

} // namespace dravik
