#pragma once

#include "desk/TypedNumber.h"
#include "machine/Work.h"

#include <string_view>

namespace dravik {

// Whether the prices are the general manager's to set: the league may keep them.
bool ManagerSetsPrices(const League& rules);
// Why they are closed where they are not.
inline constexpr std::string_view PricesKeptWords = "The league sets the ticket prices.";

// Takes what was typed as the ticket price of a seat level (1..5) of `team` (1..100): the number at the head of the text, 1 to
// 999; what lies beyond is brought to the limit, which the box shows then. A text that `CheckInput` refuses is told. A number
// that does not fit 16 bits stores nothing and is told nobody: the box shows the price that stands.
TypedNumber SetTicketPrice(const Work& work, int team, int level, std::string_view text);

} // namespace dravik
