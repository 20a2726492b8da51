#pragma once

#include "session/Session.h"

namespace dravik {

// Holds events of lists and boxes back while it lives, so that what a screen sets itself does not count as the user's.
class EventGuard {
public:
    EventGuard() { ListEventGuard = true; }
    EventGuard(const EventGuard&) = delete;
    EventGuard& operator=(const EventGuard&) = delete;
    ~EventGuard() { ListEventGuard = false; }
};

} // namespace dravik
