#include "makers/RandomTeam.h"

#include "rules/LineSlots.h"

namespace dravik {

namespace {

void EmptyTables()
{
    for (int id = 1; id <= RandomTeam::Skaters; ++id) {
        Players[id] = {};
        RosterChanges[id] = {};
        RosterChanges[id].Status = RosterChange::Untouched;
    }
    for (int id = 1; id <= RandomTeam::Goalkeepers; ++id) {
        Goalies[id] = {};
        RosterChangesGoalie[id] = {};
        RosterChangesGoalie[id].Status = RosterChange::Untouched;
    }
    for (const int team : {RandomTeam::Team, RandomTeam::OtherTeam}) {
        Teams[team] = {};
        TeamMaker{team};
    }
    Goalies[0].InUse = true;
    Goalies[0].Condition = 100;
    Modified = false;
}

} // namespace

template <class Person>
void RandomTeam::Trouble(Person& person, int chances)
{
    if (OneIn(chances))
        person.Condition = Between(90, 100);
    if (OneIn(2 * chances))
        person.Suspension = Between(1, 5);
    if (OneIn(2 * chances))
        person.Contract = 0;
    if (OneIn(2 * chances))
        person.Salary = Between(0, 1) == 0 ? 1 : 20000000;
    person.ProGames = Between(0, 20);
    person.Age = Between(18, 35);
}

void RandomTeam::FillLoosely()
{
    EmptyTables();
    League& league = LeagueData;
    league.ProDressedSkaters = Between(14, 22);
    league.RequiredCenters = Between(0, 4);
    league.RequiredLeftWings = Between(0, 4);
    league.RequiredRightWings = Between(0, 4);
    league.RequiredDefensemen = Between(0, 7);
    league.FarmRosterRequired.SetWord(Between(-1, 3) == 0 ? -1 : 0);
    league.FarmEnabled = OneIn(2);
    league.MaxProPlayers = Between(18, 30);
    league.FarmMaxOverall = Between(45, 80);
    league.FarmMaxSalary = OneIn(2) ? 0 : Between(1000, 5000);
    league.MinSalary = 500;
    league.MaxSalary = 10000;
    league.FarmSalaryPct = Between(0, 120);
    league.FarmPayrollInCap = OneIn(2);
    league.CoachPayrollInCap = OneIn(2);
    league.SalaryCapMode = Between(0, 3);
    league.SalaryCap = Between(20000, 90000);
    league.WaiverAllowed = OneIn(2);
    league.WaiverMinGames = 10;
    league.WaiverExemptAge = 24;
    league.TradeDeadlinePassed = OneIn(3);
    league.TradeDeadlineInForce = OneIn(3);
    Teams[Team].Cash = Between(-5000, 5000);
    const int mostSkaters = Between(20, Skaters);
    for (int id = 1; id <= mostSkaters; ++id) {
        Player& player = PutSkater(id, OneIn(6) ? OtherTeam : Team, Between(1, 4), Between(0, 2), Between(40, 80));
        player.Salary = Between(500, 6000);
        Trouble(player, 10);
        player.InUse = !OneIn(20);
    }
    for (int id = 1; id <= Goalkeepers; ++id) {
        Goalie& goalie = PutGoalie(id, OneIn(3) ? OtherTeam : Team, Between(0, 2), Between(40, 80));
        goalie.Salary = Between(500, 6000);
        Trouble(goalie, 5);
        goalie.InUse = !OneIn(10);
    }
    if (OneIn(20))
        Players[Between(1, mostSkaters)].Status = 3;
}

void RandomTeam::FillForLines()
{
    EmptyTables();
    League& league = LeagueData;
    league.ProDressedSkaters = Between(18, 25);
    league.FarmRosterRequired = false;
    league.FarmEnabled = true;
    league.MaxDressedGoalies = 3;
    league.MaxProPlayers = 50;
    league.FarmMaxOverall = 99;
    league.FarmMaxSalary = 0;
    league.MinSalary = 500;
    league.MaxSalary = 10000000;
    league.SalaryCapMode = 0;
    league.LinesOneTwoExclusive = OneIn(2);
    const int dressed = Between(18, static_cast<int>(league.ProDressedSkaters));
    const int defenseShare = Between(0, 9);
    const int firstForward = Between(1, 3);
    const auto anyPosition = [&]() -> int {
        if (Between(0, 9) < defenseShare)
            return position::Defense;
        return OneIn(3) ? Between(1, 3) : firstForward;
    };
    int id = 0;
    Row<int, 1, 4> count{};
    for (int i = 0; i < dressed; ++i) {
        id += Between(1, 2);
        const int position = anyPosition();
        PutSkater(id, Team, position, status::Pro, Between(40, 80)).Condition = OneIn(4) ? Between(95, 100) : 100;
        ++count[position];
    }
    league.RequiredCenters = Between(0, count[position::Center]);
    league.RequiredLeftWings = Between(0, count[position::LeftWing]);
    league.RequiredRightWings = Between(0, count[position::RightWing]);
    league.RequiredDefensemen = Between(0, count[position::Defense]);
    const int others = Between(0, 39);
    for (int i = 0; i < others; ++i) {
        Player& player = PutSkater(++id, OneIn(6) ? OtherTeam : Team, anyPosition(),
                                   OneIn(6) ? status::Scratch : status::Farm, Between(40, 80));
        Trouble(player, 8);
    }
    const int dressedGoalies = Between(2, 3);
    for (int i = 1; i <= Goalkeepers; ++i) {
        Goalie& goalie = PutGoalie(i, OneIn(3) && i > dressedGoalies ? OtherTeam : Team,
                                   i <= dressedGoalies ? status::Pro : status::Farm, Between(40, 80));
        goalie.Condition = Between(95, 100);
    }
}

void RandomTeam::ScatterOnLines()
{
    for (int day = 1; day <= 10; ++day) {
        for (Lines* lines : {&Teams[Team].ProLines[day], &Teams[Team].Farm.FarmLines[day]}) {
            for (const LineSlot& slot : SkaterSlots)
                At(*lines, slot) = OneIn(8) ? 0 : Between(1, Skaters);
            lines->StartGoalie = Between(0, Goalkeepers);
            lines->BackupGoalie = Between(0, Goalkeepers);
            lines->PullGoalerMinGoal = Between(0, 9);
            lines->PullGoalerMinPct = Between(0, 999);
        }
    }
}

} // namespace dravik
