#include "rules/SalaryCap.h"

#include "league/Arithmetic.h"
#include "machine/Message.h"
#include "machine/Reporting.h"
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

void Find(const Work& work, int team, CapVerdict& verdict, CapFault fault, long long amount, bool showMessage)
{
    const CapFinding& finding = verdict.Findings.emplace_back(CapFinding{fault, Limit32(amount)});
    const std::string text = WordsOf(work.League, work.Shown, team, finding);
    if (work.Says.MayReport(showMessage))
        work.Says.ShowBox(text, box::Warning);
    else
        work.Says.WriteLog(text);
}

// The judgement; `standing` tells where a team that exists stands, and is asked in leagues with a cap alone.
template <class Standing>
CapVerdict Judge(const Work& work, int team, bool showMessage, Standing&& standing)
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
        const auto find = [&](CapFault fault, long long amount) {
            Find(work, team, verdict, fault, amount, showMessage);
        };

        const auto [pro, farm, total, cap] = standing();
        if (cap && total > *cap) {
            verdict.Within = false;
            find(CapFault::Over, total - *cap);
        }
        if (rules.FarmSalaryCap > 0 && farm > rules.FarmSalaryCap) {
            verdict.Within = false;
            find(CapFault::FarmOver, farm - rules.FarmSalaryCap);
        }
        if (total < rules.MinSalaryCap)
            find(CapFault::Under, rules.MinSalaryCap - total);
    });
    return verdict;
}

} // namespace

CapStanding StandingAgainstCap(const Tables& league, int team)
{
    return StandingAgainstCap(league, team, PeopleOf(league, team));
}

CapStanding StandingAgainstCap(const Tables& league, int team, const TeamPeople& people)
{
    const League& rules = league.LeagueData;
    const Payrolls payrolls = PayrollsOf(league, team, people);
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

std::string WordsOf(const Tables& league, const Formats& shown, int team, const CapFinding& finding)
{
    const Team& record = league.Teams[team];
    const std::string name = finding.Fault == CapFault::FarmOver ? record.Farm.Name.Trimmed() : record.Name.Trimmed();
    const bool isUnder = finding.Fault == CapFault::Under;
    return name + (isUnder ? " is under the minimum salary cap by " : " is over the salary cap by ") +
           shown.Currency(static_cast<double>(finding.Amount)) + "!";
}

std::string TextOf(const Tables& league, const Formats& shown, int team, const CapVerdict& verdict)
{
    std::string text;
    for (const CapFinding& finding : verdict.Findings) {
        text += WordsOf(league, shown, team, finding);
        text += LineBreak;
    }
    return text;
}

CapVerdict CheckSalaryCap(const Work& work, int team, bool showMessage)
{
    return Judge(work, team, showMessage, [&] { return StandingAgainstCap(work.League, team); });
}

CapVerdict CheckSalaryCap(const Work& work, int team, const TeamPeople& people, bool showMessage)
{
    return Judge(work, team, showMessage, [&] { return StandingAgainstCap(work.League, team, people); });
}

} // namespace dravik
