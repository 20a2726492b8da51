#include "desk/Market.h"

#include <cstring>

namespace dravik {

std::unique_ptr<Market> MakeMarket() { return std::make_unique<Market>(); }

void EmptyMarket(Market& market) { std::memset(static_cast<void*>(&market), 0, sizeof market); }

} // namespace dravik
