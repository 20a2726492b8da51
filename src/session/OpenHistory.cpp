#include "session/OpenHistory.h"

#include "session/Session.h"

#include <memory>

namespace dravik {

namespace {
std::unique_ptr<History> TheHistory;
}

History& OpenHistory()
{
    if (!TheHistory)
        TheHistory = std::make_unique<History>(OpenLeague);
    return *TheHistory;
}

void BeginHistory()
{
    if (TheHistory)
        TheHistory->Begin();
}

} // namespace dravik
