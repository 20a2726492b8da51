// Reads a journal of any bytes, or of any entries with seals that fit, and brings it back over a small league: what is read is a
// whole beginning of it, no password changes, a refusal changes nothing, and what was brought back goes back step by step.

#include "desk/BringBack.h"
#include "fuzz/MemoryPlatform.h"
#include "fuzz/TableLeague.h"
#include "fuzz/Target.h"
#include "session/Session.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

namespace dravik::fuzz {

namespace {

// The bytes of a journal. A script is entries, each its kind, the low and the high byte of its length, and what it tells.
std::string JournalOf(Input input)
{
    if (input.empty() || input[0] % 2 == 1)
        return {input.begin() + (input.empty() ? 0 : 1), input.end()};
    std::string bytes = WriteJournalHead({});
    Seal sealed = ReadSeal(std::string_view(bytes).substr(bytes.size() - SealSize));
    for (Input rest = input.subspan(1); rest.size() >= 3;) {
        const std::size_t length = std::min<std::size_t>(rest[1] + 256U * rest[2], rest.size() - 3);
        const JournalEntryHead head{.Length = static_cast<long long>(length), .Kind = rest[0], .Time = 46000.5};
        std::string entry(reinterpret_cast<const char*>(&head), sizeof head);
        entry.append(rest.begin() + 3, rest.begin() + 3 + static_cast<std::ptrdiff_t>(length));
        sealed = SealOver(sealed, entry);
        bytes += entry + WriteSeal(sealed);
        rest = rest.subspan(3 + length);
    }
    return bytes;
}

bool AreAlike(const auto& one, const auto& other) { return std::memcmp(&one, &other, sizeof one) == 0; }

bool HavePasswordsOf(const Tables& other)
{
    for (long long team = TeamTable::first; team <= TeamTable::last; ++team)
        if (Teams[team].Password.Raw() != other.Teams[team].Password.Raw())
            return false;
    return true;
}

void CheckBroughtBack(History& history, const JournalRead& journal)
{
    std::size_t steps = 0;
    while (history.ToUndo() != nullptr) {
        Require(history.Undo() == Turned::Done);
        ++steps;
    }
    const auto done = journal.Steps.begin() + static_cast<std::ptrdiff_t>(journal.Done);
    const auto isStep = [](const Step& step) { return !step.Change.IsEmpty(); };
    Require(steps == static_cast<std::size_t>(std::count_if(journal.Steps.begin(), done, isStep)));
    for (; steps > 0; --steps)
        Require(history.Redo() == Turned::Done);
}

} // namespace

void RunTarget(Input input)
{
    static MemoryPlatform machine;
    static const std::unique_ptr<Tables> before = [] {
        UseMachine(machine);
        MakeTableLeague();
        Teams[1].Password = "0123456789abcdef0123456789abcdef";
        return Copy(OpenLeague);
    }();
    static const std::unique_ptr<Market> market = MakeMarket();
    const std::string bytes = JournalOf(input);
    const JournalOutcome outcome = ReadJournal(bytes);
    Require(outcome.Journal.has_value() == outcome.Refused.empty());
    if (!outcome.Journal)
        return;
    const JournalRead& journal = *outcome.Journal;
    Require(journal.Whole <= bytes.size() && journal.Done <= journal.Steps.size());
    const JournalOutcome again = ReadJournal(std::string_view(bytes).substr(0, journal.Whole));
    Require(again.Journal && again.Journal->Whole == journal.Whole && again.Journal->Sealed == journal.Sealed &&
            again.Journal->Steps.size() == journal.Steps.size());

    OpenLeague = *before;
    EmptyMarket(*market);
    History history(OpenLeague);
    history.Join(*market);
    history.Begin();
    const std::string refused = BringBack(history, OpenLeague, *market, journal);
    Require(HavePasswordsOf(*before));
    if (!refused.empty()) {
        Require(AreAlike(OpenLeague, *before) && history.ToUndo() == nullptr);
        return;
    }
    const auto behind = Copy(OpenLeague);
    CheckBroughtBack(history, journal);
    Require(AreAlike(OpenLeague, *behind));
}

} // namespace dravik::fuzz
