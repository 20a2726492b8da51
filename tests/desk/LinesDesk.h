#pragma once

#include "league/PersonId.h"
#include "rules/DaySlots.h"
#include "support/LineFindings.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace dravik {

// The desk of the lines of team 5: full rosters of both sides and complete lines for day 1. A test does by hand to `Expected`
// what a command should do, and nothing else may have happened.
class LinesDesk : public SmallLeague {
protected:
    LinesDesk() : Pro(TeamMaker(Own).DressesFullRoster()), Farm(TeamMaker(Own).FarmsFullRoster())
    {
        FillDay(Teams[Own].ProLines[1], Pro);
        FillDay(Teams[Own].Farm.FarmLines[1], Farm);
        Players[0].Name = "Unknown Player";
        Goalies[0].Name = "Unknown Goalie";
        Remember();
    }

    static constexpr int Own = 5;
    static constexpr Side Sides[] = {Side::Pro, Side::Farm};

    void Remember() { Expected = Copy(OpenLeague); }
    // Whether every byte of the league is as expected.
    [[nodiscard]] bool IsAsExpected() const { return std::memcmp(Expected.get(), &OpenLeague, sizeof OpenLeague) == 0; }
    [[nodiscard]] Lines& ExpectedDay(Side side, int day = 1) const { return LinesOf(*Expected, Own, day, side); }
    static Lines& Day(Side side, int day = 1) { return LinesOf(OpenLeague, Own, day, side); }

    // The slot of a day with that word of the record, and by what it is called.
    static const DaySlot& SlotIn(int word)
    {
        return *std::find_if(DaySlots.begin(), DaySlots.end(),
                             [word](const DaySlot& slot) { return slot.Word == word; });
    }
    static const DaySlot& Of(LineField field, int number, int place = 1)
    {
        return SlotIn(SlotOf(field, number, place).Word);
    }

    static PersonId Skater(int slot) { return {.IsGoalie = false, .Slot = slot}; }
    static PersonId Keeper(int slot) { return {.IsGoalie = true, .Slot = slot}; }

    // The number of the failure that leaves a command, 0 for none.
    template <class Command>
    static int FailureOfCommand(Command&& command)
    {
        try {
            command();
        } catch (const Failure& failed) {
            return failed.Number;
        }
        return 0;
    }

    TeamMaker Pro;
    TeamMaker Farm;
    std::unique_ptr<Tables> Expected;
};

} // namespace dravik
