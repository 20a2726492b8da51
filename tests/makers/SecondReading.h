#pragma once

#include "support/SmallLeague.h"

#include <array>
#include <vector>

// The makers once more, as plainly as they can be told: nothing shared, nothing clever, on copies of the records. What
// the real ones do has to agree with it.
namespace dravik::second {

// What a run of the automatic roster leaves: statuses and roster changes by index, the boxes, and `Modified`.
struct Roster {
    std::vector<int> SkaterStatus;
    std::vector<int> GoalieStatus;
    std::vector<int> SkaterChange;
    std::vector<int> GoalieChange;
    std::vector<Box> Boxes;
    bool Modified = false;

    bool operator==(const Roster&) const = default;
};

// The state as it stands, and the state as a run would leave it, of the first `skaters` and `goalies` indices.
Roster RosterNow(int skaters, int goalies);
Roster RosterAfter(int team, bool verbose, bool partial, int skaters, int goalies);

// A skater of a list, best first.
struct Man {
    int Id;
    int Position;
};
using Men = std::vector<Man>;

Men DressedMen(int team);
Men FarmMenSimply(int team);
Men FarmMenByRequirement(int team);

// The goalies of the farm's day, 0 where one is missing.
struct Keepers {
    int Start;
    int Backup;
};
Keepers FarmKeepersSimply(int team);
Keepers FarmKeepersUnderContract(int team);

// A day of lines. Slots count from 0.
struct Day {
    int Forward[4][3] = {};
    int Defense[4][2] = {};
    int PPForward[2][3] = {};
    int PPDefense[2][2] = {};
    int KillForward[2][2] = {}; // 5 vs 4 penalty kill and 4 vs 4
    int KillDefense[2][2] = {}; // both of them and the penalty kill with three
    int Kill3Forward[2] = {};
    int ExtraForward[5] = {}; // and penalty shots
    int ExtraDefense[5] = {};

    [[nodiscard]] Lines AsLines() const;
};

Day DealtByThePro(const Men& men);
// `counted` tells how many of each position the farm has, those who did not make the list as well.
Day DealtByTheFarm(const Men& men, const std::array<int, 5>& counted);

} // namespace dravik::second
