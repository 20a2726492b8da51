#include "session/OpenMarket.h"

#include "session/OpenHistory.h"

namespace dravik {

namespace {
std::unique_ptr<Market> TheMarket;
KeptMarket TheKept;
} // namespace

Market& OpenMarket()
{
    if (!TheMarket) {
        TheMarket = MakeMarket();
        OpenHistory().Join(*TheMarket);
    }
    return *TheMarket;
}

KeptMarket& KeptWork() { return TheKept; }

void EmptyOpenMarket()
{
    TheKept = {};
    if (TheMarket)
        EmptyMarket(*TheMarket);
}

} // namespace dravik
