#include "support/SmallLeague.h"

#include "rules/LineSlots.h"
#include "session/Session.h"

#include <algorithm>

namespace dravik {

namespace {

template <class Table>
int NextFree(const Table& table)
{
    for (long long index = 1; index <= Table::last; ++index)
        if (!table[index].InUse)
            return static_cast<int>(index);
    Fail(failure::OutOfRange);
}

template <class Person>
void SetCommon(Person& person, int index, const std::string& name, int team, int status, int rating)
{
    person = {};
    person.InUse = true;
    person.Number = index;
    person.Name = name;
    person.Team = team;
    person.Country = "CAN";
    person.Age = 25;
    person.Weight = 200;
    person.Height = 72;
    person.Contract = 2;
    person.Salary = 1000000;
    person.Condition = 100;
    person.Status = status;
    for (auto& stat : person.Stats)
        stat = rating;
}

} // namespace

Player& PutSkater(int index, int team, int position, int status, int rating)
{
    Player& player = Players[index];
    SetCommon(player, index, "Skater " + std::to_string(index), team, status, rating);
    player.Position = position;
    return player;
}

Goalie& PutGoalie(int index, int team, int status, int rating)
{
    Goalie& goalie = Goalies[index];
    SetCommon(goalie, index, "Goalie " + std::to_string(index), team, status, rating);
    return goalie;
}

TeamMaker::TeamMaker(int number) : Number(number)
{
    Team& team = Teams[number];
    team.InUse = true;
    team.Number = number;
    team.Name = "Team " + std::to_string(number);
    team.Abbre = "T" + std::to_string(number);
    team.Division = 1;
    team.Farm.Name = "Farm " + std::to_string(number);
    team.Farm.Abbre = "F" + std::to_string(number);
    team.SeasonGames = 82;
}

TeamMaker& TeamMaker::Add(int count, int position, int status, int rating)
{
    for (int i = 0; i < count; ++i) {
        const int index = NextFree(Players);
        PutSkater(index, Number, position, status, rating);
        Skaters.push_back(index);
    }
    return *this;
}

TeamMaker& TeamMaker::AddGoalies(int count, int status, int rating)
{
    for (int i = 0; i < count; ++i) {
        const int index = NextFree(Goalies);
        PutGoalie(index, Number, status, rating);
        GoalieIds.push_back(index);
    }
    return *this;
}

TeamMaker& TeamMaker::AddFullRoster(int status)
{
    const int top = status == status::Pro ? 80 : 55;
    for (int line = 0; line < 4; ++line)
        for (int position = position::Center; position <= position::RightWing; ++position)
            Add(1, position, status, top - line * 5 - position);
    for (int i = 0; i < 6; ++i)
        Add(1, position::Defense, status, top - i * 3);
    AddGoalies(1, status, top);
    return AddGoalies(1, status, top - 5);
}

TeamMaker& TeamMaker::DressesFullRoster() { return AddFullRoster(status::Pro); }
TeamMaker& TeamMaker::FarmsFullRoster() { return AddFullRoster(status::Farm); }

void FillLines(Lines& lines, const std::vector<int>& forwards, const std::vector<int>& defense,
               const std::vector<int>& goalies)
{
    std::size_t forward = 0;
    std::size_t defender = 0;
    for (const LineSlot& slot : SkaterSlots)
        At(lines, slot) =
            WantsDefense(slot.Field) ? defense[defender++ % defense.size()] : forwards[forward++ % forwards.size()];
    // The three lists are interleaved in the walk above; each of them takes five different people here.
    for (int number = 1; number <= 5; ++number) {
        lines.ExtraForward[number] = forwards[static_cast<std::size_t>(number - 1) % forwards.size()];
        lines.ExtraDefense[number] = defense[static_cast<std::size_t>(number - 1) % defense.size()];
        lines.PenaltyShot[number] = forwards[static_cast<std::size_t>(number - 1) % forwards.size()];
    }
    lines.StartGoalie = goalies.at(0);
    lines.BackupGoalie = goalies.at(1);
}

void SetPlainWeights()
{
    // The fixed weights of a skater add up to 0.85 and those of a goalie to 0.80. These bring the rest: for a skater
    // (3 x 20 + 244 + 2 x 200) / 5000 + 23 / 2500 = 0.15, for a goalie (244 + 2 x 200) / 3333 + 11.5 / 1667 = 0.2001.
    LeagueData.OverallWeightCK = 20;
    LeagueData.OverallWeightFG = 20;
    LeagueData.OverallWeightDI = 20;
    LeagueData.OverallWeightDU = 244;
    LeagueData.OverallWeightEXLD = 200;
    LeagueData.OverallWeightPHPA = 0;
    LeagueData.OverallWeightSC = 23;
}

void SetOrdinaryRules()
{
    LeagueData.MaxProPlayers = 50;
    LeagueData.FarmMaxOverall = 70;
    LeagueData.MinSalary = 500000;
    LeagueData.MaxSalary = 10000000;
    LeagueData.FarmSalaryPct = 10;
    LeagueData.FarmEnabled = true;
    LeagueData.ShowOverall = true;
    LeagueData.ShowAllRatings = true;
    LeagueData.ProDressedSkaters = 18;
    LeagueData.MaxDressedGoalies = 2;
    LeagueData.RequiredCenters = 3;
    LeagueData.RequiredLeftWings = 3;
    LeagueData.RequiredRightWings = 3;
    LeagueData.RequiredDefensemen = 6;
    SetPlainWeights();
}

SmallLeague::SmallLeague()
{
    ResetClientVariables();
    UseMachine(Machine);
    Machine.MessagesAllowed = true;
    MarkRosterChangesUntouched(OpenLeague);
    TempFile = Machine.InFolder("ClientTemp.dvt");
    WindowTitle = "Dravik Hockey Simulator Client";

    LeagueData.Name = "Small League";
    LeagueData.LeagueCode = "SMALL";
    LeagueData.DivisionCount = 6;
    for (int division = 1; division <= 6; ++division) {
        LeagueData.Division[division].Name = "Division " + std::to_string(division);
        LeagueData.Division[division].Conference = division <= 3 ? 1 : 2;
    }
    LeagueData.Conference[1] = "East";
    LeagueData.Conference[2] = "West";
    SetOrdinaryRules();
}

} // namespace dravik
