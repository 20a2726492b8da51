#pragma once

namespace dravik {

// The time on the manager's wall, in days since 30 December 1899, as the files count it.
double LocalTime();

} // namespace dravik
