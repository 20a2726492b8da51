#include "desk/TicketPrices.h"

#include "league/Arithmetic.h"
#include "machine/InputCheck.h"

#include <algorithm>

namespace dravik {

bool ManagerSetsPrices(const League& rules) { return !rules.TicketRuleFlag; }

TypedNumber SetTicketPrice(const Work& work, int team, int level, std::string_view text)
{
    constexpr int lowest = 1;
    constexpr int highest = 999;
    if (!CheckInput(work.Says, text, InputMode::Numbers, true))
        return {};
    Int16& price = work.League.Teams[team].TicketPrice[level];
    TypedNumber typed{.Accepted = true};
    try {
        const int value = RoundToInt16(LeadingNumber(text));
        price = std::clamp(value, lowest, highest);
        work.Modified = true;
        if (price != value)
            typed.Shown = price;
    } catch (const Failure&) {
        typed.Shown = price;
    }
    return typed;
}

} // namespace dravik
