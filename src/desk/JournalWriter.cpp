#include "desk/JournalWriter.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

namespace dravik {

namespace {

std::string BytesOf(const auto& field) { return {reinterpret_cast<const char*>(&field), sizeof field}; }

std::string Told(const ByteDifference& difference)
{
    const ByteDifference masked = WithoutPasswords(difference);
    return {masked.Stored().begin(), masked.Stored().end()};
}

std::string Told(const std::string& text)
{
    const std::string kept = text.substr(0, std::numeric_limits<std::int16_t>::max());
    return BytesOf(Int16(static_cast<long long>(kept.size()))) + kept;
}

std::string Told(const StepLabel& label)
{
    return Told(label.Words) + Told(label.Where) + BytesOf(Int32(label.Team)) + WriteSeal(label.Drag);
}

// Whether nothing is left of a step, its password included.
std::string ToldIfGone(const Step& step) { return BytesOf(Byte(step.Change.IsEmpty() ? 1 : 0)); }

} // namespace

JournalWriter::JournalWriter(const JournalHead& of, ByteDifference beyond, Sink sink, Clock clock) :
    head(of), pending(std::move(beyond)), put(std::move(sink)), now(std::move(clock))
{
}

JournalWriter::JournalWriter(Seal behind, Sink sink, Clock clock) :
    put(std::move(sink)), now(std::move(clock)), seal(behind), hasBegun(true)
{
    Write(JournalKind::BroughtBack, [] { return std::string(); });
}

void JournalWriter::Append(std::string& to, JournalKind kind, std::string_view told)
{
    const JournalEntryHead entry{
        .Length = static_cast<long long>(told.size()), .Kind = static_cast<long long>(kind), .Time = now()};
    const std::string bytes = BytesOf(entry) + std::string(told);
    seal = SealOver(seal, bytes);
    to += bytes + WriteSeal(seal);
}

// Where `tells` fails, or there is no room for what it tells, that is the end.
template <class Tells>
void JournalWriter::Write(JournalKind kind, const Tells& tells) noexcept
{
    if (hasStopped)
        return;
    try {
        std::string bytes;
        if (!hasBegun) {
            bytes = WriteJournalHead(head);
            seal = ReadSeal(std::string_view(bytes).substr(bytes.size() - SealSize));
            if (!pending.IsEmpty())
                Append(bytes, JournalKind::FoldedIntoBeginning, Told(pending));
            pending = {};
        }
        hasBegun = true;
        Append(bytes, kind, tells());
        hasStopped = !put(bytes);
    } catch (const std::exception&) { // NOLINT: whoever wants to know asks
        hasStopped = true;
    }
}

void JournalWriter::Closed(const Step& step) noexcept
{
    Write(JournalKind::Closed, [&] { return Told(step.Label) + Told(step.Change); });
}

void JournalWriter::Merged(const Step& into, const ByteDifference& more) noexcept
{
    Write(JournalKind::Merged, [&] { return Told(into.Label) + ToldIfGone(into) + Told(more); });
}

void JournalWriter::Folded(const Step* into, const ByteDifference& more) noexcept
{
    if (into != nullptr) {
        Write(JournalKind::Folded, [&] { return ToldIfGone(*into) + Told(more); });
    } else if (hasBegun) {
        Write(JournalKind::FoldedIntoBeginning, [&] { return Told(more); });
    } else {
        try {
            pending = Then(pending, more);
        } catch (const std::bad_alloc&) {
            hasStopped = true;
        }
    }
}

void JournalWriter::Undone(const Step& /*step*/) noexcept
{
    Write(JournalKind::Undone, [] { return std::string(); });
}

void JournalWriter::Redone(const Step& /*step*/) noexcept
{
    Write(JournalKind::Redone, [] { return std::string(); });
}

void JournalWriter::Ended(HistoryEnd why) noexcept
{
    if (why != HistoryEnd::OtherTeam)
        hasStopped = true;
    else if (hasBegun)
        Write(JournalKind::Ended, [] { return std::string(); });
}

void JournalWriter::Saved(SavedFile file, int team) noexcept { Write(JournalKind::Saved, file, team); }

void JournalWriter::Kept(SavedFile file, int team) noexcept { Write(JournalKind::Kept, file, team); }

void JournalWriter::Write(JournalKind kind, SavedFile file, int team) noexcept
{
    if (hasBegun)
        Write(kind, [&] { return BytesOf(Byte(static_cast<long long>(file))) + BytesOf(Int32(team)); });
}

} // namespace dravik
