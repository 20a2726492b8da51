#include "session/OpenMarket.h"

namespace dravik {

namespace {
std::unique_ptr<Market> TheMarket;
}

Market& OpenMarket()
{
    if (!TheMarket)
        TheMarket = MakeMarket();
    return *TheMarket;
}

void EmptyOpenMarket()
{
    if (TheMarket)
        EmptyMarket(*TheMarket);
}

} // namespace dravik
