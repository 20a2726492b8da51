#include "desk/LineCandidates.h"

#include "rules/LineEligibility.h"

namespace dravik {

void EachLineCandidate(const Work& work, int team, Side side, const VisitCandidate& visit)
{
    EachOfTeam(work.League.Players, team, [&](const Player& player, int slot) {
        if (FaultInLines(player, team, side))
            return;
        const auto position = static_cast<int>(player.Position);
        if (position < position::Center || position > position::Defense)
            work.Says.ShowBox(player.Name.Trimmed() + " has no position!", box::Critical);
        else
            visit({.IsGoalie = false, .Slot = slot}, position);
    });
    EachOfTeam(work.League.Goalies, team, [&](const Goalie& goalie, int slot) {
        if (!FaultInLines(goalie, team, side))
            visit({.IsGoalie = true, .Slot = slot}, position::Goalie);
    });
}

bool ArePlaceholdersCandidates(const League& rules, Side side)
{
    return side == Side::Farm && rules.FarmRosterRequired.Word() == 0;
}

} // namespace dravik
