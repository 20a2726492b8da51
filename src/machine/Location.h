#pragma once

#include "machine/Platform.h"

#include <string>

namespace dravik {

// How a window that is opened is to appear.
inline constexpr int NormalWindow = 1;

// Hands `location` to the desktop to open it; returns its answer, 0 after a failure, which is told.
int OpenLocation(Platform& machine, const std::string& location, int showMode);

} // namespace dravik
