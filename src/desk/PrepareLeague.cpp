#include "desk/PrepareLeague.h"

#include "league/Positions.h"
#include "league/RatingNames.h"

#include <string_view>
#include <utility>

namespace dravik {

namespace {

template <class Person>
void FillPlaceholder(Person& person, std::string_view name, int endurance, const League& rules)
{
    person.InUse = true;
    person.Name = name;
    person.Number = 0;
    person.Team = 0;
    person.Status = status::Farm;
    person.Country = "CAN";
    person.Age = 30;
    person.Weight = 200;
    person.Height = 70;
    person.Contract = 1;
    person.Salary = 1000;
    person.Condition = 100;
    for (auto& stat : person.Stats)
        stat = rules.UnknownRating;
    person.Stats[endurance] = 80;
}

template <class Changes, class People>
void CopyWords(Changes& changes, const People& people)
{
    for (long long i = 1; i <= Changes::last; ++i) {
        changes[i].TradeAvailable = people[i].TradeAvailable;
        changes[i].Protected = people[i].Protected;
    }
}

// Older files know nothing of these rules and hold 0.
void SetDefaults(League& rules)
{
    const std::pair<Int16&, int> defaults[] = {
        {rules.ProDressedSkaters, 18}, {rules.MaxDressedGoalies, 2},  {rules.RequiredCenters, 3},
        {rules.RequiredLeftWings, 3},  {rules.RequiredRightWings, 3}, {rules.RequiredDefensemen, 6},
        {rules.OverallWeightCK, 50},
    };
    for (const auto& [field, value] : defaults)
        if (field == 0)
            field = value;
}

} // namespace

void PrepareLeague(Tables& league)
{
    FillPlaceholder(league.Players[0], "Unknown Player", skater::DU, league.LeagueData);
    league.Players[0].Position = position::Center;
    FillPlaceholder(league.Goalies[0], "Unknown Goalie", goalie::DU, league.LeagueData);
    CopyWords(league.RosterChanges, league.Players);
    CopyWords(league.RosterChangesGoalie, league.Goalies);
    SetDefaults(league.LeagueData);
}

} // namespace dravik
