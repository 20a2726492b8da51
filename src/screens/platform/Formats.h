#pragma once

#include <QLocale>

#include <string>

// Money and dates in the words of a locale. Results are in the code page; what it cannot hold stands escaped, so that
// the screens show it all the same.
namespace dravik {

// `amount` in the locale's currency format with its usual decimals. A currency whose symbol the code page does not have
// goes by its three-letter code.
std::string CurrencyText(const QLocale& locale, double amount);
// The same without decimals: `amount` is rounded to the nearest whole number, ties to even.
std::string CurrencyTextNoDecimals(const QLocale& locale, double amount);

// `value` with the locale's decimal sign, `decimals` digits behind it and at least one before it, without grouping.
std::string FixedText(const QLocale& locale, double value, int decimals);

// Days since 30 December 1899, rounded to the nearest second, as "MMMM d yyyy" and as "HH:mm". Empty for a number that is
// no day of the years 100 to 9999.
std::string LongDateText(const QLocale& locale, double days);
std::string ShortTimeText(const QLocale& locale, double days);

} // namespace dravik
