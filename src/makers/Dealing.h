#pragma once

#include "league/PersonId.h"
#include "league/Positions.h"
#include "makers/Lineup.h"
#include "makers/Makers.h"
#include "rules/DaySlots.h"

#include <bitset>
#include <string_view>

// How the makers of lines fill a day from the working list. What only one of them does stands in its own file.
namespace dravik {

// How many skaters of each position are in the list.
using PositionCounts = Row<Int16, 1, 5>;

// A run of a maker of lines: where it works, for which team, its working list, and what it will tell.
struct LinesRun {
    const Work& At;
    int Team;
    Made& Told;
    Lineup List{};

    // The skater at a place of the list. A place behind the end is that of record 0.
    [[nodiscard]] const Player& SkaterAt(long long place) const { return At.League.Players[List.Ids[place]]; }
    // Puts a person into the list, as InsertInLineup does.
    void Insert(PersonId who)
    {
        int id = who.CommonId();
        InsertInLineup(At.League, At.Says, List, id);
    }
};

// Whether the team's roster is complete. If not, the automatic roster gets one try, in silence; what happens is told in
// information boxes.
bool RosterIsReady(LinesRun& run);

// Lists the team's dressed and healthy skaters in index order, no more than `ProDressedSkaters`, and counts their
// positions if asked to. With fewer than 18 it shows "Integrity Check Failed!" in a critical box and gives False.
bool ListDressedSkaters(LinesRun& run, PositionCounts* counts = nullptr);
// Lists the farm's fit skaters under contract: the best of each position up to the league's requirement, then the best of
// the rest up to `ProDressedSkaters`, and counts their positions. When more are required than dressed, it shows
// "Integrity Check Failed!" in a critical box and gives False. Fails with 9 when there are more than 1000 of them.
bool ListRequiredFarmSkaters(LinesRun& run, PositionCounts& counts);
// Lists the team's dressed and healthy goalies.
void ListDressedGoalies(LinesRun& run);

// Which places of the list have been dealt to a line. A place behind `room` fails with 9.
class UsedPlaces {
public:
    static constexpr int MostRoom = 1000;

    explicit UsedPlaces(int room) : room(room) {}

    void Mark(int place) { used.set(Checked(place)); }
    void Clear() { used.reset(); }
    [[nodiscard]] bool operator[](int place) const { return used.test(Checked(place)); }

private:
    [[nodiscard]] std::size_t Checked(int place) const
    {
        if (place < 1 || place > room)
            Fail(failure::OutOfRange);
        return static_cast<std::size_t>(place);
    }

    int room;
    std::bitset<MostRoom + 1> used;
};

// The first place not used whose skater `wanted(position)` accepts, 0 if there is none.
template <class Wanted>
int FirstUnused(const LinesRun& run, const UsedPlaces& used, Wanted&& wanted)
{
    for (int place = 1; place <= run.List.Count(); ++place)
        if (!used[place] && wanted(run.SkaterAt(place).Position))
            return place;
    return 0;
}

// Puts the skater of the first unused place that `wanted` accepts into a slot and marks the place. False, the slot
// untouched, when there is none.
template <class Wanted>
bool DealFirstUnused(const LinesRun& run, Lines& lines, const LineSlot& slot, UsedPlaces& used, Wanted&& wanted)
{
    const int place = FirstUnused(run, used, wanted);
    if (place == 0)
        return false;
    At(lines, slot) = run.List.Ids[place];
    used.Mark(place);
    return true;
}

// Deals the forward lines, each first to its own positions, then to any forward, and the power play with lines 1 and 2.
// Once the list is through, slots still empty take the best forwards a second time. `room` is that of UsedPlaces.
void DealForwardLines(const LinesRun& run, Lines& lines, int room);

// Deals the defense pairs to at most eight defensemen. Where `counts` tells fewer, but at least `fewestRepeated`, earlier
// men are repeated in the slots left over.
void DealDefensePairs(const LinesRun& run, Lines& lines, const PositionCounts& counts, int fewestRepeated);

// Deals the power play's defense, both penalty kills, 4 vs 4, the extras and the penalty shots from the top of the list.
void DealSpecialTeams(const LinesRun& run, Lines& lines);

// Whether the first two goalies of the list can be dealt: "Integrity Check Failed!" is shown in a critical box when one
// of them is missing, and again, with False, when one's record is not in use. A missing goalie reads record 0.
bool GoaliesAreListed(const LinesRun& run);

// Whether the second of two goalies starts for the first one, by the condition of both: he is fresh, and the first one is not.
constexpr bool SecondStarts(long long first, long long second) { return second >= 99 && first <= 97; }

// The first goalie of the list starts and the second is his backup, or the other way round when the second's value is 99
// or more and the first's 97 or less. `value` takes a `Goalie` index.
template <class Value>
void DealGoalies(const LinesRun& run, Lines& lines, Value&& value)
{
    const long long first = run.List.Ids[1];
    const long long second = run.List.Ids[2];
    const bool swap = SecondStarts(value(first), value(second));
    lines.StartGoalie = swap ? second : first;
    lines.BackupGoalie = swap ? first : second;
}

// The value by which the makers of lines with a roster judgement choose.
void DealGoaliesByCondition(const LinesRun& run, Lines& lines);

// Deals the strategy points that every automatic line-up has.
void DealStrategy(Lines& lines);

// Ends a successful run of `routine` ("Auto Lines Function"): the news, the success box if `verbose`, `Modified` and
// what is told.
void CloseRun(LinesRun& run, std::string_view routine, bool verbose);

// How the maker of pro lines and its farm twin differ.
struct LinesMaker {
    Side Of;
    bool (*ListSkaters)(LinesRun& run, PositionCounts& counts);
    void (*ListGoalies)(LinesRun& run);
    int Room; // of UsedPlaces
};

// Makes a whole day, from the roster check to the closing message. Failures are reported with " in AutoLines!".
Made MakeLines(const Work& work, int team, bool verbose, int day, const LinesMaker& maker);

} // namespace dravik
