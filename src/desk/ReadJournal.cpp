#include "desk/ReadJournal.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace dravik {

namespace {

// Takes fields from the front of what an entry tells.
class Fields {
public:
    explicit Fields(std::string_view told) : rest(told) {}

    template <class T>
    std::optional<T> Take()
    {
        T field;
        if (rest.size() < sizeof field)
            return std::nullopt;
        std::memcpy(&field, rest.data(), sizeof field);
        rest.remove_prefix(sizeof field);
        return field;
    }
    std::optional<std::string> TakeText()
    {
        const auto length = Take<Int16>();
        if (!length || *length < 0 || static_cast<std::size_t>(*length) > rest.size())
            return std::nullopt;
        std::string text(rest.substr(0, static_cast<std::size_t>(*length)));
        rest.remove_prefix(text.size());
        return text;
    }
    std::optional<StepLabel> TakeLabel()
    {
        const auto words = TakeText();
        const auto where = TakeText();
        const auto team = Take<Int32>();
        const auto drag = Take<std::array<char, SealSize>>();
        if (!words || !where || !team || !drag)
            return std::nullopt;
        return StepLabel{.Words = *words,
                         .Where = *where,
                         .Team = static_cast<int>(*team),
                         .Drag = ReadSeal({drag->data(), drag->size()})};
    }
    std::optional<bool> TakeFlag()
    {
        const auto flag = Take<Byte>();
        return flag && *flag <= 1 ? std::optional(*flag == 1) : std::nullopt;
    }
    // What is left, as a difference that holds no password.
    std::optional<ByteDifference> TakeDifference()
    {
        const std::string_view all = std::exchange(rest, {});
        auto difference = ByteDifference::FromStored({reinterpret_cast<const unsigned char*>(all.data()), all.size()});
        if (!difference || !std::ranges::equal(WithoutPasswords(*difference).Stored(), difference->Stored()))
            return std::nullopt;
        return difference;
    }
    [[nodiscard]] bool AreAllTaken() const { return rest.empty(); }

private:
    std::string_view rest;
};

// Follows the entries. One that cannot have been changes nothing.
class Follower {
public:
    Follower(const JournalHead& head, std::size_t mostWork) : ledger(mostWork) { read.Head = head; }

    bool Take(JournalKind kind, double time, std::string_view told)
    {
        now = time;
        Fields fields(told);
        switch (kind) {
        case JournalKind::Closed:
            return TakeStep(fields);
        case JournalKind::Merged:
            return TakeMore(fields, true);
        case JournalKind::Folded:
            return TakeMore(fields, false);
        case JournalKind::FoldedIntoBeginning:
            return TakeBeginning(fields);
        case JournalKind::Undone:
            return fields.AreAllTaken() && Undo();
        case JournalKind::Redone:
            return fields.AreAllTaken() && Redo();
        case JournalKind::Ended:
            return fields.AreAllTaken() && End();
        case JournalKind::Saved:
            return TakeFile(fields, SavedFile::Lines, &WorkLedger::Saved);
        case JournalKind::BroughtBack:
            return fields.AreAllTaken() && GoOn();
        case JournalKind::Kept:
            return TakeFile(fields, SavedFile::Offers, &WorkLedger::Kept);
        }
        return false;
    }

    [[nodiscard]] bool IsTooMuch() { return ledger.Joins().IsTooMuch(); }

    JournalRead Result(std::size_t whole, Seal sealed) &&
    {
        read.Whole = whole;
        read.Sealed = sealed;
        read.Unsaved = ledger.Unsaved();
        read.Ledger = ledger;
        return std::move(read);
    }

private:
    bool TakeStep(Fields& fields)
    {
        auto label = fields.TakeLabel();
        auto change = label ? fields.TakeDifference() : std::nullopt;
        if (!change)
            return false;
        if (!read.Steps.empty() && read.Steps.front().Label.Team != label->Team)
            End(); // the program had no room for the others' steps
        ledger.Step(label->Team, now, *change);
        read.Steps.resize(read.Done);
        read.Steps.push_back({.Label = std::move(*label), .Change = std::move(*change)});
        ++read.Done;
        return true;
    }
    bool TakeMore(Fields& fields, bool merges)
    {
        auto label = merges ? fields.TakeLabel() : StepLabel();
        const auto isGone = fields.TakeFlag();
        const auto more = label && isGone ? fields.TakeDifference() : std::nullopt;
        if (!more || read.Done == 0 || (merges && read.Steps[read.Done - 1].Label.Team != label->Team))
            return false;
        Step& into = read.Steps[read.Done - 1];
        ByteDifference both = ledger.Joins().Then(into.Change, *more);
        if (*isGone && !both.IsEmpty())
            return false;
        if (merges)
            ledger.Step(into.Label.Team, now, *more);
        else
            ledger.Outside(into.Label.Team, *more);
        into.Change = std::move(both);
        if (merges)
            into.Label = std::move(*label);
        if (*isGone)
            read.Steps.erase(read.Steps.begin() + static_cast<std::ptrdiff_t>(--read.Done));
        return true;
    }
    bool TakeBeginning(Fields& fields)
    {
        const auto more = fields.TakeDifference();
        if (!more)
            return false;
        if (read.Done != 0)
            End(); // the program had no room for these steps
        ledger.Outside(0, *more);
        read.Beginning = ledger.Joins().Then(read.Beginning, *more);
        return true;
    }
    bool Undo()
    {
        if (read.Done == 0)
            return false;
        const Step& step = read.Steps[--read.Done];
        ledger.Step(step.Label.Team, now, Reversed(step.Change));
        return true;
    }
    bool Redo()
    {
        if (read.Done == read.Steps.size())
            return false;
        const Step& step = read.Steps[read.Done++];
        ledger.Step(step.Label.Team, now, step.Change);
        return true;
    }
    bool End()
    {
        for (std::size_t step = 0; step < read.Done; ++step)
            read.Beginning = ledger.Joins().Then(read.Beginning, read.Steps[step].Change);
        read.Steps.clear();
        read.Done = 0;
        return true;
    }
    bool TakeFile(Fields& fields, SavedFile first, void (WorkLedger::*took)(SavedFile, int))
    {
        const auto file = fields.Take<Byte>();
        const auto team = fields.Take<Int32>();
        if (!team || !fields.AreAllTaken() || *file < static_cast<int>(first) ||
            *file > static_cast<int>(SavedFile::Ranking))
            return false;
        (ledger.*took)(static_cast<SavedFile>(static_cast<unsigned char>(*file)), static_cast<int>(*team));
        return true;
    }
    bool GoOn()
    {
        ledger.BroughtBack();
        const auto isEmpty = [](const Step& step) { return step.Change.IsEmpty(); };
        const auto done = read.Steps.begin() + static_cast<std::ptrdiff_t>(read.Done);
        read.Done -= static_cast<std::size_t>(std::count_if(read.Steps.begin(), done, isEmpty));
        std::erase_if(read.Steps, isEmpty);
        return true;
    }

    JournalRead read;
    WorkLedger ledger;
    double now = 0;
};

} // namespace

JournalOutcome ReadJournal(std::string_view bytes, std::size_t mostWork)
{
    const JournalHeadRead head = ReadJournalHead(bytes);
    if (!head.Head)
        return {.Journal = {}, .Refused = head.Refused};
    Follower follower(*head.Head, mostWork);
    std::size_t whole = JournalHeadSize();
    Seal sealed = head.Sealed;
    for (;;) {
        const std::string_view rest = bytes.substr(whole);
        JournalEntryHead entry;
        if (rest.size() < sizeof entry + SealSize)
            break;
        std::memcpy(&entry, rest.data(), sizeof entry);
        const std::size_t room = rest.size() - sizeof entry - SealSize;
        constexpr double behindLast = 2958466; // the last day of the year 9999
        if (entry.Length < 0 || static_cast<std::size_t>(entry.Length) > room ||
            !(entry.Time >= 0 && entry.Time < behindLast))
            break;
        const auto length = static_cast<std::size_t>(entry.Length);
        const Seal seal = SealOver(sealed, rest.substr(0, sizeof entry + length));
        if (ReadSeal(rest.substr(sizeof entry + length)) != seal || follower.IsTooMuch() ||
            !follower.Take(static_cast<JournalKind>(static_cast<unsigned char>(entry.Kind)), entry.Time,
                           rest.substr(sizeof entry, length)))
            break;
        whole += sizeof entry + length + SealSize;
        sealed = seal;
    }
    JournalRead read = std::move(follower).Result(whole, sealed);
    if (follower.IsTooMuch()) // NOLINT(bugprone-use-after-move): what was counted stays
        return {.Journal = {}, .Refused = "More is told in it than any evening comes to."};
    return {.Journal = std::move(read), .Refused = {}};
}

} // namespace dravik
