#include "league/Arithmetic.h"
#include "league/ClientVariable.h"
#include "league/Message.h"
#include "league/Platform.h"
#include "league/Reporting.h"
#include "league/Session.h"
#include "rules/Function.h"
#include "rules/People.h"
#include "rules/SalaryCap.h"

#include <string>
#include <string_view>

namespace dravik {

namespace {

std::string RosterText; // what the last judgement had to say

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
    void Add(const Player& player)
    {
        if (player.Position >= position::Center && player.Position <= position::Defense)
            ++count[player.Position];
        else
            ShowBox(player.Name.Trimmed() + " has no position!", box::Critical);
    }
    void Add(const Goalie& /*goalie*/) { ++count[position::Goalie]; }

private:
    Row<long long, 1, 5> count;
};

// The number that names a person where skaters and goalies share one, and his entry in the list of changes.
int IdOf(const Player& /*player*/, int index) { return index; }
int IdOf(const Goalie& /*goalie*/, int index) { return index + GoalieOffset; }
RosterChange& ChangeOf(const Player& /*player*/, int index) { return RosterChanges[index]; }
RosterChange& ChangeOf(const Goalie& /*goalie*/, int index) { return RosterChangesGoalie[index]; }

int OverallOf(const Player& player, int index) { return CalculateOverall(static_cast<int>(player.Position), index); }
int OverallOf(const Goalie& /*goalie*/, int index) { return CalculateOverall(position::Goalie, index); }

// Where the farm's rule differs: a skater over a limit keeps his status on the farm, and is told again by every
// judgement; a goalie is moved. Their words differ by a capital letter.
void LeaveFarm(Player& /*player*/) {}
void LeaveFarm(Goalie& goalie) { goalie.Status = status::Scratch; }
std::string_view TooGoodForFarm(const Player& /*player*/) { return " overall is too high to be in farm!"; }
std::string_view TooGoodForFarm(const Goalie& /*goalie*/) { return " Overall is too high to be in farm!"; }

// One judgement of one team's roster.
class RosterJudge {
public:
    explicit RosterJudge(int judged) : team(judged) {}

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

    // Compares the pro counts with the league's requirements; every one that does not hold gets its line and makes
    // `complete` False.
    void ComparePro(bool& complete) const
    {
        const League& league = LeagueData;
        const auto atLeast = [&](long long count, long long least, std::string_view message) {
            if (count < least)
                AddLine(complete, message, count, least, " Required.");
        };
        atLeast(pro.Of(position::Center), league.RequiredCenters, "Not enough Centers available in Pro Team! ");
        atLeast(pro.Of(position::LeftWing), league.RequiredLeftWings, "Not enough Left Wings available in Pro Team! ");
        atLeast(pro.Of(position::RightWing), league.RequiredRightWings,
                "Not enough Right Wings available in Pro Team! ");
        atLeast(pro.Of(position::Defense), league.RequiredDefensemen, "Not enough Defenseman available in Pro Team! ");
        atLeast(pro.Goalies(), 2, "Not enough Goalie available in Pro Team! ");
        atLeast(pro.Skaters(), 18, "Not enough players available in Pro Team! ");
        // The limit shown is 3 whatever the league allows, and players are "Required." where "Maximum." is meant: the
        // texts as general managers know them.
        if (pro.Goalies() > league.MaxDressedGoalies)
            AddLine(complete, "Too many Goalie available in Pro Team! ", pro.Goalies(), 3, " Maximum.");
        if (pro.Skaters() > league.ProDressedSkaters)
            AddLine(complete, "Too many players available in Pro Team! ", pro.Skaters(), league.ProDressedSkaters,
                    " Required.");
        if (pro.Skaters() + pro.Goalies() + scratched > league.MaxProPlayers) {
            RosterText += "Maximum Players Limit Reached in Pro Team!";
            RosterText += LineBreak;
            complete = false;
        }
    }

    // The same for pro and farm together, which need twice as many; scratches do not count.
    void CompareBoth(bool& complete) const
    {
        const League& league = LeagueData;
        const auto atLeast = [&](long long count, long long least, std::string_view message) {
            if (count < least)
                AddLine(complete, message, count, least, " Required.");
        };
        const auto both = [&](int position) { return pro.Of(position) + farm.Of(position); };
        atLeast(both(position::Center), Limit16(2 * league.RequiredCenters),
                "Not enough Centers available in Pro and Farm Team! ");
        atLeast(both(position::LeftWing), Limit16(2 * league.RequiredLeftWings),
                "Not enough Left Wings available in Pro and Farm Team! ");
        atLeast(both(position::RightWing), Limit16(2 * league.RequiredRightWings),
                "Not enough Right Wings available in Pro and Farm Team! ");
        atLeast(both(position::Defense), Limit16(2 * league.RequiredDefensemen),
                "Not enough Defenseman available in Pro and Farm Team! ");
        atLeast(pro.Goalies() + farm.Goalies(), 4, "Not enough Goalie available in Pro and Farm Team! ");
        atLeast(pro.Skaters() + farm.Skaters(), 36, "Not enough players available in Pro Team and Farm Team! ");
    }

private:
    int team;
    HeadCount pro;
    HeadCount farm;
    long long scratched = 0;

    template <class Person>
    void ExaminePro(Person& person, int index)
    {
        if (IsFit(person) && person.Salary >= LeagueData.MinSalary && person.Salary <= LeagueData.MaxSalary) {
            pro.Add(person);
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
        if (OverallOf(person, index) > LeagueData.FarmMaxOverall)
            refuse(TooGoodForFarm(person));
        if (LeagueData.FarmMaxSalary >= 1 && person.Salary > LeagueData.FarmMaxSalary)
            refuse(" salary is too high to be in farm!");
        // He counts for the farm even when he has just left it; a goalie then counts among the scratches too.
        if (IsFit(person))
            farm.Add(person);
    }

    template <class Person>
    void TakeOffLines(const Person& person, int index) const
    {
        ChangeOf(person, index).Status = status::Scratch;
        WipePlayerFromTeamLines(team, IdOf(person, index));
        RosterFixed = 1;
    }

    template <class Person>
    static void AddComplaint(const Person& person, std::string_view words)
    {
        RosterText += person.Name.Trimmed();
        RosterText += words;
        RosterText += LineBreak;
    }

    static void AddLine(bool& complete, std::string_view message, long long count, long long limit,
                        std::string_view closing)
    {
        RosterText += message;
        RosterText += std::to_string(count);
        RosterText += " Dressed. ";
        RosterText += std::to_string(limit);
        RosterText += closing;
        RosterText += LineBreak;
        complete = false;
    }
};

// Closes a text that says something and shows it.
void TellRosterText(const std::string& teamName, bool log, bool showMessage)
{
    if (RosterText.empty())
        return;
    RosterText += "Some errors will be automatically fixed.";
    RosterText += LineBreak;
    if (log)
        WriteLog(teamName + " roster errors : " + RosterText);
    RosterText = teamName + " Roster Error : " + std::string(LineBreak) + RosterText;
    if (MayReport(showMessage))
        ShowBox(RosterText, box::Warning);
}

} // namespace

bool CheckRoster(int team, bool log, bool withSalaryCap, bool showMessage)
{
    bool complete = false;
    Reporting(" in CheckRoster!", [&] {
        if (!TeamTable::Has(team)) {
            ShowIntegrityFailure();
            return;
        }
        complete = true;
        RosterFixed = 0;
        RosterText.clear();
        if (withSalaryCap)
            ForgetCapText();

        RosterJudge judge(team);
        EachOfTeam(Players, team, [&](Player& player, int index) { judge.Examine(player, index); });
        EachOfTeam(Goalies, team, [&](Goalie& goalie, int index) { judge.Examine(goalie, index); });
        judge.ComparePro(complete);
        if (LeagueData.FarmEnabled && LeagueData.FarmRosterRequired)
            judge.CompareBoth(complete);
        TellRosterText(Teams[team].Name.Trimmed(), log, showMessage);
        if (withSalaryCap && !CheckSalaryCap(team, showMessage))
            complete = false;
    });
    return complete;
}

const std::string& LastRosterText() { return RosterText; }

} // namespace dravik
