#include "session/OpenHistory.h"

#include "session/OpenSaves.h"
#include "session/Session.h"

#include <memory>

namespace dravik {

namespace {

// Hands on what the history tells: to who knows what is saved, and to the journal, if there is one.
class Listeners final : public HistoryWatcher {
public:
    HistoryWatcher* Journal = nullptr;

    void Closed(const Step& step) noexcept override { Tell(&HistoryWatcher::Closed, step); }
    void Merged(const Step& into, const ByteDifference& more) noexcept override
    {
        Tell(&HistoryWatcher::Merged, into, more);
    }
    void Folded(const Step* into, const ByteDifference& more) noexcept override
    {
        Tell(&HistoryWatcher::Folded, into, more);
    }
    void Undone(const Step& step) noexcept override { Tell(&HistoryWatcher::Undone, step); }
    void Redone(const Step& step) noexcept override { Tell(&HistoryWatcher::Redone, step); }
    void Ended(HistoryEnd why) noexcept override { Tell(&HistoryWatcher::Ended, why); }

private:
    template <class... Heard, class... Told>
    void Tell(void (HistoryWatcher::*hears)(Heard...) noexcept, const Told&... told) const noexcept
    {
        (SavesWatcher().*hears)(told...);
        if (Journal != nullptr)
            (Journal->*hears)(told...);
    }
};
Listeners TheListeners;
std::unique_ptr<History> TheHistory;

} // namespace

History& OpenHistory()
{
    if (!TheHistory) {
        TheHistory = std::make_unique<History>(OpenLeague);
        TheHistory->TellTo(&TheListeners);
    }
    return *TheHistory;
}

void TellJournal(HistoryWatcher* journal) noexcept { TheListeners.Journal = journal; }

void BeginHistory()
{
    ForgetSaves();
    OpenHistory().Begin();
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
