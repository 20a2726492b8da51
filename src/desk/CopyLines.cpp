#include "desk/CopyLines.h"

#include "league/Arithmetic.h"
#include "machine/Reporting.h"
#include "rules/DaySlots.h"

#include <string>

namespace dravik {

namespace {

bool IsMeant(Voice& says, const std::string& from, const std::string& to)
{
    return says.ShowBox("Are you want to you want to copy the lines from day " + from + " to day " + to + "?",
                        box::YesNo) == button::Yes;
}

void TellCopied(Voice& says, const std::string& from, const std::string& to)
{
    says.ShowBox("Lines " + from + " was successfully copy to " + to + ".", box::Information);
}

} // namespace

void CopyDay(const Lines& from, Lines& to)
{
    for (const DaySlot& slot : DaySlots)
        At(to, slot) = At(from, slot);
    to.Strategy = from.Strategy;
    to.PullGoalerMinGoal = from.PullGoalerMinGoal;
    to.PullGoalerMinPct = from.PullGoalerMinPct;
}

void CopyLines(const Work& work, int team, Side side, int from, int to)
{
    Reporting(work.Says, " in Copy!",
              [&] { CopyDay(LinesOf(work.League, team, from, side), LinesOf(work.League, team, to, side)); });
}

void CopyLinesToDay(const Work& work, int team, Side side, int from, int lastDay)
{
    Voice& says = work.Says;
    const int target = RoundToInt16(LeadingNumber(says.AskText("What day do you have to copy your lines?")));
    if (target < 1 || target > lastDay) {
        says.ShowBox("Please entry a number between 1 and " + std::to_string(lastDay) + ".", box::Warning);
        return;
    }
    const std::string day = std::to_string(target);
    if (!IsMeant(says, std::to_string(from), day))
        return;
    CopyLines(work, team, side, from, target);
    TellCopied(says, std::to_string(from), "Lines " + day);
}

void CopyLinesToAllDays(const Work& work, int team, Side side, int from)
{
    constexpr const char* others = "all the others day";
    if (!IsMeant(work.Says, std::to_string(from), others))
        return;
    for (int day = 1; day <= LineDays; ++day)
        if (day != from)
            CopyLines(work, team, side, from, day);
    TellCopied(work.Says, std::to_string(from), std::string("day ") + others);
}

} // namespace dravik
