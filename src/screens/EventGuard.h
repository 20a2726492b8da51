#pragma once

#include "session/Session.h"

#include <utility>

namespace dravik {

// Holds events of lists and boxes back while it lives, so that what a screen sets itself does not count as the user's.
class EventGuard {
public:
    EventGuard() : before(std::exchange(ListEventGuard, true)) {}
    EventGuard(const EventGuard&) = delete;
    EventGuard& operator=(const EventGuard&) = delete;
    ~EventGuard() { ListEventGuard = before; }

private:
    bool before; // one within another leaves them held back
};

} // namespace dravik
