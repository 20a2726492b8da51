#pragma once

#include "league/Tables.h"

namespace dravik {

// Makes a league ready that was just read: placeholders, the copied flags, the defaults of rules that older files do not
// know. Nothing of it fails on whatever the file held.
void PrepareLeague(Tables& league);

} // namespace dravik
