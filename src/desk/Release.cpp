#include "desk/Release.h"

#include "league/Arithmetic.h"
#include "machine/Message.h"
#include "rules/ReleaseCost.h"
#include "rules/WipeLines.h"

#include <algorithm>
#include <string>

namespace dravik {

namespace {

// How many percent of the rest of his contract a released person is paid, as the general manager says it.
int AskPercent(Voice& says, bool isGoalie)
{
    constexpr int most = 100;
    const std::string kind = isGoalie ? "goaler" : "player";
    const std::string answer = says.InputBox("How much % does team paid the " + kind + " for the rest of is contract?",
                                             std::string(ProgramTitle), "0");
    return std::clamp(static_cast<int>(RoundToInt16(LeadingNumber(answer))), 0, most);
}

template <class Person>
bool Release(const Work& work, int number, PersonId who, Person& person)
{
    Voice& says = work.Says;
    const std::string name = person.Name.Trimmed();
    if (says.ShowBox("Are you sure you want to release " + name + "?", box::YesNo) != button::Yes)
        return false;
    const int percent = AskPercent(says, who.IsGoalie);
    Team& team = work.League.Teams[number];
    const double cost = ReleaseCost(percent, RestOfContract(team, person.Contract, person.Salary));
    team.Cash = RoundToInt32(static_cast<double>(team.Cash) - cost);
    WipePlayerFromTeamLines(work.League, says, number, who.CommonId());
    const std::string news = name + " was released by " + team.Name.Trimmed() + " for " + work.Shown.Currency(cost);
    says.LeagueNews(news);
    says.TeamNews(number, news);
    person.Team = 0;
    person.Contract = 0;
    person.NoApplyRerate = false;
    person.Protected = false;
    person.TradeAvailable = false;
    person.NoTrade = false;
    return true;
}

} // namespace

bool ReleasePerson(const Work& work, int team, PersonId who)
{
    return OnPerson(work.League, who, [&](auto& person) { return Release(work, team, who, person); });
}

} // namespace dravik
