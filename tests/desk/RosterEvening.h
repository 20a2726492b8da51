#pragma once

#include "desk/Captaincy.h"
#include "desk/PlayerFlags.h"
#include "desk/Release.h"
#include "desk/RosterMoves.h"
#include "league/PersonId.h"
#include "support/RandomLeague.h"

#include <memory>
#include <string>

// What a manager does to his roster on a random evening: the commands of the desk, each given what it needs.
namespace dravik::roster_evening {

inline constexpr int Own = 1;

// What a command is given.
struct Command {
    int Number;
    PersonId Who;
    status::Number From;
    status::Number To;
    bool Tick;
};
inline constexpr int CommandCount = 9;

// One league with its counts, and what was said over it.
struct Evening {
    std::unique_ptr<Tables> League;
    RosterCounts Counts{};
    bool Modified = false;
    std::string Result{}; // of the last command
};

inline void AtTheDesk(Evening& evening, Voice& says, const Formats& shown, const Command& command)
{
    const Work work{*evening.League, says, shown, evening.Modified};
    const PersonId who = command.Who;
    switch (command.Number) {
    case 0:
        evening.Result = MoveOnRoster(work, Own, who, command.From, command.To, evening.Counts) ? "moved" : "stays";
        break;
    case 1:
        SendToWaivers(work, Own, who,
                      [&] { return MoveOnRoster(work, Own, who, status::Pro, status::Scratch, evening.Counts); });
        break;
    case 2:
        evening.Result = ReleasePerson(work, Own, who) ? "released" : "stays";
        break;
    case 3:
        evening.Result = MakeCaptain(work, Own, who) ? "told" : "refused";
        break;
    case 4:
        evening.Result = MakeAssistant(work, Own, who) ? "told" : "refused";
        break;
    case 5:
        SetProtected(work, Own, who, command.Tick);
        break;
    case 6:
        TakeBarredOffMarket(work, who);
        SetTradeAvailable(work, who, !IsTradeAvailable(work.League, who));
        break;
    case 7:
        SetNoTrade(work, who, command.Tick);
        break;
    default:
        SetNoApplyRerate(work, who, command.Tick);
        break;
    }
}

inline Command RollCommand(Dice& dice)
{
    const bool isGoalie = dice.Chance(20);
    return {.Number = static_cast<int>(dice.Roll(0, CommandCount - 1)),
            .Who = {.IsGoalie = isGoalie, .Slot = static_cast<int>(dice.Roll(1, isGoalie ? 18 : 150))},
            .From = static_cast<status::Number>(dice.Roll(0, 2)),
            .To = static_cast<status::Number>(dice.Roll(0, 2)),
            .Tick = dice.Chance(50)};
}

} // namespace dravik::roster_evening
