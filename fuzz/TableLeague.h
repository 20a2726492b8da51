#pragma once

#include "fuzz/Target.h"

namespace dravik::fuzz {

// Fills the tables with a small valid league: team 1 complete with farm and lines, team 2 incomplete, a few free agents,
// some coaches. `MakeTableLeague` is called once, with a machine in use; `ResetTableLeague` brings back what
// `ChangeTables` and the routines under test changed, in a few microseconds.
void MakeTableLeague();
void ResetTableLeague();

// The records that an input can reach, by a small number; any number is one of them.
int PlayerSlot(int number);
int GoalieSlot(int number);
int TeamSlot(int number);
int CoachSlot(int number);

// Overwrites any bytes of any record that can be reached: the kind of record is chosen by `kind` (any number), the record
// by `number`, and `bytes` go where `offset` (modulo the record's length) says, cut at its end.
void ChangeTables(int kind, int number, int offset, Input bytes);

// Copies the player (or the goalie) `from` over `count` slots behind the small league, to fill a team without end. At
// most 1200 players and 100 goalies are taken.
void ClonePlayer(int from, int count);
void CloneGoalie(int from, int count);

} // namespace dravik::fuzz
