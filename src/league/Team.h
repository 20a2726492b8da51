#pragma once

#include "league/Field.h"
#include "league/Lines.h"

namespace dravik {

// The farm team, inside the record of its pro team.
struct FarmTeam {
    Text<40> Name;
    Text<3> Abbre;
    Int16 FarmCoach;
    Int16 FarmMorale;
    Row<Lines, 1, 10> FarmLines;
};

static_assert(sizeof(FarmTeam) == 1567 && alignof(FarmTeam) == 1);
static_assert(offsetof(FarmTeam, Name) == 0);
static_assert(offsetof(FarmTeam, Abbre) == 40);
static_assert(offsetof(FarmTeam, FarmCoach) == 43);
static_assert(offsetof(FarmTeam, FarmMorale) == 45);
static_assert(offsetof(FarmTeam, FarmLines) == 47);

// A pro team with its farm team. It is the longest record and gives the slot files their slot length.
struct Team {
    Boolean InUse;
    Int16 Number;
    Text<40> Name;
    Text<3> Abbre;
    Text<40> Gm;
    Text<40> Messenger;
    Text<40> Email;
    Text<40> City;
    Text<40> ArenaName;
    Text<32> Password;
    Int16 Reserved1;
    Byte Division;
    Byte Reserved2;
    Int16 Captain;
    Row<Int16, 1, 2> Assistant;
    Row<Int32, 1, 5> ArenaCapacity;
    Row<Int16, 1, 5> TicketPrice;
    Int32 Cash;
    Int32 TotalAttendance;
    Int32 TotalIncome;
    Int16 ProCoach;
    Int16 SeasonGames;
    Int16 ProMorale;
    Int16 ProtectedCount;
    Int16 GamesPlayed;
    Int16 HomeGames;
    Row<Lines, 1, 10> ProLines;
    FarmTeam Farm;
    Int32 PayrollBonus;
    Int16 LinesLoadCount;
    Int16 OffersMade;
    Text<32> Reserved3;
};

static_assert(sizeof(Team) == 3470 && alignof(Team) == 1);
static_assert(offsetof(Team, InUse) == 0);
static_assert(offsetof(Team, Number) == 2);
static_assert(offsetof(Team, Name) == 4);
static_assert(offsetof(Team, Abbre) == 44);
static_assert(offsetof(Team, Gm) == 47);
static_assert(offsetof(Team, Messenger) == 87);
static_assert(offsetof(Team, Email) == 127);
static_assert(offsetof(Team, City) == 167);
static_assert(offsetof(Team, ArenaName) == 207);
static_assert(offsetof(Team, Password) == 247);
static_assert(offsetof(Team, Reserved1) == 279);
static_assert(offsetof(Team, Division) == 281);
static_assert(offsetof(Team, Reserved2) == 282);
static_assert(offsetof(Team, Captain) == 283);
static_assert(offsetof(Team, Assistant) == 285);
static_assert(offsetof(Team, ArenaCapacity) == 289);
static_assert(offsetof(Team, TicketPrice) == 309);
static_assert(offsetof(Team, Cash) == 319);
static_assert(offsetof(Team, TotalAttendance) == 323);
static_assert(offsetof(Team, TotalIncome) == 327);
static_assert(offsetof(Team, ProCoach) == 331);
static_assert(offsetof(Team, SeasonGames) == 333);
static_assert(offsetof(Team, ProMorale) == 335);
static_assert(offsetof(Team, ProtectedCount) == 337);
static_assert(offsetof(Team, GamesPlayed) == 339);
static_assert(offsetof(Team, HomeGames) == 341);
static_assert(offsetof(Team, ProLines) == 343);
static_assert(offsetof(Team, Farm) == 1863);
static_assert(offsetof(Team, PayrollBonus) == 3430);
static_assert(offsetof(Team, LinesLoadCount) == 3434);
static_assert(offsetof(Team, OffersMade) == 3436);
static_assert(offsetof(Team, Reserved3) == 3438);

} // namespace dravik
