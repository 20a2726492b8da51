#include "rules/Overall.h"

#include "league/Arithmetic.h"
#include "league/Positions.h"
#include "league/RatingNames.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace dravik {

namespace {

// What every league gives to each rating, in the order of `Stats`.
using SkaterWeights = std::array<double, 15>;
using GoalieWeights = std::array<double, 13>;

// clang-format off
//                                         CK    FG DI    SK    ST    DU    PH    FO    PA    SC    DF    EX    LD    MO PO
constexpr SkaterWeights ForwardBase{       0.03, 0, 0.01, 0.12, 0.07, 0.05, 0.10, 0.01, 0.12, 0.12, 0.10, 0.05, 0.06, 0, 0.01};
constexpr SkaterWeights ScoringDefenseBase{0.06, 0, 0.01, 0.12, 0.09, 0.09, 0.08, 0,    0.11, 0.06, 0.10, 0.06, 0.06, 0, 0.01};
constexpr SkaterWeights StayingDefenseBase{0.06, 0, 0.01, 0.12, 0.09, 0.09, 0.06, 0,    0.09, 0.04, 0.16, 0.06, 0.06, 0, 0.01};
//                                 SK    DU    ST    SZ    AG    RB    SC    HS    RT    EX    LD    MO PO
constexpr GoalieWeights GoalieBase{0.08, 0.03, 0.04, 0.07, 0.08, 0.08, 0.12, 0.06, 0.11, 0.07, 0.05, 0, 0.01};
// clang-format on

template <class Person, class Weights>
void AddBase(Single& sum, const Person& person, const Weights& weights)
{
    int stat = 1;
    for (const double weight : weights)
        sum += static_cast<double>(person.Stats[stat++]) * weight;
}

// A league's own weight is a share of a fixed divisor.
double Share(long long weight, double divisor) { return static_cast<double>(weight) / divisor; }

void AddSkater(Single& sum, const League& league, const Player& player, int position)
{
    const auto rating = [&](int stat) { return static_cast<double>(player.Stats[stat]); };
    const bool defense = position == position::Defense;
    const bool staysHome = player.Stats[skater::DF] > player.Stats[skater::SC];
    AddBase(sum, player, !defense ? ForwardBase : staysHome ? StayingDefenseBase : ScoringDefenseBase);

    // A defenseman's checking goes by the weight of discipline.
    sum += rating(skater::CK) * Share(defense ? league.OverallWeightDI : league.OverallWeightCK, 5000);
    sum += rating(skater::FG) * Share(league.OverallWeightFG, 5000);
    sum += rating(skater::DI) * Share(league.OverallWeightDI, 5000);
    sum += rating(skater::DU) * Share(league.OverallWeightDU, 5000);
    sum += rating(skater::PH) * Share(league.OverallWeightPHPA, 3333);
    sum += rating(skater::PA) * Share(league.OverallWeightPHPA, 3333);
    sum += rating(skater::SC) * Share(league.OverallWeightSC, 2500);
    sum += rating(skater::EX) * Share(league.OverallWeightEXLD, 5000);
    sum += rating(skater::LD) * Share(league.OverallWeightEXLD, 5000);
}

// The mean of a goalie's four stopping ratings by the mean of two league weights. The ratings add up in 16 bits and the
// weights in 8; a sum that does not fit leaves the whole term out.
double GoalieStopping(const League& league, const Goalie& goalie)
{
    long long ratings = 0;
    for (const int stat : {goalie::RB, goalie::SC, goalie::HS, goalie::RT}) {
        ratings += goalie.Stats[stat];
        if (ratings < std::numeric_limits<std::int16_t>::min() || ratings > std::numeric_limits<std::int16_t>::max())
            return 0;
    }
    const long long weights = league.OverallWeightSC + league.OverallWeightPHPA;
    if (weights > std::numeric_limits<std::uint8_t>::max())
        return 0;
    return static_cast<double>(ratings) / 4 * (static_cast<double>(weights) / 2 / 1667);
}

void AddGoalie(Single& sum, const League& league, const Goalie& goalie)
{
    const auto rating = [&](int stat) { return static_cast<double>(goalie.Stats[stat]); };
    AddBase(sum, goalie, GoalieBase);

    sum += rating(goalie::DU) * Share(league.OverallWeightDU, 3333);
    sum += GoalieStopping(league, goalie);
    sum += rating(goalie::EX) * Share(league.OverallWeightEXLD, 3333);
    sum += rating(goalie::LD) * Share(league.OverallWeightEXLD, 3333);
}

} // namespace

std::optional<int> OverallAt(const Tables& league, int position, int id)
{
    constexpr int best = 99;
    if (position < position::Center || position > position::Goalie)
        return std::nullopt;

    Single sum;
    if (position == position::Goalie) {
        if (!GoalieTable::Has(id))
            return 0;
        AddGoalie(sum, league.LeagueData, league.Goalies[id]);
    } else {
        if (!PlayerTable::Has(id))
            return 0;
        AddSkater(sum, league.LeagueData, league.Players[id], position);
    }

    const double rounded = std::nearbyint(static_cast<double>(sum.Value()));
    if (rounded < std::numeric_limits<std::int16_t>::min() || rounded > std::numeric_limits<std::int16_t>::max())
        return 0;
    return rounded > best ? best : static_cast<int>(rounded);
}

int CalculateOverall(const Tables& league, Voice& says, int position, int id)
{
    const auto overall = OverallAt(league, position, id);
    if (!overall)
        says.ShowIntegrityFailure();
    return overall.value_or(0);
}

int CalculateOverall(const Tables& league, Voice& says, PersonId who)
{
    const int position = who.IsGoalie ? position::Goalie : PositionOf(league.Players[who.Slot]);
    return CalculateOverall(league, says, position, who.Slot);
}

} // namespace dravik
