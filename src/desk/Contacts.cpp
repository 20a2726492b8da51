#include "desk/Contacts.h"

#include <string>

namespace dravik {

namespace {

void SetAddress(const Work& work, int number, Text<40> Team::*address, std::string_view news, std::string_view text)
{
    Team& team = work.League.Teams[number];
    team.*address = text;
    work.Says.LeagueNews(team.Name.Trimmed() + std::string(news) + (team.*address).Trimmed() + ".");
    work.Modified = true;
}

} // namespace

void SetEmail(const Work& work, int team, std::string_view text)
{
    SetAddress(work, team, &Team::Email, " Email Address was change to ", text);
}

void SetMessenger(const Work& work, int team, std::string_view text)
{
    SetAddress(work, team, &Team::Messenger, " Messenger Address was change to ", text);
}

} // namespace dravik
