#pragma once

#include <string>

namespace dravik {

// The time on the manager's wall, in days since 30 December 1899, as the files count it.
double LocalTime();

// Such a time as it sorts in a file's name: "2026-01-12 21.03.15". It is from 0 to below 2958466.
std::string SortableTime(double days);

} // namespace dravik
