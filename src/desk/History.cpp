#include "desk/History.h"

#include <algorithm>
#include <new>
#include <utility>

namespace dravik {

namespace {

std::string WordsFor(std::string_view what, const Step* step, std::string_view here)
{
    if (step == nullptr)
        return {};
    const StepLabel& label = step->Label;
    std::string words = std::string(what) + ": " + label.Words;
    if (label.Where != here)
        words += " (" + label.Where + ")";
    return words;
}

} // namespace

std::size_t Step::Held() const
{
    return sizeof *this + Label.Words.capacity() + Label.Where.capacity() + Change.Stored().size();
}

OpenStep::~OpenStep()
{
    if (history != nullptr)
        history->Close();
}

// ---- The beginning and the end -----------------------------------------------------------------------------------------

void History::Begin() noexcept
{
    Forget(HistoryEnd::OtherLeague);
    outOfRoom = false;
    TakeBeginning();
}

void History::TakeBeginning() noexcept
{
    try {
        shadow = std::make_unique<Shadow>(desk);
    } catch (const std::bad_alloc&) {
        outOfRoom = true;
    }
    Trim();
}

void History::Join(Market& market) noexcept
{
    desk.Market = &market;
    if (shadow)
        shadow->Join(market);
}

void History::Watch(int offer) noexcept
{
    if (desk.Market == nullptr)
        return;
    if (!shadow && !isOpen)
        TakeBeginning();
    if (!shadow)
        return;
    try {
        shadow->Watch(*desk.Market, offer);
    } catch (const std::bad_alloc&) {
        EndWithoutRoom();
    }
    Trim();
}

void History::Forget(HistoryEnd why) noexcept
{
    steps.clear();
    done = 0;
    stepsHeld = 0;
    dragGoesOn = false;
    if (why != HistoryEnd::OtherTeam) {
        shadow.reset();
        isForgotten = isOpen;
    }
    if (watcher != nullptr)
        watcher->Ended(why);
}

void History::End() noexcept
{
    Fold();
    if (!isOpen && !steps.empty())
        Forget(HistoryEnd::OtherTeam);
}

void History::EndWithoutRoom() noexcept
{
    outOfRoom = true;
    Forget(HistoryEnd::NoRoom);
}

// Gives up the oldest steps, then those that were undone longest ago, until the rest has room.
void History::Trim() noexcept
{
    while (Held() > mostHeld && done > 1) {
        Drop(0);
        --done;
    }
    while (Held() > mostHeld && steps.size() > done)
        Drop(steps.size() - 1);
    if (shadow && Held() > mostHeld)
        EndWithoutRoom();
}

void History::Drop(std::size_t place) noexcept
{
    const auto step = steps.begin() + static_cast<std::ptrdiff_t>(place);
    stepsHeld -= step->Held();
    steps.erase(step);
}

std::size_t History::Held() const { return stepsHeld + (shadow ? shadow->Held() : 0); }

// ---- Steps -------------------------------------------------------------------------------------------------------------

OpenStep History::Open(StepLabel label) noexcept
{
    if (isOpen)
        return OpenStep(nullptr);
    if (shadow)
        Fold();
    if (!shadow)
        TakeBeginning();
    isOpen = true;
    isForgotten = !shadow;
    current = std::move(label);
    return OpenStep(this);
}

void History::Close() noexcept
{
    isOpen = false;
    if (isForgotten)
        return;
    try {
        ByteDifference change = shadow->Behind(desk);
        if (change.IsEmpty())
            return;
        const bool merges = dragGoesOn && current.Drag != 0 && done != 0 && ToUndo()->Label.Drag == current.Drag &&
                            ToUndo()->Label.Team == current.Team;
        if (merges)
            AddToLast(change, true);
        else
            Append({std::move(current), std::move(change)});
    } catch (const std::bad_alloc&) {
        EndWithoutRoom();
    }
}

void History::Append(Step step)
{
    if (!steps.empty() && steps.front().Label.Team != step.Label.Team)
        Forget(HistoryEnd::OtherTeam);
    while (steps.size() > done)
        Drop(done);
    steps.push_back(std::move(step));
    ++done;
    const Step& last = steps.back();
    stepsHeld += last.Held();
    shadow->Follow(last.Change, DifferenceEnd::After);
    dragGoesOn = true;
    outOfRoom = false;
    if (watcher != nullptr)
        watcher->Closed(last);
    Trim();
}

// Makes `more` a part of the last step that is not undone: as another step of the same drag, or as what changed behind it.
void History::AddToLast(const ByteDifference& more, bool merges)
{
    Step& into = steps[done - 1];
    ByteDifference both = Then(into.Change, more);
    stepsHeld -= into.Held();
    into.Change = std::move(both);
    if (merges)
        into.Label = std::move(current);
    stepsHeld += into.Held();
    shadow->Follow(more, DifferenceEnd::After);
    if (watcher != nullptr) {
        if (merges)
            watcher->Merged(into, more);
        else
            watcher->Folded(&into, more);
    }
    if (into.Change.IsEmpty()) {
        Drop(done - 1);
        --done;
    }
    Trim();
}

void History::Fold() noexcept
{
    if (isOpen || !shadow)
        return;
    try {
        const ByteDifference more = shadow->Behind(desk);
        if (more.IsEmpty())
            return;
        if (done != 0) {
            AddToLast(more, false);
            return;
        }
        shadow->Follow(more, DifferenceEnd::After);
        if (watcher != nullptr)
            watcher->Folded(nullptr, more);
    } catch (const std::bad_alloc&) {
        EndWithoutRoom();
    }
}

// ---- The way back ------------------------------------------------------------------------------------------------------

Turned History::Undo() noexcept { return Turn(DifferenceEnd::Before); }
Turned History::Redo() noexcept { return Turn(DifferenceEnd::After); }

// What is at hand differs from the shadow in other bytes than those that are put: those belong to the step before by then, so
// that no state between two steps is one that never was.
Turned History::Turn(DifferenceEnd to) noexcept
{
    if (isOpen)
        return Turned::StepIsOpen;
    const bool back = to == DifferenceEnd::Before;
    const auto next = [&] { return back ? ToUndo() : ToRedo(); };
    if (next() == nullptr)
        return Turned::Nothing;
    if (!IsAt(desk, next()->Change, back ? DifferenceEnd::After : DifferenceEnd::Before))
        return Turned::Changed;
    Fold();
    const Step* step = next();
    if (step == nullptr)
        return Turned::NoRoom;
    Put(desk, step->Change, to);
    shadow->Follow(step->Change, to);
    done = back ? done - 1 : done + 1;
    dragGoesOn = false;
    if (watcher != nullptr) {
        if (back)
            watcher->Undone(*step);
        else
            watcher->Redone(*step);
    }
    return Turned::Done;
}

Turned History::Replay(Step step) noexcept
{
    if (isOpen)
        return Turned::StepIsOpen;
    if (step.Change.IsEmpty())
        return Turned::Nothing;
    if (!IsAt(desk, step.Change, DifferenceEnd::Before))
        return Turned::Changed;
    Fold();
    if (!shadow)
        TakeBeginning();
    Put(desk, step.Change, DifferenceEnd::After);
    if (!shadow)
        return Turned::NoRoom;
    try {
        Append(std::move(step));
    } catch (const std::bad_alloc&) {
        EndWithoutRoom();
    }
    dragGoesOn = false;
    return outOfRoom ? Turned::NoRoom : Turned::Done;
}

const Step* History::ToUndo() const { return !isOpen && done > 0 ? &steps[done - 1] : nullptr; }
const Step* History::ToRedo() const { return !isOpen && done < steps.size() ? &steps[done] : nullptr; }

std::string History::UndoWords(std::string_view here) const { return WordsFor("Undo", ToUndo(), here); }
std::string History::RedoWords(std::string_view here) const { return WordsFor("Redo", ToRedo(), here); }

} // namespace dravik
