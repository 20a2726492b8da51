#include "desk/Evening.h"

#include "desk/LinesOfAllDays.h"
#include "desk/MarketDoors.h"
#include "league/Failure.h"
#include "rules/LineEligibility.h"
#include "rules/RosterJudge.h"

#include <algorithm>

namespace dravik {

namespace {

std::string MoneyWords(const Formats& shown, long long amount)
{
    return shown.CurrencyNoDecimals(static_cast<double>(amount));
}

std::string Counted(int count, const char* word)
{
    return std::to_string(count) + ' ' + word + (count == 1 ? "" : "s");
}

EveningItem LookAtRoster(const Tables& league, const Formats& shown, int team, Tables& scratch)
{
    scratch = league;
    MuteVoice mute;
    bool modified = false;
    const RosterVerdict verdict = CheckRoster({scratch, mute, shown, modified}, team, false, true, false);
    EveningItem item{.Task = EveningTask::Roster, .State = EveningState::Done, .Count = 0, .Words = {}, .Findings = {}};
    for (const RosterFinding& finding : verdict.Findings)
        item.Findings.push_back(WordsOf(scratch, finding));
    if (verdict.Cap)
        for (const CapFinding& finding : verdict.Cap->Findings)
            item.Findings.push_back(WordsOf(scratch, shown, team, finding));
    if (verdict.Failed)
        item.Findings.emplace_back(Failure(*verdict.Failed).what());
    if (!verdict.Complete || verdict.Failed) {
        item.State = EveningState::Wrong;
        item.Count = static_cast<int>(std::max<std::size_t>(1, item.Findings.size()));
        item.Words = Counted(item.Count, "finding");
        return item;
    }
    try {
        const CapStanding standing = StandingAgainstCap(league, team);
        item.Words = "complete, payroll " + MoneyWords(shown, standing.Total);
        if (standing.Cap)
            item.Findings.push_back("The payroll may reach " + MoneyWords(shown, *standing.Cap) + '.');
    } catch (const Failure&) {
        item.Words = "complete";
    }
    return item;
}

EveningItem LookAtLines(const Tables& league, const Formats& shown, int team, Side side, Tables& scratch)
{
    EveningItem item{.Task = side == Side::Pro ? EveningTask::Lines : EveningTask::FarmLines,
                     .State = EveningState::Done,
                     .Count = 0,
                     .Words = {},
                     .Findings = {}};
    if (!AreLinesJudged(league.LeagueData, side)) {
        item.State = EveningState::Closed;
        item.Words = "closed: the league has no farm teams";
        return item;
    }
    const DayVerdicts verdicts = LookAtAllDays(league, shown, team, side, scratch);
    for (std::size_t i = 0; i < verdicts.size(); ++i) {
        const LineVerdict& verdict = verdicts.at(i);
        if (verdict.Complete && !verdict.Failed)
            continue;
        ++item.Count;
        std::string words = "Day " + std::to_string(i + 1) + ": ";
        if (!verdict.Findings.empty())
            words += WordsOf(scratch, verdict, verdict.Findings.front());
        else
            words += "cannot be judged";
        if (verdict.Findings.size() > 1)
            words += " (and " + std::to_string(verdict.Findings.size() - 1) + " more)";
        item.Findings.push_back(words);
    }
    if (item.Count > 0)
        item.State = EveningState::Wrong;
    item.Words = std::to_string(LineDays - item.Count) + " of " + Counted(LineDays, "day") + " complete";
    return item;
}

EveningItem LookAtTickets(const Tables& league, const Formats& shown, int team)
{
    const Team& office = league.Teams[team];
    const auto [least, most] = std::minmax_element(office.TicketPrice.begin(), office.TicketPrice.end());
    return {.Task = EveningTask::Tickets,
            .State = EveningState::Done,
            .Count = 0,
            .Words = *least == *most ? MoneyWords(shown, *least) + " a seat"
                                     : MoneyWords(shown, *least) + " to " + MoneyWords(shown, *most) + " a seat",
            .Findings = {}};
}

EveningItem OfMarket(EveningTask task, bool isOpen, const char* closed, int count, const char* word)
{
    if (!isOpen)
        return {.Task = task, .State = EveningState::Closed, .Count = 0, .Words = closed, .Findings = {}};
    return {.Task = task,
            .State = count == 0 ? EveningState::Empty : EveningState::Done,
            .Count = 0,
            .Words = count == 0 ? "none" : Counted(count, word),
            .Findings = {}};
}

} // namespace

EveningBoard LookAtEvening(const Tables& league, const Formats& shown, int team, const OnTheMarket& market,
                           Tables& scratch)
{
    const MarketDoors doors = DoorsOf(league.LeagueData);
    return {LookAtRoster(league, shown, team, scratch),
            LookAtLines(league, shown, team, Side::Pro, scratch),
            LookAtLines(league, shown, team, Side::Farm, scratch),
            LookAtTickets(league, shown, team),
            OfMarket(EveningTask::Offers, doors.AreFreeAgentsOpen, "closed: the trade deadline is over", market.Offers,
                     "offer"),
            OfMarket(EveningTask::Ranking, doors.IsDraftOpen(), "closed: no draft is near", market.Ranked, "name")};
}

} // namespace dravik
