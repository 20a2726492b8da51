#include "desk/Erasure.h"

#include <string>

namespace dravik {

namespace {

bool Agrees(Voice& says, const std::string& question) { return says.ShowBox(question, box::YesNo) == button::Yes; }

} // namespace

bool ErasePerson(const Work& work, PersonId who, int position)
{
    Voice& says = work.Says;
    const std::string name = OnPerson(work.League, who, [](const auto& person) { return person.Name.Trimmed(); });
    const int team = OnPerson(work.League, who, [](const auto& person) { return static_cast<int>(person.Team); });
    if (!Agrees(says, "Are you sure you want to erase " + name + "?"))
        return false;
    if (team != 0) {
        const std::string employer = work.League.Teams[team].Name.Trimmed();
        if (!Agrees(says, name + " is hired by " + employer + "! Do you want release the " +
                              (who.IsGoalie ? "goalie?" : "player?")))
            return false;
        const bool retires = Agrees(says, "Is " + name + " retiring?");
        const std::string news = name + (retires ? " retired from " : " was released by ") + employer;
        says.LeagueNews(news);
        says.TeamNews(team, news);
    }
    says.PlayerErased(who.Slot, position);
    work.Modified = true;
    return true;
}

} // namespace dravik
