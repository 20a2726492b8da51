#pragma once

#include "desk/CopyLines.h"
#include "desk/FirstDay.h"
#include "desk/GoaliePull.h"
#include "desk/LineCandidates.h"
#include "desk/LineMakers.h"
#include "desk/PlaceOnLine.h"
#include "desk/Strategy.h"
#include "desk/WipeDay.h"
#include "support/RandomLeague.h"

#include <array>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

// What a manager does to his lines on a random evening: the commands of the desk, each given what it needs.
namespace dravik::lines_evening {

inline constexpr int Own = 1;
inline const std::vector<std::string> Typed = {"", "0", "1", "3", " 10", "2.5", "3.5", "11", "7th", "x", "-3", "40000"};
inline constexpr const char* PullTexts[] = {"",       "5",   "-7", "0",  "32767", "32768",
                                            "-40000", "12a", "a1", "3-", "1-2",   "1.5"};

// What a command is given.
struct Command {
    int Number;
    dravik::Side Side;
    int Day;
    int Other; // the day copied to, or the last one that may be named
    int Slot;  // by its place in DaySlots
    PersonId Who;
    int Position;
    std::array<int, 3> Bars;
    int Style;
    bool IsGoal; // of the two values of the pull
    std::string Text;
};
inline constexpr int CommandCount = 11;

struct Evening {
    std::unique_ptr<Tables> League;
    bool Modified = false;
    std::string Result{}; // of the last command
};

inline void AtTheDesk(Evening& evening, Voice& says, const Formats& shown, const Command& command)
{
    const Work work{*evening.League, says, shown, evening.Modified};
    const auto& [number, side, day, other, slot, who, position, given, style, isGoal, text] = command;
    std::string& result = evening.Result;
    switch (number) {
    case 0:
        result = PlaceOnLine(work, Own, day, side, DaySlots.at(static_cast<std::size_t>(slot)), who, position)
                     ? "placed"
                     : "refused";
        break;
    case 1:
        CopyLines(work, Own, side, day, other);
        break;
    case 2:
        CopyLinesToDay(work, Own, side, day, other);
        break;
    case 3:
        CopyLinesToAllDays(work, Own, side, day);
        break;
    case 4:
        result = WipeDay(work, Own, day, side) ? "wiped" : "kept";
        break;
    case 5: {
        StrategyBars bars;
        for (int i = 0; i <= 2; ++i)
            bars[i] = given.at(static_cast<std::size_t>(i));
        const auto left = GiveStrategyPoints(work, Own, day, side, style, bars);
        result = left ? std::to_string(*left) : "too many";
        break;
    }
    case 6: {
        const GoaliePull value = isGoal ? GoaliePull::MinGoal : GoaliePull::MinPct;
        if (const auto pull = GoaliePullNumber(says, text))
            SetGoaliePull(work, Own, day, side, value, *pull);
        result = std::to_string(ShownGoaliePull(work.League, Own, day, side, value));
        break;
    }
    case 7:
        result = MakeDay(work, Own, day, side).Done ? "made" : "not made";
        break;
    case 8:
        result = MakeRestOfDay(work, Own, day).Done ? "made" : "not made";
        break;
    case 9:
        WarnOfFirstDay(work, Own, side);
        break;
    default:
        result = ArePlaceholdersCandidates(work.League.LeagueData, side) ? "with placeholders:" : "people:";
        EachLineCandidate(work, Own, side, [&](PersonId candidate, int his) {
            result += ' ' + std::to_string(candidate.CommonId()) + '/' + std::to_string(his);
        });
        break;
    }
}

inline Command RollCommand(Dice& dice)
{
    // A day is one of the ten, or, now and then, none where the command tells of that by itself.
    const auto number = static_cast<int>(dice.Roll(0, CommandCount - 1));
    const bool mayMiss = number == 0 || number == 1 || number == 4 || number == 5;
    const auto rollDay = [&] {
        return static_cast<int>(mayMiss && dice.Chance(5) ? dice.Pick({0, 11}) : dice.Roll(1, 10));
    };
    const bool isGoalie = dice.Chance(20);
    const auto bar = [&] { return static_cast<int>(dice.Roll(0, 3)); };
    return {.Number = number,
            .Side = dice.Chance(50) ? Side::Pro : Side::Farm,
            .Day = rollDay(),
            .Other = rollDay(),
            .Slot = static_cast<int>(dice.Roll(0, 68)),
            .Who = {.IsGoalie = isGoalie,
                    .Slot = static_cast<int>(dice.Chance(15) ? 0 : dice.Roll(1, isGoalie ? 18 : 150))},
            .Position = isGoalie ? position::Goalie : static_cast<int>(dice.Roll(0, 4)),
            .Bars = {bar(), bar(), bar()},
            .Style = static_cast<int>(dice.Roll(0, 2)),
            .IsGoal = dice.Chance(50),
            .Text = PullTexts[dice.Roll(0, std::ssize(PullTexts) - 1)]};
}

} // namespace dravik::lines_evening
