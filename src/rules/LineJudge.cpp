#include "rules/LineJudge.h"

#include "league/Message.h"
#include "league/Positions.h"
#include "league/Reporting.h"
#include "rules/LineRules.h"
#include "rules/People.h"
#include "rules/WipeLines.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace dravik {

namespace {

// What names the slot of a field in the message of its being empty.
enum class Naming { Position, Defense, Caption };

struct EmptyWords {
    std::string_view Head;
    Naming Tail;
    std::string_view Caption = {};
};

EmptyWords WordsOf(LineField field, const LineRules& rules)
{
    switch (field) {
    case LineField::NormalForward:
        return {"Normal line # ", Naming::Position};
    case LineField::NormalDefense:
        return {"Normal line # ", Naming::Defense};
    case LineField::PPForward:
        return {rules.PPForwardHead, Naming::Position};
    case LineField::PPDefense:
        return {"PP line ", Naming::Defense};
    case LineField::PKForward:
        return {"PK line ", Naming::Position};
    case LineField::PKDefense:
        return {"PK line ", Naming::Defense};
    case LineField::FourVsFourForward:
        return {"4 vs 4 line ", Naming::Position};
    case LineField::FourVsFourDefense:
        return {"4 vs 4 line ", Naming::Defense};
    case LineField::PK3Forward:
        return {"PK3 line ", Naming::Caption, rules.PK3ForwardCaption};
    case LineField::PK3Defense:
        return {"PK3 line ", Naming::Defense};
    case LineField::ExtraForward:
        return {"Extra Forward #", Naming::Caption};
    case LineField::ExtraDefense:
        return {"Extra Defense #", Naming::Caption};
    case LineField::PenaltyShot:
        return {"Penalty Shot Player #", Naming::Caption};
    }
    Fail(failure::OutOfRange);
}

// The slots of one line or unit that no skater may hold two of, from left to right: each is compared with those on its
// right. The pair of defensemen at the right end has words of its own.
struct Member {
    LineField Field;
    int Place;
};

struct Group {
    std::span<const Member> Members;
    std::string_view Words;
    std::string_view PairWords;
};

constexpr Member NormalMembers[] = {{LineField::NormalForward, 1},
                                    {LineField::NormalForward, 2},
                                    {LineField::NormalForward, 3},
                                    {LineField::NormalDefense, 1},
                                    {LineField::NormalDefense, 2}};
constexpr Member PPMembers[] = {{LineField::PPForward, 1},
                                {LineField::PPForward, 2},
                                {LineField::PPForward, 3},
                                {LineField::PPDefense, 1},
                                {LineField::PPDefense, 2}};
constexpr Member PKMembers[] = {
    {LineField::PKForward, 1}, {LineField::PKForward, 2}, {LineField::PKDefense, 1}, {LineField::PKDefense, 2}};
constexpr Member FourVsFourMembers[] = {{LineField::FourVsFourForward, 1},
                                        {LineField::FourVsFourForward, 2},
                                        {LineField::FourVsFourDefense, 1},
                                        {LineField::FourVsFourDefense, 2}};
constexpr Member PK3Members[] = {{LineField::PK3Forward, 1}, {LineField::PK3Defense, 1}, {LineField::PK3Defense, 2}};

constexpr Group NormalGroup{NormalMembers, " is used twice in Normal line #", " is used twice in Normal line #"};
constexpr Group UnitGroups[] = {
    {PPMembers, " is used twice in PP line#", " is used twice PP in line#"},
    {PKMembers, " is used twice in PK line#", " is used twice PK in line#"},
    {FourVsFourMembers, " is used twice in 4 vs 4 line#", " is used twice 4 vs 4 in line#"},
    {PK3Members, " is used twice in PK3 line#", " is used twice PK3 in line#"},
};

// The six fields of a unit that are judged in turn for place 1, then for place 2.
constexpr LineField PairFields[] = {LineField::PPDefense,         LineField::PKForward,         LineField::PKDefense,
                                    LineField::FourVsFourForward, LineField::FourVsFourDefense, LineField::PK3Defense};

struct List {
    LineField Field;
    std::string_view Words;
};
constexpr List Lists[] = {
    {LineField::ExtraForward, " is used twice in Extra Forward"},
    {LineField::ExtraDefense, " is used twice in Extra Defense"},
    {LineField::PenaltyShot, " is used twice in Extra Penalty Shot"},
};

constexpr int NormalLineCount = 4;
constexpr int UnitCount = 2;
constexpr int ListLength = 5;

// The places of the head count, of which a league uses the first few, and what a complete farm line-up needs.
constexpr std::size_t HeadCountPlaces = 25;
constexpr std::size_t FewestHeads = 18;

// A slot and its right-hand neighbours, at most five in all.
class SlotRun {
public:
    SlotRun(const Group& group, int number)
    {
        for (const Member& member : group.Members)
            slots[count++] = SlotOf(member.Field, number, member.Place);
    }
    explicit SlotRun(LineField list)
    {
        for (int number = 1; number <= ListLength; ++number)
            slots[count++] = SlotOf(list, number);
    }

    [[nodiscard]] const LineSlot* begin() const { return slots.data(); }
    [[nodiscard]] const LineSlot* end() const { return slots.data() + count; }

private:
    std::array<LineSlot, 5> slots{};
    std::size_t count = 0;
};

class LineJudge {
    using Words = decltype(LineFinding::Slots);

public:
    LineJudge(const Work& at, int teamNumber, int day, const LineRules& lineRules, LineVerdict& found) :
        work(at), team(teamNumber), rules(lineRules), lines(LinesOf(at.League, teamNumber, day, lineRules.Side)),
        verdict(found)
    {
    }

    void Walk()
    {
        JudgeNormalLines();
        if (rules.ComparesLinesOneAndTwo && work.League.LeagueData.LinesOneTwoExclusive)
            CompareLinesOneAndTwo();
        JudgeUnits();
        JudgeLists();
        JudgeGoalies();
        if (rules.HeadCount != HeadCount::None)
            CountHeads();
    }

private:
    void JudgeNormalLines()
    {
        for (int line = 1; line <= NormalLineCount; ++line) {
            for (int position = 1; position <= 3; ++position)
                JudgeSlot(LineField::NormalForward, line, position);
            for (int place = 1; place <= 2; ++place)
                JudgeSlot(LineField::NormalDefense, line, place);
            CompareWithin(NormalGroup, line);
        }
    }

    void CompareLinesOneAndTwo()
    {
        const SlotRun second(NormalGroup, 2);
        for (const LineSlot& slot : SlotRun(NormalGroup, 1))
            if (StandsIn(Standing(slot), second.begin(), second.end()))
                Tell(LineFault::LinesShared, Standing(slot), WithAlike(slot, second.begin(), second.end()),
                     NameIn(slot), " is used twice in lines 1 and 2.");
    }

    void JudgeUnits()
    {
        for (int unit = 1; unit <= UnitCount; ++unit) {
            for (int position = 1; position <= 3; ++position)
                JudgeSlot(LineField::PPForward, unit, position);
            for (int place = 1; place <= 2; ++place)
                for (const LineField field : PairFields)
                    JudgeSlot(field, unit, place);
            JudgeSlot(LineField::PK3Forward, unit);
            for (const Group& group : UnitGroups)
                CompareWithin(group, unit);
        }
    }

    void JudgeLists()
    {
        for (int number = 1; number <= ListLength; ++number)
            for (const List& list : Lists)
                JudgeSlot(list.Field, number);
        for (const List& list : Lists)
            TellDoubles(SlotRun(list.Field), [&](const LineSlot& left, const Words& slots, bool) {
                Tell(LineFault::Double, Standing(left), slots, NameIn(left), list.Words);
            });
    }

    void JudgeGoalies()
    {
        const Words start = Word(StartGoalieWord);
        const Words backup = Word(BackupGoalieWord);
        JudgeGoalie(lines.StartGoalie, start, "Starting Goaler is empty.");
        JudgeGoalie(lines.BackupGoalie, backup, "Backup Goaler is empty.");
        if (lines.StartGoalie == lines.BackupGoalie && IsCompared(lines.StartGoalie))
            Tell(LineFault::SameGoalies, lines.StartGoalie, start | backup,
                 "Starting Goalie and BackUp Goalie are the same");
    }

    // Counts the different values of the skater slots, the 0 of the empty ones among them.
    void CountHeads()
    {
        const long long limit = work.League.LeagueData.ProDressedSkaters;
        if (limit > static_cast<long long>(HeadCountPlaces))
            Fail(failure::OutOfRange);
        std::array<long long, HeadCountPlaces> heads{};
        std::size_t count = 0;
        for (const LineSlot& slot : SkaterSlots) {
            const long long value = Standing(slot);
            const auto end = heads.begin() + static_cast<std::ptrdiff_t>(count);
            if (std::find(heads.begin(), end, value) != end)
                continue;
            if (static_cast<long long>(count) >= limit) {
                Tell(LineFault::TooMany, 0, {}, "More that ", limit, " Players Found");
                return;
            }
            heads[count++] = value;
        }
        if (rules.HeadCount == HeadCount::AtLeastToo && count < FewestHeads)
            Tell(LineFault::TooFew, 0, {}, "Not Enough Players Found. Minimum is ",
                 static_cast<long long>(FewestHeads));
    }

    // A refused skater leaves all lines of his team, so later slots of this walk may be found empty.
    void JudgeSlot(LineField field, int number, int place = 1)
    {
        const LineSlot slot = SlotOf(field, number, place);
        const auto id = static_cast<int>(Standing(slot));
        if (id == 0)
            TellEmpty(slot);
        else if (Refuses(work.League.Players[id], id, [&] { return WordsOfAll(id); }))
            WipePlayerFromTeamLines(work.League, work.Says, team, id);
    }

    // A refused goalie leaves this slot only; his other slots and days keep him.
    void JudgeGoalie(Int16& slot, const Words& word, std::string_view emptyMessage)
    {
        if (slot == 0) {
            if (rules.JudgesEmptySlots)
                Tell(LineFault::Empty, 0, word, emptyMessage);
        } else if (Refuses(work.League.Goalies[slot], slot, [&] { return word; })) {
            slot = 0;
        }
    }

    // Tells why somebody may not stand in these lines, if so, and of which slots: `slots()` gives them. The pro judge, too,
    // speaks of the farm roster.
    template <class Person, class SlotsOf>
    bool Refuses(const Person& person, long long id, SlotsOf slots)
    {
        if (person.Status != rules.Status || person.Team != team) {
            Tell(LineFault::Stranger, id, slots(), person.Name.Trimmed(), " is not on farm roster for this team.");
            return true;
        }
        if (!IsDressable(person)) {
            Tell(LineFault::Unfit, id, slots(), person.Name.Trimmed(), " is injured or suspended.");
            return true;
        }
        return false;
    }

    void TellEmpty(const LineSlot& slot)
    {
        if (!rules.JudgesEmptySlots)
            return;
        const EmptyWords words = WordsOf(slot.Field, rules);
        const auto tell = [&](const auto&... parts) { Tell(LineFault::Empty, 0, Word(slot.Word), parts...); };
        switch (words.Tail) {
        case Naming::Position:
            tell(words.Head, slot.Number, " ", PositionName[slot.Place], " is empty.");
            break;
        case Naming::Defense: // the line or unit once more, not the defenseman
            tell(words.Head, slot.Number, " Defense #", slot.Number, " is empty.");
            break;
        case Naming::Caption:
            tell(words.Head, slot.Number, words.Caption, " is empty.");
            break;
        }
    }

    void CompareWithin(const Group& group, int number)
    {
        TellDoubles(SlotRun(group, number), [&](const LineSlot& left, const Words& slots, bool isPair) {
            Tell(LineFault::Double, Standing(left), slots, NameIn(left), isPair ? group.PairWords : group.Words,
                 number);
        });
    }

    // Calls `tell` for each slot whose value stands once more on its right, with all slots that hold it from there on, and
    // whether the two are the last pair.
    template <class Telling>
    void TellDoubles(const SlotRun& run, Telling tell)
    {
        for (const auto* left = run.begin(); left != run.end(); ++left)
            if (IsCompared(Standing(*left)) && StandsIn(Standing(*left), left + 1, run.end()))
                tell(*left, WithAlike(*left, left + 1, run.end()), left + 2 == run.end());
    }

    // Whether `value` takes part in comparisons: two empty slots are alike where emptiness is judged.
    [[nodiscard]] bool IsCompared(long long value) const { return rules.JudgesEmptySlots || value != 0; }

    [[nodiscard]] bool StandsIn(long long value, const LineSlot* first, const LineSlot* last) const
    {
        return std::any_of(first, last, [&](const LineSlot& slot) { return Standing(slot) == value; });
    }

    // A slot and those of `first` to `last` that hold the same.
    [[nodiscard]] Words WithAlike(const LineSlot& slot, const LineSlot* first, const LineSlot* last) const
    {
        Words words = Word(slot.Word);
        for (const auto* other = first; other != last; ++other)
            if (Standing(*other) == Standing(slot))
                words |= Word(other->Word);
        return words;
    }

    // All slots of the day that hold a skater.
    [[nodiscard]] Words WordsOfAll(long long id) const
    {
        Words words;
        for (const LineSlot& slot : SkaterSlots)
            if (Standing(slot) == id)
                words |= Word(slot.Word);
        return words;
    }

    static Words Word(int word) { return Words{}.set(static_cast<std::size_t>(word)); }

    [[nodiscard]] long long Standing(const LineSlot& slot) const { return At(lines, slot); }
    [[nodiscard]] std::string NameIn(const LineSlot& slot) const
    {
        return work.League.Players[Standing(slot)].Name.Trimmed();
    }

    // Tells one finding, in words and as data.
    template <class... Parts>
    void Tell(LineFault fault, long long person, const Words& slots, const Parts&... parts)
    {
        const std::size_t begin = verdict.Text.size();
        (Append(parts), ...);
        const std::size_t length = verdict.Text.size() - begin;
        verdict.Text += LineBreak;
        verdict.Findings.push_back({fault, static_cast<int>(person), slots, begin, length});
    }
    void Append(std::string_view text) { verdict.Text += text; }
    void Append(long long number) { verdict.Text += std::to_string(number); }

    const Work& work;
    int team;
    const LineRules& rules;
    Lines& lines;
    LineVerdict& verdict;
};

std::string LogHead(const Team& team, Side side)
{
    const std::string name = team.Name.Trimmed();
    return (side == Side::Pro ? name : team.Farm.Name.Trimmed() + " (" + name + ")") + " lines errors : ";
}

constexpr LineRules ProRules{.Side = Side::Pro,
                             .Status = status::Pro,
                             .JudgesEmptySlots = true,
                             .ComparesLinesOneAndTwo = true,
                             .PPForwardHead = "PP line ",
                             .PK3ForwardCaption = " forward",
                             .HeadCount = HeadCount::None,
                             .Closing = "Some errors will be automatically fixed.\r\n"};

} // namespace

void JudgeLines(const Work& work, int team, int day, const LineRules& rules, bool showMessage, bool log,
                LineVerdict& verdict)
{
    LineJudge(work, team, day, rules, verdict).Walk();
    const bool perfect = verdict.Text.empty();
    verdict.Text += perfect ? "Lines are perfect!" : rules.Closing;
    if (log)
        work.Says.WriteLog(LogHead(work.League.Teams[team], rules.Side) + verdict.Text);
    if (work.Says.MayReport(showMessage))
        work.Says.ShowBox(verdict.Text, box::Information);
    verdict.Complete = perfect;
}

LineVerdict CheckLine(const Work& work, int team, bool showMessage, int day, bool log)
{
    LineVerdict verdict;
    verdict.Failed = FailureOf(work.Says, " in CheckLine!", [&] {
        if (!HasLineDay(team, day))
            work.Says.ShowIntegrityFailure();
        else
            JudgeLines(work, team, day, ProRules, showMessage, log, verdict);
    });
    return verdict;
}

bool CheckLineEmpty(const Tables& league, Voice& says, int team, int day)
{
    if (!HasLineDay(team, day)) {
        says.ShowIntegrityFailure();
        return false;
    }
    const Lines& lines = LinesOf(league, team, day, Side::Pro);
    return std::all_of(SkaterSlots.begin(), SkaterSlots.end(),
                       [&](const LineSlot& slot) { return At(lines, slot) == 0; }) &&
           lines.StartGoalie == 0 && lines.BackupGoalie == 0;
}

} // namespace dravik
