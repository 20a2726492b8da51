#include "rules/RosterJudge.h"

#include "league/Arithmetic.h"
#include "league/PersonId.h"
#include "league/Positions.h"
#include "machine/Message.h"
#include "machine/Reporting.h"
#include "rules/FarmLimits.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/WipeLines.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace dravik {

namespace {

// Fit people by position.
class HeadCount {
public:
    [[nodiscard]] long long Of(int position) const { return count[position]; }
    [[nodiscard]] long long Skaters() const
    {
        return Of(position::Center) + Of(position::LeftWing) + Of(position::RightWing) + Of(position::Defense);
    }
    [[nodiscard]] long long Goalies() const { return Of(position::Goalie); }

    // A skater without a position is told and left out.
    void Add(Voice& says, const Player& player)
    {
        if (player.Position >= position::Center && player.Position <= position::Defense)
            ++count[player.Position];
        else
            says.ShowBox(player.Name.Trimmed() + " has no position!", box::Critical);
    }
    void Add(Voice& /*says*/, const Goalie& /*goalie*/) { ++count[position::Goalie]; }

private:
    Row<long long, 1, 5> count;
};

// Where the farm's rule differs: a skater over a limit keeps his status on the farm, and is told again by every
// judgement; a goalie is moved.
void LeaveFarm(Player& /*player*/) {}
void LeaveFarm(Goalie& goalie) { goalie.Status = status::Scratch; }

// One judgement of one team's roster.
class RosterJudge {
public:
    RosterJudge(const Work& at, int judged, RosterVerdict& found) :
        work(at), rules(at.League.LeagueData), team(judged), verdict(found)
    {
    }

    // The three tests each see the status that the one before has left.
    template <class Person>
    void Examine(Person& person, int index)
    {
        if (person.Status == status::Pro)
            ExaminePro(person, index);
        if (person.Status == status::Farm)
            ExamineFarm(person, index);
        if (person.Status == status::Scratch && IsFit(person))
            ++scratched;
    }

    // Compares the pro counts with the league's requirements; every one that does not hold is a finding and makes the
    // roster incomplete.
    void ComparePro()
    {
        AtLeast(rules.RequiredCenters, pro.Of(position::Center), RosterFault::FewCenters);
        AtLeast(rules.RequiredLeftWings, pro.Of(position::LeftWing), RosterFault::FewLeftWings);
        AtLeast(rules.RequiredRightWings, pro.Of(position::RightWing), RosterFault::FewRightWings);
        AtLeast(rules.RequiredDefensemen, pro.Of(position::Defense), RosterFault::FewDefensemen);
        AtLeast(2, pro.Goalies(), RosterFault::FewGoalies);
        AtLeast(18, pro.Skaters(), RosterFault::FewSkaters);
        AtMost(rules.MaxDressedGoalies, pro.Goalies(), RosterFault::ManyGoalies);
        AtMost(rules.ProDressedSkaters, pro.Skaters(), RosterFault::ManySkaters);
        AtMost(rules.MaxProPlayers, pro.Skaters() + pro.Goalies() + scratched, RosterFault::ManyPeople);
    }

    // The same for pro and farm together, which need twice as many; scratches do not count.
    void CompareBoth()
    {
        const auto both = [&](int position) { return pro.Of(position) + farm.Of(position); };
        AtLeast(Limit16(2 * rules.RequiredCenters), both(position::Center), RosterFault::FewCentersInBoth);
        AtLeast(Limit16(2 * rules.RequiredLeftWings), both(position::LeftWing), RosterFault::FewLeftWingsInBoth);
        AtLeast(Limit16(2 * rules.RequiredRightWings), both(position::RightWing), RosterFault::FewRightWingsInBoth);
        AtLeast(Limit16(2 * rules.RequiredDefensemen), both(position::Defense), RosterFault::FewDefensemenInBoth);
        AtLeast(4, pro.Goalies() + farm.Goalies(), RosterFault::FewGoaliesInBoth);
        AtLeast(36, pro.Skaters() + farm.Skaters(), RosterFault::FewSkatersInBoth);
    }

private:
    const Work& work;
    const League& rules;
    int team;
    RosterVerdict& verdict;
    HeadCount pro;
    HeadCount farm;
    long long scratched = 0;

    template <class Person>
    void ExaminePro(Person& person, int index)
    {
        if (IsFit(person) && person.Salary >= rules.MinSalary && person.Salary <= rules.MaxSalary) {
            pro.Add(work.Says, person);
            return;
        }
        Find(RosterFault::UnfitOnPro, PersonIn<Person>(index));
        person.Status = status::Scratch;
        TakeOffLines(PersonIn<Person>(index));
    }

    template <class Person>
    void ExamineFarm(Person& person, int index)
    {
        const auto refuse = [&](RosterFault fault) {
            Find(fault, PersonIn<Person>(index));
            LeaveFarm(person);
            TakeOffLines(PersonIn<Person>(index));
        };
        if (IsTooGoodForFarm(rules, CalculateOverall(work.League, work.Says, PersonIn<Person>(index))))
            refuse(RosterFault::TooGoodForFarm);
        if (IsTooDearForFarm(rules, person.Salary))
            refuse(RosterFault::TooDearForFarm);
        // He counts for the farm even when he has just left it; a goalie then counts among the scratches too.
        if (IsFit(person))
            farm.Add(work.Says, person);
    }

    void TakeOffLines(PersonId who)
    {
        ChangeOf(work.League, who).Status = status::Scratch;
        WipePlayerFromTeamLines(work.League, work.Says, team, who.CommonId());
        verdict.Repaired = true;
    }

    void Find(RosterFault fault, PersonId who) { verdict.Findings.push_back({.Fault = fault, .Person = who}); }

    void AtLeast(long long least, long long count, RosterFault fault)
    {
        if (count < least)
            Find(fault, count, least);
    }
    void AtMost(long long most, long long count, RosterFault fault)
    {
        if (count > most)
            Find(fault, count, most);
    }
    void Find(RosterFault fault, long long count, long long limit)
    {
        verdict.Findings.push_back({.Fault = fault, .Count = count, .Limit = limit});
        verdict.Complete = false;
    }
};

// What is said of a finding: behind the name of a person, or around the numbers that were counted.
struct FindingWords {
    RosterFault Fault;
    std::string_view Words;
    std::string_view Closing = {};
};
constexpr FindingWords Words[] = {
    {RosterFault::UnfitOnPro, " is injured, suspended, has no contract or incorrect salaries but he's on Pro Team!"},
    {RosterFault::TooGoodForFarm, " overall is too high to be in farm!"},
    {RosterFault::TooDearForFarm, " salary is too high to be in farm!"},
    {RosterFault::FewCenters, "Not enough Centers available in Pro Team! ", " Required."},
    {RosterFault::FewLeftWings, "Not enough Left Wings available in Pro Team! ", " Required."},
    {RosterFault::FewRightWings, "Not enough Right Wings available in Pro Team! ", " Required."},
    {RosterFault::FewDefensemen, "Not enough Defenseman available in Pro Team! ", " Required."},
    {RosterFault::FewGoalies, "Not enough Goalie available in Pro Team! ", " Required."},
    {RosterFault::FewSkaters, "Not enough players available in Pro Team! ", " Required."},
    {RosterFault::ManyGoalies, "Too many Goalie available in Pro Team! ", " Maximum."},
    // "Required." where "Maximum." is meant: the text as general managers know it.
    {RosterFault::ManySkaters, "Too many players available in Pro Team! ", " Required."},
    {RosterFault::ManyPeople, "Maximum Players Limit Reached in Pro Team!"},
    {RosterFault::FewCentersInBoth, "Not enough Centers available in Pro and Farm Team! ", " Required."},
    {RosterFault::FewLeftWingsInBoth, "Not enough Left Wings available in Pro and Farm Team! ", " Required."},
    {RosterFault::FewRightWingsInBoth, "Not enough Right Wings available in Pro and Farm Team! ", " Required."},
    {RosterFault::FewDefensemenInBoth, "Not enough Defenseman available in Pro and Farm Team! ", " Required."},
    {RosterFault::FewGoaliesInBoth, "Not enough Goalie available in Pro and Farm Team! ", " Required."},
    {RosterFault::FewSkatersInBoth, "Not enough players available in Pro Team and Farm Team! ", " Required."},
};

const FindingWords& EntryOf(RosterFault fault)
{
    return *std::find_if(std::begin(Words), std::end(Words),
                         [&](const FindingWords& entry) { return entry.Fault == fault; });
}

// Whether a finding is about a person; otherwise it is about numbers.
bool IsOfPerson(RosterFault fault) { return fault <= RosterFault::TooDearForFarm; }

// All findings and their close; nothing when there is none.
std::string FindingsText(const Tables& league, const RosterVerdict& verdict)
{
    std::string text;
    for (const RosterFinding& finding : verdict.Findings) {
        text += WordsOf(league, finding);
        text += LineBreak;
    }
    if (verdict.Ended && !text.empty()) {
        text += "Some errors will be automatically fixed.";
        text += LineBreak;
    }
    return text;
}

// Logs and shows what is wrong, if anything is.
void Tell(const Work& work, int team, const RosterVerdict& verdict, bool log, bool showMessage)
{
    if (verdict.Findings.empty())
        return;
    if (log)
        work.Says.WriteLog(work.League.Teams[team].Name.Trimmed() +
                           " roster errors : " + FindingsText(work.League, verdict));
    if (work.Says.MayReport(showMessage))
        work.Says.ShowBox(TextOf(work.League, team, verdict), box::Warning);
}

} // namespace

std::string WordsOf(const Tables& league, const RosterFinding& finding)
{
    const FindingWords& entry = EntryOf(finding.Fault);
    if (IsOfPerson(finding.Fault)) {
        // The words about a goalie differ by a capital letter.
        const bool isGoalieTooGood = finding.Fault == RosterFault::TooGoodForFarm && finding.Person.IsGoalie;
        const std::string name =
            OnPerson(league, finding.Person, [](const auto& person) { return person.Name.Trimmed(); });
        return name + std::string(isGoalieTooGood ? " Overall is too high to be in farm!" : entry.Words);
    }
    if (entry.Closing.empty())
        return std::string(entry.Words);
    // The limit of goalies that is shown is 3 whatever the league allows.
    const long long shownLimit = finding.Fault == RosterFault::ManyGoalies ? 3 : finding.Limit;
    return std::string(entry.Words) + std::to_string(finding.Count) + " Dressed. " + std::to_string(shownLimit) +
           std::string(entry.Closing);
}

std::string TextOf(const Tables& league, int team, const RosterVerdict& verdict)
{
    const std::string findings = FindingsText(league, verdict);
    if (!verdict.Ended || findings.empty())
        return findings;
    return league.Teams[team].Name.Trimmed() + " Roster Error : " + std::string(LineBreak) + findings;
}

RosterVerdict CheckRoster(const Work& work, int team, bool log, bool withSalaryCap, bool showMessage)
{
    RosterVerdict verdict;
    Tables& league = work.League;
    verdict.Failed = FailureOf(work.Says, " in CheckRoster!", [&] {
        if (!TeamTable::Has(team)) {
            work.Says.ShowIntegrityFailure();
            return;
        }
        verdict.Complete = true;

        // The payroll is of the same people; they are looked for among thousands of others once.
        const TeamPeople people = PeopleOf(league, team);
        RosterJudge judge(work, team, verdict);
        for (const int index : people.Players)
            judge.Examine(league.Players[index], index);
        for (const int index : people.Goalies)
            judge.Examine(league.Goalies[index], index);
        judge.ComparePro();
        if (league.LeagueData.FarmEnabled && league.LeagueData.FarmRosterRequired)
            judge.CompareBoth();
        verdict.Ended = true;
        Tell(work, team, verdict, log, showMessage);
        if (!withSalaryCap)
            return;
        verdict.Cap = CheckSalaryCap(work, team, people, showMessage);
        if (!*verdict.Cap)
            verdict.Complete = false;
    });
    return verdict;
}

} // namespace dravik
