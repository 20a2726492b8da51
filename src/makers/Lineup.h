#pragma once

#include "league/Tables.h"
#include "machine/Voice.h"

namespace dravik {

// The working list of the makers of lines: skaters or goalies of one team, best first.
struct Lineup {
    // Plain indices from 1, and their ratings, whose entry 0 is the number of entries. Behind the end both are 0.
    Row<Int16, 1, 11000> Ids{};
    Row<Int16, 0, 11000> Ratings{};

    [[nodiscard]] int Count() const { return static_cast<int>(Ratings[0]); }
    void Empty();
};

// Puts one person into the list by his overall rating, behind those of the same rating. `id` is a `Player` index, or a
// `Goalie` index + 10000, which comes back as the plain index. A skater without a position is told. Fails with 9 when the
// list is full.
void InsertInLineup(const Tables& league, Voice& says, Lineup& lineup, int& id);

} // namespace dravik
