#include "session/OpenMarket.h"

#include "session/OpenHistory.h"

namespace dravik {

namespace {
std::unique_ptr<Market> TheMarket;
}

Market& OpenMarket()
{
    if (!TheMarket) {
        TheMarket = MakeMarket();
        OpenHistory().Join(*TheMarket);
    }
    return *TheMarket;
}

void EmptyOpenMarket()
{
    if (TheMarket)
        EmptyMarket(*TheMarket);
}

} // namespace dravik
