#include "fuzz/TableLeague.h"

#include "makers/Makers.h"
#include "session/Session.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace dravik::fuzz {

namespace {

constexpr int FirstPlayers = 60; // players 0..59 and the last two
constexpr int FirstGoalies = 9;
constexpr int FirstTeams = 3;
constexpr int FirstCoaches = 4;
constexpr int CloneStart = 200;
constexpr int MostPlayerClones = 1200;
constexpr int MostGoalieClones = 100;

int ClonedPlayers = 0;
int ClonedGoalies = 0;

// The records that can be reached, one after the other.
template <class Visit>
void EachRecord(Visit&& visit)
{
    visit(LeagueData);
    for (int i = 0; i < FirstPlayers + 2; ++i)
        visit(Players[PlayerSlot(i)]);
    for (int i = 0; i < FirstGoalies + 1; ++i)
        visit(Goalies[GoalieSlot(i)]);
    for (int i = 0; i < FirstTeams + 1; ++i)
        visit(Teams[TeamSlot(i)]);
    for (int i = 0; i < FirstCoaches + 1; ++i)
        visit(Coaches[CoachSlot(i)]);
}

std::vector<std::uint8_t> Snapshot;

template <class Person>
void Hire(Person& person, int index, int team, int status, int rating)
{
    person.InUse = true;
    person.Number = index;
    person.Name = "Person " + std::to_string(index);
    person.Team = team;
    person.Country = "CAN";
    person.Age = 20 + index % 15;
    person.Weight = 200;
    person.Height = 72;
    person.Contract = 2;
    person.Salary = 700000 + 10000 * index;
    person.Condition = 100;
    person.Status = status;
    person.ProGames = 10 * (index % 8);
    for (auto& stat : person.Stats)
        stat = rating;
}

void HireSkaters(int& next, int team, int count, int status, int rating)
{
    for (int i = 0; i < count; ++i, ++next) {
        Hire(Players[next], next, team, status, rating - i);
        Players[next].Position = i < 12 ? 1 + i % 3 : position::Defense;
    }
}

void MakeRules()
{
    League& league = LeagueData;
    league.Name = "Fuzz League";
    league.LeagueCode = "FUZZ!";
    league.DivisionCount = 6;
    league.MaxProPlayers = 50;
    league.FarmMaxOverall = 70;
    league.MinSalary = 500000;
    league.MaxSalary = 10000000;
    league.SalaryCapMode = 1;
    league.SalaryCap = 50000000;
    league.FarmSalaryPct = 10;
    league.FarmEnabled = true;
    league.FarmRosterRequired = true;
    league.ShowOverall = true;
    league.ShowAllRatings = true;
    league.ProDressedSkaters = 18;
    league.MaxDressedGoalies = 2;
    league.RequiredCenters = 3;
    league.RequiredLeftWings = 3;
    league.RequiredRightWings = 3;
    league.RequiredDefensemen = 6;
    league.OverallWeightCK = 20;
    league.OverallWeightFG = 20;
    league.OverallWeightDI = 20;
    league.OverallWeightDU = 244;
    league.OverallWeightEXLD = 200;
    league.OverallWeightSC = 23;
    league.FileDate = 45000.5;
}

void MakeTeam(int number)
{
    Team& team = Teams[number];
    team.InUse = true;
    team.Number = number;
    team.Name = "Team " + std::to_string(number);
    team.Abbre = "TEA";
    team.Farm.Name = "Farm " + std::to_string(number);
    team.SeasonGames = 82;
    team.GamesPlayed = 40;
    team.HomeGames = 20;
    team.Cash = 1000000;
    team.Captain = 1;
}

void MakePlaceholders()
{
    Hire(Players[0], 0, 0, status::Farm, 0);
    Players[0].Position = position::Center;
    Hire(Goalies[0], 0, 0, status::Farm, 0);
}

} // namespace

void MakeTableLeague()
{
    ResetClientVariables();
    Machine().MessagesAllowed = true;
    MarkRosterChangesUntouched(OpenLeague);
    MakeRules();
    MakePlaceholders();
    int skater = 1;
    HireSkaters(skater, 1, 18, status::Pro, 80);
    HireSkaters(skater, 1, 3, status::Scratch, 65);
    HireSkaters(skater, 1, 18, status::Farm, 60);
    HireSkaters(skater, 2, 16, status::Pro, 75);
    for (int keeper = 1; keeper <= 6; ++keeper)
        Hire(Goalies[keeper], keeper, keeper < 5 ? 1 : 2, keeper < 3 ? status::Pro : status::Farm, 75 - 5 * keeper);
    for (int coach = 1; coach <= FirstCoaches; ++coach) {
        Coaches[coach].InUse = true;
        Coaches[coach].Number = coach;
        Coaches[coach].Team = 1 + coach % 2;
        Coaches[coach].Salary = 300000;
    }
    MakeTeam(1);
    MakeTeam(2);
    for (int day = 1; day <= 10; ++day) {
        AutoLines(OpenWork(), 1, false, day);
        AutoLinesFarm(OpenWork(), 1, false, day);
        Require(Teams[1].ProLines[day].StartGoalie != 0 && Teams[1].Farm.FarmLines[day].StartGoalie != 0);
    }
    Snapshot.clear();
    EachRecord([](const auto& record) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(&record);
        Snapshot.insert(Snapshot.end(), bytes, bytes + sizeof record);
    });
}

void ResetTableLeague()
{
    const std::uint8_t* from = Snapshot.data();
    EachRecord([&from](auto& record) {
        std::memcpy(&record, from, sizeof record);
        from += sizeof record;
    });
    for (int i = 0; i < ClonedPlayers; ++i)
        Players[CloneStart + i] = {};
    for (int i = 0; i < ClonedGoalies; ++i)
        Goalies[CloneStart + i] = {};
    ClonedPlayers = 0;
    ClonedGoalies = 0;
    CurrentTeam = 1;
    PlayerStatCount = 15;
    GoalieStatCount = 13;
    Machine().MessagesAllowed = true;
    Modified = false;
}

int PlayerSlot(int number)
{
    const int place = number % (FirstPlayers + 2);
    return place < FirstPlayers ? place : static_cast<int>(PlayerTable::last) - (place - FirstPlayers);
}

int GoalieSlot(int number)
{
    const int place = number % (FirstGoalies + 1);
    return place < FirstGoalies ? place : static_cast<int>(GoalieTable::last);
}

int TeamSlot(int number)
{
    const int place = number % (FirstTeams + 1);
    return place < FirstTeams ? place + 1 : static_cast<int>(TeamTable::last);
}

int CoachSlot(int number)
{
    const int place = number % (FirstCoaches + 1);
    return place < FirstCoaches ? place + 1 : static_cast<int>(CoachTable::last);
}

void ChangeTables(int kind, int number, int offset, Input bytes)
{
    const auto change = [&](auto& record) {
        const std::size_t at = static_cast<std::size_t>(offset) % sizeof record;
        std::copy_n(bytes.begin(), std::min(bytes.size(), sizeof record - at),
                    reinterpret_cast<std::uint8_t*>(&record) + at);
    };
    switch (kind % 5) {
    case 0:
        return change(LeagueData);
    case 1:
        return change(Players[PlayerSlot(number)]);
    case 2:
        return change(Goalies[GoalieSlot(number)]);
    case 3:
        return change(Teams[TeamSlot(number)]);
    default:
        return change(Coaches[CoachSlot(number)]);
    }
}

void ClonePlayer(int from, int count)
{
    for (; count > 0 && ClonedPlayers < MostPlayerClones; --count)
        Players[CloneStart + ClonedPlayers++] = Players[PlayerSlot(from)];
}

void CloneGoalie(int from, int count)
{
    for (; count > 0 && ClonedGoalies < MostGoalieClones; --count)
        Goalies[CloneStart + ClonedGoalies++] = Goalies[GoalieSlot(from)];
}

} // namespace dravik::fuzz
