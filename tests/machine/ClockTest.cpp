#include "machine/Clock.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <string>

namespace dravik {
namespace {

TEST(ClockTest, ASortableTimeIsTheTimeToTheSecond)
{
    EXPECT_EQ(SortableTime(0), "1899-12-30 00.00.00");
    EXPECT_EQ(SortableTime(46034), "2026-01-12 00.00.00");
    EXPECT_EQ(SortableTime(46034 + 86399.0 / 86400), "2026-01-12 23.59.59");
    EXPECT_EQ(SortableTime(46034 + 86399.6 / 86400), "2026-01-13 00.00.00");
    EXPECT_EQ(SortableTime(2958465.5), "9999-12-31 12.00.00");
}

#ifndef _WIN32 // another call sets the zone there

// The zone of the process, for as long as it lives.
class Zone {
public:
    explicit Zone(const char* name)
    {
        if (const char* set = std::getenv("TZ")) {
            wasSet = true;
            before = set;
        }
        setenv("TZ", name, 1);
        tzset();
    }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;
    ~Zone()
    {
        if (wasSet)
            setenv("TZ", before.c_str(), 1);
        else
            unsetenv("TZ");
        tzset();
    }

private:
    bool wasSet = false;
    std::string before;
};

TEST(ClockTest, TheTimeOnTheWallIsThatOfTheZoneInDaysSince30December1899)
{
    struct {
        const char* Name;
        int Minutes; // ahead of the universal time
    } const zones[] = {{"UTC0", 0}, {"EAST-05:30", 330}, {"WEST+11", -660}, {"FAR-13:45", 825}, {"NEAR+03:15", -195}};
    constexpr double firstOfUnix = 25569; // 1 January 1970
    for (const auto& zone : zones) {
        const Zone here(zone.Name);
        const auto days = [&zone](std::time_t moment) {
            return firstOfUnix + static_cast<double>(moment + 60 * zone.Minutes) / 86400;
        };
        const double earliest = days(std::time(nullptr));
        const double told = LocalTime();
        const double latest = days(std::time(nullptr));
        EXPECT_GE(told, earliest - 1e-6) << zone.Name;
        EXPECT_LE(told, latest + 1e-6) << zone.Name;
    }
}

#endif

} // namespace
} // namespace dravik
