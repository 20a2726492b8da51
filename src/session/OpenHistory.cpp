#include "session/OpenHistory.h"

#include "session/OpenMarket.h"
#include "session/Session.h"

#include <memory>

namespace dravik {

namespace {
std::unique_ptr<History> TheHistory;
}

History& OpenHistory()
{
    if (!TheHistory) {
        TheHistory = std::make_unique<History>(OpenLeague);
        TheHistory->Join(OpenMarket());
    }
    return *TheHistory;
}

void ForgetHistory() { TheHistory.reset(); }

} // namespace dravik
