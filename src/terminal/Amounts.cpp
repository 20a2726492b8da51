#include "terminal/Amounts.h"

#include <chrono>
#include <cmath>
#include <iomanip>
#include <locale>
#include <optional>
#include <sstream>

namespace dravik::terminal {

namespace {

constexpr long long SecondsOfDay = 86400;

// The second that is meant, counted from the first day.
std::optional<long long> SecondOf(double days)
{
    constexpr double first = -657434; // 1 January 100
    constexpr double end = 2958466;   // behind 31 December 9999
    if (!(days >= first && days < end))
        return std::nullopt;
    const long long second = std::llround(days * static_cast<double>(SecondsOfDay));
    return second < static_cast<long long>(end) * SecondsOfDay ? std::optional(second) : std::nullopt;
}

// Whole days before a second, and what is left.
long long DayOf(long long second)
{
    return second >= 0 ? second / SecondsOfDay : -((SecondsOfDay - 1 - second) / SecondsOfDay);
}

std::string TwoDigits(long long number) { return (number < 10 ? "0" : "") + std::to_string(number); }

} // namespace

std::string FixedText(double value, int decimals)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

std::string MoneyText(double amount, int decimals)
{
    // A half goes to the even neighbour, and nothing below zero is left of a negative zero.
    const double rounded = decimals == 0 ? std::nearbyint(amount) + 0.0 : amount;
    std::string digits = FixedText(std::fabs(rounded), decimals);
    const std::size_t point = digits.find('.');
    for (std::size_t at = point == std::string::npos ? digits.size() : point; at > 3;) {
        at -= 3;
        digits.insert(at, ",");
    }
    return (rounded < 0 ? "-$" : "$") + digits;
}

std::string LongDateText(double days)
{
    static constexpr const char* months[] = {"January", "February", "March",     "April",   "May",      "June",
                                             "July",    "August",   "September", "October", "November", "December"};
    constexpr std::chrono::sys_days firstDay{std::chrono::December / 30 / 1899};
    const auto second = SecondOf(days);
    if (!second)
        return {};
    const std::chrono::year_month_day date{firstDay + std::chrono::days(DayOf(*second))};
    return std::string(months[static_cast<unsigned>(date.month()) - 1]) + " " +
           std::to_string(static_cast<unsigned>(date.day())) + " " + std::to_string(static_cast<int>(date.year()));
}

std::string ShortTimeText(double days)
{
    const auto second = SecondOf(days);
    if (!second)
        return {};
    const long long minutes = (*second - DayOf(*second) * SecondsOfDay) / 60;
    return TwoDigits(minutes / 60) + ":" + TwoDigits(minutes % 60);
}

} // namespace dravik::terminal
