#include "league/Session.h"

#include "league/ClientVariable.h"
#include "league/Message.h"
#include "league/Platform.h"

namespace dravik {

void LeagueNews(std::string_view text) { Machine().LeagueNews(text); }
void TeamNews(int team, std::string_view text) { Machine().TeamNews(team, text); }
void WriteLog(std::string_view text) { Machine().WriteLog(text); }
void PlayerErased(int id, int team) { Machine().PlayerErased(id, team); }

void MarkWaived(int team, int id)
{
    constexpr int waived = 99;
    if (!TeamTable::Has(team) || id < 1 || id > GoalieOffset + GoalieTable::last) {
        ShowIntegrityFailure();
        return;
    }
    if (id <= GoalieOffset)
        Players[id].Suspension = waived;
    else
        Goalies[id - GoalieOffset].Suspension = waived;
}

bool IsDeadlineInForce() { return static_cast<bool>(LeagueData.TradeDeadlineInForce); }

} // namespace dravik
