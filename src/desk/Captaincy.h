#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"

namespace dravik {

// Makes a person the captain of `team` (1..100), who is no assistant any more then, and tells it. A goalie or a man of the
// farm is refused, which is told. True when he was not refused.
bool MakeCaptain(const Work& work, int team, PersonId who);

// Asks which of the two assistants of `team` a person is to be, makes him that, and tells it; cancelled, nothing changes. A
// goalie, a man of the farm, and who is captain or assistant already are refused, which is told. True when he was not
// refused.
bool MakeAssistant(const Work& work, int team, PersonId who);

} // namespace dravik
