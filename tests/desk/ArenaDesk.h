#pragma once

#include "OfficeDesk.h"

#include <optional>

namespace dravik {

// A text, what is stored of it, and what the box shows instead of it.
struct Typing {
    const char* Text;
    long long Stored;
    std::optional<long long> Shown;
};

class ArenaDesk : public OfficeDesk {
protected:
    ArenaDesk()
    {
        for (int level = 1; level <= 5; ++level) {
            Five.TicketPrice[level] = 10 * level;
            Five.ArenaCapacity[level] = 1000 * level;
        }
    }
};

} // namespace dravik
