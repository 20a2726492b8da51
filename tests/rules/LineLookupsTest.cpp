#include "rules/Function.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

class LineLookupsTest : public SmallLeague {
protected:
    Lines& pro = Teams[5].ProLines[3];
    Lines& farm = Teams[5].Farm.FarmLines[3];
};

TEST_F(LineLookupsTest, PlayerInNoSlotGivesTheEmptyTextAndTheCount0)
{
    EXPECT_EQ(PlayOnLineString(5, 7, 3), "");
    EXPECT_EQ(PlayOnLineStringFarm(5, 7, 3), "");
    EXPECT_EQ(PlayOnLineInteger(5, 7, 3), 0);
    EXPECT_EQ(PlayOnLineIntegerFarm(5, 7, 3), 0);
}

TEST_F(LineLookupsTest, NormalLineIsToldBeforeThePowerPlay)
{
    pro.PPDefense(2, 1) = 7;
    pro.NormalForward(4, 2) = 7;
    EXPECT_EQ(PlayOnLineString(5, 7, 3), "L-4LW, PP-2D, ");
}

TEST_F(LineLookupsTest, ExtrasRunByNumberNotByList)
{
    pro.ExtraForward[2] = 7;
    pro.PenaltyShot[1] = 7;
    EXPECT_EQ(PlayOnLineString(5, 7, 3), "PS-1, EF-2, ");
}

} // namespace
} // namespace dravik
