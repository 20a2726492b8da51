#pragma once

#include "desk/LeagueDigest.h"

#include <vector>

namespace dravik {

// Who of an earlier state of a league is who in a later one, as indices into the people of the two; none (-1) on either side for
// who is gone and who came. Differences says how people are known.
struct MatchedPerson {
    int Earlier = -1;
    int Later = -1;

    bool operator==(const MatchedPerson&) const = default;
};

// All of both, once each: those of the later state in their order, then who is gone in his.
std::vector<MatchedPerson> MatchPeople(const std::vector<PersonDigest>& earlier,
                                       const std::vector<PersonDigest>& later);

} // namespace dravik
