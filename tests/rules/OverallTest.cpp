#include "rules/Function.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

class OverallTest : public SmallLeague {
protected:
    // Leaves only the fixed weights.
    static void SetNoWeights()
    {
        LeagueData.OverallWeightCK = 0;
        for (Byte* weight : {&LeagueData.OverallWeightFG, &LeagueData.OverallWeightDI, &LeagueData.OverallWeightDU,
                             &LeagueData.OverallWeightEXLD, &LeagueData.OverallWeightPHPA, &LeagueData.OverallWeightSC})
            *weight = 0;
    }
};

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
    PutSkater(1, 5, position::LeftWing, status::Pro, 0);
    EXPECT_EQ(CalculateOverall(position::LeftWing, 1), 0);
}

TEST_F(OverallTest, DefensemanWithDefenseEqualToScoringTakesTheScoringRow)
{
    SetNoWeights();
    Player& player = PutSkater(1, 5, position::Defense, status::Pro, 0);
    player.Stats[skater::SC] = 50;
    player.Stats[skater::DF] = 50;
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 8); // 50 x (0.06 + 0.10)
    player.Stats[skater::DF] = 51;
    EXPECT_EQ(CalculateOverall(position::Defense, 1), 10); // 50 x 0.04 + 51 x 0.16
}

} // namespace
} // namespace dravik
