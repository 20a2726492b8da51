#include "screens/LineGroups.h"

#include "league/Arithmetic.h"
#include "session/Routines.h"

namespace dravik {

namespace {

constexpr GroupMember NormalMembers[] = {{LineField::NormalForward, 1},
                                         {LineField::NormalForward, 2},
                                         {LineField::NormalForward, 3},
                                         {LineField::NormalDefense, 1},
                                         {LineField::NormalDefense, 2}};
constexpr GroupMember PPMembers[] = {{LineField::PPForward, 1},
                                     {LineField::PPForward, 2},
                                     {LineField::PPForward, 3},
                                     {LineField::PPDefense, 1},
                                     {LineField::PPDefense, 2}};
constexpr GroupMember FourVsFourMembers[] = {{LineField::FourVsFourForward, 1},
                                             {LineField::FourVsFourForward, 2},
                                             {LineField::FourVsFourDefense, 1},
                                             {LineField::FourVsFourDefense, 2}};
constexpr GroupMember PKMembers[] = {
    {LineField::PKForward, 1}, {LineField::PKForward, 2}, {LineField::PKDefense, 1}, {LineField::PKDefense, 2}};
constexpr GroupMember PK3Members[] = {
    {LineField::PK3Forward, 1}, {LineField::PK3Defense, 1}, {LineField::PK3Defense, 2}};

} // namespace

const std::array<LineGroup, 5> LineGroups{{
    {"lblNormalTrio", "Line", "Normal ", 4, NormalMembers},
    {"lblPPTrio", "Unit", "PP ", 2, PPMembers},
    {"lbl44Trio", "Unit", "4 vs 4 ", 2, FourVsFourMembers},
    {"lblPKTrio", "Unit", "PK ", 2, PKMembers},
    {"lblPK3Trio", "Unit", "PK3 ", 2, PK3Members},
}};

GroupAverages AveragesOf(const Lines& lines, const LineGroup& group, int number)
{
    constexpr auto first = SkaterRatings::first;
    constexpr auto last = SkaterRatings::last;
    Row<long long, first, last> sums;
    long long overall = 0;
    for (const GroupMember& member : group.Members) {
        const auto id = static_cast<int>(At(lines, SlotOf(member.Field, number, member.Place)));
        const Player& player = Players[id];
        for (auto stat = first; stat <= last; ++stat)
            sums[stat] += player.Stats[stat];
        overall += CalculateOverall(static_cast<int>(player.Position), id);
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
