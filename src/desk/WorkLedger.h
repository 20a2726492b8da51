#pragma once

#include "desk/Joining.h"
#include "desk/Journal.h"

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace dravik {

// What a team did that no saved file of it holds.
struct UnsavedWork {
    int Team = 0;
    double Time = 0; // of its last step, in days since 30 December 1899
};

// What stood on the market when a team closed the screen of its offers, or of its ranking: the difference from an empty one,
// without the offers' ids.
struct KeptThere {
    int Team = 0;
    SavedFile File{};
    ByteDifference Content;
};

// What each team did in an evening, and what of it is in its files. The lines are a team's own. The market is one for all: what
// a team has there is what stands there while it was the last to change it, and what it kept once that is given up.
class WorkLedger {
public:
    // Puts no more than `most` bytes together.
    explicit WorkLedger(std::size_t most = std::numeric_limits<std::size_t>::max()) : joining(most) {}

    // What puts its differences together, for others who do so on the way.
    Joining& Joins() { return joining; }

    // A step of `team` at `time` did, undid or redid this.
    void Step(int team, double time, const ByteDifference& change);
    // This changed outside of the steps, and belongs to one of `team`, or to none (0).
    void Outside(int team, const ByteDifference& change);
    // The file of `team` holds what stands now.
    void Saved(SavedFile file, int team);
    // The screen of the offers or of the ranking was closed by `team`.
    void Kept(SavedFile file, int team);
    // What stands on the market was brought back: it is kept for whom it is of.
    void BroughtBack();

    // The teams that a step was for, in order of their first one.
    [[nodiscard]] std::vector<int> Teams() const;
    // The team that changed the offers, or the ranking, by a step last; 0 = none.
    [[nodiscard]] int MarketBy(SavedFile file) const { return there.at(IndexOf(file)).By; }
    // All that is kept.
    [[nodiscard]] std::vector<KeptThere> AllKept() const;
    // Of the team that worked last, what no file of it holds.
    [[nodiscard]] std::optional<UnsavedWork> Unsaved() const;
    // When `team` first did something that this file of it does not hold; none where it holds all.
    [[nodiscard]] std::optional<double> UnsavedSince(SavedFile file, int team) const;

private:
    static constexpr std::size_t FileCount = 3;
    static std::size_t IndexOf(SavedFile file) { return static_cast<std::size_t>(file) - 1; }

    // What stands for a file on the market, from the beginning on, and who did it.
    struct OnMarket {
        ByteDifference Content;
        int By = 0;
    };
    // What a team has of one of its files, from the beginning on.
    struct OfFile {
        ByteDifference Own;  // of the lines; that of the market stands there
        ByteDifference Held; // by the file that was saved
        std::optional<ByteDifference> Kept;
        std::optional<double> Since; // of the first step that has changed it since it was saved
    };
    struct OfTeam {
        int Team = 0;
        double Time = 0;
        std::array<OfFile, FileCount> Files;
    };

    OfTeam& WorkOf(int team);
    // `time` is that of a step.
    void Add(int team, const ByteDifference& change, std::optional<double> time);
    [[nodiscard]] const ByteDifference& Latest(const OfTeam& team, std::size_t file) const;
    [[nodiscard]] bool IsUnsaved(const OfTeam& team, std::size_t file) const;

    mutable Joining joining;
    std::array<OnMarket, FileCount> there; // none of the lines
    std::vector<OfTeam> works;
};

} // namespace dravik
