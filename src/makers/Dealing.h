#pragma once

#include "makers/Lineup.h"
#include "rules/LineSlots.h"

#include <bitset>
#include <string_view>

// How the makers of lines fill a day from the working list. What only one of them does stands in its own file.
namespace dravik {

// How many skaters of each position are in the list.
using PositionCounts = Row<Int16, 1, 5>;

constexpr bool IsForward(long long position) { return position >= position::Center && position <= position::RightWing; }

// Whether the team's roster is complete. If not, the automatic roster gets one try, in silence; what happens is told in
// information boxes.
bool RosterIsReady(int team);

// Lists the team's dressed and healthy skaters in index order, no more than `ProDressedSkaters`, and counts their
// positions if asked to. With fewer than 18 it shows "Integrity Check Failed!" in a critical box and gives False.
bool ListDressedSkaters(int team, PositionCounts* counts = nullptr);
// Lists the farm's fit skaters under contract: the best of each position up to the league's requirement, then the best of
// the rest up to `ProDressedSkaters`, and counts their positions. When more are required than dressed, it shows
// "Integrity Check Failed!" in a critical box and gives False. Fails with 9 when there are more than 1000 of them.
bool ListRequiredFarmSkaters(int team, PositionCounts& counts);
// Lists the team's dressed and healthy goalies.
void ListDressedGoalies(int team);

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
int FirstUnused(const UsedPlaces& used, Wanted&& wanted)
{
    for (int place = 1; place <= LineupCount(); ++place)
        if (!used[place] && wanted(SkaterAtPlace(place).Position))
            return place;
    return 0;
}

// Puts the skater of the first unused place that `wanted` accepts into a slot and marks the place. False, the slot
// untouched, when there is none.
template <class Wanted>
bool DealFirstUnused(Lines& lines, const LineSlot& slot, UsedPlaces& used, Wanted&& wanted)
{
    const int place = FirstUnused(used, wanted);
    if (place == 0)
        return false;
    At(lines, slot) = LineupIds[place];
    used.Mark(place);
    return true;
}

// Deals the forward lines, each first to its own positions, then to any forward, and the power play with lines 1 and 2.
// Once the list is through, slots still empty take the best forwards a second time. `room` is that of UsedPlaces.
void DealForwardLines(Lines& lines, int room);

// Deals the defense pairs to at most eight defensemen. Where `counts` tells fewer, but at least `fewestRepeated`, earlier
// men are repeated in the slots left over.
void DealDefensePairs(Lines& lines, const PositionCounts& counts, int fewestRepeated);

// Deals the power play's defense, both penalty kills, 4 vs 4, the extras and the penalty shots from the top of the list.
void DealSpecialTeams(Lines& lines);

// Whether the first two goalies of the list can be dealt: "Integrity Check Failed!" is shown in a critical box when one
// of them is missing, and again, with False, when one's record is not in use. A missing goalie reads record 0.
bool GoaliesAreListed();

// The first goalie of the list starts and the second is his backup, or the other way round when the second's value is 99
// or more and the first's 97 or less. `value` takes a `Goalie` index.
template <class Value>
void DealGoalies(Lines& lines, Value&& value)
{
    const long long first = LineupIds[1];
    const long long second = LineupIds[2];
    const bool swap = value(second) >= 99 && value(first) <= 97;
    lines.StartGoalie = swap ? second : first;
    lines.BackupGoalie = swap ? first : second;
}

long long ConditionOfGoalie(long long id);

// Deals the strategy points that every automatic line-up has.
void DealStrategy(Lines& lines);

// Ends a successful run of `routine` ("Auto Lines Function"): the news, the success box if `verbose`, and `Modified`.
void CloseRun(std::string_view routine, int team, bool verbose);

// How the maker of pro lines and its farm twin differ.
struct LinesMaker {
    Side Of;
    bool (*ListSkaters)(int team, PositionCounts& counts);
    void (*ListGoalies)(int team);
    int Room; // of UsedPlaces
};

// Makes a whole day, from the roster check to the closing message. Failures are reported with " in AutoLines!".
void MakeLines(int team, bool verbose, int day, const LinesMaker& maker);

} // namespace dravik
