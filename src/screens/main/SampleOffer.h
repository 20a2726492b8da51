#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace dravik {

// The league that somebody without a client file may try.
struct SampleOffer {
    std::string Path;                                   // of the file, which need not be there yet, nor its folder
    std::vector<std::pair<int, std::string>> Passwords; // of its teams that have one
    std::function<void(const std::string& path)> Make;  // writes it there; fails as files do
};

// Offers it on the main screen while no league is open. Whoever calls it first is the program; without it none is offered.
void OfferSampleLeague(SampleOffer offer);
// What is offered, or nothing.
const SampleOffer& OfferedSample();

} // namespace dravik
