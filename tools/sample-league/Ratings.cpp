#include "Ratings.h"

#include "rules/Overall.h"
#include "session/Session.h"

#include <algorithm>
#include <array>
#include <span>

namespace dravik::sample {

namespace {

constexpr int Lowest = 25;
constexpr int Highest = 99;

// How far each rating stands from the middle of a player's game, in the order of `Stats`.
using SkaterManner = std::array<int, 15>;
using GoalieManner = std::array<int, 13>;

constexpr std::array ForwardManners{
    //           CK   FG  DI  SK  ST  DU  PH  FO  PA  SC   DF  EX  LD   MO   PO
    SkaterManner{-10, -25, 8, 6, -4, 0, 4, -4, 0, 10, -8, 0, -2, -10, 0},     // sniper
    SkaterManner{-12, -28, 10, 5, -6, 0, 9, 2, 10, -2, -4, 0, 0, -10, 0},     // playmaker
    SkaterManner{0, -18, 6, 2, 0, 2, -1, 4, -2, -4, 9, 2, 3, -10, 0},         // two-way forward
    SkaterManner{12, 2, -8, -4, 10, 4, -3, -4, -6, 2, 2, 0, 2, -10, -4},      // power forward
    SkaterManner{14, 20, -18, -8, 12, 6, -8, -8, -10, -9, 6, 0, -2, -10, -8}, // grinder
};

constexpr std::array DefenseManners{
    SkaterManner{-6, -22, 4, 7, -4, 0, 8, -35, 9, -6, 6, 0, 0, -10, 0},       // rover
    SkaterManner{2, -15, 4, 0, 2, 2, 0, -38, -2, -18, 11, 2, 3, -10, 0},      // stay-at-home
    SkaterManner{13, 12, -12, -5, 11, 6, -6, -40, -8, -22, 9, 0, 0, -10, -4}, // bruiser
    SkaterManner{-4, -20, 6, 4, -2, 0, 6, -34, 5, 3, -2, 0, 0, -10, 0},       // shooter from the point
};

constexpr std::array GoalieManners{
    //           SK  DU  ST  SZ   AG  RB  SC  HS  RT  EX LD  MO   PO
    GoalieManner{6, 0, -4, -12, 10, 2, -2, 0, 6, 0, 0, -10, 0}, // quick
    GoalieManner{-8, 2, 8, 14, -10, 2, 6, 2, -4, 0, 0, -10, 0}, // big
    GoalieManner{0, 3, 0, 0, 0, 4, 2, 6, -2, 2, 4, -10, 0},     // calm
};

// Ratings that are moved together until the overall is met; the others have little or no weight in it.
constexpr std::array SkaterCore{skater::CK, skater::SK, skater::ST, skater::DU,
                                skater::PH, skater::PA, skater::SC, skater::DF};
constexpr std::array GoalieCore{goalie::SK, goalie::ST, goalie::SZ, goalie::AG,
                                goalie::RB, goalie::SC, goalie::HS, goalie::RT};

int Clamped(long long rating) { return static_cast<int>(std::clamp<long long>(rating, Lowest, Highest)); }

template <class Person, class Manner>
void Draw(Random& random, Person& person, const Manner& manner, int middle)
{
    int index = 0;
    for (auto& stat : person.Stats)
        stat = Clamped(middle + manner[static_cast<std::size_t>(index++)] + random.Around(0, 6));
}

// Experience and leading come with the years, potential goes with them.
template <class Person>
void Age(Random& random, Person& person, int ex, int ld, int po, int middle)
{
    const auto years = static_cast<int>(person.Age) - 18;
    person.Stats[ex] = Clamped(40 + years * 4 + random.Around(0, 8));
    person.Stats[ld] = Clamped(38 + years * 3 + random.Around(0, 14));
    person.Stats[po] = Clamped(middle + 14 - years * 2 + random.Around(0, 8));
}

template <class Person>
void Reach(Person& person, std::span<const int> core, int position, int index, int overall)
{
    for (int tries = 0; tries < 60; ++tries) {
        const int missing = overall - CalculateOverall(OpenLeague, Machine(), position, index);
        if (missing == 0)
            return;
        for (const int stat : core)
            person.Stats[stat] = Clamped(person.Stats[stat] + missing);
    }
}

} // namespace

void RateSkater(Random& random, int index, int overall)
{
    Player& player = Players[index];
    const bool defense = player.Position == position::Defense;
    const int middle = overall * 25 / 24; // the weights of a skater add up to a little less than 1
    Draw(random, player, defense ? random.Pick(DefenseManners) : random.Pick(ForwardManners), middle);
    if (player.Position == position::Center)
        player.Stats[skater::FO] = Clamped(middle + random.Around(4, 8));
    else if (!defense)
        player.Stats[skater::FO] = Clamped(middle + random.Around(-16, 8));
    Age(random, player, skater::EX, skater::LD, skater::PO, middle);
    player.Stats[skater::MO] = random.Around(55, 15);
    Reach(player, SkaterCore, static_cast<int>(player.Position), index, overall);
}

void RateGoalie(Random& random, int index, int overall)
{
    Goalie& goalie = Goalies[index];
    const int middle = overall * 8 / 7;
    Draw(random, goalie, random.Pick(GoalieManners), middle);
    Age(random, goalie, goalie::EX, goalie::LD, goalie::PO, middle);
    goalie.Stats[goalie::MO] = random.Around(55, 15);
    Reach(goalie, GoalieCore, position::Goalie, index, overall);
}

} // namespace dravik::sample
