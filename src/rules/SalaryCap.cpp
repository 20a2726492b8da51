#include "rules/SalaryCap.h"

#include "league/Arithmetic.h"
#include "league/Message.h"
#include "league/Reporting.h"
#include "rules/Finance.h"

#include <optional>
#include <string>
#include <string_view>

namespace dravik {

namespace {

// What the payroll of a team may reach, in the modes that have a cap.
std::optional<long long> CapOf(const League& league, const Team& team)
{
    switch (league.SalaryCapMode) {
    case 1:
        return league.SalaryCap;
    case 2: // a rich team may pay more; a team in debt must pay less
        return Limit32(league.SalaryCap + team.Cash);
    default:
        return std::nullopt;
    }
}

void Tell(const Work& work, CapVerdict& verdict, const std::string& name, std::string_view words, long long amount,
          bool showMessage)
{
    const std::string text =
        name + std::string(words) + work.Shown.Currency(static_cast<double>(Limit32(amount))) + "!";
    verdict.Text += text;
    verdict.Text += LineBreak;
    if (work.Says.MayReport(showMessage))
        work.Says.ShowBox(text, box::Warning);
    else
        work.Says.WriteLog(text);
}

} // namespace

CapStanding StandingAgainstCap(const Tables& league, int team)
{
    const League& rules = league.LeagueData;
    const Payrolls payrolls = PayrollsOf(league, team);
    CapStanding standing;
    standing.Pro = RoundToInt32(payrolls.Pro);
    standing.Farm = RoundToInt32(payrolls.Farm);
    standing.Total = standing.Pro;
    if (rules.FarmPayrollInCap)
        standing.Total = Limit32(standing.Pro + standing.Farm);
    if (rules.CoachPayrollInCap)
        standing.Total =
            RoundToInt32(static_cast<double>(CoachesOf(league, team)) + static_cast<double>(standing.Total));
    standing.Cap = CapOf(rules, league.Teams[team]);
    return standing;
}

CapVerdict CheckSalaryCap(const Work& work, int team, bool showMessage)
{
    CapVerdict verdict;
    verdict.Failed = FailureOf(work.Says, " in CheckSalaryCap!", [&] {
        if (!TeamTable::Has(team)) {
            work.Says.ShowIntegrityFailure();
            return;
        }
        verdict.Within = true;
        const League& rules = work.League.LeagueData;
        if (rules.SalaryCapMode == 0)
            return;
        const Team& record = work.League.Teams[team];
        const auto tell = [&](const std::string& name, std::string_view words, long long amount) {
            Tell(work, verdict, name, words, amount, showMessage);
        };

        const auto [pro, farm, total, cap] = StandingAgainstCap(work.League, team);
        if (cap && total > *cap) {
            verdict.Within = false;
            tell(record.Name.Trimmed(), " is over the salary cap by ", total - *cap);
        }
        if (rules.FarmSalaryCap > 0 && farm > rules.FarmSalaryCap) {
            verdict.Within = false;
            tell(record.Farm.Name.Trimmed(), " is over the salary cap by ", farm - rules.FarmSalaryCap);
        }
        // Too small a payroll is told, and allowed.
        if (total < rules.MinSalaryCap)
            tell(record.Name.Trimmed(), " is under the minimum salary cap by ", rules.MinSalaryCap - total);
    });
    return verdict;
}

} // namespace dravik
