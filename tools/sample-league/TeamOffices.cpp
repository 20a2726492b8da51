#include "CodePage.h"
#include "machine/Digest.h"
#include "Names.h"
#include "Places.h"
#include "Random.h"
#include "session/Session.h"
#include "Subjects.h"

#include <array>
#include <string>

namespace dravik::sample {

namespace {

constexpr std::array SixDivisionOrder{1, 2, 3, 4, 5, 6};
constexpr std::array FourDivisionOrder{1, 2, 4, 5};

std::string Lowered(std::string_view text)
{
    std::string lowered(text);
    for (char& c : lowered)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lowered;
}

// A name that a team's own text boxes take: they know none of the letters that the code page has added below 160.
std::string ManagerName(NameMaker& names)
{
    for (;;) {
        std::string name = names.Next().Name;
        if (std::ranges::none_of(name, [](char c) { return static_cast<signed char>(c) < -96; }))
            return name;
    }
}

void Furnish(Team& team, const Place& place)
{
    team.Name = SingleByte(std::string(place.City) + " " + std::string(place.Nickname));
    team.City = SingleByte(place.City);
    team.Abbre = place.Abbre;
    team.ArenaName = SingleByte(place.Arena);
    team.Farm.Name = SingleByte(place.FarmName);
    team.Farm.Abbre = place.FarmAbbre;
}

} // namespace

std::vector<int> TeamsInUse()
{
    std::vector<int> numbers;
    for (int number = 1; number <= TeamTable::last; ++number)
        if (Teams[number].InUse)
            numbers.push_back(number);
    return numbers;
}

void MakeTeams(const SampleOptions& options)
{
    Random random(options.Seed, "team offices");
    NameMaker names(options.Seed, "general managers");
    int place = 0; // among the teams in use, from 0
    for (int number = 1; number <= static_cast<int>(Places.size()); ++number) {
        const Place& home = Places[static_cast<std::size_t>(number - 1)];
        Team& team = Teams[number];
        Furnish(team, home);
        team.Number = number;
        if (home.Folded) {
            team.Division = random.Between(1, 2);
            continue;
        }
        team.InUse = true;
        // 30 teams: five in each of six divisions, or eight and seven in turn in each of four.
        team.Division = options.Divisions == 6 ? SixDivisionOrder[static_cast<std::size_t>(place / 5)]
                                               : FourDivisionOrder[static_cast<std::size_t>(place * 4 / 30)];
        ++place;
        team.Gm = ManagerName(names);
        team.Messenger = "gm_" + Lowered(home.Abbre);
        team.Email = Lowered(home.Abbre) + "@aurora-crown.example";
        team.ProMorale = random.Between(40, 65);
        team.Farm.FarmMorale = random.Between(40, 65);
        team.LinesLoadCount = random.Between(0, 60);
        team.OffersMade = random.Chance(40) ? random.Between(1, 4) : 0;
        team.PayrollBonus = random.Chance(25) ? random.Between(5, 50) * 25000 : 0;
    }
    for (const TeamPassword& password : SamplePasswords)
        Teams[password.Team].Password = DigestStrToHexStr(Machine(), password.Password);
}

} // namespace dravik::sample
