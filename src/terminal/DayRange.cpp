#include "terminal/DayRange.h"

#include "rules/LineSlots.h"
#include "terminal/Problem.h"

#include <charconv>

namespace dravik::terminal {

DayRange DaysOf(const std::string& text)
{
    const auto number = [&](const std::string& digits) {
        int value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error != std::errc() || end != digits.data() + digits.size() || value < 1 || value > LineDays)
            throw Problem("--days " + text + ": a day from 1 to 10, or two of them as 1-10");
        return value;
    };
    const std::size_t dash = text.find('-');
    const DayRange days = dash == std::string::npos
                              ? DayRange{number(text), number(text)}
                              : DayRange{number(text.substr(0, dash)), number(text.substr(dash + 1))};
    if (days.First > days.Last)
        throw Problem("--days " + text + ": the first day stands in front");
    return days;
}

CLI::Option* AddDays(CLI::App& command, std::string& days)
{
    return command.add_option("--days", days, "the days of the lines, 1 the next game")
        ->type_name("DAY|FIRST-LAST")
        ->capture_default_str();
}

} // namespace dravik::terminal
