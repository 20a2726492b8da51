#pragma once

#include "league/Field.h"

namespace dravik {

// A prospect is a name and nothing else; an empty name marks an empty slot.
struct Prospect {
    Text<40> Name;
};

static_assert(sizeof(Prospect) == 40 && alignof(Prospect) == 1);

} // namespace dravik
