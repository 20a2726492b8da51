#include "rules/Overall.h"

#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <array>
#include <cmath>
#include <map>
#include <string>

namespace dravik {
namespace {

using ::testing::ElementsAre;

class OverallTest : public SmallLeague {
protected:
    // Gives every league weight but the one for CK the value `weight`, which 0 leaves to the fixed weights alone.
    static void SetWeights(int weight)
    {
        LeagueData.OverallWeightCK = weight;
        for (Byte* field : {&LeagueData.OverallWeightFG, &LeagueData.OverallWeightDI, &LeagueData.OverallWeightDU,
                            &LeagueData.OverallWeightEXLD, &LeagueData.OverallWeightPHPA, &LeagueData.OverallWeightSC})
            *field = weight;
    }
};

// A second reading of the rating, step by step through memory, so that no step can be kept in a wider register, fused
// or reordered.
class PlainSum {
public:
    void Add(double factor, double weight)
    {
        volatile double product = factor * weight;
        volatile double wide = value + product;
        volatile float rounded = static_cast<float>(wide);
        value = rounded;
    }
    [[nodiscard]] int Rating() const
    {
        const double rounded = std::nearbyint(value);
        return rounded < -32768 || rounded > 32767 ? 0 : rounded > 99 ? 99 : static_cast<int>(rounded);
    }

private:
    volatile double value = 0;
};

double Divided(double weight, double divisor)
{
    volatile double share = weight / divisor;
    return share;
}

int PlainSkaterRating(const Player& p, int position)
{
    const auto s = [&](int stat) { return static_cast<double>(p.Stats[stat]); };
    const bool d = position == 4;
    const bool low = d && !(p.Stats[11] > p.Stats[10]);
    PlainSum sum;
    sum.Add(s(1), d ? 0.06 : 0.03);
    sum.Add(s(2), 0);
    sum.Add(s(3), 0.01);
    sum.Add(s(4), 0.12);
    sum.Add(s(5), d ? 0.09 : 0.07);
    sum.Add(s(6), d ? 0.09 : 0.05);
    sum.Add(s(7), !d ? 0.10 : low ? 0.08 : 0.06);
    sum.Add(s(8), d ? 0 : 0.01);
    sum.Add(s(9), !d ? 0.12 : low ? 0.11 : 0.09);
    sum.Add(s(10), !d ? 0.12 : low ? 0.06 : 0.04);
    sum.Add(s(11), d && !low ? 0.16 : 0.10);
    sum.Add(s(12), d ? 0.06 : 0.05);
    sum.Add(s(13), 0.06);
    sum.Add(s(14), 0);
    sum.Add(s(15), 0.01);
    const auto w = [](long long weight) { return static_cast<double>(weight); };
    const League& l = LeagueData;
    sum.Add(s(1), Divided(d ? w(l.OverallWeightDI) : w(l.OverallWeightCK), 5000));
    sum.Add(s(2), Divided(w(l.OverallWeightFG), 5000));
    sum.Add(s(3), Divided(w(l.OverallWeightDI), 5000));
    sum.Add(s(6), Divided(w(l.OverallWeightDU), 5000));
    sum.Add(s(7), Divided(w(l.OverallWeightPHPA), 3333));
    sum.Add(s(9), Divided(w(l.OverallWeightPHPA), 3333));
    sum.Add(s(10), Divided(w(l.OverallWeightSC), 2500));
    sum.Add(s(12), Divided(w(l.OverallWeightEXLD), 5000));
    sum.Add(s(13), Divided(w(l.OverallWeightEXLD), 5000));
    return sum.Rating();
}

int PlainGoalieRating(const Goalie& g)
{
    const double fixed[] = {0.08, 0.03, 0.04, 0.07, 0.08, 0.08, 0.12, 0.06, 0.11, 0.07, 0.05, 0, 0.01};
    const auto s = [&](int stat) { return static_cast<double>(g.Stats[stat]); };
    const auto w = [](long long weight) { return static_cast<double>(weight); };
    const League& l = LeagueData;
    PlainSum sum;
    for (int stat = 1; stat <= 13; ++stat)
        sum.Add(s(stat), fixed[stat - 1]);
    sum.Add(s(2), Divided(w(l.OverallWeightDU), 3333));
    if (l.OverallWeightSC + l.OverallWeightPHPA <= 255)
        sum.Add((s(6) + s(7) + s(8) + s(9)) / 4, Divided((w(l.OverallWeightSC) + w(l.OverallWeightPHPA)) / 2, 1667));
    sum.Add(s(10), Divided(w(l.OverallWeightEXLD), 3333));
    sum.Add(s(11), Divided(w(l.OverallWeightEXLD), 3333));
    return sum.Rating();
}

void RollWeights(Dice& dice, int most)
{
    LeagueData.OverallWeightCK = dice.Roll(-most, most);
    for (Byte* weight : {&LeagueData.OverallWeightFG, &LeagueData.OverallWeightDI, &LeagueData.OverallWeightDU,
                         &LeagueData.OverallWeightEXLD, &LeagueData.OverallWeightPHPA, &LeagueData.OverallWeightSC})
        *weight = dice.Roll(0, most);
}

TEST_F(OverallTest, PlainWeightsGiveTheRatingBack)
{
    for (int rating = 0; rating <= 99; ++rating) {
        for (int position = position::Center; position <= position::Defense; ++position) {
            PutSkater(1, 5, position, status::Pro, rating);
            EXPECT_EQ(CalculateOverall(position, 1), rating);
        }
        PutGoalie(1, 5, status::Pro, rating);
        EXPECT_EQ(CalculateOverall(position::Goalie, 1), rating);
    }
}

TEST_F(OverallTest, ForwardWithAllRatings0Has0)
{
    for (int position = position::Center; position <= position::RightWing; ++position) {
        PutSkater(1, 5, position, status::Pro, 0);
        EXPECT_EQ(CalculateOverall(position, 1), 0);
    }
}

TEST_F(OverallTest, SkaterWithAllRatings99AndWeights50Has95)
{
    SetWeights(50);
    PutSkater(1, 5, position::Center, status::Pro, 99);
    EXPECT_EQ(CalculateOverall(position::Center, 1), 95); // 99 x (0.85 + 6 x 0.01 + 2 x 50/3333 + 0.02)
}

TEST_F(OverallTest, RatingIsHeldAt99)
{
    SetWeights(100);
    PutSkater(1, 5, position::Center, status::Pro, 99);
    EXPECT_EQ(CalculateOverall(position::Center, 1), 99);
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 99);
    LeagueData.OverallWeightDU = 255;
    LeagueData.OverallWeightEXLD = 255;
    PutGoalie(1, 5, status::Pro, 99);
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), 99);
}

TEST_F(OverallTest, RatingHasNoLowerBound)
{
    SetWeights(0);
    PutSkater(1, 5, position::Center, status::Pro, -1000);
    EXPECT_EQ(CalculateOverall(position::Center, 1), -850);
}

TEST_F(OverallTest, DefensemanWithDefenseEqualToScoringTakesTheScoringRow)
{
    SetWeights(0);
    Player& player = PutSkater(1, 5, position::Defense, status::Pro, 0);
    player.Stats[skater::SC] = 50;
    player.Stats[skater::DF] = 50;
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 8); // 50 x (0.06 + 0.10)
    player.Stats[skater::DF] = 51;
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 10); // 50 x 0.04 + 51 x 0.16
}

TEST_F(OverallTest, EachRatingHasItsFixedWeight)
{
    SetWeights(0);
    // A rating of minus 1000 alone is worth its weight in thousandths; no limit is in its way.
    const std::array<int, 15> forward{30, 0, 10, 120, 70, 50, 100, 10, 120, 120, 100, 50, 60, 0, 10};
    for (int stat = 1; stat <= 15; ++stat)
        for (int position = position::Center; position <= position::RightWing; ++position) {
            PutSkater(1, 5, position, status::Pro, 0).Stats[stat] = -1000;
            EXPECT_EQ(CalculateOverall(position, 1), -forward[static_cast<std::size_t>(stat - 1)]) << "rating " << stat;
        }

    // A defenseman's row follows from his DF and SC, so DF stays at most SC here, by turning the sign of SC.
    const std::array<int, 15> scoring{60, 0, 10, 120, 90, 90, 80, 0, 110, 60, 100, 60, 60, 0, 10};
    for (int stat = 1; stat <= 15; ++stat) {
        const int sign = stat == skater::SC ? 1 : -1;
        PutSkater(1, 5, position::Defense, status::Pro, 0).Stats[stat] = sign * 1000;
        EXPECT_EQ(CalculateOverall(position::Defense, 1), sign * scoring[static_cast<std::size_t>(stat - 1)])
            << "rating " << stat;
    }

    // And above SC here, by a DF of 1 that is worth less than half a point; its own weight shows with 500.
    const std::array<int, 15> staying{60, 0, 10, 120, 90, 90, 60, 0, 90, 40, 160, 60, 60, 0, 10};
    for (int stat = 1; stat <= 15; ++stat) {
        Player& player = PutSkater(1, 5, position::Defense, status::Pro, 0);
        player.Stats[skater::DF] = 1;
        player.Stats[stat] = stat == skater::DF ? 500 : -1000;
        const int weight = staying[static_cast<std::size_t>(stat - 1)];
        EXPECT_EQ(CalculateOverall(position::Defense, 1), stat == skater::DF ? weight / 2 : -weight)
            << "rating " << stat;
    }

    const std::array<int, 13> goalie{80, 30, 40, 70, 80, 80, 120, 60, 110, 70, 50, 0, 10};
    for (int stat = 1; stat <= 13; ++stat) {
        PutGoalie(1, 5, status::Pro, 0).Stats[stat] = -1000;
        EXPECT_EQ(CalculateOverall(position::Goalie, 1), -goalie[static_cast<std::size_t>(stat - 1)])
            << "rating " << stat;
    }
}

TEST_F(OverallTest, CheckingOfAForwardGoesByTheWeightOfChecking)
{
    SetWeights(0);
    LeagueData.OverallWeightCK = 500;
    Player& player = PutSkater(1, 5, position::Center, status::Pro, 0);
    player.Stats[skater::CK] = 100;
    EXPECT_EQ(CalculateOverall(position::Center, 1), 13); // 100 x (0.03 + 500/5000)
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 6); // 100 x 0.06
}

TEST_F(OverallTest, CheckingOfADefensemanGoesByTheWeightOfDiscipline)
{
    SetWeights(0);
    LeagueData.OverallWeightDI = 250;
    Player& player = PutSkater(1, 5, position::Center, status::Pro, 0);
    player.Stats[skater::CK] = 100;
    EXPECT_EQ(CalculateOverall(position::Center, 1), 3);   // 100 x 0.03
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 11); // 100 x (0.06 + 250/5000)
}

TEST_F(OverallTest, WeightOfCheckingMayBeNegative)
{
    SetWeights(0);
    LeagueData.OverallWeightCK = -5000;
    Player& player = PutSkater(1, 5, position::Center, status::Pro, 0);
    player.Stats[skater::CK] = 100;
    EXPECT_EQ(CalculateOverall(position::Center, 1), -97);
}

TEST_F(OverallTest, HalvesGoToTheEvenNumber)
{
    SetWeights(0);
    Player& player = PutSkater(1, 5, position::Center, status::Pro, 0);
    const std::map<int, int> expected{{5, 0}, {15, 2}, {25, 2}, {35, 4}, {-5, 0}, {-15, -2}, {-25, -2}};
    for (const auto& [rating, overall] : expected) {
        player.Stats[skater::PH] = rating; // a tenth each
        EXPECT_EQ(CalculateOverall(position::Center, 1), overall) << rating;
    }
}

TEST_F(OverallTest, PositionAskedForDecidesNotThePlayersOwn)
{
    SetWeights(0);
    Player& player = PutSkater(1, 5, position::Defense, status::Pro, 0);
    player.Stats[skater::CK] = 100;
    EXPECT_EQ(CalculateOverall(position::RightWing, 1), 3);
}

TEST_F(OverallTest, StoppingWeightsOfAGoalieMayReach255Together)
{
    SetWeights(0);
    LeagueData.OverallWeightSC = 200;
    LeagueData.OverallWeightPHPA = 55;
    Goalie& goalie = PutGoalie(1, 5, status::Pro, 0);
    goalie.Stats[goalie::RB] = 200;
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), 20); // 200 x 0.08 + 200/4 x 127.5/1667
}

TEST_F(OverallTest, StoppingWeightsOfAGoalieAbove255LoseTheirTermAlone)
{
    SetWeights(0);
    LeagueData.OverallWeightSC = 200;
    LeagueData.OverallWeightPHPA = 56;
    LeagueData.OverallWeightDU = 250;
    LeagueData.OverallWeightEXLD = 250;
    Goalie& goalie = PutGoalie(1, 5, status::Pro, 0);
    goalie.Stats[goalie::RB] = 200;
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), 16); // 200 x 0.08
    goalie.Stats[goalie::DU] = 200;
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), 37); // 200 x (0.03 + 250/3333) more
    goalie.Stats[goalie::EX] = 200;
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), 66); // 200 x (0.07 + 250/3333) more
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(OverallTest, StoppingRatingsOfAGoalieBeyond16BitsLoseTheirTermAlone)
{
    SetWeights(0);
    LeagueData.OverallWeightSC = 100;
    Goalie& goalie = PutGoalie(1, 5, status::Pro, 0);
    goalie.Stats[goalie::RB] = -32768;
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), -2867); // -32768 x (0.08 + 50/1667/4)
    goalie.Stats[goalie::RT] = -1;
    EXPECT_EQ(CalculateOverall(position::Goalie, 1), -2622); // -32768 x 0.08 - 0.11
}

TEST_F(OverallTest, UnknownPositionFailsTheIntegrityCheck)
{
    PutSkater(1, 5, position::Center, status::Pro, 60);
    for (const int position : {-1, 0, 6}) {
        EXPECT_EQ(CalculateOverall(position, 1), 0);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
    }
}

TEST_F(OverallTest, IndexOutsideItsTableGives0WithoutABox)
{
    for (const int id : {-1, 10001, 32000})
        for (int position = position::Center; position <= position::Goalie; ++position)
            EXPECT_EQ(CalculateOverall(position, id), 0);
    PutSkater(1001, 5, position::Center, status::Pro, 60);
    EXPECT_EQ(CalculateOverall(position::Goalie, 1001), 0);
    EXPECT_EQ(CalculateOverall(position::Center, 1001), 60);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(OverallTest, LastRecordsOfTheTablesAreRated)
{
    PutSkater(10000, 5, position::Center, status::Pro, 61);
    PutGoalie(1000, 5, status::Pro, 62);
    EXPECT_EQ(CalculateOverall(position::Center, 10000), 61);
    EXPECT_EQ(CalculateOverall(position::Goalie, 1000), 62);
}

TEST_F(OverallTest, PlaceholderIsRatedLikeAnybody)
{
    PutSkater(0, 0, position::Center, status::Farm, 33);
    EXPECT_EQ(CalculateOverall(position::Center, 0), 33);
}

TEST_F(OverallTest, SumThatDoesNotFit16BitsGives0WithoutABox)
{
    SetWeights(0);
    LeagueData.OverallWeightCK = 1000; // a sum of ratings x 1.05
    PutSkater(1, 5, position::Center, status::Pro, 32767);
    EXPECT_EQ(CalculateOverall(position::Center, 1), 0);
    PutSkater(1, 5, position::Center, status::Pro, -32768);
    EXPECT_EQ(CalculateOverall(position::Center, 1), 0);
    PutSkater(1, 5, position::Center, status::Pro, 30000);
    EXPECT_EQ(CalculateOverall(position::Center, 1), 99);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(OverallTest, SumsAtTheEndsOf16BitsStillFit)
{
    SetWeights(0);
    LeagueData.OverallWeightCK = 4850; // with the fixed weight of 0.03 the checking rating itself
    PutSkater(1, 5, position::Center, status::Pro, 0);
    Players[1].Stats[skater::CK] = -32768;
    EXPECT_EQ(CalculateOverall(position::Center, 1), -32768);
    Players[1].Stats[skater::CK] = 32767;
    EXPECT_EQ(CalculateOverall(position::Center, 1), 99);
}

TEST_F(OverallTest, RandomSkatersAgreeWithThePlainReading)
{
    Dice dice(41);
    for (int round = 0; round < 20000; ++round) {
        RollWeights(dice, round % 2 == 0 ? 60 : 255);
        Player& player = PutSkater(1, 5, position::Center, status::Pro);
        for (Int16& rating : player.Stats)
            rating = round % 5 == 0 ? dice.Roll(-32768, 32767) : dice.Roll(0, 99);
        const auto position = static_cast<int>(dice.Roll(1, 4));
        ASSERT_EQ(CalculateOverall(position, 1), PlainSkaterRating(player, position)) << "round " << round;
    }
}

TEST_F(OverallTest, RandomGoaliesAgreeWithThePlainReading)
{
    Dice dice(42);
    for (int round = 0; round < 20000; ++round) {
        RollWeights(dice, round % 2 == 0 ? 60 : 255);
        Goalie& goalie = PutGoalie(1, 5, status::Pro);
        for (Int16& rating : goalie.Stats)
            rating = round % 5 == 0 ? dice.Roll(-8000, 8000) : dice.Roll(0, 99);
        ASSERT_EQ(CalculateOverall(position::Goalie, 1), PlainGoalieRating(goalie)) << "round " << round;
    }
}

// Ratings that every build has to give, whatever its optimisation: 64 persons a row, the rows being center, left wing,
// right wing, defenseman and goalie. They were printed once, unoptimised, from PlainSkaterRating and PlainGoalieRating
// over the very persons that the test below rolls. When the dice or the order of rolling change, print them again from
// those two, never from the routine under test.
constexpr int KnownRatings[5][64] = {
    {55, 56, 41, 59, 52, 52, 75, 55, 51, 67, 53, 46, 56, 54, 53, 60, 55, 59, 58, 50, 56, 59,
     46, 51, 54, 65, 59, 48, 64, 64, 42, 62, 62, 57, 48, 60, 58, 51, 59, 50, 46, 49, 62, 57,
     49, 57, 51, 52, 61, 54, 50, 38, 51, 61, 56, 53, 52, 46, 47, 70, 52, 56, 52, 49},
    {56, 53, 46, 39, 58, 67, 59, 56, 37, 65, 71, 44, 59, 45, 60, 62, 62, 61, 46, 55, 58, 56,
     52, 57, 50, 65, 44, 61, 54, 49, 53, 49, 55, 48, 50, 45, 57, 48, 57, 52, 70, 47, 54, 59,
     51, 64, 79, 55, 44, 45, 59, 50, 53, 49, 53, 47, 64, 54, 47, 49, 42, 53, 60, 56},
    {50, 56, 50, 58, 57, 65, 59, 59, 60, 54, 50, 50, 57, 65, 58, 47, 68, 51, 49, 59, 47, 54,
     45, 54, 55, 50, 59, 58, 51, 57, 49, 42, 50, 54, 66, 52, 47, 57, 60, 44, 36, 47, 42, 53,
     73, 49, 51, 45, 53, 53, 42, 48, 42, 60, 47, 46, 51, 57, 66, 52, 48, 55, 54, 46},
    {52, 60, 57, 57, 54, 49, 55, 57, 55, 70, 54, 54, 53, 49, 55, 63, 64, 51, 66, 56, 57, 49,
     51, 58, 57, 56, 51, 55, 57, 60, 52, 70, 66, 51, 53, 61, 51, 56, 56, 66, 66, 47, 53, 56,
     50, 63, 51, 53, 54, 54, 57, 53, 53, 49, 61, 58, 45, 59, 62, 48, 66, 49, 60, 52},
    {58, 56, 55, 53, 58, 52, 47, 52, 40, 57, 64, 50, 43, 55, 57, 53, 49, 49, 44, 46, 54, 53,
     37, 63, 53, 40, 45, 53, 46, 49, 52, 60, 54, 42, 47, 44, 44, 58, 54, 46, 55, 48, 50, 49,
     60, 54, 55, 58, 51, 60, 47, 54, 53, 49, 57, 40, 45, 52, 45, 53, 58, 44, 49, 45},
};

TEST_F(OverallTest, RatingsAreTheSameInEveryBuild)
{
    Dice dice(43);
    for (int position = position::Center; position <= position::Goalie; ++position)
        for (int person = 0; person < 64; ++person) {
            RollWeights(dice, 60);
            Player& player = PutSkater(1, 5, position::Center, status::Pro);
            for (Int16& rating : player.Stats)
                rating = dice.Roll(20, 99);
            Goalie& goalie = PutGoalie(1, 5, status::Pro);
            for (Int16& rating : goalie.Stats)
                rating = dice.Roll(20, 99);
            EXPECT_EQ(CalculateOverall(position, 1), KnownRatings[position - 1][person])
                << "position " << position << ", person " << person;
        }
}

// Persons who show the arithmetic: one accumulator of 64 bits would give the first two a neighbouring rating, products of
// 32 bits the other two.
TEST_F(OverallTest, AccumulatorIsRoundedAfterEachAddition)
{
    struct Case {
        int Overall;
        std::array<int, 15> Ratings;
    };
    const Case cases[] = {
        {42, {71, 54, 23, 31, 81, 65, 42, 35, 54, 66, 36, 34, 46, 69, 49}}, // not 43
        {43, {37, 82, 91, 67, 22, 27, 56, 71, 26, 43, 68, 58, 73, 84, 88}}, // not 42
        {46, {67, 35, 59, 56, 44, 26, 27, 54, 82, 52, 68, 57, 43, 63, 25}}, // not 45
        {46, {59, 75, 31, 49, 41, 53, 99, 91, 67, 27, 34, 51, 71, 55, 72}}, // not 47
    };
    SetWeights(0);
    Player& player = PutSkater(1, 5, position::Center, status::Pro, 0);
    for (const Case& person : cases) {
        int stat = 1;
        for (const int rating : person.Ratings)
            player.Stats[stat++] = rating;
        EXPECT_EQ(CalculateOverall(position::Center, 1), person.Overall);
    }
}

} // namespace
} // namespace dravik
