#pragma once

#include "league/Field.h"
#include "league/Positions.h"

namespace dravik {

// A skater. `Position` is 1 C, 2 LW, 3 RW, 4 D; `Status` 0 farm, 1 scratches, 2 pro; `Condition` below 95 is injured.
struct Player {
    Boolean InUse;
    Int16 Number;
    Text<40> Name;
    Int16 Team;
    Text<3> Country;
    Int16 Age;
    Int16 Weight;
    Int16 Height;
    Byte Position;
    Byte Contract;
    Boolean Rookie;
    Boolean Protected;
    Boolean NoApplyRerate;
    Boolean TradeAvailable;
    Boolean NoTrade;
    Int32 Salary;
    Text<40> Injury;
    Byte Reserved1;
    Byte Condition;
    Byte Suspension;
    Byte Status;
    Row<Int16, 1, 15> Stats;
    Int16 ProGames;
    Int16 Reserved2;
    Int16 Reserved3;
    Int16 Reserved4;
    Int16 Reserved5;
};

static_assert(sizeof(Player) == 155 && alignof(Player) == 1);
static_assert(offsetof(Player, InUse) == 0);
static_assert(offsetof(Player, Number) == 2);
static_assert(offsetof(Player, Name) == 4);
static_assert(offsetof(Player, Team) == 44);
static_assert(offsetof(Player, Country) == 46);
static_assert(offsetof(Player, Age) == 49);
static_assert(offsetof(Player, Weight) == 51);
static_assert(offsetof(Player, Height) == 53);
static_assert(offsetof(Player, Position) == 55);
static_assert(offsetof(Player, Contract) == 56);
static_assert(offsetof(Player, Rookie) == 57);
static_assert(offsetof(Player, Protected) == 59);
static_assert(offsetof(Player, NoApplyRerate) == 61);
static_assert(offsetof(Player, TradeAvailable) == 63);
static_assert(offsetof(Player, NoTrade) == 65);
static_assert(offsetof(Player, Salary) == 67);
static_assert(offsetof(Player, Injury) == 71);
static_assert(offsetof(Player, Reserved1) == 111);
static_assert(offsetof(Player, Condition) == 112);
static_assert(offsetof(Player, Suspension) == 113);
static_assert(offsetof(Player, Status) == 114);
static_assert(offsetof(Player, Stats) == 115);
static_assert(offsetof(Player, ProGames) == 145);
static_assert(offsetof(Player, Reserved2) == 147);
static_assert(offsetof(Player, Reserved3) == 149);
static_assert(offsetof(Player, Reserved4) == 151);
static_assert(offsetof(Player, Reserved5) == 153);

// A goalie. He has no position field; 5 stands for it where one is needed.
struct Goalie {
    Boolean InUse;
    Int16 Number;
    Text<40> Name;
    Int16 Team;
    Text<3> Country;
    Int16 Age;
    Int16 Weight;
    Int16 Height;
    Byte Contract;
    Boolean Rookie;
    Boolean Protected;
    Boolean NoApplyRerate;
    Boolean TradeAvailable;
    Boolean NoTrade;
    Int32 Salary;
    Text<40> Injury;
    Byte Reserved1;
    Byte Condition;
    Byte Suspension;
    Byte Status;
    Row<Int16, 1, 13> Stats;
    Int16 ProGames;
};

static_assert(sizeof(Goalie) == 142 && alignof(Goalie) == 1);
static_assert(offsetof(Goalie, InUse) == 0);
static_assert(offsetof(Goalie, Number) == 2);
static_assert(offsetof(Goalie, Name) == 4);
static_assert(offsetof(Goalie, Team) == 44);
static_assert(offsetof(Goalie, Country) == 46);
static_assert(offsetof(Goalie, Age) == 49);
static_assert(offsetof(Goalie, Weight) == 51);
static_assert(offsetof(Goalie, Height) == 53);
static_assert(offsetof(Goalie, Contract) == 55);
static_assert(offsetof(Goalie, Rookie) == 56);
static_assert(offsetof(Goalie, Protected) == 58);
static_assert(offsetof(Goalie, NoApplyRerate) == 60);
static_assert(offsetof(Goalie, TradeAvailable) == 62);
static_assert(offsetof(Goalie, NoTrade) == 64);
static_assert(offsetof(Goalie, Salary) == 66);
static_assert(offsetof(Goalie, Injury) == 70);
static_assert(offsetof(Goalie, Reserved1) == 110);
static_assert(offsetof(Goalie, Condition) == 111);
static_assert(offsetof(Goalie, Suspension) == 112);
static_assert(offsetof(Goalie, Status) == 113);
static_assert(offsetof(Goalie, Stats) == 114);
static_assert(offsetof(Goalie, ProGames) == 140);

// The number of a person's position: what stands in the record of a skater, 5 for a goalie.
constexpr int PositionOf(const Player& player) { return static_cast<int>(player.Position); }
constexpr int PositionOf(const Goalie& /*goalie*/) { return position::Goalie; }

// A coach.
struct Coach {
    Boolean InUse;
    Int16 Number;
    Text<40> Name;
    Int16 Team;
    Text<3> Country;
    Int16 Age;
    Byte Contract;
    Int32 Salary;
    Row<Byte, 1, 7> Ratings;
    Int16 Reserved1;
};

static_assert(sizeof(Coach) == 65 && alignof(Coach) == 1);
static_assert(offsetof(Coach, InUse) == 0);
static_assert(offsetof(Coach, Number) == 2);
static_assert(offsetof(Coach, Name) == 4);
static_assert(offsetof(Coach, Team) == 44);
static_assert(offsetof(Coach, Country) == 46);
static_assert(offsetof(Coach, Age) == 49);
static_assert(offsetof(Coach, Contract) == 51);
static_assert(offsetof(Coach, Salary) == 52);
static_assert(offsetof(Coach, Ratings) == 56);
static_assert(offsetof(Coach, Reserved1) == 63);

} // namespace dravik
