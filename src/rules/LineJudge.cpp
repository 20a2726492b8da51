#include "rules/LineJudge.h"

#include "league/Positions.h"
#include "machine/Message.h"
#include "machine/Reporting.h"
#include "rules/DaySlots.h"
#include "rules/LineEligibility.h"
#include "rules/LineGroups.h"
#include "rules/LineRules.h"
#include "rules/WipeLines.h"

#include <algorithm>
#include <array>
#include <string>

namespace dravik {

namespace {

constexpr const LineGroup* UnitGroups[] = {&PowerPlayUnits, &PenaltyKillUnits, &FourVsFourUnits,
                                           &PenaltyKillWithThreeUnits};

// The six fields of a unit that are judged in turn for place 1, then for place 2.
constexpr LineField PairFields[] = {LineField::PPDefense,         LineField::PKForward,         LineField::PKDefense,
                                    LineField::FourVsFourForward, LineField::FourVsFourDefense, LineField::PK3Defense};

constexpr LineField Lists[] = {LineField::ExtraForward, LineField::ExtraDefense, LineField::PenaltyShot};

constexpr int UnitCount = PowerPlayUnits.Count;
constexpr int ListLength = 5;

// The places of the head count, of which a league uses the first few.
constexpr std::size_t HeadCountPlaces = 25;

// A slot and its right-hand neighbours, at most five in all.
class SlotRun {
public:
    // A line or unit, whose members are compared from left to right.
    SlotRun(const LineGroup& group, int number)
    {
        for (const GroupMember& member : group.Members)
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
        for (int line = 1; line <= NormalLines.Count; ++line) {
            for (int position = 1; position <= 3; ++position)
                JudgeSlot(LineField::NormalForward, line, position);
            for (int place = 1; place <= 2; ++place)
                JudgeSlot(LineField::NormalDefense, line, place);
            FindDoubles(SlotRun(NormalLines, line));
        }
    }

    void CompareLinesOneAndTwo()
    {
        const SlotRun second(NormalLines, 2);
        for (const LineSlot& slot : SlotRun(NormalLines, 1))
            if (StandsIn(Standing(slot), second.begin(), second.end()))
                Find({.Fault = LineFault::LinesShared,
                      .Person = Standing(slot),
                      .Slots = WithAlike(slot, second.begin(), second.end()),
                      .At = slot});
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
            for (const LineGroup* group : UnitGroups)
                FindDoubles(SlotRun(*group, unit));
        }
    }

    void JudgeLists()
    {
        for (int number = 1; number <= ListLength; ++number)
            for (const LineField list : Lists)
                JudgeSlot(list, number);
        for (const LineField list : Lists)
            FindDoubles(SlotRun(list));
    }

    void JudgeGoalies()
    {
        const Words start = Word(StartGoalieWord);
        const Words backup = Word(BackupGoalieWord);
        JudgeGoalie(lines.StartGoalie, start);
        JudgeGoalie(lines.BackupGoalie, backup);
        if (lines.StartGoalie == lines.BackupGoalie && IsCompared(lines.StartGoalie))
            Find({LineFault::SameGoalies, Number(lines.StartGoalie), start | backup});
    }

    // Counts the different values of the skater slots, the 0 of the empty ones among them.
    void CountHeads()
    {
        const long long limit = work.League.LeagueData.ProDressedSkaters;
        if (limit > static_cast<long long>(HeadCountPlaces))
            Fail(failure::OutOfRange);
        std::array<int, HeadCountPlaces> heads{};
        std::size_t count = 0;
        for (const LineSlot& slot : SkaterSlots) {
            const int value = Standing(slot);
            const auto end = heads.begin() + static_cast<std::ptrdiff_t>(count);
            if (std::find(heads.begin(), end, value) != end)
                continue;
            if (static_cast<long long>(count) >= limit) {
                Find({.Fault = LineFault::TooMany, .Person = 0, .Limit = limit});
                return;
            }
            heads[count++] = value;
        }
        if (rules.HeadCount == HeadCount::AtLeastToo && static_cast<int>(count) < FewestHeads)
            Find({.Fault = LineFault::TooFew, .Person = 0, .Limit = FewestHeads});
    }

    // A refused skater leaves all lines of his team, so later slots of this walk may be found empty.
    void JudgeSlot(LineField field, int number, int place = 1)
    {
        const LineSlot slot = SlotOf(field, number, place);
        const int id = Standing(slot);
        if (id == 0)
            FindEmpty({.Fault = LineFault::Empty, .Person = 0, .Slots = Word(slot.Word), .At = slot});
        else if (Refuses(work.League.Players[id], id, [&] { return WordsOfAll(id); }))
            WipePlayerFromTeamLines(work.League, work.Says, team, id);
    }

    // A refused goalie leaves this slot only; his other slots and days keep him.
    void JudgeGoalie(Int16& slot, const Words& word)
    {
        if (slot == 0)
            FindEmpty({LineFault::Empty, 0, word});
        else if (Refuses(work.League.Goalies[slot], Number(slot), [&] { return word; }))
            slot = 0;
    }

    // Finds why somebody may not stand in these lines, if so, and of which slots: `slots()` gives them.
    template <class Person, class SlotsOf>
    bool Refuses(const Person& person, int id, SlotsOf slots)
    {
        const auto fault = FaultInLines(person, team, rules.Side);
        if (fault)
            Find({*fault, id, slots()});
        return fault.has_value();
    }

    // Finds each slot whose value stands once more on its right, with all slots that hold it from there on.
    void FindDoubles(const SlotRun& run)
    {
        for (const auto* left = run.begin(); left != run.end(); ++left)
            if (IsCompared(Standing(*left)) && StandsIn(Standing(*left), left + 1, run.end()))
                Find({.Fault = LineFault::Double,
                      .Person = Standing(*left),
                      .Slots = WithAlike(*left, left + 1, run.end()),
                      .At = *left});
    }

    // Whether `value` takes part in comparisons: two empty slots are alike where emptiness is judged.
    [[nodiscard]] bool IsCompared(int value) const { return rules.JudgesEmptySlots || value != 0; }

    [[nodiscard]] bool StandsIn(int value, const LineSlot* first, const LineSlot* last) const
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
    [[nodiscard]] Words WordsOfAll(int id) const
    {
        Words words;
        for (const LineSlot& slot : SkaterSlots)
            if (Standing(slot) == id)
                words |= Word(slot.Word);
        return words;
    }

    static Words Word(int word) { return Words{}.set(static_cast<std::size_t>(word)); }

    static int Number(const Int16& slot) { return static_cast<int>(slot); }
    [[nodiscard]] int Standing(const LineSlot& slot) const { return Number(At(lines, slot)); }

    void Find(const LineFinding& finding) { verdict.Findings.push_back(finding); }
    void FindEmpty(const LineFinding& finding)
    {
        if (rules.JudgesEmptySlots)
            Find(finding);
    }

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

} // namespace

void JudgeLines(const Work& work, int team, int day, const LineRules& rules, bool showMessage, bool log,
                LineVerdict& verdict)
{
    verdict.Rules = &rules;
    LineJudge(work, team, day, rules, verdict).Walk();
    verdict.Ended = true;
    if (log)
        work.Says.WriteLog(LogHead(work.League.Teams[team], rules.Side) + TextOf(work.League, verdict));
    if (work.Says.MayReport(showMessage))
        work.Says.ShowBox(TextOf(work.League, verdict), box::Information);
    verdict.Complete = verdict.Findings.empty();
}

LineVerdict CheckLine(const Work& work, int team, bool showMessage, int day, bool log)
{
    LineVerdict verdict;
    verdict.Failed = FailureOf(work.Says, " in CheckLine!", [&] {
        if (!HasLineDay(team, day))
            work.Says.ShowIntegrityFailure();
        else
            JudgeLines(work, team, day, *LineRulesOf(work.League.LeagueData, Side::Pro), showMessage, log, verdict);
    });
    return verdict;
}

LineVerdict JudgeDay(const Work& work, int team, Side side, int day, bool showMessage)
{
    return (side == Side::Pro ? CheckLine : CheckLineFarm)(work, team, showMessage, day, false);
}

bool CheckLineEmpty(const Tables& league, Voice& says, int team, int day)
{
    if (!HasLineDay(team, day)) {
        says.ShowIntegrityFailure();
        return false;
    }
    const Lines& lines = LinesOf(league, team, day, Side::Pro);
    return std::all_of(DaySlots.begin(), DaySlots.end(), [&](const DaySlot& slot) { return At(lines, slot) == 0; });
}

} // namespace dravik
