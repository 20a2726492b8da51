#include "rules/StatRows.h"

#include "league/Arithmetic.h"
#include "league/Positions.h"
#include "league/RatingNames.h"
#include "rules/Overall.h"

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
void TellRatings(const League& rules, const Stats& stats, long long count, const Names& names,
                 const GroupNames& groupNames, const Groups& groups, const TellStatRow& tell)
{
    for (int row = 1; row <= count; ++row) {
        if (rules.ShowAllRatings)
            tell(row, {names[row], static_cast<int>(stats[row])});
        else
            tell(row, {groupNames[row], Mean(stats, groups[row])});
    }
}

template <class Names, class GroupNames>
StatRow OverallRowOf(const League& rules, int overall, const Names& names, const GroupNames& groupNames)
{
    return {rules.ShowAllRatings ? names[names.last] : groupNames[groupNames.last], overall};
}

TellStatRow Into(std::vector<StatRow>& rows)
{
    return [&rows](int /*row*/, const StatRow& shown) { rows.push_back(shown); };
}

void AddOverall(const League& rules, StatRows& rows, int overall, StatRow (*row)(const League&, int))
{
    rows.Overall = overall;
    if (rules.ShowOverall)
        rows.OverallRow = row(rules, overall);
}

} // namespace

ShownRatings RatingsShownBy(const League& rules)
{
    return rules.ShowAllRatings ? ShownRatings{.Skater = 15, .Goalie = 13} : ShownRatings{.Skater = 7, .Goalie = 7};
}

void TellSkaterRatings(const Tables& league, int index, int count, const TellStatRow& tell)
{
    TellRatings(league.LeagueData, league.Players[index].Stats, count, SkaterStatName, SkaterGroupName, SkaterGroups,
                tell);
}

void TellGoalieRatings(const Tables& league, int index, int count, const TellStatRow& tell)
{
    TellRatings(league.LeagueData, league.Goalies[index].Stats, count, GoalieStatName, GoalieGroupName, GoalieGroups,
                tell);
}

StatRow SkaterOverallRow(const League& rules, int overall)
{
    return OverallRowOf(rules, overall, SkaterStatName, SkaterGroupName);
}

StatRow GoalieOverallRow(const League& rules, int overall)
{
    return OverallRowOf(rules, overall, GoalieStatName, GoalieGroupName);
}

StatRows SkaterStatRows(const Tables& league, Voice& says, int index, int count)
{
    StatRows rows;
    TellSkaterRatings(league, index, count, Into(rows.Ratings));
    AddOverall(league.LeagueData, rows, CalculateOverall(league, says, PersonIn<Player>(index)), SkaterOverallRow);
    return rows;
}

StatRows SkaterStatRows(const League& rules, const SkaterRatings& ratings, int count, int overall)
{
    StatRows rows;
    TellRatings(rules, ratings, count, SkaterStatName, SkaterGroupName, SkaterGroups, Into(rows.Ratings));
    AddOverall(rules, rows, overall, SkaterOverallRow);
    return rows;
}

StatRows GoalieStatRows(const Tables& league, Voice& says, int index, int count)
{
    StatRows rows;
    TellGoalieRatings(league, index, count, Into(rows.Ratings));
    AddOverall(league.LeagueData, rows, CalculateOverall(league, says, PersonIn<Goalie>(index)), GoalieOverallRow);
    return rows;
}

} // namespace dravik
