#include "league/Arithmetic.h"

#include <charconv>
#include <string>

namespace dravik {

double LeadingNumber(std::string_view text)
{
    std::string number;
    bool point = false;
    for (const char c : text) {
        if (c == ' ' && number.empty())
            continue;
        const bool digit = c >= '0' && c <= '9';
        const bool sign = (c == '-' || c == '+') && number.empty();
        if (!digit && !sign && (c != '.' || point))
            break;
        point = point || c == '.';
        number += c;
    }
    if (!number.empty() && number.front() == '+')
        number.erase(0, 1);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    // Out of range is a number too large as well as one too small; the small one has only zeros before its point.
    if (error == std::errc::result_out_of_range && number.find_first_of("123456789") < number.find('.'))
        Fail(failure::Overflow);
    return error == std::errc() ? value : 0;
}

} // namespace dravik
