#include "rules/LineGroups.h"

#include "league/Arithmetic.h"
#include "rules/Overall.h"

namespace dravik {

GroupAverages AveragesOf(const Tables& league, Voice& says, const Lines& lines, const LineGroup& group, int number)
{
    constexpr auto first = SkaterRatings::first;
    constexpr auto last = SkaterRatings::last;
    Row<long long, first, last> sums;
    long long overall = 0;
    for (const GroupMember& member : group.Members) {
        const auto id = static_cast<int>(At(lines, SlotOf(member.Field, number, member.Place)));
        const Player& player = league.Players[id];
        for (auto stat = first; stat <= last; ++stat)
            sums[stat] += player.Stats[stat];
        overall += CalculateOverall(league, says, static_cast<int>(player.Position), id);
    }
    const auto average = [&](long long sum) {
        return RoundToInt16(static_cast<double>(sum) / static_cast<double>(group.Members.size()));
    };
    GroupAverages averages;
    for (auto stat = first; stat <= last; ++stat)
        averages.Ratings[stat] = average(sums[stat]);
    averages.Overall = average(overall);
    return averages;
}

} // namespace dravik
