#include "machine/Message.h"
#include "machine/Reporting.h"
#include "makers/Dealing.h"
#include "makers/Makers.h"
#include "rules/LineEligibility.h"
#include "rules/LineFamilies.h"
#include "rules/LineJudge.h"

#include <algorithm>
#include <span>

namespace dravik {

namespace {

// Whether the player of `slot` stands in another slot where `barred` forbids it.
template <class Barred>
bool StandsElsewhere(const Lines& lines, const LineSlot& slot, Barred&& barred)
{
    return std::any_of(SkaterSlots.begin(), SkaterSlots.end(), [&](const LineSlot& other) {
        return other.Word != slot.Word && At(lines, other) == At(lines, slot) && barred(other);
    });
}

bool IsLegal(const League& rules, const Lines& lines, const LineSlot& slot)
{
    if (StandsElsewhere(lines, slot, [&](const LineSlot& other) { return ShareGroup(slot, other); }))
        return false;
    return !rules.LinesOneTwoExclusive ||
           !StandsElsewhere(lines, slot, [&](const LineSlot& other) { return AreOfLinesOneAndTwo(slot, other); });
}

bool IsUsable(const Tables& league, long long id, int team)
{
    return id != 0 && !FaultInLines(league.Players[id], team, Side::Pro);
}

// Leaves a usable slot alone and refills any other, from the worst of the list upwards. False when it stays empty.
bool Repair(const LinesRun& run, Lines& lines, const LineSlot& slot)
{
    const League& rules = run.At.League.LeagueData;
    Int16& word = At(lines, slot);
    if (IsUsable(run.At.League, word, run.Team))
        return true;
    word = 0;
    for (long long place = rules.ProDressedSkaters; place >= 1 && word == 0; --place) {
        const Player& player = run.SkaterAt(place);
        const bool fits =
            WantsDefense(slot.Field) ? player.Position == position::Defense : player.Position < position::Defense;
        if (!fits)
            continue;
        word = run.List.Ids[place];
        if (!IsLegal(rules, lines, slot))
            word = 0;
    }
    return word != 0;
}

// The slots of a field that are repaired for each line, unit or number of a stage.
struct StageField {
    LineField Field;
    int Places;
};

constexpr StageField NormalLines[] = {{LineField::NormalForward, 3}, {LineField::NormalDefense, 2}};
constexpr StageField SpecialUnits[] = {{LineField::PPForward, 3},         {LineField::PPDefense, 2},
                                       {LineField::PKForward, 2},         {LineField::PKDefense, 2},
                                       {LineField::FourVsFourForward, 2}, {LineField::FourVsFourDefense, 2},
                                       {LineField::PK3Defense, 2},        {LineField::PK3Forward, 1}};
constexpr StageField ExtraLists[] = {
    {LineField::ExtraForward, 1}, {LineField::ExtraDefense, 1}, {LineField::PenaltyShot, 1}};

// The list of skaters is made anew for each stage.
struct Stage {
    int Numbers;
    std::span<const StageField> Fields;
};

constexpr Stage Stages[] = {{4, NormalLines}, {2, SpecialUnits}, {5, ExtraLists}};

} // namespace

Made AutoLinesPartial(const Work& work, int team, bool verbose, int day)
{
    Made made;
    const auto failed = FailureOf(work.Says, " in AutoLinesPartial!", [&] {
        if (!TeamTable::Has(team)) {
            work.Says.ShowIntegrityFailure();
            return;
        }
        if (CheckLineEmpty(work.League, work.Says, team, day)) {
            made = AutoLines(work, team, verbose, day);
            return;
        }
        LinesRun run{.At = work, .Team = team, .Told = made};
        if (!RosterIsReady(run))
            return;

        bool filled = true;
        for (const Stage& stage : Stages) {
            if (!ListDressedSkaters(run))
                return;
            Lines& lines = LinesOf(work.League, team, day, Side::Pro);
            for (int number = 1; number <= stage.Numbers; ++number)
                for (const auto& [field, places] : stage.Fields)
                    for (int place = 1; place <= places; ++place)
                        filled = Repair(run, lines, SlotOf(field, number, place)) && filled;
        }

        ListDressedGoalies(run);
        if (!GoaliesAreListed(run))
            return;
        Lines& lines = LinesOf(work.League, team, day, Side::Pro);
        if (lines.StartGoalie == 0 || lines.BackupGoalie == 0)
            DealGoaliesByCondition(run, lines);

        if (filled) {
            CloseRun(run, "Auto Lines Partial Function", verbose);
        } else {
            work.Says.ShowBox("Auto Lines Partial Function Error.", box::Information);
            work.Modified = true;
        }
    });
    if (failed)
        made.Failed = failed;
    return made;
}

} // namespace dravik
