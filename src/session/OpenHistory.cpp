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

void GiveUpWorkOfOthers(int team, const std::function<void()>& give)
{
    History& history = OpenHistory();
    const auto isOwn = [team](const Step* step) { return step != nullptr && step->Label.Team == team; };
    if (isOwn(history.ToUndo()) || isOwn(history.ToRedo()))
        history.End();
    give();
    history.Fold();
}

} // namespace dravik
