#include "machine/Clock.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace dravik {

namespace {
constexpr std::chrono::sys_days FirstDay{std::chrono::December / 30 / 1899};
}

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
    const int seconds = (parts.tm_hour * 60 + parts.tm_min) * 60 + parts.tm_sec;
    return static_cast<double>((sys_days{today} - FirstDay).count()) + seconds / secondsOfDay;
}

std::string SortableTime(double days)
{
    constexpr long long minute = 60;
    constexpr long long hour = 60 * minute;
    constexpr long long day = 24 * hour;
    const long long seconds = std::llround(days * day);
    const std::chrono::year_month_day date{FirstDay + std::chrono::days(seconds / day)};
    const long long time = seconds % day;
    std::array<char, 64> text{};
    (void)std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02lld.%02lld.%02lld", static_cast<int>(date.year()),
                        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), time / hour,
                        time % hour / minute, time % minute);
    return text.data();
}

} // namespace dravik
