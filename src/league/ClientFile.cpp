#include "league/ClientFile.h"

#include "league/Positions.h"
#include "league/RatingNames.h"

#include <string_view>
#include <utility>

namespace dravik {

namespace {

constexpr std::string_view StartMagic = "DRVK Client Files Version 1.12 - Start";
constexpr std::string_view EndMagic = "DRVK Client Files Version 1.12 - End";

template <class Table>
void ReadTable(SlotReader& slots, Table& table)
{
    // Slot 0 of a table that has one is not in the file.
    for (long long i = 1; i <= Table::last; ++i)
        slots.Read(table[i]);
}

// Whether both magics are right. After a wrong start magic nothing is read.
bool ReadSlots(SlotReader& slots, Tables& league)
{
    if (!slots.ReadMagic(StartMagic))
        return false;
    slots.Read(league.LeagueData);
    ReadTable(slots, league.Prospects);
    ReadTable(slots, league.Teams);
    ReadTable(slots, league.Players);
    ReadTable(slots, league.Goalies);
    ReadTable(slots, league.Coaches);
    ReadTable(slots, league.GameSchedule);
    return slots.ReadMagic(EndMagic);
}

} // namespace

ClientFileRead ReadClientFile(Tables& league, const SlotFiles& files, const std::string& path)
{
    const League rules = league.LeagueData;
    const CoachTable coaches = league.Coaches;
    const auto takeBack = [&] {
        league.LeagueData = rules;
        league.Coaches = coaches;
        EmptyLeagueTables(league);
    };
    ClientFileRead outcome;
    const auto read = [&](SlotReader& slots) { outcome.Whole = ReadSlots(slots, league); };
    outcome.File = ReadSlotFile(files, path, read, SlotLength, takeBack);
    return outcome;
}

namespace {

template <class Person>
void FillPlaceholder(Person& person, std::string_view name, int endurance, const League& rules)
{
    person.InUse = true;
    person.Name = name;
    person.Number = 0;
    person.Team = 0;
    person.Status = status::Farm;
    person.Country = "CAN";
    person.Age = 30;
    person.Weight = 200;
    person.Height = 70;
    person.Contract = 1;
    person.Salary = 1000;
    person.Condition = 100;
    for (auto& stat : person.Stats)
        stat = rules.UnknownRating;
    person.Stats[endurance] = 80;
}

template <class Changes, class People>
void CopyWords(Changes& changes, const People& people)
{
    for (long long i = 1; i <= Changes::last; ++i) {
        changes[i].TradeAvailable = people[i].TradeAvailable;
        changes[i].Protected = people[i].Protected;
    }
}

// Older files know nothing of these rules and hold 0.
void SetDefaults(League& rules)
{
    const std::pair<Int16&, int> defaults[] = {
        {rules.ProDressedSkaters, 18}, {rules.MaxDressedGoalies, 2},  {rules.RequiredCenters, 3},
        {rules.RequiredLeftWings, 3},  {rules.RequiredRightWings, 3}, {rules.RequiredDefensemen, 6},
        {rules.OverallWeightCK, 50},
    };
    for (const auto& [field, value] : defaults)
        if (field == 0)
            field = value;
}

} // namespace

void PrepareLeague(Tables& league)
{
    FillPlaceholder(league.Players[0], "Unknown Player", skater::DU, league.LeagueData);
    league.Players[0].Position = position::Center;
    FillPlaceholder(league.Goalies[0], "Unknown Goalie", goalie::DU, league.LeagueData);
    CopyWords(league.RosterChanges, league.Players);
    CopyWords(league.RosterChangesGoalie, league.Goalies);
    SetDefaults(league.LeagueData);
}

} // namespace dravik
