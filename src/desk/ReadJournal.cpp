#include "desk/ReadJournal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <iterator>
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

// Which tables a file holds, in the order of the files' numbers.
struct Carried {
    DeskTable First;
    DeskTable Last;
};
constexpr Carried CarriedBy[] = {{DeskTable::League, DeskTable::GoalieChanges},
                                 {DeskTable::Offers, DeskTable::Offers},
                                 {DeskTable::Ranking, DeskTable::Ranking}};

// What a team has done since its files were saved.
struct TeamWork {
    struct Since {
        ByteDifference Change;
        bool ByStep = false; // not only by what changes outside of them
    };

    int Team = 0;
    double Time = 0;
    std::array<Since, std::size(CarriedBy)> Files;

    [[nodiscard]] bool IsUnsaved() const
    {
        return std::any_of(Files.begin(), Files.end(),
                           [](const Since& since) { return since.ByStep && !since.Change.IsEmpty(); });
    }
    void Add(const ByteDifference& change, bool byStep)
    {
        for (std::size_t file = 0; file < Files.size(); ++file) {
            const ByteDifference part = Within(change, CarriedBy[file].First, CarriedBy[file].Last);
            if (part.IsEmpty())
                continue;
            Files[file].Change = Then(Files[file].Change, part);
            Files[file].ByStep = Files[file].ByStep || byStep;
        }
    }
};

// Follows the entries. One that cannot have been changes nothing.
class Follower {
public:
    explicit Follower(const JournalHead& head) { read.Head = head; }

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
            return TakeSaved(fields);
        case JournalKind::BroughtBack:
            return fields.AreAllTaken() && DropEmptySteps();
        }
        return false;
    }

    JournalRead Result(std::size_t whole, Seal sealed) &&
    {
        read.Whole = whole;
        read.Sealed = sealed;
        for (const TeamWork& work : works) {
            read.Teams.push_back(work.Team);
            if (work.IsUnsaved() && (!read.Unsaved || work.Time >= read.Unsaved->Time))
                read.Unsaved = {.Team = work.Team, .Time = work.Time};
        }
        return std::move(read);
    }

private:
    TeamWork& WorkOf(int team)
    {
        const auto found =
            std::find_if(works.begin(), works.end(), [team](const TeamWork& work) { return work.Team == team; });
        if (found != works.end())
            return *found;
        works.push_back({.Team = team, .Time = 0, .Files = {}});
        return works.back();
    }
    void Work(int team, const ByteDifference& change, bool byStep)
    {
        TeamWork& work = WorkOf(team);
        work.Add(change, byStep);
        if (!byStep)
            return;
        work.Time = now;
        if (!Within(change, DeskTable::Offers, DeskTable::Offers).IsEmpty())
            read.OffersBy = team;
        if (!Within(change, DeskTable::Ranking, DeskTable::Ranking).IsEmpty())
            read.RankingBy = team;
    }

    bool TakeStep(Fields& fields)
    {
        auto label = fields.TakeLabel();
        auto change = label ? fields.TakeDifference() : std::nullopt;
        if (!change || (!read.Steps.empty() && read.Steps.front().Label.Team != label->Team))
            return false;
        Work(label->Team, *change, true);
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
        ByteDifference both = Then(into.Change, *more);
        if (*isGone && !both.IsEmpty())
            return false;
        Work(into.Label.Team, *more, merges);
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
        if (!more || read.Done != 0)
            return false;
        read.Beginning = Then(read.Beginning, *more);
        return true;
    }
    bool Undo()
    {
        if (read.Done == 0)
            return false;
        const Step& step = read.Steps[--read.Done];
        Work(step.Label.Team, Reversed(step.Change), true);
        return true;
    }
    bool Redo()
    {
        if (read.Done == read.Steps.size())
            return false;
        const Step& step = read.Steps[read.Done++];
        Work(step.Label.Team, step.Change, true);
        return true;
    }
    bool End()
    {
        for (std::size_t step = 0; step < read.Done; ++step)
            read.Beginning = Then(read.Beginning, read.Steps[step].Change);
        read.Steps.clear();
        read.Done = 0;
        return true;
    }
    bool TakeSaved(Fields& fields)
    {
        const auto file = fields.Take<Byte>();
        const auto team = fields.Take<Int32>();
        if (!team || !fields.AreAllTaken() || *file < 1 || static_cast<std::size_t>(*file) > std::size(CarriedBy))
            return false;
        for (TeamWork& work : works)
            if (work.Team == *team)
                work.Files.at(static_cast<std::size_t>(*file) - 1) = {};
        return true;
    }
    bool DropEmptySteps()
    {
        const auto isEmpty = [](const Step& step) { return step.Change.IsEmpty(); };
        const auto done = read.Steps.begin() + static_cast<std::ptrdiff_t>(read.Done);
        read.Done -= static_cast<std::size_t>(std::count_if(read.Steps.begin(), done, isEmpty));
        std::erase_if(read.Steps, isEmpty);
        return true;
    }

    JournalRead read;
    std::vector<TeamWork> works;
    double now = 0;
};

} // namespace

JournalOutcome ReadJournal(std::string_view bytes)
{
    const JournalHeadRead head = ReadJournalHead(bytes);
    if (!head.Head)
        return {.Journal = {}, .Refused = head.Refused};
    Follower follower(*head.Head);
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
        if (ReadSeal(rest.substr(sizeof entry + length)) != seal ||
            !follower.Take(static_cast<JournalKind>(static_cast<unsigned char>(entry.Kind)), entry.Time,
                           rest.substr(sizeof entry, length)))
            break;
        whole += sizeof entry + length + SealSize;
        sealed = seal;
    }
    return {.Journal = std::move(follower).Result(whole, sealed), .Refused = {}};
}

} // namespace dravik
