#pragma once

#include "desk/ByteDifference.h"

#include <map>
#include <memory>
#include <optional>

namespace dravik {

// A desk as it stood: a copy of its league and of the ranking, and of those offers that are watched. The table of all offers is
// four times a league and nearly empty; it is never copied or compared whole.
class Shadow {
public:
    // Without room it fails with std::bad_alloc, as `Watch` and `Behind` do.
    explicit Shadow(const DeskContents& desk);

    // Takes in the ranking of a market that came to the desk, as it stands now.
    void Join(const Market& market) noexcept;
    // Takes in the offer to a person, by his common number, as it stands now. What is watched already stays, and a number
    // that no offer has is passed over.
    void Watch(const Market& market, int offer);

    // What differs behind it.
    [[nodiscard]] ByteDifference Behind(const DeskContents& desk) const;
    // Follows the desk over a difference, to that end of it.
    void Follow(const ByteDifference& difference, DifferenceEnd to) noexcept;

    // How many bytes of memory it takes.
    [[nodiscard]] std::size_t Held() const;

private:
    void FollowOffers(std::size_t offset, Bytes bytes) noexcept;

    std::unique_ptr<Tables> league;
    std::optional<DraftRanking> ranking;
    std::map<int, FreeAgentOffer> offers;
};

} // namespace dravik
