#pragma once

#include <string>

// How the terminal writes money and dates: the same on every machine, so that what a script reads does not depend on where it
// runs.
namespace dravik::terminal {

// "$750,000" and "-$1,200.50": thousands parted by commas, with `decimals` digits behind a point (0 to 2).
std::string MoneyText(double amount, int decimals);

// "1.50": a point, no grouping.
std::string FixedText(double value, int decimals);

// "January 12 2026" and "21:03" of days since 30 December 1899, rounded to the second. Empty for what is no date of the years
// 100 to 9999.
std::string LongDateText(double days);
std::string ShortTimeText(double days);

} // namespace dravik::terminal
