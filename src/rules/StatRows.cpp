#include "rules/StatRows.h"

#include "league/Arithmetic.h"
#include "league/ClientVariable.h"
#include "rules/Function.h"

namespace dravik {

namespace {

// The ratings `First` to `Last` whose mean a group shows; a group of one shows it as it is.
struct Group {
    int First;
    int Last;
};

constexpr int GroupCount = 7;
using Groups = Row<Group, 1, GroupCount>;

constexpr Groups GroupsOf(std::initializer_list<Group> all)
{
    Groups groups;
    int number = 1;
    for (const Group& group : all)
        groups[number++] = group;
    return groups;
}

constexpr Groups SkaterGroups = GroupsOf({{skater::CK, skater::DI},
                                          {skater::SK, skater::DU},
                                          {skater::PH, skater::PA},
                                          {skater::SC, skater::SC},
                                          {skater::DF, skater::DF},
                                          {skater::EX, skater::MO},
                                          {skater::PO, skater::PO}});

constexpr Groups GoalieGroups = GroupsOf({{goalie::SK, goalie::AG},
                                          {goalie::RB, goalie::RB},
                                          {goalie::SC, goalie::SC},
                                          {goalie::HS, goalie::HS},
                                          {goalie::RT, goalie::RT},
                                          {goalie::EX, goalie::MO},
                                          {goalie::PO, goalie::PO}});

template <class Stats>
int Mean(const Stats& stats, const Group& group)
{
    double sum = 0;
    for (int stat = group.First; stat <= group.Last; ++stat)
        sum += static_cast<double>(stats[stat]);
    return RoundToInt16(sum / (group.Last - group.First + 1));
}

template <class Stats, class Names, class GroupNames>
StatRows RowsOf(const Stats& stats, int overall, long long count, const Names& names, const GroupNames& groupNames,
                const Groups& groups)
{
    StatRows rows;
    for (int row = 1; row <= count; ++row) {
        if (LeagueData.ShowAllRatings)
            rows.Ratings.push_back({names[row], static_cast<int>(stats[row])});
        else
            rows.Ratings.push_back({groupNames[row], Mean(stats, groups[row])});
    }
    rows.Overall = overall;
    if (LeagueData.ShowOverall)
        rows.OverallRow = StatRow{LeagueData.ShowAllRatings ? names[names.last] : groupNames[groupNames.last], overall};
    return rows;
}

} // namespace

StatRows SkaterStatRows(int index)
{
    const Player& player = Players[index];
    return SkaterStatRows(player.Stats, CalculateOverall(static_cast<int>(player.Position), index));
}

StatRows SkaterStatRows(const SkaterRatings& ratings, int overall)
{
    return RowsOf(ratings, overall, PlayerStatCount, SkaterStatName, SkaterGroupName, SkaterGroups);
}

StatRows GoalieStatRows(int index)
{
    const Goalie& keeper = Goalies[index];
    const int overall = CalculateOverall(position::Goalie, index);
    return RowsOf(keeper.Stats, overall, GoalieStatCount, GoalieStatName, GoalieGroupName, GoalieGroups);
}

} // namespace dravik
