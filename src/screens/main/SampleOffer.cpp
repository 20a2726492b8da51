#include "screens/main/SampleOffer.h"

#include <utility>

namespace dravik {

namespace {

SampleOffer Offered;

} // namespace

void OfferSampleLeague(SampleOffer offer) { Offered = std::move(offer); }

const SampleOffer& OfferedSample() { return Offered; }

} // namespace dravik
