#pragma once

#include "desk/Arena.h"
#include "desk/Coaches.h"
#include "desk/Contacts.h"
#include "desk/Morale.h"
#include "desk/TeamMoney.h"
#include "desk/TeamNames.h"
#include "desk/TicketPrices.h"
#include "support/RandomLeague.h"

#include <iterator>
#include <memory>
#include <string>
#include <vector>

// What a manager does in the office of a team on a random evening: the commands of the desk, each given what it needs.
namespace dravik::office_evening {

inline const std::vector<std::string> Typed = {
    "",           "0",          "1",           "5",     "-3",      "8-2",   "-",           "45",
    "998",        "999",        "1000",        "99999", "100000",  "32767", "32768",       "-40000",
    "2147483647", "2147483648", "-2147483649", "12a",   "HCG",     "abc",   "HC",          "ABCD",
    "a_b",        "Gulls",      "Mira Holt",   "  ",    "R\xE9mi", "x 2",   "99999999999", std::string(39, 'y') + "zz"};

struct Command {
    int Number = 0;
    int Team = 1;
    int Level = 1;
    std::string Text;
};
inline constexpr int CommandCount = 16;

// One league, and what came of the last command.
struct Office {
    std::unique_ptr<Tables> League;
    bool Modified = false;
    std::string Result{};
};

inline std::string Told(const TypedNumber& typed)
{
    return std::string(typed.Accepted ? "taken " : "refused ") + (typed.Shown ? std::to_string(*typed.Shown) : "");
}
inline std::string Told(bool done) { return done ? "done" : "not done"; }

inline void AtTheDesk(Office& office, Voice& says, const Formats& shown, const Command& command)
{
    const Work work{*office.League, says, shown, office.Modified};
    const int team = command.Team;
    const std::string& text = command.Text;
    std::string& result = office.Result;
    const auto show = [&result] { result += "figures "; };
    result.clear();
    switch (command.Number) {
    case 0:
        result = Told(SetTicketPrice(work, team, command.Level, text));
        break;
    case 1:
        result = Told(SetArenaCapacity(work, team, command.Level, text));
        break;
    case 2:
        result = Told(NameArena(work, team, text));
        break;
    case 3:
        result = Told(RenameTeam(work, team, text));
        break;
    case 4:
        result = Told(RenameFarm(work, team, text));
        break;
    case 5:
        result = Told(AbbreviateTeam(work, team, text));
        break;
    case 6:
        result = Told(AbbreviateFarm(work, team, text));
        break;
    case 7:
        result = Told(NameCity(work, team, text));
        break;
    case 8:
        result = Told(NameGeneralManager(work, team, text));
        break;
    case 9:
        SetEmail(work, team, text);
        break;
    case 10:
        SetMessenger(work, team, text);
        break;
    case 11:
        result = Told(SetMorale(work, team, text));
        break;
    case 12:
        result = Told(SetFarmMorale(work, team, text));
        break;
    case 13:
        result = Told(FireProCoach(work, team));
        result += Told(FireFarmCoach(work, team));
        break;
    case 14:
        ChangeCash(work, team, show);
        break;
    default:
        ChangePayrollBonus(work, team, show);
    }
}

inline Command RollCommand(Dice& dice)
{
    const auto roll = [&dice](int least, int most) { return static_cast<int>(dice.Roll(least, most)); };
    return {.Number = roll(0, CommandCount - 1),
            .Team = roll(1, 3),
            .Level = roll(1, 5),
            .Text = Typed[static_cast<std::size_t>(roll(0, std::ssize(Typed) - 1))]};
}

} // namespace dravik::office_evening
