#include "desk/Coaches.h"

#include <string>

namespace dravik {

namespace {

bool Fire(const Work& work, int team, Int16& coach, const Text<40>& employer)
{
    if (coach == 0)
        return false;
    Coach& fired = work.League.Coaches[coach];
    const std::string name = fired.Name.Trimmed();
    if (work.Says.ShowBox("Are you sure you wants to fire " + name + "?", box::YesNo) != button::Yes)
        return false;
    const std::string news = employer.Trimmed() + " fired " + name + ".";
    work.Says.LeagueNews(news);
    work.Says.TeamNews(team, news);
    fired.Team = 0;
    coach = 0;
    work.Modified = true;
    return true;
}

} // namespace

bool FireProCoach(const Work& work, int number)
{
    Team& team = work.League.Teams[number];
    return Fire(work, number, team.ProCoach, team.Name);
}

bool FireFarmCoach(const Work& work, int number)
{
    FarmTeam& farm = work.League.Teams[number].Farm;
    return Fire(work, number, farm.FarmCoach, farm.Name);
}

} // namespace dravik
