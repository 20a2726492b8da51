#pragma once

#include "league/Failure.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace dravik {

// The whole number nearest to `value`, ties to even. Fails with 6 when it does not fit the integer `T`, or is no number.
template <class T>
T RoundTo(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<T>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<T>::max())))
        Fail(failure::Overflow);
    return static_cast<T>(rounded);
}

inline std::int16_t RoundToInt16(double value) { return RoundTo<std::int16_t>(value); }
inline std::int32_t RoundToInt32(double value) { return RoundTo<std::int32_t>(value); }

// A sum or product that a rule limits to the integer `T`: the value itself, or failure 6 when it does not fit.
template <class T>
T Limit(long long value)
{
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        Fail(failure::Overflow);
    return static_cast<T>(value);
}

inline long long Limit16(long long value) { return Limit<std::int16_t>(value); }
inline long long Limit32(long long value) { return Limit<std::int32_t>(value); }

// A 32-bit float that adds up 64-bit terms and is rounded back after each of them. Fails with 6 beyond its range.
class Single {
public:
    Single& operator+=(double term)
    {
        const auto sum = static_cast<float>(static_cast<double>(value) + term);
        if (!std::isfinite(sum))
            Fail(failure::Overflow);
        value = sum;
        return *this;
    }
    Single& operator-=(double term) { return *this += -term; }

    [[nodiscard]] float Value() const { return value; }

private:
    float value = 0;
};

// The number at the head of `text`, read as far as it is one: blanks skipped, an optional sign, digits with at most one
// point. A text that begins with no number reads as 0. "5-" is 5, "1-2" is 1, "-5" is -5.
double LeadingNumber(std::string_view text);

} // namespace dravik
