#include "Names.h"
#include "Random.h"
#include "Ratings.h"
#include "session/Session.h"
#include "Subjects.h"

#include <array>
#include <numeric>

namespace dravik::sample {

namespace {

constexpr int FreeSkaters = 2300;
constexpr int FreeGoalies = 240;
constexpr int RetiredSkaters = 1200;
constexpr int RetiredGoalies = 120;

constexpr std::array Injuries{"Sprained knee",          "Bruised ribs",
                              "Broken finger",          "Concussion",
                              "Groin strain",           "Separated shoulder",
                              "Fractured foot",         "Back spasms",
                              "High ankle sprain",      "Broken jaw",
                              "Pulled hamstring",       "Torn ligament in left knee",
                              "Lower-body injury",      "Flu",
                              "Cut above the right eye"};

// What the best, the second best, ... of a healthy team come to; the rest follow the last.
constexpr std::array ForwardOveralls{84, 82, 80, 77, 75, 74, 73, 72, 71, 70, 69, 68, 67};
constexpr std::array DefenseOveralls{82, 78, 75, 73, 71, 69, 67};
constexpr std::array GoalieOveralls{77, 70, 65};
constexpr std::array FarmForwardOveralls{65, 64, 62, 61, 59, 58, 57, 55, 54, 53, 51, 50, 48};
constexpr std::array FarmDefenseOveralls{65, 62, 60, 57, 55, 52, 49};
constexpr std::array FarmGoalieOveralls{63, 57, 52};

// What is drawn of a person before he gets his slot. It is written in braces, in which drawing goes from left to right
// on every compiler; the arguments of a call have no such order.
struct NewSkater {
    int Team;
    int Status;
    int Position;
    int Age;
    int Overall;
};

struct NewGoalie {
    int Team;
    int Status;
    int Age;
    int Overall;
};

// The people of one kind find their slots here: the table's indices in a drawn order, so that the people of a team lie
// scattered among free agents, retired players and empty slots.
class Recruits {
public:
    Recruits(const SampleOptions& options, std::string_view subject) :
        random(options.Seed, subject), names(options.Seed, subject), skaterSlots(PlayerTable::last),
        goalieSlots(GoalieTable::last)
    {
        std::iota(skaterSlots.begin(), skaterSlots.end(), 1);
        std::iota(goalieSlots.begin(), goalieSlots.end(), 1);
        random.Shuffle(skaterSlots);
        random.Shuffle(goalieSlots);
    }

    Random& Dice() { return random; }
    [[nodiscard]] int SkatersLeft() const { return static_cast<int>(skaterSlots.size()); }
    [[nodiscard]] int GoaliesLeft() const { return static_cast<int>(goalieSlots.size()); }

    int Skater(const NewSkater& drawn)
    {
        const int index = Taken(skaterSlots);
        Player& player = Players[index];
        player.Position = drawn.Position;
        Introduce(player, index, drawn.Team, drawn.Status, drawn.Age);
        RateSkater(random, index, drawn.Overall);
        return index;
    }

    int Goalie(const NewGoalie& drawn)
    {
        const int index = Taken(goalieSlots);
        Introduce(Goalies[index], index, drawn.Team, drawn.Status, drawn.Age);
        RateGoalie(random, index, drawn.Overall);
        return index;
    }

private:
    static int Taken(std::vector<int>& slots)
    {
        const int index = slots.back();
        slots.pop_back();
        return index;
    }

    template <class Person>
    void Introduce(Person& person, int index, int team, int status, int age)
    {
        const PersonName name = names.Next();
        person.InUse = true;
        person.Number = index;
        person.Name = name.Name;
        person.Country = name.Country;
        person.Team = team;
        person.Status = status;
        person.Age = age;
        person.Height = random.Around(73, 4);
        person.Weight = random.Around(200, 25);
        person.Contract = team == 0 ? 0 : random.Between(1, 5);
        person.Salary = LeagueData.MinSalary;
        person.Injury = "";
        person.Condition = random.Chance(80) ? 100 : random.Between(95, 99);
        person.NoApplyRerate = random.Chance(3);
        const int seasons = age > 19 ? age - 19 : 0;
        person.ProGames =
            status == status::Farm ? random.Between(0, seasons * 18) : random.Between(25 * seasons, 82 * seasons);
        person.Rookie = age < 26 && person.ProGames < 26;
    }

    Random random;
    NameMaker names;
    std::vector<int> skaterSlots;
    std::vector<int> goalieSlots;
};

template <class Person>
void Injure(Random& random, Person& person)
{
    person.Condition = random.Between(20, 94);
    person.Injury = InjuryText(random.Between(0, static_cast<int>(Injuries.size()) - 1));
}

// Those who may not play sit among the scratches or on the farm: some are hurt, a few suspended, and one in a while is
// on his way through waivers.
template <class Person>
void Trouble(Random& random, Person& person)
{
    const int luck = random.Between(1, 100);
    if (luck <= 30)
        Injure(random, person);
    else if (luck <= 38)
        person.Suspension = random.Between(1, 10);
    else if (luck <= 40 && person.Status == status::Scratch)
        person.Suspension = 99;
}

template <class Overalls>
int OverallOf(const Overalls& overalls, int rank)
{
    return overalls[std::min(static_cast<std::size_t>(rank), overalls.size() - 1)];
}

// How many of each position a team dresses.
struct Shape {
    int Centers;
    int LeftWings;
    int RightWings;
    int Defensemen;
};

constexpr std::array Shapes{Shape{4, 4, 4, 6}, Shape{4, 4, 4, 6}, Shape{4, 4, 4, 6}, Shape{5, 4, 3, 6},
                            Shape{4, 3, 5, 6}, Shape{4, 4, 3, 7}, Shape{3, 5, 4, 6}};

std::vector<int> ForwardPositions(Random& random, const Shape& shape)
{
    std::vector<int> positions(static_cast<std::size_t>(shape.Centers), position::Center);
    positions.insert(positions.end(), static_cast<std::size_t>(shape.LeftWings), position::LeftWing);
    positions.insert(positions.end(), static_cast<std::size_t>(shape.RightWings), position::RightWing);
    random.Shuffle(positions);
    return positions;
}

void Dress(Recruits& recruits, int team)
{
    Random& random = recruits.Dice();
    const int strength = random.Around(0, 3);
    const Shape& shape = random.Pick(Shapes);
    const auto overall = [&](int usual) { return std::min(usual + strength + random.Around(0, 4), 88); };
    int rank = 0;
    for (const int position : ForwardPositions(random, shape))
        recruits.Skater(
            {team, status::Pro, position, random.Around(27, 8), overall(OverallOf(ForwardOveralls, rank++))});
    for (rank = 0; rank < shape.Defensemen; ++rank)
        recruits.Skater(
            {team, status::Pro, position::Defense, random.Around(28, 8), overall(OverallOf(DefenseOveralls, rank))});
    for (rank = 0; rank < 2; ++rank)
        recruits.Goalie(
            {team, status::Pro, random.Around(29, 7), std::min(overall(OverallOf(GoalieOveralls, rank)), 83)});

    const int scratches = random.Between(2, 8);
    for (int i = 0; i < scratches; ++i) {
        const int index = recruits.Skater({team, status::Scratch, random.Between(position::Center, position::Defense),
                                           random.Around(28, 9), random.Around(67, 5)});
        Trouble(random, Players[index]);
    }
    if (HoleOf(team) == Hole::ThirdGoalie || random.Chance(45))
        recruits.Goalie({team, status::Scratch, random.Around(27, 6), random.Around(64, 4)});
}

void FillFarm(Recruits& recruits, int team)
{
    Random& random = recruits.Dice();
    const auto highest = static_cast<int>(LeagueData.FarmMaxOverall);
    const auto overall = [&](int usual) { return std::min(usual + random.Around(0, 5), highest); };
    const auto age = [&] { return random.Chance(85) ? random.Between(18, 24) : random.Between(25, 33); };
    int rank = 0;
    for (const int position : ForwardPositions(random, Shapes[0]))
        recruits.Skater({team, status::Farm, position, age(), overall(OverallOf(FarmForwardOveralls, rank++))});
    for (rank = 0; rank < Shapes[0].Defensemen; ++rank)
        recruits.Skater({team, status::Farm, position::Defense, age(), overall(OverallOf(FarmDefenseOveralls, rank))});
    for (rank = 0; rank < 2; ++rank)
        recruits.Goalie({team, status::Farm, age(), overall(OverallOf(FarmGoalieOveralls, rank))});

    const int more = random.Between(2, 7);
    for (int i = 0; i < more; ++i) {
        const int index = recruits.Skater(
            {team, status::Farm, random.Between(position::Center, position::Defense), age(), overall(52)});
        Trouble(random, Players[index]);
    }
    if (random.Chance(40))
        recruits.Goalie({team, status::Farm, age(), overall(50)});
}

// Players whose contract has run out and to whom the team still holds the rights. There are more of them in summer.
void LoseContracts(Recruits& recruits, int team, bool offSeason)
{
    Random& random = recruits.Dice();
    const int count = offSeason ? random.Between(3, 7) : random.Between(1, 2);
    for (int i = 0; i < count; ++i) {
        const int index = recruits.Skater({team, status::Farm, random.Between(position::Center, position::Defense),
                                           random.Between(20, 34), random.Around(57, 8)});
        Players[index].Contract = 0;
    }
    if (random.Chance(offSeason ? 50 : 10))
        Goalies[recruits.Goalie({team, status::Farm, random.Between(20, 34), random.Around(55, 6)})].Contract = 0;
}

void AddFreeSkaters(Recruits& recruits, int count)
{
    Random& random = recruits.Dice();
    for (int i = 0; i < count; ++i) {
        const int index = recruits.Skater({0, status::Farm, random.Between(position::Center, position::Defense),
                                           random.Between(18, 40), random.Around(56, 12)});
        if (random.Chance(4))
            Injure(random, Players[index]);
    }
}

void AddFreeGoalies(Recruits& recruits, int count)
{
    Random& random = recruits.Dice();
    for (int i = 0; i < count; ++i) {
        const int index = recruits.Goalie({0, status::Farm, random.Between(18, 40), random.Around(56, 12)});
        if (random.Chance(4))
            Injure(random, Goalies[index]);
    }
}

// Slots of players who have retired: not in use, though all else stands in them as it did, their last team included.
void Retire(Recruits& recruits)
{
    Random& random = recruits.Dice();
    for (int i = 0; i < RetiredSkaters; ++i) {
        const int index = recruits.Skater({random.Between(0, 32), random.Between(status::Farm, status::Pro),
                                           random.Between(position::Center, position::Defense), random.Between(30, 44),
                                           random.Around(60, 12)});
        Players[index].InUse = false;
    }
    for (int i = 0; i < RetiredGoalies; ++i) {
        const int index = recruits.Goalie({random.Between(0, 32), random.Between(status::Farm, status::Pro),
                                           random.Between(30, 44), random.Around(60, 10)});
        Goalies[index].InUse = false;
    }
}

template <class Table>
std::vector<int> PeopleOf(const Table& table, int team, int status)
{
    std::vector<int> indices;
    for (int index = 1; index <= Table::last; ++index)
        if (table[index].InUse && table[index].Team == team && table[index].Status == status)
            indices.push_back(index);
    return indices;
}

} // namespace

std::vector<int> SkatersOf(int team, int status) { return PeopleOf(Players, team, status); }
std::vector<int> GoaliesOf(int team, int status) { return PeopleOf(Goalies, team, status); }

std::string_view InjuryText(int number) { return Injuries.at(static_cast<std::size_t>(number)); }

void MakePeople(const SampleOptions& options)
{
    Recruits recruits(options, "people");
    for (const int team : TeamsInUse()) {
        Dress(recruits, team);
        FillFarm(recruits, team);
        LoseContracts(recruits, team, options.OffSeason);
    }
    AddFreeSkaters(recruits, options.Full ? recruits.SkatersLeft() : FreeSkaters);
    AddFreeGoalies(recruits, options.Full ? recruits.GoaliesLeft() : FreeGoalies);
    if (!options.Full)
        Retire(recruits);
}

} // namespace dravik::sample
