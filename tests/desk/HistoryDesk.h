#pragma once

#include "desk/History.h"
#include "support/SmallLeague.h"

#include <cstring>
#include <string>
#include <vector>

namespace dravik {

// Writes down what a history tells, in its order.
class HistoryNotes final : public HistoryWatcher {
public:
    void Closed(const Step& step) noexcept override { Note("closed " + step.Label.Words); }
    void Merged(const Step& into, const ByteDifference& more) noexcept override
    {
        Note("merged " + std::to_string(more.Stored().size()) + " into " + Name(into));
    }
    void Folded(const Step* into, const ByteDifference& more) noexcept override
    {
        Note("folded " + std::to_string(more.Stored().size()) + " into " +
             (into != nullptr ? Name(*into) : "the beginning"));
    }
    void Undone(const Step& step) noexcept override { Note("undone " + step.Label.Words); }
    void Redone(const Step& step) noexcept override { Note("redone " + step.Label.Words); }
    void Ended(HistoryEnd why) noexcept override
    {
        Note(why == HistoryEnd::NoRoom ? "no room" : why == HistoryEnd::OtherTeam ? "other team" : "other league");
    }

    std::vector<std::string> Heard;

private:
    static std::string Name(const Step& step)
    {
        return step.Change.IsEmpty() ? step.Label.Words + ", which is gone" : step.Label.Words;
    }
    void Note(std::string text) { Heard.push_back(std::move(text)); }
};

// A history of the open league, begun with team 5 in it. The cash of the team is what the steps here change, and its arena's
// name what others do.
class HistoryDesk : public SmallLeague {
protected:
    HistoryDesk()
    {
        const TeamMaker made(Own);
        OwnTeam.Cash = 100;
        Rename("");
        history.Begin();
        history.TellTo(&notes);
    }

    static constexpr int Own = 5;
    static constexpr const char* Here = "Team";

    static StepLabel Label(const std::string& words, std::uint64_t drag = 0, int team = Own)
    {
        return {.Words = words, .Where = Here, .Team = team, .Drag = drag};
    }
    // One step that leaves so much cash.
    void Pay(int cash, std::uint64_t drag = 0, int team = Own)
    {
        const OpenStep step = history.Open(Label("Pay " + std::to_string(cash), drag, team));
        OwnTeam.Cash = cash;
    }
    // What a screen does outside of steps.
    static void Rename(const std::string& arena) { OwnTeam.ArenaName = arena; }
    static std::string Arena() { return OwnTeam.ArenaName.Trimmed(); }

    inline static Team& OwnTeam = Teams[Own];
    HistoryNotes notes;
    History history{OpenLeague};
};

} // namespace dravik
