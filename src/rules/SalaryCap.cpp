#include "rules/SalaryCap.h"

#include "league/Arithmetic.h"
#include "league/ClientVariable.h"
#include "league/Message.h"
#include "league/Platform.h"
#include "league/Reporting.h"
#include "league/Session.h"
#include "rules/Function.h"

#include <optional>
#include <string>
#include <string_view>

namespace dravik {

namespace {

std::string CapText; // what the last judgement had to say

// What the payroll of a team may reach, in the modes that have a cap.
std::optional<long long> CapOf(const Team& team)
{
    switch (LeagueData.SalaryCapMode) {
    case 1:
        return LeagueData.SalaryCap;
    case 2: // a rich team may pay more; a team in debt must pay less
        return Limit32(LeagueData.SalaryCap + team.Cash);
    default:
        return std::nullopt;
    }
}

void Tell(const std::string& name, std::string_view words, long long amount, bool showMessage)
{
    const std::string text = name + std::string(words) + Machine().Currency(static_cast<double>(Limit32(amount))) + "!";
    CapText += text;
    CapText += LineBreak;
    if (MayReport(showMessage))
        ShowBox(text, box::Warning);
    else
        WriteLog(text);
}

} // namespace

CapStanding StandingAgainstCap(int team)
{
    CapStanding standing;
    standing.Pro = RoundToInt32(ProPayroll(team));
    standing.Farm = RoundToInt32(FarmPayroll(team));
    standing.Total = standing.Pro;
    if (LeagueData.FarmPayrollInCap)
        standing.Total = Limit32(standing.Pro + standing.Farm);
    if (LeagueData.CoachPayrollInCap)
        standing.Total = RoundToInt32(static_cast<double>(CoachPayroll(team)) + static_cast<double>(standing.Total));
    standing.Cap = CapOf(Teams[team]);
    return standing;
}

const std::string& LastCapText() { return CapText; }

void ForgetCapText() { CapText.clear(); }

bool CheckSalaryCap(int team, bool showMessage)
{
    bool within = false;
    Reporting(" in CheckSalaryCap!", [&] {
        if (!TeamTable::Has(team)) {
            ShowIntegrityFailure();
            return;
        }
        within = true;
        ForgetCapText();
        const League& league = LeagueData;
        if (league.SalaryCapMode == 0)
            return;
        const Team& record = Teams[team];

        const auto [pro, farm, total, cap] = StandingAgainstCap(team);
        if (cap && total > *cap) {
            within = false;
            Tell(record.Name.Trimmed(), " is over the salary cap by ", total - *cap, showMessage);
        }
        if (league.FarmSalaryCap > 0 && farm > league.FarmSalaryCap) {
            within = false;
            Tell(record.Farm.Name.Trimmed(), " is over the salary cap by ", farm - league.FarmSalaryCap, showMessage);
        }
        // Too small a payroll is told, and allowed.
        if (total < league.MinSalaryCap)
            Tell(record.Name.Trimmed(), " is under the minimum salary cap by ", league.MinSalaryCap - total,
                 showMessage);
    });
    return within;
}

} // namespace dravik
