#include "machine/Clock.h"

#include <chrono>
#include <ctime>

namespace dravik {

double LocalTime()
{
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm parts{};
#ifdef _WIN32
    localtime_s(&parts, &now);
#else
    localtime_r(&now, &parts);
#endif
    using std::chrono::sys_days;
    constexpr int tmYear = 1900;
    constexpr double secondsOfDay = 86400;
    const std::chrono::year_month_day today{std::chrono::year{parts.tm_year + tmYear},
                                            std::chrono::month{static_cast<unsigned>(parts.tm_mon) + 1},
                                            std::chrono::day{static_cast<unsigned>(parts.tm_mday)}};
    const auto first = sys_days{std::chrono::December / 30 / 1899};
    const int seconds = (parts.tm_hour * 60 + parts.tm_min) * 60 + parts.tm_sec;
    return static_cast<double>((sys_days{today} - first).count()) + seconds / secondsOfDay;
}

} // namespace dravik
