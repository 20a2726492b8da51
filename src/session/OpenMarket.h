#pragma once

#include "desk/Market.h"

namespace dravik {

// What the manager has on the market of the open league. Made when somebody asks for it first, and kept as long as the program
// runs.
Market& OpenMarket();

// Takes everything off it.
void EmptyOpenMarket();

} // namespace dravik
