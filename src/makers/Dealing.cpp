#include "makers/Dealing.h"

#include "machine/Message.h"
#include "machine/Reporting.h"
#include "makers/Makers.h"
#include "rules/People.h"
#include "rules/RosterJudge.h"
#include "rules/WipeLines.h"

#include <algorithm>
#include <initializer_list>
#include <string>

namespace dravik {

bool RosterIsReady(LinesRun& run)
{
    Voice& says = run.At.Says;
    const auto isComplete = [&run] {
        const RosterVerdict verdict = CheckRoster(run.At, run.Team, false, true, false);
        run.Told.RosterRepaired = verdict.Repaired;
        return verdict.Complete;
    };
    if (isComplete())
        return true;
    const std::string name = run.At.League.Teams[run.Team].Name.Trimmed();
    says.ShowBox("Roster for " + name + " is incomplete!" + std::string(LineBreak) +
                     "Trying Auto Rosters Function for " + name + ".",
                 box::Information);
    AutoRoster(run.At, run.Team, false, false);
    if (isComplete())
        return true;
    says.ShowBox("Roster for " + name + " is still incomplete!" + std::string(LineBreak) + "Cannot make lines for " +
                     name + ".",
                 box::Information);
    return false;
}

bool ListDressedSkaters(LinesRun& run, PositionCounts* counts)
{
    constexpr int fewest = 18;
    Tables& league = run.At.League;
    const long long most = league.LeagueData.ProDressedSkaters;
    run.List.Empty();
    EachOfTeam(league.Players, run.Team, [&](const Player& player, int id) {
        if (player.Status != status::Pro || !IsHealthy(player) || run.List.Count() >= most)
            return;
        if (counts != nullptr)
            ++(*counts)[player.Position];
        run.Insert(PersonIn<Player>(id));
    });
    if (run.List.Count() >= fewest && run.List.Count() <= most)
        return true;
    run.At.Says.ShowIntegrityFailure();
    return false;
}

void ListDressedGoalies(LinesRun& run)
{
    run.List.Empty();
    EachOfTeam(run.At.League.Goalies, run.Team, [&run](const Goalie& goalie, int id) {
        if (goalie.Status != status::Pro || !IsHealthy(goalie))
            return;
        run.Insert(PersonIn<Goalie>(id));
    });
}

void DealForwardLines(const LinesRun& run, Lines& lines, int room)
{
    constexpr int forwardLines = 4;
    constexpr int powerPlayUnits = 2;
    UsedPlaces used(room);
    const auto deal = [&](int line, int position, auto&& wanted) {
        const LineSlot slot = SlotOf(LineField::NormalForward, line, position);
        if (At(lines, slot) == 0 && DealFirstUnused(run, lines, slot, used, wanted) && line <= powerPlayUnits)
            At(lines, SlotOf(LineField::PPForward, line, position)) = At(lines, slot);
    };
    const auto dealLine = [&](int line, auto&& wantedAt) {
        for (int position = position::Center; position <= position::RightWing; ++position)
            deal(line, position, wantedAt(position));
    };
    const auto ownPosition = [](int position) { return [position](long long his) { return his == position; }; };
    const auto anyForward = [](int /*position*/) { return IsForward; };

    for (int line = 1; line <= forwardLines; ++line) {
        dealLine(line, ownPosition);
        dealLine(line, anyForward);
    }
    used.Clear();
    for (int line = 1; line <= forwardLines; ++line)
        dealLine(line, anyForward);
}

namespace {

struct Pair {
    int Line;
    int Place;
};

// A slot that takes the man who stands in another one.
struct Repeat {
    int Defensemen;
    Pair Slot;
    Pair From;
};

constexpr Repeat Repeats[] = {
    {5, {3, 2}, {1, 1}}, {5, {4, 1}, {1, 2}}, {5, {4, 2}, {2, 1}},
    {6, {4, 1}, {1, 1}}, {6, {4, 2}, {1, 2}}, {7, {4, 2}, {1, 1}},
};

LineSlot SlotOf(Pair pair) { return dravik::SlotOf(LineField::NormalDefense, pair.Line, pair.Place); }

} // namespace

void DealDefensePairs(const LinesRun& run, Lines& lines, const PositionCounts& counts, int fewestRepeated)
{
    constexpr long long most = 8;
    const long long defensemen = std::min<long long>(counts[position::Defense], most);

    int placed = 0;
    for (int place = 1; place <= run.List.Count(); ++place) {
        if (run.SkaterAt(place).Position != position::Defense || placed >= defensemen)
            continue;
        At(lines, SlotOf(Pair{placed / 2 + 1, placed % 2 + 1})) = run.List.Ids[place];
        ++placed;
    }
    for (const Repeat& repeat : Repeats)
        if (repeat.Defensemen == defensemen && repeat.Defensemen >= fewestRepeated)
            At(lines, SlotOf(repeat.Slot)) = At(lines, SlotOf(repeat.From));
}

namespace {

// Walks the list and puts the first `men` skaters who are wanted into a slot of each of the fields; `slotAt` tells which,
// by the number of men dealt before.
template <class Wanted, class SlotAt>
void DealWalk(const LinesRun& run, Lines& lines, int men, Wanted&& wanted, std::initializer_list<LineField> fields,
              SlotAt&& slotAt)
{
    int dealt = 0;
    for (int place = 1; place <= run.List.Count() && dealt < men; ++place) {
        if (!wanted(run.SkaterAt(place).Position))
            continue;
        for (const LineField field : fields)
            At(lines, slotAt(field, dealt)) = run.List.Ids[place];
        ++dealt;
    }
}

} // namespace

void DealSpecialTeams(const LinesRun& run, Lines& lines)
{
    const auto isDefense = [](long long position) { return position == position::Defense; };
    const auto inUnits = [](LineField field, int dealt) { return dravik::SlotOf(field, dealt / 2 + 1, dealt % 2 + 1); };
    const auto byNumber = [](LineField field, int dealt) { return dravik::SlotOf(field, dealt + 1); };

    DealWalk(run, lines, 4, IsForward, {LineField::PKForward, LineField::FourVsFourForward}, inUnits);
    DealWalk(run, lines, 2, IsForward, {LineField::PK3Forward}, byNumber);
    DealWalk(run, lines, 4, isDefense,
             {LineField::PPDefense, LineField::PKDefense, LineField::FourVsFourDefense, LineField::PK3Defense},
             inUnits);
    DealWalk(run, lines, 5, IsForward, {LineField::ExtraForward, LineField::PenaltyShot}, byNumber);
    DealWalk(run, lines, 5, isDefense, {LineField::ExtraDefense}, byNumber);
}

bool GoaliesAreListed(const LinesRun& run)
{
    const GoalieTable& goalies = run.At.League.Goalies;
    const long long first = run.List.Ids[1];
    const long long second = run.List.Ids[2];
    if (first == 0 || second == 0)
        run.At.Says.ShowIntegrityFailure();
    if (goalies[first].InUse && goalies[second].InUse)
        return true;
    run.At.Says.ShowIntegrityFailure();
    return false;
}

void DealGoaliesByCondition(const LinesRun& run, Lines& lines)
{
    DealGoalies(run, lines, [&run](long long id) -> long long { return run.At.League.Goalies[id].Condition; });
}

void DealStrategy(Lines& lines)
{
    constexpr int physical = 0;
    constexpr int defense = 1;
    constexpr int offense = 2;
    lines.Strategy[physical] = 1;
    lines.Strategy[defense] = 2;
    lines.Strategy[offense] = 2;
}

void CloseRun(LinesRun& run, std::string_view routine, bool verbose)
{
    Voice& says = run.At.Says;
    const std::string name(routine);
    says.LeagueNews(name + " has been run for " + run.At.League.Teams[run.Team].Name.Trimmed() + ".");
    if (says.MayReport(verbose))
        says.ShowBox(name + " has been run successfully.", box::Information);
    run.At.Modified = true;
    run.Told.Done = true;
}

Made MakeLines(const Work& work, int team, bool verbose, int day, const LinesMaker& maker)
{
    constexpr int fewestRepeated = 5;
    Made made;
    made.Failed = FailureOf(work.Says, " in AutoLines!", [&] {
        if (!TeamTable::Has(team)) {
            work.Says.ShowIntegrityFailure();
            return;
        }
        LinesRun run{.At = work, .Team = team, .Told = made};
        if (!RosterIsReady(run))
            return;
        WipesLines(work.League, work.Says, team, day, maker.Of == Side::Pro);

        PositionCounts counts;
        if (!maker.ListSkaters(run, counts))
            return;
        Lines& lines = LinesOf(work.League, team, day, maker.Of);
        DealForwardLines(run, lines, maker.Room);
        DealDefensePairs(run, lines, counts, fewestRepeated);
        DealSpecialTeams(run, lines);

        maker.ListGoalies(run);
        if (!GoaliesAreListed(run))
            return;
        DealGoaliesByCondition(run, lines);
        DealStrategy(lines);
        CloseRun(run, "Auto Lines Function", verbose);
    });
    return made;
}

} // namespace dravik
