#pragma once

#include "screens/squad/SquadColumns.h"

#include <array>
#include <optional>

namespace dravik {

// Who is let into the squad table. Whatever is left open lets everybody through; of a prospect nothing is asked.
struct SquadFilter {
    static constexpr int WithoutTeam = 0;

    std::optional<int> Team = {};                          // 1..100, or WithoutTeam
    std::array<bool, 4> Positions{true, true, true, true}; // of a skater: C, LW, RW, D
    std::optional<int> Status = {};              // 0 farm, 1 scratch, 2 pro; of the team whose decisions are shown
    std::optional<int> AgeFrom = {}, AgeTo = {}; // years, both included
    std::optional<int> OverallFrom = {};         // included; counts where the league shows overalls
    std::optional<int> ContractTo = {};          // years left at most
    bool MayBeAsked = false;                     // those alone to whom the chosen team may make an offer

    bool operator==(const SquadFilter&) const = default;
};

// Whether somebody whose slot is in use is let through. Nothing fails.
bool IsLetThrough(const SquadFilter& filter, const SquadSight& sight, SquadPerson who);

} // namespace dravik
