#pragma once

#include "support/PlainFormats.h"
#include "support/TroubledVoice.h"

// What random evenings over rosters and offers are told by: whatever is answered, and whichever box or question fails, the desk
// and a naive telling of the same commands have to say the same.
namespace dravik {

// What came of a command: what was said, and the number of its failure. A question gets one of the texts that a manager might
// type where a share or an amount is asked for.
template <class Does>
Said Told(unsigned seed, int failAt, Does&& does)
{
    return SaidOver(seed, failAt, {"", "0", "50", "100", "101", "-3", "33.5", "many", "40000"}, does);
}

} // namespace dravik
