#include "session/OpenSaves.h"

#include "machine/Clock.h"
#include "session/OpenHistory.h"
#include "session/OpenJournal.h"
#include "session/Session.h"

#include <cmath>
#include <exception>
#include <map>
#include <utility>

namespace dravik {

namespace {

constexpr SavedFile AllFiles[] = {SavedFile::Lines, SavedFile::Offers, SavedFile::Ranking};

// When a file was saved.
struct Save {
    double Time = 0;
    std::string Path;
    bool IsEarlierKept = true;
};

struct Saves {
    WorkLedger Ledger;
    bool IsLost = false; // the ledger has missed something: nothing is said
    std::map<std::pair<SavedFile, int>, Save> Done;
    bool IsEarlierKept = true; // what the save that is under way replaces
    std::function<double()> Clock;
};
Saves TheSaves;

double Now() { return TheSaves.Clock ? TheSaves.Clock() : LocalTime(); }

std::string TimeWords(double time)
{
    const std::string words = Machine().ShortTime(time);
    return std::floor(time) == std::floor(Now()) ? words : Machine().LongDate(time) + ", " + words;
}

// Enters what it hears into the ledger.
class Bookkeeper final : public HistoryWatcher {
public:
    void Closed(const Step& step) noexcept override
    {
        Enter([&](WorkLedger& ledger) { ledger.Step(step.Label.Team, Now(), step.Change); });
    }
    void Merged(const Step& into, const ByteDifference& more) noexcept override
    {
        Enter([&](WorkLedger& ledger) { ledger.Step(into.Label.Team, Now(), more); });
    }
    void Folded(const Step* into, const ByteDifference& more) noexcept override
    {
        Enter([&](WorkLedger& ledger) { ledger.Outside(into == nullptr ? 0 : into->Label.Team, more); });
    }
    void Undone(const Step& step) noexcept override
    {
        Enter([&](WorkLedger& ledger) { ledger.Step(step.Label.Team, Now(), Reversed(step.Change)); });
    }
    void Redone(const Step& step) noexcept override { Closed(step); }
    void Ended(HistoryEnd why) noexcept override
    {
        if (why == HistoryEnd::OtherLeague) {
            TheSaves.Ledger = WorkLedger();
            TheSaves.IsLost = false;
        } else if (why == HistoryEnd::NoRoom) {
            TheSaves.IsLost = true;
        }
    }

private:
    template <class Enters>
    static void Enter(const Enters& enters) noexcept
    {
        try {
            enters(TheSaves.Ledger);
        } catch (const std::exception&) {
            TheSaves.IsLost = true;
        }
    }
};
Bookkeeper TheBookkeeper;

} // namespace

std::string FileState::Words() const
{
    if (UnsavedSince)
        return "Not saved since " + TimeWords(*UnsavedSince);
    if (!Saved)
        return {};
    return "Saved " + TimeWords(*Saved) + (IsEarlierKept ? "" : "; the version before could not be kept");
}

FileState StateOf(SavedFile file, int team)
{
    FileState state;
    if (TheSaves.IsLost)
        return state;
    state.UnsavedSince = TheSaves.Ledger.UnsavedSince(file, team);
    if (const auto save = TheSaves.Done.find({file, team}); save != TheSaves.Done.end()) {
        state.Saved = save->second.Time;
        state.Path = save->second.Path;
        state.IsEarlierKept = save->second.IsEarlierKept;
    }
    return state;
}

FileState StateOfTeam(int team)
{
    FileState all;
    for (const SavedFile file : AllFiles) {
        FileState state = StateOf(file, team);
        if (state.UnsavedSince && (!all.UnsavedSince || *state.UnsavedSince < *all.UnsavedSince))
            all.UnsavedSince = state.UnsavedSince;
        if (state.Saved && (!all.Saved || *state.Saved >= *all.Saved)) {
            state.UnsavedSince = all.UnsavedSince;
            all = std::move(state);
        }
    }
    return all;
}

void NoteSaved(SavedFile file, int team, const std::string& path) noexcept
{
    OpenHistory().Fold(); // what a save sets right is in the file
    TellJournalSaved(file, team);
    try {
        TheSaves.Ledger.Saved(file, team);
        TheSaves.Done[{file, team}] = {
            .Time = Now(), .Path = path, .IsEarlierKept = std::exchange(TheSaves.IsEarlierKept, true)};
    } catch (const std::exception&) {
        TheSaves.IsLost = true;
    }
}

void NoteKept(SavedFile file, int team) noexcept
{
    OpenHistory().Fold();
    TellJournalKept(file, team);
    try {
        TheSaves.Ledger.Kept(file, team);
    } catch (const std::exception&) {
        TheSaves.IsLost = true;
    }
}

void KeepEarlier(const std::string& path) noexcept
{
    try {
        TheSaves.IsEarlierKept = Machine().KeepEarlier(path, SortableTime(Now()));
    } catch (const std::exception&) {
        TheSaves.IsEarlierKept = false;
    }
}

HistoryWatcher& SavesWatcher() noexcept { return TheBookkeeper; }

void TakeOverLedger(const WorkLedger& ledger)
{
    TheSaves.Ledger = ledger;
    TheSaves.Ledger.Joins() = Joining();
    TheSaves.Ledger.BroughtBack();
}

void ForgetSaves() noexcept
{
    TheSaves.Done.clear();
    TheSaves.IsEarlierKept = true;
}

void TellTimeBy(std::function<double()> clock) { TheSaves.Clock = std::move(clock); }

} // namespace dravik
