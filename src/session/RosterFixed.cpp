#include "session/RosterFixed.h"

#include "session/Session.h"

namespace dravik {

void KeepRosterFixed(std::optional<bool> repaired)
{
    if (repaired)
        RosterFixed = *repaired ? 1 : 0;
}

} // namespace dravik
