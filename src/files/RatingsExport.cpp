#include "files/RatingsExport.h"

#include "files/CsvFile.h"
#include "league/Positions.h"
#include "league/RatingNames.h"

#include <string>

namespace dravik {

namespace {

constexpr int RatingColumns = 14;

// A rating of three digits loses its last one.
std::string FirstTwoCharacters(long long rating) { return std::to_string(rating).substr(0, 2); }

template <class Person>
CsvRow BeginRow(const Person& person, long long position)
{
    CsvRow row;
    row << person.Name.Trimmed() << position << person.Country.Raw() << (person.Rookie ? "Y" : "N") << person.Age
        << person.Weight << person.Height << person.Contract << person.Salary;
    return row;
}

CsvRow RowOf(const Player& player)
{
    CsvRow row = BeginRow(player, player.Position);
    for (int stat = skater::CK; stat < skater::MO; ++stat)
        row << player.Stats[stat];
    return row << FirstTwoCharacters(player.Stats[skater::PO]);
}

CsvRow RowOf(const Goalie& keeper)
{
    CsvRow row = BeginRow(keeper, position::Goalie);
    for (int stat = goalie::SK; stat < goalie::MO; ++stat)
        row << keeper.Stats[stat];
    return row << keeper.Stats[goalie::PO] << 0 << 0;
}

CsvRow RowOf(const Coach& coach)
{
    constexpr int potential = 7;
    CsvRow row;
    row << coach.Name.Trimmed() << coach.Country.Raw() << coach.Age << coach.Contract << coach.Salary;
    for (int rating = 1; rating < potential; ++rating)
        row << coach.Ratings[rating];
    return row << FirstTwoCharacters(coach.Ratings[potential]);
}

// The slot 0 of a table is nobody's.
template <class Table>
void AddEverybody(CsvFile& file, const Table& people)
{
    for (long long slot = 1; slot <= Table::last; ++slot)
        if (people[slot].InUse)
            file.Add(RowOf(people[slot]));
}

CsvRow PlayersHeader()
{
    CsvRow header;
    header << "Name,Position,Country,Rookie,Age,Weight,Height,Contract,Salary";
    for (int column = 1; column <= RatingColumns; ++column)
        header << "Stats " + std::to_string(column);
    return header;
}

CsvRow CoachesHeader()
{
    CsvRow header;
    return header << "Name,Country,Age,Contract,Salary,Physical,Defense,Offense,Discpline,Exp,Lead,Potential";
}

} // namespace

void ExportRatings(const Tables& league, Disk& disk, const std::string& folder)
{
    CsvFile players(disk, folder + PathSeparator + "PlayersRatings.csv");
    players.Add(PlayersHeader());
    AddEverybody(players, league.Players);
    AddEverybody(players, league.Goalies);
    players.Close();

    CsvFile coaches(disk, folder + PathSeparator + "CoachesRatings.csv");
    coaches.Add(CoachesHeader());
    AddEverybody(coaches, league.Coaches);
    coaches.Close();
}

} // namespace dravik
