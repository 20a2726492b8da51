#include "machine/Message.h"
#include "machine/Reporting.h"
#include "makers/Dealing.h"
#include "makers/Makers.h"
#include "rules/People.h"
#include "rules/WipeLines.h"

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
void ListFarmSkaters(LinesRun& run, PositionCounts& counts)
{
    PlayerTable& players = run.At.League.Players;
    const auto list = [&](const Player& player, int id) {
        if (!IsFitOnFarm(player))
            return;
        ++counts[player.Position];
        run.Insert(PersonIn<Player>(id));
    };
    run.List.Empty();
    if (BelongsTo(players[0], run.Team))
        list(players[0], 0);
    EachOfTeam(players, run.Team, list);

    if (run.List.Count() > MostListed)
        run.List.Ratings[0] = MostListed;
    for (int position = position::Center; position <= position::RightWing; ++position)
        counts[position] = std::min<long long>(counts[position], ForwardLineCount);
}

// Puts the skaters of a position, best first, on `field` from number 1 up to `last`, and tells `dealt` their places.
template <class Dealt>
void DealByPosition(const LinesRun& run, Lines& lines, LineField field, int position, long long last, Dealt&& dealt)
{
    int number = 1;
    for (int place = 1; place <= run.List.Count() && number <= last; ++place) {
        if (run.SkaterAt(place).Position != position)
            continue;
        At(lines, SlotOf(field, number, position)) = run.List.Ids[place];
        dealt(place);
        ++number;
    }
}

// Every position by itself down the lines, then whoever is left into the holes; nobody plays twice.
void DealFarmForwardLines(const LinesRun& run, Lines& lines, const PositionCounts& counts)
{
    UsedPlaces used(MostListed);
    for (int position = position::Center; position <= position::RightWing; ++position)
        DealByPosition(run, lines, LineField::NormalForward, position, counts[position],
                       [&](int place) { used.Mark(place); });
    for (int line = 1; line <= ForwardLineCount; ++line) {
        for (int position = position::Center; position <= position::RightWing; ++position) {
            const LineSlot slot = SlotOf(LineField::NormalForward, line, position);
            if (At(lines, slot) == 0)
                DealFirstUnused(run, lines, slot, used, IsForward);
        }
    }
}

// The two best of each position, whatever line they stand on.
void DealFarmPowerPlay(const LinesRun& run, Lines& lines)
{
    constexpr int units = 2;
    for (int position = position::Center; position <= position::RightWing; ++position)
        DealByPosition(run, lines, LineField::PPForward, position, units, [](int) {});
}

void MakeLinesSimply(LinesRun& run, bool verbose, int day)
{
    constexpr int fewestRepeated = 6;
    Tables& league = run.At.League;
    WipesLines(league, run.At.Says, run.Team, day, false);
    PositionCounts counts;
    ListFarmSkaters(run, counts);
    Lines& lines = LinesOf(league, run.Team, day, Side::Farm);
    DealFarmForwardLines(run, lines, counts);
    DealDefensePairs(run, lines, counts, fewestRepeated);
    DealFarmPowerPlay(run, lines);
    DealSpecialTeams(run, lines);

    run.List.Empty();
    EachOfTeam(league.Goalies, run.Team, [&run](const Goalie& goalie, int id) {
        if (!IsFitOnFarm(goalie))
            return;
        run.Insert(PersonIn<Goalie>(id));
    });
    // Here it is the indices of the two goalies, not their conditions, that decide who starts.
    DealGoalies(run, lines, [](long long id) { return id; });
    DealStrategy(lines);
    CloseRun(run, "Auto Lines Function", verbose);
}

// ---- The twin of the pro routine, for leagues that do --------------------------------------------------------------

constexpr int TwinRoom = 1000;

template <class Person>
bool IsUnderContractOnFarm(const Person& person)
{
    return person.Status == status::Farm && IsFit(person);
}

} // namespace

bool ListRequiredFarmSkaters(LinesRun& run, PositionCounts& counts)
{
    const League& rules = run.At.League.LeagueData;
    const PlayerTable& players = run.At.League.Players;
    run.List.Empty();
    EachOfTeam(players, run.Team, [&run](const Player& player, int id) {
        if (IsUnderContractOnFarm(player))
            run.Insert(PersonIn<Player>(id));
    });
    Row<Int16, 1, TwinRoom> ranking;
    const int ranked = run.List.Count();
    for (int place = 1; place <= ranked; ++place)
        ranking[place] = run.List.Ids[place];
    run.List.Empty();

    UsedPlaces picked(TwinRoom);
    const auto list = [&](int place) {
        const int id = static_cast<int>(ranking[place]);
        ++counts[players[id].Position];
        run.Insert(PersonIn<Player>(id));
    };
    const long long required[] = {rules.RequiredCenters, rules.RequiredLeftWings, rules.RequiredRightWings,
                                  rules.RequiredDefensemen};
    for (int position = position::Center; position <= position::Defense; ++position) {
        for (int place = 1; place <= ranked && counts[position] < required[position - 1]; ++place) {
            if (players[ranking[place]].Position != position)
                continue;
            list(place);
            picked.Mark(place);
        }
    }
    if (run.List.Count() > rules.ProDressedSkaters) {
        run.At.Says.ShowIntegrityFailure();
        return false;
    }
    for (int place = 1; place <= ranked && run.List.Count() < rules.ProDressedSkaters; ++place)
        if (!picked[place])
            list(place);
    return true;
}

namespace {

void ListContractedFarmGoalies(LinesRun& run)
{
    run.List.Empty();
    EachOfTeam(run.At.League.Goalies, run.Team, [&run](const Goalie& goalie, int id) {
        if (!IsUnderContractOnFarm(goalie))
            return;
        run.Insert(PersonIn<Goalie>(id));
    });
}

Made AutoLinesFarmTwin(const Work& work, int team, bool verbose, int day)
{
    return MakeLines(work, team, verbose, day,
                     {.Of = Side::Farm,
                      .ListSkaters = ListRequiredFarmSkaters,
                      .ListGoalies = ListContractedFarmGoalies,
                      .Room = TwinRoom});
}

} // namespace

Made AutoLinesFarm(const Work& work, int team, bool verbose, int day)
{
    Made made;
    const auto failed = FailureOf(work.Says, " in AutoLinesFarm!", [&] {
        if (!TeamTable::Has(team)) {
            work.Says.ShowIntegrityFailure();
        } else if (work.League.LeagueData.FarmRosterRequired) {
            made = AutoLinesFarmTwin(work, team, verbose, day);
        } else {
            LinesRun run{.At = work, .Team = team, .Told = made};
            MakeLinesSimply(run, verbose, day);
        }
    });
    if (failed)
        made.Failed = failed;
    return made;
}

} // namespace dravik
