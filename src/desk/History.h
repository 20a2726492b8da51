#pragma once

#include "desk/Shadow.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace dravik {

// What a step is called.
struct StepLabel {
    std::string Words{};    // what was done: "Wipe Lines, day 3"
    std::string Where{};    // on which screen
    int Team = 0;           // for which team
    std::uint64_t Drag = 0; // of which drag it is a part; 0 = of none
};

// One step of a manager: what he did, and every byte that it changed.
struct Step {
    StepLabel Label;
    ByteDifference Change;

    // How many bytes of memory it takes.
    [[nodiscard]] std::size_t Held() const;
};

// Why what was done can no longer be undone.
enum class HistoryEnd { NoRoom, OtherTeam, OtherLeague };

// Whoever wants to know of every change as the history hears of it, in its order. What is told is valid during the call only;
// nothing may be asked of the history meanwhile.
class HistoryWatcher {
public:
    // A step was closed and stands last.
    virtual void Closed(const Step& step) noexcept = 0;
    // Another step of the same drag was closed: `more` is what it changed, `into` the two as one. Where the second took back
    // the first, `into` has no change, and is gone.
    virtual void Merged(const Step& into, const ByteDifference& more) noexcept = 0;
    // `more` was changed outside of a step, and belongs to `into` now, or to the beginning where that is null. A step without
    // a change is gone, as above.
    virtual void Folded(const Step* into, const ByteDifference& more) noexcept = 0;
    // The bytes of a step were put back, or put again.
    virtual void Undone(const Step& step) noexcept = 0;
    virtual void Redone(const Step& step) noexcept = 0;
    // No step that was told of can be undone or redone any more. Without room nothing is told of what changes until the next
    // step is opened, that of an open step included.
    virtual void Ended(HistoryEnd why) noexcept = 0;

protected:
    ~HistoryWatcher() = default;
};

// What became of an undo or redo.
enum class Turned {
    Done,
    Nothing,    // there is no such step
    StepIsOpen, // a command is at work
    Changed,    // the bytes that it would replace are others by now; all stay as they are
    NoRoom      // the history ended instead
};

class History;

// A step as long as it is open: it is closed where this goes out of scope, however the command ends.
class [[nodiscard]] OpenStep {
public:
    OpenStep(const OpenStep&) = delete;
    OpenStep& operator=(const OpenStep&) = delete;
    ~OpenStep();

private:
    friend class History;
    explicit OpenStep(History* opened) : history(opened) {}

    History* history; // null for a step within another one
};

// What a manager did, step by step, and the way back. It is of one league and one market, which outlive it, and remembers their
// bytes alone: nobody tells it what a command is going to touch, but for offers. What changes outside of a step (a judge that
// repairs, a count that is set right) belongs to the step before it: it is undone and redone with it, so that undoing all comes
// to the beginning and redoing all to the end. In front of the first step it belongs to the beginning. Nothing here throws.
class History {
public:
    static constexpr std::size_t MostHeld = std::size_t{64} << 20U;

    // Holds `most` bytes of memory at most. The beginning is taken by `Begin`, or else by the first step.
    explicit History(Tables& league, std::size_t most = MostHeld) : desk{league}, mostHeld(most) {}
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History() = default;

    // Whom to tell from now on; null for nobody.
    void TellTo(HistoryWatcher* listener) noexcept { watcher = listener; }

    // Begins with the desk as it stands: behind the opening of a league. What was done before is forgotten, and a step that is
    // open is none.
    void Begin() noexcept;
    // Takes the market in. What was done there before is part of the beginning.
    void Join(Market& market) noexcept;
    // Has to be called before the offer to a person changes, by his common number, in a step or outside. Offers are compared
    // where somebody has asked for it, from then on; a number that no offer has is passed over.
    void Watch(int offer) noexcept;

    // Makes all that was done so far part of the beginning: it can no longer be undone.
    void End() noexcept;

    // Opens a step. Within an open one it is part of that. What it changed until it is closed is one step, unless nothing
    // differs: then nothing happened. A step of the drag of the step before it is merged with it, under the later words. What
    // had been undone cannot be redone behind it, and a step for another team forgets all before it.
    OpenStep Open(StepLabel label) noexcept;
    [[nodiscard]] bool IsOpen() const { return isOpen; }
    // Takes what has changed outside of a step into the step before it, as the opening of the next one does.
    void Fold() noexcept;

    // Puts back the bytes of the last step that is not undone, or of the next one that is. Bytes of it that have changed since
    // are never replaced: then nothing happens until they have been folded.
    Turned Undo() noexcept;
    Turned Redo() noexcept;

    // Does a step that was done on another day once more: puts its bytes where all of them are as before it, and takes it in
    // behind the others, as one that was closed and that no drag goes on. A step without a change is none. Where there is no
    // room the bytes are put all the same.
    Turned Replay(Step step) noexcept;

    // The step that would be undone, and the one that would be redone; null for none, and while one is open.
    [[nodiscard]] const Step* ToUndo() const;
    [[nodiscard]] const Step* ToRedo() const;
    // What they would do, in words for the screen `here`: "Undo: Wipe Lines, day 3", with the screen in parentheses behind it
    // where that is another one. Empty for none.
    [[nodiscard]] std::string UndoWords(std::string_view here) const;
    [[nodiscard]] std::string RedoWords(std::string_view here) const;

    // Whether it ended because there was no room, and no step has been closed since; and the line that tells it.
    [[nodiscard]] bool IsOutOfRoom() const { return outOfRoom; }
    static constexpr std::string_view OutOfRoomWords =
        "What was done so far cannot be undone: there is no room to keep it.";

    // How many bytes of memory it takes.
    [[nodiscard]] std::size_t Held() const;

private:
    friend class OpenStep;

    void Close() noexcept;
    void Append(Step step);
    void AddToLast(const ByteDifference& more, bool merges);
    void Trim() noexcept;
    void Forget(HistoryEnd why) noexcept;
    void TakeBeginning() noexcept;
    void EndWithoutRoom() noexcept;
    Turned Turn(DifferenceEnd to) noexcept;
    void Drop(std::size_t place) noexcept;

    DeskContents desk;
    std::size_t mostHeld;
    HistoryWatcher* watcher = nullptr;
    // The desk as the last step, or fold, or turn left it; none when nothing is remembered.
    std::unique_ptr<Shadow> shadow;
    std::deque<Step> steps;
    std::size_t done = 0;      // how many of the steps are not undone
    std::size_t stepsHeld = 0; // by all of them
    StepLabel current;         // of the open step
    bool isOpen = false;
    bool isForgotten = false; // the open step, since all was forgotten meanwhile
    bool dragGoesOn = false;  // nothing has been undone since the last step
    bool outOfRoom = false;
};

} // namespace dravik
