#include "desk/Captaincy.h"

#include <string>

namespace dravik {

namespace {

// Whether a person may hold an office at all.
bool IsForTheIce(const Work& work, PersonId who, const std::string& office)
{
    if (who.IsGoalie) {
        work.Says.ShowBox("Goalie cannot be " + office + "!", box::Information);
        return false;
    }
    if (work.League.Players[who.Slot].Status == status::Farm) {
        work.Says.ShowBox("Farm Player cannot be " + office + "!", box::Information);
        return false;
    }
    return true;
}

void AppointAssistant(const Work& work, int number, PersonId who, int place)
{
    Team& team = work.League.Teams[number];
    const std::string name = work.League.Players[who.Slot].Name.Trimmed();
    team.Assistant[place] = who.Slot;
    work.Says.ShowBox(name + " has been selected as assistant #" + std::to_string(place) + " for " +
                          team.Name.Trimmed() + ".",
                      box::Information);
    work.Says.TeamNews(number, name + " has been selected as assistant.");
}

} // namespace

bool MakeCaptain(const Work& work, int number, PersonId who)
{
    if (!IsForTheIce(work, who, "Captain"))
        return false;
    Team& team = work.League.Teams[number];
    for (Int16& assistant : team.Assistant)
        if (assistant == who.Slot)
            assistant = 0;
    team.Captain = who.Slot;
    const std::string news = work.League.Players[who.Slot].Name.Trimmed() + " has been selected as captain";
    work.Says.ShowBox(news + " for " + team.Name.Trimmed() + ".", box::Information);
    work.Says.TeamNews(number, news + ".");
    return true;
}

bool MakeAssistant(const Work& work, int number, PersonId who)
{
    if (!IsForTheIce(work, who, "Assistant"))
        return false;
    const Team& team = work.League.Teams[number];
    const std::string name = work.League.Players[who.Slot].Name.Trimmed();
    const std::string ofTeam = " for " + team.Name.Trimmed() + ".";
    if (team.Assistant[1] == who.Slot || team.Assistant[2] == who.Slot) {
        work.Says.ShowBox(name + " is already an assistant" + ofTeam, box::Information);
        return false;
    }
    if (team.Captain == who.Slot) {
        work.Says.ShowBox(name + " is already a captain" + ofTeam, box::Information);
        return false;
    }
    const int answer =
        work.Says.ShowBox("Do you want " + name + " to be assistant #1 (Yes) or assistant #2 (No)?", box::YesNoCancel);
    if (answer == button::Yes)
        AppointAssistant(work, number, who, 1);
    else if (answer == button::No)
        AppointAssistant(work, number, who, 2);
    return true;
}

} // namespace dravik
