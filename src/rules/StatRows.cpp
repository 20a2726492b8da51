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
void TellRatings(const Stats& stats, long long count, const Names& names, const GroupNames& groupNames,
                 const Groups& groups, const TellStatRow& tell)
{
    for (int row = 1; row <= count; ++row) {
        if (LeagueData.ShowAllRatings)
            tell(row, {names[row], static_cast<int>(stats[row])});
        else
            tell(row, {groupNames[row], Mean(stats, groups[row])});
    }
}

template <class Names, class GroupNames>
StatRow OverallRowOf(int overall, const Names& names, const GroupNames& groupNames)
{
    return {LeagueData.ShowAllRatings ? names[names.last] : groupNames[groupNames.last], overall};
}

TellStatRow Into(std::vector<StatRow>& rows)
{
    return [&rows](int /*row*/, const StatRow& shown) { rows.push_back(shown); };
}

void AddOverall(StatRows& rows, int overall, StatRow (*row)(int))
{
    rows.Overall = overall;
    if (LeagueData.ShowOverall)
        rows.OverallRow = row(overall);
}

} // namespace

void TellSkaterRatings(int index, const TellStatRow& tell)
{
    TellRatings(Players[index].Stats, PlayerStatCount, SkaterStatName, SkaterGroupName, SkaterGroups, tell);
}

void TellGoalieRatings(int index, const TellStatRow& tell)
{
    TellRatings(Goalies[index].Stats, GoalieStatCount, GoalieStatName, GoalieGroupName, GoalieGroups, tell);
}

StatRow SkaterOverallRow(int overall) { return OverallRowOf(overall, SkaterStatName, SkaterGroupName); }

StatRow GoalieOverallRow(int overall) { return OverallRowOf(overall, GoalieStatName, GoalieGroupName); }

StatRows SkaterStatRows(int index)
{
    StatRows rows;
    TellSkaterRatings(index, Into(rows.Ratings));
    AddOverall(rows, CalculateOverall(static_cast<int>(Players[index].Position), index), SkaterOverallRow);
    return rows;
}

StatRows SkaterStatRows(const SkaterRatings& ratings, int overall)
{
    StatRows rows;
    TellRatings(ratings, PlayerStatCount, SkaterStatName, SkaterGroupName, SkaterGroups, Into(rows.Ratings));
    AddOverall(rows, overall, SkaterOverallRow);
    return rows;
}

StatRows GoalieStatRows(int index)
{
    StatRows rows;
    TellGoalieRatings(index, Into(rows.Ratings));
    AddOverall(rows, CalculateOverall(position::Goalie, index), GoalieOverallRow);
    return rows;
}

} // namespace dravik
