#pragma once

#include "desk/Erasure.h"
#include "desk/NewPlayer.h"
#include "desk/PlayerFields.h"
#include "desk/PlayerPosition.h"
#include "support/RandomLeague.h"

#include <iterator>
#include <memory>
#include <string>

// What somebody does to the records of people on a random evening: the commands of the desk, each given what it needs.
namespace dravik::record_evening {

inline const std::string Typed[] = {"",      "0",          "1",           "5",       "-3",
                                    "8-2",   "9",          "10",          "50",      "94",
                                    "95",    "99",         "100",         "101",     "255",
                                    "256",   "300",        "500000",      "32767",   "32768",
                                    "40000", "2147483647", "99999999999", "-40000",  "--9",
                                    "12a",   "Knee",       " x ",         "R\xE9mi", std::string(39, 'y') + "zz"};

struct Command {
    int Number = 0;
    PersonId Who;
    int Choice = 0;
    std::string Text;
    bool Tick = false;
    NewRecord Record;
};
enum { ANumber, AText, ARating, AFlag, APosition, AnErasure, ANewRecord, ARepair, CommandCount };

// One league, and what came of the last command.
struct Desk {
    std::unique_ptr<Tables> League;
    bool Modified = false;
    std::string Result{};
};

inline std::string Name(HealthTurn turn)
{
    return turn == HealthTurn::Healed ? "healed" : turn == HealthTurn::Injured ? "injured" : "suspended";
}

inline void AtTheDesk(Desk& desk, Voice& says, const Formats& shown, const Command& command)
{
    const Work work{*desk.League, says, shown, desk.Modified};
    const PersonId who = command.Who;
    desk.Result.clear();
    switch (command.Number) {
    case ANumber:
        desk.Result += SetNumber(work, who, static_cast<NumberField>(command.Choice % 7), command.Text,
                                 [&](HealthTurn turn) { desk.Result += Name(turn) + ' '; })
                           ? "stored"
                           : "refused";
        break;
    case AText:
        SetText(work, who, static_cast<TextField>(command.Choice % 3), command.Text);
        break;
    case ARating:
        SetRating(work, who, command.Choice, command.Text);
        break;
    case AFlag:
        SetFlag(work, who, static_cast<FlagField>(command.Choice % 3), command.Tick);
        break;
    case APosition:
        SetPosition(work, who.Slot, 1 + command.Choice % 4);
        break;
    case AnErasure:
        desk.Result = ErasePerson(work, who, 1) ? "erased" : "stays";
        break;
    case ANewRecord:
        desk.Result = "unlisted ";
        desk.Result += CreatePlayer(work, who, command.Record, [&] { desk.Result = "listed "; }) ? "made" : "missing";
        break;
    default:
        RepairPositions(work);
    }
}

inline std::string RollText(Dice& dice) { return Typed[dice.Roll(0, static_cast<long long>(std::size(Typed)) - 1)]; }

// A number that fits every field, most of the time.
inline std::string RollField(Dice& dice) { return dice.Chance(4) ? RollText(dice) : std::to_string(dice.Roll(0, 255)); }

inline NewRecord RollRecord(Dice& dice)
{
    NewRecord record{.Name = dice.Chance(5) ? "" : "Lenny Brisk",
                     .Country = dice.Chance(5) ? "" : "Sweden",
                     .Age = RollField(dice),
                     .Weight = RollField(dice),
                     .Height = RollField(dice),
                     .Contract = RollField(dice),
                     .Salary = RollField(dice),
                     .Condition = RollField(dice),
                     .Position = static_cast<int>(dice.Roll(1, 4)),
                     .Rookie = dice.Chance(50),
                     .NoTrade = dice.Chance(50),
                     .NoApplyRerate = dice.Chance(50)};
    for (int rating = 1; rating <= 16; ++rating)
        record.Ratings.push_back(RollField(dice));
    return record;
}

inline Command RollCommand(Dice& dice)
{
    const bool isGoalie = dice.Chance(30);
    Command command{.Number = static_cast<int>(dice.Roll(0, CommandCount - 1)),
                    .Who = {.IsGoalie = isGoalie, .Slot = static_cast<int>(dice.Roll(1, isGoalie ? 18 : 150))},
                    .Choice = static_cast<int>(dice.Roll(0, 20)),
                    .Text = RollText(dice),
                    .Tick = dice.Chance(50),
                    .Record = RollRecord(dice)};
    if (command.Number == APosition && isGoalie) // a goalie has none
        command.Number = ANumber;
    return command;
}

} // namespace dravik::record_evening
