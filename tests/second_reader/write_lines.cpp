#include "Writer.h"

#include "support/Routines.h"

#include <limits>
#include <random>
#include <span>
#include <string_view>

// Saves a lines file full of random values.
namespace dravik {
namespace {

long long AnyWord(Random& random)
{
    constexpr int lowest = std::numeric_limits<std::int16_t>::min();
    constexpr int highest = std::numeric_limits<std::int16_t>::max();
    return std::uniform_int_distribution<int>(lowest, highest)(random);
}

// A place in a line-up: often empty.
long long AnyPlace(Random& random) { return random() % 3 == 0 ? 0 : AnyWord(random); }

// The three Booleans that occur: True, False, and a word that is neither.
long long AnyTruth(Random& random)
{
    switch (random() % 3) {
    case 0:
        return -1;
    case 1:
        return 0;
    default:
        return AnyWord(random);
    }
}

template <long long Numbers, long long Places>
void Fill(Grid<Numbers, Places>& grid, Random& random)
{
    for (int number = 1; number <= Numbers; ++number)
        for (int place = 1; place <= Places; ++place)
            grid(number, place) = AnyPlace(random);
}

template <long long First, long long Last>
void Fill(Row<Int16, First, Last>& row, Random& random)
{
    for (auto& word : row)
        word = AnyPlace(random);
}

void Fill(Int16& word, Random& random) { word = AnyPlace(random); }

template <long long Numbers, long long Places>
void Tell(std::ostream& out, const Grid<Numbers, Places>& grid)
{
    for (int number = 1; number <= Numbers; ++number) {
        out << (number == 1 ? "[" : ", ");
        for (int place = 1; place <= Places; ++place)
            out << (place == 1 ? "[" : ", ") << grid(number, place);
        out << "]";
    }
    out << "]";
}

template <long long First, long long Last>
void Tell(std::ostream& out, const Row<Int16, First, Last>& row)
{
    for (long long index = First; index <= Last; ++index)
        out << (index == First ? "[" : ", ") << row[index];
    out << "]";
}

void Tell(std::ostream& out, const Int16& word) { out << word; }

template <long long Numbers, long long Places>
int Filled(const Grid<Numbers, Places>& grid)
{
    int count = 0;
    for (int number = 1; number <= Numbers; ++number)
        for (int place = 1; place <= Places; ++place)
            count += grid(number, place) != 0 ? 1 : 0;
    return count;
}

template <long long First, long long Last>
int Filled(const Row<Int16, First, Last>& row)
{
    int count = 0;
    for (const auto& word : row)
        count += word != 0 ? 1 : 0;
    return count;
}

int Filled(const Int16& word) { return word != 0 ? 1 : 0; }

// Calls `visit` with the name of each field of people in `lines` and the field.
template <class Lines, class Visit>
void ForPeople(Lines& lines, Visit&& visit)
{
    visit("NormalForward", lines.NormalForward);
    visit("NormalDefense", lines.NormalDefense);
    visit("PPForward", lines.PPForward);
    visit("PPDefense", lines.PPDefense);
    visit("PKForward", lines.PKForward);
    visit("PKDefense", lines.PKDefense);
    visit("FourVsFourForward", lines.FourVsFourForward);
    visit("FourVsFourDefense", lines.FourVsFourDefense);
    visit("PK3Reserved", lines.PK3Reserved);
    visit("PK3Forward", lines.PK3Forward);
    visit("PK3Defense", lines.PK3Defense);
    visit("StartGoalie", lines.StartGoalie);
    visit("BackupGoalie", lines.BackupGoalie);
    visit("ExtraForward", lines.ExtraForward);
    visit("ExtraDefense", lines.ExtraDefense);
    visit("PenaltyShot", lines.PenaltyShot);
}

template <class Lines, class Visit>
void ForAll(Lines& lines, Visit&& visit)
{
    ForPeople(lines, visit);
    visit("Strategy", lines.Strategy);
    visit("PullGoalerMinGoal", lines.PullGoalerMinGoal);
    visit("PullGoalerMinPct", lines.PullGoalerMinPct);
}

template <class People, class Changes>
void FillPeople(People& people, Changes& changes, Random& random)
{
    for (long long i = 1; i <= Changes::last; ++i) {
        people[i].Status = random() % 4 == 3 ? random() % 256 : random() % 3;
        changes[i].Protected.SetWord(AnyTruth(random));
        changes[i].TradeAvailable.SetWord(AnyTruth(random));
    }
}

void FillTables(int number, Random& random)
{
    Team& team = Teams[number];
    for (auto& byte : std::span(reinterpret_cast<unsigned char*>(&team), sizeof team))
        byte = static_cast<unsigned char>(random());
    team.Name = "Mont-\xC9toile d'Or";
    team.Abbre = "M\xC9";
    team.Password = "0Cc175b9c0f1b6a831c399e269772661";
    team.Farm.Name = "  Pins \xE0 Neige";
    for (Row<Lines, 1, 10>* days : {&team.ProLines, &team.Farm.FarmLines})
        for (Lines& day : *days)
            ForAll(day, [&](const char* /*name*/, auto& field) { Fill(field, random); });
    FillPeople(Players, RosterChanges, random);
    FillPeople(Goalies, RosterChangesGoalie, random);
}

void TellDays(std::ostream& out, const Row<Lines, 1, 10>& days)
{
    for (int day = 1; day <= 10; ++day) {
        const char* before = day == 1 ? "[{" : ", {";
        ForAll(days[day], [&](const char* name, const auto& field) {
            out << before << '"' << name << "\": ";
            Tell(out, field);
            before = ", ";
        });
        out << "}";
    }
    out << "]";
}

void TellFilled(std::ostream& out, const Row<Lines, 1, 10>& days)
{
    for (int day = 1; day <= 10; ++day) {
        int count = 0;
        ForPeople(days[day], [&](const char* /*name*/, const auto& field) { count += Filled(field); });
        out << (day == 1 ? "[" : ", ") << count;
    }
    out << "]";
}

struct Counts {
    int Pro = 0;
    int Scratched = 0;
    int Farm = 0;
    int Protected = 0;
    int Offered = 0;
};

template <class People, class Changes>
void TellPeople(std::ostream& out, const People& people, const Changes& changes, Counts& counts)
{
    for (long long i = 1; i <= Changes::last; ++i) {
        const RosterChange& change = changes[i];
        out << (i == 1 ? "[" : ", ") << "[" << people[i].Status << ", " << change.Protected.Word() << ", "
            << change.TradeAvailable.Word() << "]";
        counts.Pro += people[i].Status == status::Pro ? 1 : 0;
        counts.Scratched += people[i].Status == status::Scratch ? 1 : 0;
        counts.Farm += people[i].Status == status::Farm ? 1 : 0;
        counts.Protected += change.Protected ? 1 : 0;
        counts.Offered += change.TradeAvailable ? 1 : 0;
    }
    out << "]";
}

void TellTables(std::ostream& out, const Order& order)
{
    const Team& team = Teams[order.Team];
    TellHead(out, order);
    out << ", \"name\": ";
    TellText(out, team.Name.Trimmed());
    out << ", \"abbreviation\": ";
    TellText(out, team.Abbre.Trimmed());
    out << ", \"farm\": ";
    TellText(out, team.Farm.Name.Trimmed());
    out << ", \"password\": ";
    TellText(out, team.Password.Trimmed());
    out << ",\n\"pro\": ";
    TellDays(out, team.ProLines);
    out << ",\n\"farm_lines\": ";
    TellDays(out, team.Farm.FarmLines);
    Counts counts;
    out << ",\n\"skaters\": ";
    TellPeople(out, Players, RosterChanges, counts);
    out << ",\n\"goalies\": ";
    TellPeople(out, Goalies, RosterChangesGoalie, counts);
    out << ",\n\"counts\": {\"pro\": " << counts.Pro << ", \"scratched\": " << counts.Scratched
        << ", \"farm\": " << counts.Farm << ", \"protected\": " << counts.Protected
        << ", \"offered\": " << counts.Offered << ", \"filled\": {\"pro\": ";
    TellFilled(out, team.ProLines);
    out << ", \"farm\": ";
    TellFilled(out, team.Farm.FarmLines);
    out << "}}}\n";
}

bool Save(const Order& order, Random& random, std::ostream& expected)
{
    FillTables(order.Team, random);
    if (!WriteLinesFile(order.Team, order.Path))
        return false;
    TellTables(expected, order);
    return true;
}

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::SaveAndTell(argc, argv, dravik::Save); }
