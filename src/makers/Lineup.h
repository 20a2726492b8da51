#pragma once

#include "league/ClientVariable.h"

// The working list of the makers of lines: skaters or goalies of one team, best first. It is used only while one of them
// runs.
namespace dravik {

// Plain indices from 1, and their ratings, whose entry 0 is the number of entries. Behind the end both are 0.
extern Row<Int16, 1, 11000> LineupIds;
extern Row<Int16, 0, 11000> LineupRatings;

// Empties the working list.
void EmptyLineup();

// Puts one person into the working list by his overall rating, behind those of the same rating. `id` is a `Player` index,
// or a `Goalie` index + 10000, which comes back as the plain index. Fails with 9 when the list is full.
void InsertInLineup(int& id);

// The number of entries, and the skater at a place of the list. A place behind the end is that of record 0.
int LineupCount();
Player& SkaterAtPlace(long long place);

} // namespace dravik
