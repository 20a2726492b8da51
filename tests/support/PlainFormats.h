#pragma once

#include "machine/Platform.h"

#include <string>

namespace dravik {

// The locale of nobody, which several threads may ask at once. What decides of a text stands in it: the value, and of a
// fixed form the decimals too.
class PlainFormats final : public Formats {
public:
    [[nodiscard]] std::string Currency(double amount) const override { return std::to_string(amount); }
    [[nodiscard]] std::string CurrencyNoDecimals(double amount) const override { return std::to_string(amount); }
    [[nodiscard]] std::string Fixed(double value, int decimals) const override
    {
        return std::to_string(value) + '/' + std::to_string(decimals);
    }
    [[nodiscard]] std::string LongDate(double days) const override { return std::to_string(days); }
    [[nodiscard]] std::string ShortTime(double days) const override { return std::to_string(days); }
};

} // namespace dravik
