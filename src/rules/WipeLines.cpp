#include "rules/WipeLines.h"

#include "league/PersonId.h"
#include "machine/Reporting.h"
#include "rules/DaySlots.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

namespace dravik {

namespace {

void EmptyIfHolding(Int16& slot, long long index)
{
    if (slot == index)
        slot = 0;
}

// Whether a line-up has the number in any of its words, the ones that hold no skater included. Few line-ups do, and this
// is far less work than looking into the slots one by one.
bool HasWord(const Lines& lines, std::int16_t number)
{
    constexpr std::size_t count = sizeof(Lines) / sizeof(Int16);
    const auto wanted = std::bit_cast<std::uint16_t>(Int16(number));
    std::array<std::uint16_t, count> words{};
    std::memcpy(words.data(), &lines, sizeof words);
    return std::find(words.begin(), words.end(), wanted) != words.end();
}

void TakeOut(Lines& lines, PersonId who)
{
    if (who.IsGoalie) {
        EmptyIfHolding(lines.StartGoalie, who.Slot);
        EmptyIfHolding(lines.BackupGoalie, who.Slot);
        return;
    }
    if (!std::in_range<std::int16_t>(who.Slot) || !HasWord(lines, static_cast<std::int16_t>(who.Slot)))
        return;
    for (const LineSlot& slot : SkaterSlots)
        EmptyIfHolding(At(lines, slot), who.Slot);
}

} // namespace

void WipesLines(Tables& league, Voice& says, int team, int day, bool pro)
{
    Reporting(says, " in WipesLines!", [&] {
        if (!HasLineDay(team, day)) {
            says.ShowIntegrityFailure();
            return;
        }
        Lines& lines = LinesOf(league, team, day, pro ? Side::Pro : Side::Farm);
        for (const DaySlot& slot : DaySlots)
            At(lines, slot) = 0;
        for (Int16& points : lines.Strategy)
            points = 0;
    });
}

void WipePlayerFromTeamLines(Tables& league, Voice& says, int team, int id)
{
    Reporting(says, " in WipePlayerFromTeamLines!", [&] {
        if (!TeamTable::Has(team)) {
            says.ShowIntegrityFailure();
            return;
        }
        const PersonId who = PersonOf(id);
        for (int day = 1; day <= LineDays; ++day) {
            TakeOut(LinesOf(league, team, day, Side::Pro), who);
            TakeOut(LinesOf(league, team, day, Side::Farm), who);
        }
        if (who.IsGoalie)
            return;
        Team& record = league.Teams[team];
        EmptyIfHolding(record.Captain, who.Slot);
        for (Int16& assistant : record.Assistant)
            EmptyIfHolding(assistant, who.Slot);
    });
}

} // namespace dravik
