#pragma once

#include "league/Field.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace dravik {

// A rating list is two rows: ids, numbered from 1, and ratings, numbered from 0, whose entry 0 holds the number of
// entries. It runs from best to worst; behind its end both rows are 0.

// Empties the list: every entry becomes 0, not only the count.
template <class Ids, class Ratings>
void EmptyRatingList(Ids& ids, Ratings& ratings)
{
    static_assert(std::is_trivially_copyable_v<Ids> && std::is_trivially_copyable_v<Ratings>);
    std::memset(static_cast<void*>(&ids), 0, sizeof ids);
    std::memset(static_cast<void*>(&ratings), 0, sizeof ratings);
}

// Puts `id` before the first entry whose rating is lower than `rating`, so that among equals the earlier inserted stands
// first. Fails with 9 when the list is full.
template <class Ids, class Ratings>
void InsertByRating(Ids& ids, Ratings& ratings, long long id, long long rating)
{
    const long long count = ratings[0];
    if (!Ids::Has(count + 1))
        Fail(failure::OutOfRange);
    const auto firstRating = ratings.begin() + 1;
    const auto place =
        std::partition_point(firstRating, firstRating + count, [&](long long other) { return other >= rating; }) -
        firstRating;
    std::copy_backward(ids.begin() + place, ids.begin() + count, ids.begin() + count + 1);
    std::copy_backward(firstRating + place, firstRating + count, firstRating + count + 1);
    ids[place + 1] = id;
    ratings[place + 1] = rating;
    ++ratings[0];
}

} // namespace dravik
