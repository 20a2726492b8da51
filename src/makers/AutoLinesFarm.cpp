#include "league/Message.h"
#include "league/Reporting.h"
#include "makers/Dealing.h"
#include "makers/Makers.h"
#include "rules/Function.h"
#include "rules/People.h"

#include <algorithm>

namespace dravik {

namespace {

// Whether a person of the farm can play; his contract is not asked for.
template <class Person>
bool IsFitOnFarm(const Person& person)
{
    return person.Status == status::Farm && IsDressable(person);
}

// ---- The simple route, for leagues that ask for no farm roster -----------------------------------------------------

constexpr int MostListed = 17;
constexpr int ForwardLineCount = 4;

// Lists everybody who is fit and keeps the best of them. The counts go on telling how many there were, at most four for
// a forward's position. The walk begins at record 0, which belongs to no team unless somebody put it there.
void ListFarmSkaters(int team, PositionCounts& counts)
{
    const auto list = [&](const Player& player, int id) {
        if (!IsFitOnFarm(player))
            return;
        ++counts[player.Position];
        InsertInLineup(id);
    };
    EmptyLineup();
    if (BelongsTo(Players[0], team))
        list(Players[0], 0);
    EachOfTeam(Players, team, list);

    if (LineupCount() > MostListed)
        LineupRatings[0] = MostListed;
    for (int position = position::Center; position <= position::RightWing; ++position)
        counts[position] = std::min<long long>(counts[position], ForwardLineCount);
}

// Puts the skaters of a position, best first, on `field` from number 1 up to `last`, and tells `dealt` their places.
template <class Dealt>
void DealByPosition(Lines& lines, LineField field, int position, long long last, Dealt&& dealt)
{
    int number = 1;
    for (int place = 1; place <= LineupCount() && number <= last; ++place) {
        if (SkaterAtPlace(place).Position != position)
            continue;
        At(lines, SlotOf(field, number, position)) = LineupIds[place];
        dealt(place);
        ++number;
    }
}

// Every position by itself down the lines, then whoever is left into the holes; nobody plays twice.
void DealFarmForwardLines(Lines& lines, const PositionCounts& counts)
{
    UsedPlaces used(MostListed);
    for (int position = position::Center; position <= position::RightWing; ++position)
        DealByPosition(lines, LineField::NormalForward, position, counts[position],
                       [&](int place) { used.Mark(place); });
    for (int line = 1; line <= ForwardLineCount; ++line) {
        for (int position = position::Center; position <= position::RightWing; ++position) {
            const LineSlot slot = SlotOf(LineField::NormalForward, line, position);
            if (At(lines, slot) == 0)
                DealFirstUnused(lines, slot, used, IsForward);
        }
    }
}

// The two best of each position, whatever line they stand on.
void DealFarmPowerPlay(Lines& lines)
{
    constexpr int units = 2;
    for (int position = position::Center; position <= position::RightWing; ++position)
        DealByPosition(lines, LineField::PPForward, position, units, [](int) {});
}

void MakeLinesSimply(int team, bool verbose, int day)
{
    constexpr int fewestRepeated = 6;
    WipesLines(team, day, false);
    PositionCounts counts;
    ListFarmSkaters(team, counts);
    Lines& lines = LinesOf(team, day, Side::Farm);
    DealFarmForwardLines(lines, counts);
    DealDefensePairs(lines, counts, fewestRepeated);
    DealFarmPowerPlay(lines);
    DealSpecialTeams(lines);

    EmptyLineup();
    EachOfTeam(Goalies, team, [](const Goalie& goalie, int id) {
        if (!IsFitOnFarm(goalie))
            return;
        id += GoalieOffset;
        InsertInLineup(id);
    });
    // Here it is the indices of the two goalies, not their conditions, that decide who starts.
    DealGoalies(lines, [](long long id) { return id; });
    DealStrategy(lines);
    CloseRun("Auto Lines Function", team, verbose);
}

// ---- The twin of the pro routine, for leagues that do --------------------------------------------------------------

constexpr int TwinRoom = 1000;

template <class Person>
bool IsUnderContractOnFarm(const Person& person)
{
    return person.Status == status::Farm && IsFit(person);
}

} // namespace

bool ListRequiredFarmSkaters(int team, PositionCounts& counts)
{
    EmptyLineup();
    EachOfTeam(Players, team, [](const Player& player, int id) {
        if (IsUnderContractOnFarm(player))
            InsertInLineup(id);
    });
    Row<Int16, 1, TwinRoom> ranking;
    const int ranked = LineupCount();
    for (int place = 1; place <= ranked; ++place)
        ranking[place] = LineupIds[place];
    EmptyLineup();

    UsedPlaces picked(TwinRoom);
    const auto list = [&](int place) {
        int id = static_cast<int>(ranking[place]);
        ++counts[Players[id].Position];
        InsertInLineup(id);
    };
    const long long required[] = {LeagueData.RequiredCenters, LeagueData.RequiredLeftWings,
                                  LeagueData.RequiredRightWings, LeagueData.RequiredDefensemen};
    for (int position = position::Center; position <= position::Defense; ++position) {
        for (int place = 1; place <= ranked && counts[position] < required[position - 1]; ++place) {
            if (Players[ranking[place]].Position != position)
                continue;
            list(place);
            picked.Mark(place);
        }
    }
    if (LineupCount() > LeagueData.ProDressedSkaters) {
        ShowIntegrityFailure();
        return false;
    }
    for (int place = 1; place <= ranked && LineupCount() < LeagueData.ProDressedSkaters; ++place)
        if (!picked[place])
            list(place);
    return true;
}

namespace {

void ListContractedFarmGoalies(int team)
{
    EmptyLineup();
    EachOfTeam(Goalies, team, [](const Goalie& goalie, int id) {
        if (!IsUnderContractOnFarm(goalie))
            return;
        id += GoalieOffset;
        InsertInLineup(id);
    });
}

void AutoLinesFarmTwin(int team, bool verbose, int day)
{
    MakeLines(team, verbose, day,
              {.Of = Side::Farm,
               .ListSkaters = ListRequiredFarmSkaters,
               .ListGoalies = ListContractedFarmGoalies,
               .Room = TwinRoom});
}

} // namespace

void AutoLinesFarm(int team, bool verbose, int day)
{
    Reporting(" in AutoLinesFarm!", [&] {
        if (!TeamTable::Has(team))
            ShowIntegrityFailure();
        else if (LeagueData.FarmRosterRequired)
            AutoLinesFarmTwin(team, verbose, day);
        else
            MakeLinesSimply(team, verbose, day);
    });
}

} // namespace dravik
