#include "rules/LineEligibility.h"

#include "rules/LineJudge.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

class LineEligibilityTest : public SmallLeague {
protected:
    static bool IsRefused(Side side, PersonId who) { return IsRefusedInLines(OpenLeague, 1, side, who); }
};

TEST_F(LineEligibilityTest, ThePlaceholderIsNeverRefusedAndSomebodyOutsideTheTableAlways)
{
    for (const Side side : {Side::Pro, Side::Farm}) {
        for (const bool isGoalie : {false, true})
            EXPECT_FALSE(IsRefused(side, {isGoalie, 0}));
        EXPECT_TRUE(IsRefused(side, {false, 10001}));
        EXPECT_TRUE(IsRefused(side, {false, -1}));
        EXPECT_TRUE(IsRefused(side, {true, 1001}));
    }
}

TEST_F(LineEligibilityTest, WithoutFarmTeamsNobodyIsRefusedThere)
{
    LeagueData.FarmEnabled = false;
    EXPECT_FALSE(IsRefused(Side::Farm, {false, 20}));
    EXPECT_FALSE(IsRefused(Side::Farm, {false, 10001}));
    EXPECT_TRUE(IsRefused(Side::Pro, {false, 20}));
}

// Whoever is refused is taken out by the judge, and nobody else.
TEST_F(LineEligibilityTest, TheJudgesTakeOutWhoIsRefused)
{
    int refused = 0;
    for (unsigned seed = 1; seed <= 10; ++seed) {
        Dice dice(seed);
        RollLeague(dice);
        LeagueData.FarmEnabled = true;
        LeagueData.ProDressedSkaters = 20;
        for (const Side side : {Side::Pro, Side::Farm})
            for (int slot = 1; slot <= 150; ++slot)
                for (const bool isGoalie : {false, true}) {
                    if (isGoalie && slot > 18)
                        continue;
                    Lines& lines = LinesOf(OpenLeague, 1, 1, side);
                    lines = {};
                    Int16& word = isGoalie ? lines.BackupGoalie : lines.PenaltyShot[3];
                    word = slot;
                    const bool isRefused = IsRefused(side, {isGoalie, slot});
                    refused += isRefused ? 1 : 0;
                    MuteVoice mute;
                    bool modified = false;
                    JudgeDay({OpenLeague, mute, Machine, modified}, 1, side, 1, false);
                    EXPECT_EQ(word, isRefused ? 0 : slot) << seed;
                }
    }
    EXPECT_GT(refused, 1000);
    EXPECT_LT(refused, 3300);
}

TEST_F(LineEligibilityTest, AStrangerIsToldBeforeAnUnfitMan)
{
    Player& player = PutSkater(1, 1, position::Center, status::Pro);
    EXPECT_EQ(FaultInLines(player, 1, Side::Pro), std::nullopt);
    EXPECT_EQ(FaultInLines(player, 1, Side::Farm), LineFault::Stranger);
    EXPECT_EQ(FaultInLines(player, 2, Side::Pro), LineFault::Stranger);
    player.Condition = 94;
    EXPECT_EQ(FaultInLines(player, 1, Side::Pro), LineFault::Unfit);
    EXPECT_EQ(FaultInLines(player, 2, Side::Pro), LineFault::Stranger);
}

} // namespace
} // namespace dravik
