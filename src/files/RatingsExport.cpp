#include "files/RatingsExport.h"

#include "league/Positions.h"
#include "league/RatingNames.h"

#include <memory>
#include <string_view>

namespace dravik {

namespace {

constexpr int RatingColumns = 14;

// One row of a file: its fields in order, parted by commas.
class Columns {
public:
    Columns& operator<<(std::string_view field)
    {
        text += separator;
        text += field;
        separator = ",";
        return *this;
    }
    Columns& operator<<(long long number) { return *this << std::to_string(number); }

    [[nodiscard]] const std::string& Text() const { return text; }

private:
    std::string text;
    std::string_view separator; // none before the first field, be it empty
};

// A file under its own name from the first row on, so that what was written before a failure stays.
class RowFile {
public:
    RowFile(Disk& disk, const std::string& path) : file(disk.CreateFile(path)) {}

    void Add(const Columns& row)
    {
        constexpr std::size_t pieceLength = 1 << 16;
        piece += row.Text() + "\r\n";
        if (piece.size() >= pieceLength)
            WriteOut();
    }

    void Close()
    {
        WriteOut();
        file->Close();
    }

private:
    void WriteOut()
    {
        file->Write(piece.data(), piece.size());
        piece.clear();
    }

    std::unique_ptr<File> file;
    std::string piece;
};

// A rating of three digits loses its last one.
std::string FirstTwoCharacters(long long rating) { return std::to_string(rating).substr(0, 2); }

template <class Person>
Columns BeginRow(const Person& person, long long position)
{
    Columns row;
    row << person.Name.Trimmed() << position << person.Country.Raw() << (person.Rookie ? "Y" : "N") << person.Age
        << person.Weight << person.Height << person.Contract << person.Salary;
    return row;
}

Columns RowOf(const Player& player)
{
    Columns row = BeginRow(player, player.Position);
    for (int stat = skater::CK; stat < skater::MO; ++stat)
        row << player.Stats[stat];
    return row << FirstTwoCharacters(player.Stats[skater::PO]);
}

Columns RowOf(const Goalie& keeper)
{
    Columns row = BeginRow(keeper, position::Goalie);
    for (int stat = goalie::SK; stat < goalie::MO; ++stat)
        row << keeper.Stats[stat];
    return row << keeper.Stats[goalie::PO] << 0 << 0;
}

Columns RowOf(const Coach& coach)
{
    constexpr int potential = 7;
    Columns row;
    row << coach.Name.Trimmed() << coach.Country.Raw() << coach.Age << coach.Contract << coach.Salary;
    for (int rating = 1; rating < potential; ++rating)
        row << coach.Ratings[rating];
    return row << FirstTwoCharacters(coach.Ratings[potential]);
}

// The slot 0 of a table is nobody's.
template <class Table>
void AddEverybody(RowFile& file, const Table& people)
{
    for (long long slot = 1; slot <= Table::last; ++slot)
        if (people[slot].InUse)
            file.Add(RowOf(people[slot]));
}

Columns PlayersHeader()
{
    Columns header;
    header << "Name,Position,Country,Rookie,Age,Weight,Height,Contract,Salary";
    for (int column = 1; column <= RatingColumns; ++column)
        header << "Stats " + std::to_string(column);
    return header;
}

Columns CoachesHeader()
{
    Columns header;
    return header << "Name,Country,Age,Contract,Salary,Physical,Defense,Offense,Discpline,Exp,Lead,Potential";
}

} // namespace

void ExportRatings(const Tables& league, Disk& disk, const std::string& folder)
{
    RowFile players(disk, folder + PathSeparator + "PlayersRatings.csv");
    players.Add(PlayersHeader());
    AddEverybody(players, league.Players);
    AddEverybody(players, league.Goalies);
    players.Close();

    RowFile coaches(disk, folder + PathSeparator + "CoachesRatings.csv");
    coaches.Add(CoachesHeader());
    AddEverybody(coaches, league.Coaches);
    coaches.Close();
}

} // namespace dravik
