#include "rules/RosterJudge.h"

#include "league/Arithmetic.h"
#include "league/Message.h"
#include "league/Positions.h"
#include "league/Reporting.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/WipeLines.h"

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

// The number that names a person where skaters and goalies share one, and his entry in the list of changes.
int IdOf(const Player& /*player*/, int index) { return index; }
int IdOf(const Goalie& /*goalie*/, int index) { return index + GoalieOffset; }
RosterChange& ChangeOf(Tables& league, const Player& /*player*/, int index) { return league.RosterChanges[index]; }
RosterChange& ChangeOf(Tables& league, const Goalie& /*goalie*/, int index)
{
    return league.RosterChangesGoalie[index];
}

int PositionOf(const Player& player) { return static_cast<int>(player.Position); }
int PositionOf(const Goalie& /*goalie*/) { return position::Goalie; }

// Where the farm's rule differs: a skater over a limit keeps his status on the farm, and is told again by every
// judgement; a goalie is moved. Their words differ by a capital letter.
void LeaveFarm(Player& /*player*/) {}
void LeaveFarm(Goalie& goalie) { goalie.Status = status::Scratch; }
std::string_view TooGoodForFarm(const Player& /*player*/) { return " overall is too high to be in farm!"; }
std::string_view TooGoodForFarm(const Goalie& /*goalie*/) { return " Overall is too high to be in farm!"; }

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

    // Compares the pro counts with the league's requirements; every one that does not hold gets its line and makes the
    // roster incomplete.
    void ComparePro()
    {
        const auto atLeast = [&](long long count, long long least, std::string_view message) {
            if (count < least)
                AddLine(message, count, least, " Required.");
        };
        atLeast(pro.Of(position::Center), rules.RequiredCenters, "Not enough Centers available in Pro Team! ");
        atLeast(pro.Of(position::LeftWing), rules.RequiredLeftWings, "Not enough Left Wings available in Pro Team! ");
        atLeast(pro.Of(position::RightWing), rules.RequiredRightWings,
                "Not enough Right Wings available in Pro Team! ");
        atLeast(pro.Of(position::Defense), rules.RequiredDefensemen, "Not enough Defenseman available in Pro Team! ");
        atLeast(pro.Goalies(), 2, "Not enough Goalie available in Pro Team! ");
        atLeast(pro.Skaters(), 18, "Not enough players available in Pro Team! ");
        // The limit shown is 3 whatever the league allows, and players are "Required." where "Maximum." is meant: the
        // texts as general managers know them.
        if (pro.Goalies() > rules.MaxDressedGoalies)
            AddLine("Too many Goalie available in Pro Team! ", pro.Goalies(), 3, " Maximum.");
        if (pro.Skaters() > rules.ProDressedSkaters)
            AddLine("Too many players available in Pro Team! ", pro.Skaters(), rules.ProDressedSkaters, " Required.");
        if (pro.Skaters() + pro.Goalies() + scratched > rules.MaxProPlayers) {
            verdict.Text += "Maximum Players Limit Reached in Pro Team!";
            verdict.Text += LineBreak;
            verdict.Complete = false;
        }
    }

    // The same for pro and farm together, which need twice as many; scratches do not count.
    void CompareBoth()
    {
        const auto atLeast = [&](long long count, long long least, std::string_view message) {
            if (count < least)
                AddLine(message, count, least, " Required.");
        };
        const auto both = [&](int position) { return pro.Of(position) + farm.Of(position); };
        atLeast(both(position::Center), Limit16(2 * rules.RequiredCenters),
                "Not enough Centers available in Pro and Farm Team! ");
        atLeast(both(position::LeftWing), Limit16(2 * rules.RequiredLeftWings),
                "Not enough Left Wings available in Pro and Farm Team! ");
        atLeast(both(position::RightWing), Limit16(2 * rules.RequiredRightWings),
                "Not enough Right Wings available in Pro and Farm Team! ");
        atLeast(both(position::Defense), Limit16(2 * rules.RequiredDefensemen),
                "Not enough Defenseman available in Pro and Farm Team! ");
        atLeast(pro.Goalies() + farm.Goalies(), 4, "Not enough Goalie available in Pro and Farm Team! ");
        atLeast(pro.Skaters() + farm.Skaters(), 36, "Not enough players available in Pro Team and Farm Team! ");
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
        AddComplaint(person, " is injured, suspended, has no contract or incorrect salaries but he's on Pro Team!");
        person.Status = status::Scratch;
        TakeOffLines(person, index);
    }

    template <class Person>
    void ExamineFarm(Person& person, int index)
    {
        const auto refuse = [&](std::string_view words) {
            AddComplaint(person, words);
            LeaveFarm(person);
            TakeOffLines(person, index);
        };
        if (CalculateOverall(work.League, work.Says, PositionOf(person), index) > rules.FarmMaxOverall)
            refuse(TooGoodForFarm(person));
        if (rules.FarmMaxSalary >= 1 && person.Salary > rules.FarmMaxSalary)
            refuse(" salary is too high to be in farm!");
        // He counts for the farm even when he has just left it; a goalie then counts among the scratches too.
        if (IsFit(person))
            farm.Add(work.Says, person);
    }

    template <class Person>
    void TakeOffLines(const Person& person, int index)
    {
        ChangeOf(work.League, person, index).Status = status::Scratch;
        WipePlayerFromTeamLines(work.League, work.Says, team, IdOf(person, index));
        verdict.Repaired = true;
    }

    template <class Person>
    void AddComplaint(const Person& person, std::string_view words)
    {
        verdict.Text += person.Name.Trimmed();
        verdict.Text += words;
        verdict.Text += LineBreak;
    }

    void AddLine(std::string_view message, long long count, long long limit, std::string_view closing)
    {
        verdict.Text += message;
        verdict.Text += std::to_string(count);
        verdict.Text += " Dressed. ";
        verdict.Text += std::to_string(limit);
        verdict.Text += closing;
        verdict.Text += LineBreak;
        verdict.Complete = false;
    }
};

// Closes a text that says something and shows it.
void TellRosterText(const Work& work, std::string& text, const std::string& teamName, bool log, bool showMessage)
{
    if (text.empty())
        return;
    text += "Some errors will be automatically fixed.";
    text += LineBreak;
    if (log)
        work.Says.WriteLog(teamName + " roster errors : " + text);
    text = teamName + " Roster Error : " + std::string(LineBreak) + text;
    if (work.Says.MayReport(showMessage))
        work.Says.ShowBox(text, box::Warning);
}

} // namespace

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

        RosterJudge judge(work, team, verdict);
        EachOfTeam(league.Players, team, [&](Player& player, int index) { judge.Examine(player, index); });
        EachOfTeam(league.Goalies, team, [&](Goalie& goalie, int index) { judge.Examine(goalie, index); });
        judge.ComparePro();
        if (league.LeagueData.FarmEnabled && league.LeagueData.FarmRosterRequired)
            judge.CompareBoth();
        TellRosterText(work, verdict.Text, league.Teams[team].Name.Trimmed(), log, showMessage);
        if (!withSalaryCap)
            return;
        verdict.Cap = CheckSalaryCap(work, team, showMessage);
        if (!*verdict.Cap)
            verdict.Complete = false;
    });
    return verdict;
}

} // namespace dravik
