#pragma once

#include "desk/History.h"

namespace dravik {

// What the manager has done to the open league and its market since he opened it. Made when somebody asks for it first, and kept
// as long as the program runs.
History& OpenHistory();

// Begins it anew with the league as it stands: another one was opened, or none.
void BeginHistory();

} // namespace dravik
