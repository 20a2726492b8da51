#include "makers/Dealing.h"

#include "league/Message.h"
#include "league/Platform.h"
#include "league/Reporting.h"
#include "league/Session.h"
#include "makers/Makers.h"
#include "rules/Function.h"
#include "rules/People.h"

#include <algorithm>
#include <initializer_list>
#include <string>

namespace dravik {

bool RosterIsReady(int team)
{
    const auto isComplete = [team] { return CheckRoster(team, false, true, false); };
    if (isComplete())
        return true;
    const std::string name = Teams[team].Name.Trimmed();
    ShowBox("Roster for " + name + " is incomplete!" + std::string(LineBreak) + "Trying Auto Rosters Function for " +
                name + ".",
            box::Information);
    AutoRoster(team, false, false);
    if (isComplete())
        return true;
    ShowBox("Roster for " + name + " is still incomplete!" + std::string(LineBreak) + "Cannot make lines for " + name +
                ".",
            box::Information);
    return false;
}

bool ListDressedSkaters(int team, PositionCounts* counts)
{
    constexpr int fewest = 18;
    EmptyLineup();
    EachOfTeam(Players, team, [&](const Player& player, int id) {
        if (player.Status != status::Pro || !IsHealthy(player) || LineupCount() >= LeagueData.ProDressedSkaters)
            return;
        if (counts != nullptr)
            ++(*counts)[player.Position];
        InsertInLineup(id);
    });
    if (LineupCount() >= fewest && LineupCount() <= LeagueData.ProDressedSkaters)
        return true;
    ShowIntegrityFailure();
    return false;
}

void ListDressedGoalies(int team)
{
    EmptyLineup();
    EachOfTeam(Goalies, team, [](const Goalie& goalie, int id) {
        if (goalie.Status != status::Pro || !IsHealthy(goalie))
            return;
        id += GoalieOffset;
        InsertInLineup(id);
    });
}

void DealForwardLines(Lines& lines, int room)
{
    constexpr int forwardLines = 4;
    constexpr int powerPlayUnits = 2;
    UsedPlaces used(room);
    const auto deal = [&](int line, int position, auto&& wanted) {
        const LineSlot slot = SlotOf(LineField::NormalForward, line, position);
        if (At(lines, slot) == 0 && DealFirstUnused(lines, slot, used, wanted) && line <= powerPlayUnits)
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

void DealDefensePairs(Lines& lines, const PositionCounts& counts, int fewestRepeated)
{
    constexpr long long most = 8;
    const long long defensemen = std::min<long long>(counts[position::Defense], most);

    int placed = 0;
    for (int place = 1; place <= LineupCount(); ++place) {
        if (SkaterAtPlace(place).Position != position::Defense || placed >= defensemen)
            continue;
        At(lines, SlotOf(Pair{placed / 2 + 1, placed % 2 + 1})) = LineupIds[place];
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
void DealWalk(Lines& lines, int men, Wanted&& wanted, std::initializer_list<LineField> fields, SlotAt&& slotAt)
{
    int dealt = 0;
    for (int place = 1; place <= LineupCount() && dealt < men; ++place) {
        if (!wanted(SkaterAtPlace(place).Position))
            continue;
        for (const LineField field : fields)
            At(lines, slotAt(field, dealt)) = LineupIds[place];
        ++dealt;
    }
}

} // namespace

void DealSpecialTeams(Lines& lines)
{
    const auto isDefense = [](long long position) { return position == position::Defense; };
    const auto inUnits = [](LineField field, int dealt) { return dravik::SlotOf(field, dealt / 2 + 1, dealt % 2 + 1); };
    const auto byNumber = [](LineField field, int dealt) { return dravik::SlotOf(field, dealt + 1); };

    DealWalk(lines, 4, IsForward, {LineField::PKForward, LineField::FourVsFourForward}, inUnits);
    DealWalk(lines, 2, IsForward, {LineField::PK3Forward}, byNumber);
    DealWalk(lines, 4, isDefense,
             {LineField::PPDefense, LineField::PKDefense, LineField::FourVsFourDefense, LineField::PK3Defense},
             inUnits);
    DealWalk(lines, 5, IsForward, {LineField::ExtraForward, LineField::PenaltyShot}, byNumber);
    DealWalk(lines, 5, isDefense, {LineField::ExtraDefense}, byNumber);
}

bool GoaliesAreListed()
{
    if (LineupIds[1] == 0 || LineupIds[2] == 0)
        ShowIntegrityFailure();
    if (Goalies[LineupIds[1]].InUse && Goalies[LineupIds[2]].InUse)
        return true;
    ShowIntegrityFailure();
    return false;
}

long long ConditionOfGoalie(long long id) { return Goalies[id].Condition; }

void DealStrategy(Lines& lines)
{
    constexpr int physical = 0;
    constexpr int defense = 1;
    constexpr int offense = 2;
    lines.Strategy[physical] = 1;
    lines.Strategy[defense] = 2;
    lines.Strategy[offense] = 2;
}

void CloseRun(std::string_view routine, int team, bool verbose)
{
    const std::string name(routine);
    LeagueNews(name + " has been run for " + Teams[team].Name.Trimmed() + ".");
    if (MayReport(verbose))
        ShowBox(name + " has been run successfully.", box::Information);
    Modified = true;
}

void MakeLines(int team, bool verbose, int day, const LinesMaker& maker)
{
    constexpr int fewestRepeated = 5;
    Reporting(" in AutoLines!", [&] {
        if (!TeamTable::Has(team)) {
            ShowIntegrityFailure();
            return;
        }
        if (!RosterIsReady(team))
            return;
        WipesLines(team, day, maker.Of == Side::Pro);

        PositionCounts counts;
        if (!maker.ListSkaters(team, counts))
            return;
        Lines& lines = LinesOf(team, day, maker.Of);
        DealForwardLines(lines, maker.Room);
        DealDefensePairs(lines, counts, fewestRepeated);
        DealSpecialTeams(lines);

        maker.ListGoalies(team);
        if (!GoaliesAreListed())
            return;
        DealGoalies(lines, ConditionOfGoalie);
        DealStrategy(lines);
        CloseRun("Auto Lines Function", team, verbose);
    });
}

} // namespace dravik
