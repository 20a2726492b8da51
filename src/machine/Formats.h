#pragma once

#include <string>

namespace dravik {

// How the manager's locale writes money, numbers and dates. Texts are in the single-byte code page. Two threads may ask
// at once.
class Formats {
public:
    Formats() = default;
    Formats(const Formats&) = delete;
    Formats& operator=(const Formats&) = delete;
    virtual ~Formats() = default;

    // `amount` in the locale's currency format, with the locale's usual decimals or with none.
    [[nodiscard]] virtual std::string Currency(double amount) const = 0;
    [[nodiscard]] virtual std::string CurrencyNoDecimals(double amount) const = 0;
    // `value` with the locale's decimal sign, `decimals` digits behind it and at least one before it, without grouping.
    [[nodiscard]] virtual std::string Fixed(double value, int decimals) const = 0;
    // "mmmm d yyyy" and "hh:mm" (24-hour, rounded to the second first) of days since 30 December 1899.
    [[nodiscard]] virtual std::string LongDate(double days) const = 0;
    [[nodiscard]] virtual std::string ShortTime(double days) const = 0;
};

} // namespace dravik
