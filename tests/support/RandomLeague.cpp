#include "support/RandomLeague.h"

#include "rules/LineSlots.h"
#include "session/Session.h"
#include "support/SmallLeague.h"

namespace dravik {

namespace {

void RollRules(Dice& dice)
{
    League& league = LeagueData;
    league.MinSalary = dice.Roll(0, 900000);
    league.MaxSalary = dice.Roll(4000000, 9000000);
    league.FarmMaxOverall = dice.Roll(40, 90);
    league.FarmMaxSalary = dice.Chance(50) ? dice.Roll(500000, 4000000) : dice.Roll(-1, 1);
    league.FarmEnabled = dice.Chance(70);
    league.FarmRosterRequired = dice.Chance(60);
    league.ProDressedSkaters = dice.Roll(17, 20);
    league.MaxDressedGoalies = dice.Roll(1, 4);
    league.MaxProPlayers = dice.Roll(20, 45);
    league.RequiredCenters = dice.Roll(0, 5);
    league.RequiredLeftWings = dice.Roll(0, 5);
    league.RequiredRightWings = dice.Roll(0, 5);
    league.RequiredDefensemen = dice.Roll(0, 8);
    league.SalaryCapMode = dice.Roll(0, 3);
    league.SalaryCap = dice.Roll(20000000, 120000000);
    league.FarmSalaryCap = dice.Chance(50) ? dice.Roll(1000000, 20000000) : dice.Roll(-1, 0);
    league.MinSalaryCap = dice.Roll(0, 60000000);
    league.FarmPayrollInCap = dice.Chance(50);
    league.CoachPayrollInCap = dice.Chance(50);
    league.PayrollMinCondition = dice.Roll(0, 100);
    league.PayrollSkipsSuspended = dice.Chance(50);
    league.PayrollIncludesBonus = dice.Chance(50);
    league.FarmSalaryPct = dice.Roll(0, 120);
    league.FarmPayMinGames = dice.Chance(50) ? dice.Roll(1, 82) : 0;
    league.ExpenseFlag = dice.Chance(10);
    league.HideFinanceAverages = dice.Chance(20);
    league.WaiverAllowed = dice.Chance(70);
    league.TradeDeadlineInForce = dice.Chance(30);
    league.WaiverExemptAge = dice.Roll(20, 30);
    league.WaiverMinGames = dice.Roll(0, 82);
    league.OverallWeightCK = dice.Roll(-20, 60);
    for (Byte* weight : {&league.OverallWeightFG, &league.OverallWeightDI, &league.OverallWeightDU,
                         &league.OverallWeightEXLD, &league.OverallWeightPHPA, &league.OverallWeightSC})
        *weight = dice.Roll(0, 140);
}

void RollTeam(Dice& dice, int number, const RandomSize& size)
{
    Teams[number] = {};
    TeamMaker{number};
    Team& team = Teams[number];
    team.Cash = dice.Roll(-20000000, 20000000);
    team.TotalAttendance = dice.Roll(0, 800000);
    team.TotalIncome = dice.Roll(0, 40000000);
    team.SeasonGames = dice.Pick({0, 1, 2, 81, 82});
    team.GamesPlayed = dice.Roll(0, team.SeasonGames);
    team.HomeGames = dice.Roll(-1, 41);
    team.PayrollBonus = dice.Roll(-500000, 5000000);
    team.Captain = dice.Roll(0, size.Skaters);
    for (Int16& assistant : team.Assistant)
        assistant = dice.Roll(0, size.Skaters);
    for (const Side side : {Side::Pro, Side::Farm})
        for (int day = 1; day <= 10; ++day) {
            Lines& lines = LinesOf(OpenLeague, number, day, side);
            for (const LineSlot& slot : SkaterSlots)
                At(lines, slot) = dice.Chance(10) ? 0 : dice.Roll(1, size.Skaters);
            lines.StartGoalie = dice.Roll(0, size.Goalies);
            lines.BackupGoalie = dice.Roll(0, size.Goalies);
            for (Int16& points : lines.Strategy)
                points = dice.Roll(0, 2);
            lines.PullGoalerMinGoal = dice.Roll(0, 5);
            lines.PullGoalerMinPct = dice.Roll(0, 90);
        }
}

template <class Person>
void RollPerson(Dice& dice, Person& person)
{
    if (dice.Chance(5))
        person.InUse.SetWord(dice.Pick({0, 1})); // 1 is not True either
    person.Age = dice.Roll(18, 40);
    person.Contract = dice.Chance(10) ? 0 : dice.Roll(1, 10);
    person.Salary = dice.Chance(10) ? dice.Roll(0, 12000000) : dice.Roll(400000, 5000000);
    person.Condition = dice.Chance(20) ? dice.Roll(0, 100) : 100;
    person.Suspension = dice.Chance(10) ? dice.Roll(1, 99) : 0;
    person.ProGames = dice.Roll(0, 82);
    for (Int16& rating : person.Stats)
        rating = dice.Roll(20, 99);
}

} // namespace

void RollLeague(Dice& dice, const RandomSize& size)
{
    RollRules(dice);
    for (int number = 1; number <= size.Teams; ++number)
        RollTeam(dice, number, size);
    for (int index = 1; index <= size.Skaters; ++index) {
        const auto team = static_cast<int>(dice.Roll(0, size.Teams));
        const auto position = static_cast<int>(dice.Chance(1) ? dice.Pick({0, 5, 6}) : dice.Roll(1, 4));
        const auto status = static_cast<int>(dice.Chance(1) ? 3 : dice.Pick({0, 1, 2, 2}));
        RollPerson(dice, PutSkater(index, team, position, status));
        RosterChanges[index] = {};
        RosterChanges[index].Status = RosterChange::Untouched;
    }
    for (int index = 1; index <= size.Goalies; ++index) {
        const auto team = static_cast<int>(dice.Roll(0, size.Teams));
        const auto status = static_cast<int>(dice.Chance(1) ? 3 : dice.Pick({0, 1, 2, 2}));
        RollPerson(dice, PutGoalie(index, team, status));
        RosterChangesGoalie[index] = {};
        RosterChangesGoalie[index].Status = RosterChange::Untouched;
    }
    for (int index = 1; index <= size.Coaches; ++index) {
        Coach& coach = Coaches[index];
        coach = {};
        coach.InUse = dice.Chance(80);
        coach.Team = dice.Roll(0, size.Teams);
        coach.Salary = dice.Roll(0, 2000000);
    }
}

} // namespace dravik
