#pragma once

#include "desk/History.h"

namespace dravik {

// What the manager has done to the open league and its market since he opened it. Made when somebody asks for it first.
History& OpenHistory();

// Forgets it: another league is opened, or none.
void ForgetHistory();

} // namespace dravik
