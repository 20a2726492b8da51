#pragma once

#include "desk/History.h"
#include "desk/Journal.h"

#include <functional>
#include <string>
#include <string_view>

namespace dravik {

// Writes down what a history tells, an entry for each. Nothing is written before the first step. It never fails: once an entry
// could not be written, nothing more is, and `HasStopped` says so. So it is where the history ends because there is no room:
// what comes behind that is not told whole.
class JournalWriter final : public HistoryWatcher {
public:
    // Takes bytes that belong behind those before, and says whether they are there.
    using Sink = std::function<bool(std::string_view)>;
    // The time, in days since 30 December 1899.
    using Clock = std::function<double()>;

    // A new journal. `beyond` is what differs from the beginning already.
    JournalWriter(const JournalHead& head, ByteDifference beyond, Sink sink, Clock clock);
    // One that goes on behind entries that were read; the first thing written tells that they were brought back.
    JournalWriter(Seal behind, Sink sink, Clock clock);

    void Closed(const Step& step) noexcept override;
    void Merged(const Step& into, const ByteDifference& more) noexcept override;
    void Folded(const Step* into, const ByteDifference& more) noexcept override;
    void Undone(const Step& step) noexcept override;
    void Redone(const Step& step) noexcept override;
    void Ended(HistoryEnd why) noexcept override;

    // A file of `team` was saved; its screen of the offers or the ranking was closed.
    void Saved(SavedFile file, int team) noexcept;
    void Kept(SavedFile file, int team) noexcept;

    // Whether a step has been written.
    [[nodiscard]] bool HasBegun() const { return hasBegun; }
    [[nodiscard]] bool HasStopped() const { return hasStopped; }

private:
    template <class Tells>
    void Write(JournalKind kind, const Tells& tells) noexcept;
    void Write(JournalKind kind, SavedFile file, int team) noexcept;
    void Append(std::string& to, JournalKind kind, std::string_view told);

    JournalHead head;
    ByteDifference pending; // in front of the first step
    Sink put;
    Clock now;
    Seal seal = 0; // of the last entry
    bool hasBegun = false;
    bool hasStopped = false;
};

} // namespace dravik
