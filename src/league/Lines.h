#pragma once

#include "league/Field.h"

namespace dravik {

// One line-up of one game day, of a pro team or of its farm team. A skater slot holds a `Player` index, a goalie slot a
// `Goalie` index, 0 stands for empty.
struct Lines {
    Grid<4, 3> NormalForward;     // (line, position): C, LW, RW
    Grid<4, 2> NormalDefense;     // (line, pair place)
    Grid<2, 3> PPForward;         // (unit, position): C, LW, RW
    Grid<2, 2> PPDefense;         // (unit, pair place)
    Grid<2, 2> PKForward;         // (unit, position): C, W
    Grid<2, 2> PKDefense;         // (unit, pair place)
    Grid<2, 2> FourVsFourForward; // (unit, position): C, W
    Grid<2, 2> FourVsFourDefense; // (unit, pair place)
    Row<Int16, 1, 2> PK3Reserved; // always 0, keeps its place
    Row<Int16, 1, 2> PK3Forward;  // unit
    Grid<2, 2> PK3Defense;        // (unit, pair place)
    Int16 StartGoalie;
    Int16 BackupGoalie;
    Row<Int16, 1, 5> ExtraForward;
    Row<Int16, 1, 5> ExtraDefense;
    Row<Int16, 1, 5> PenaltyShot;
    Row<Int16, 0, 2> Strategy; // Physical, Defense, Offense
    Int16 PullGoalerMinGoal;   // 0: the league's default
    Int16 PullGoalerMinPct;    // 0: the league's default
};

static_assert(sizeof(Lines) == 152 && alignof(Lines) == 1);
static_assert(offsetof(Lines, NormalForward) == 0);
static_assert(offsetof(Lines, NormalDefense) == 24);
static_assert(offsetof(Lines, PPForward) == 40);
static_assert(offsetof(Lines, PPDefense) == 52);
static_assert(offsetof(Lines, PKForward) == 60);
static_assert(offsetof(Lines, PKDefense) == 68);
static_assert(offsetof(Lines, FourVsFourForward) == 76);
static_assert(offsetof(Lines, FourVsFourDefense) == 84);
static_assert(offsetof(Lines, PK3Reserved) == 92);
static_assert(offsetof(Lines, PK3Forward) == 96);
static_assert(offsetof(Lines, PK3Defense) == 100);
static_assert(offsetof(Lines, StartGoalie) == 108);
static_assert(offsetof(Lines, BackupGoalie) == 110);
static_assert(offsetof(Lines, ExtraForward) == 112);
static_assert(offsetof(Lines, ExtraDefense) == 122);
static_assert(offsetof(Lines, PenaltyShot) == 132);
static_assert(offsetof(Lines, Strategy) == 142);
static_assert(offsetof(Lines, PullGoalerMinGoal) == 148);
static_assert(offsetof(Lines, PullGoalerMinPct) == 150);

} // namespace dravik
