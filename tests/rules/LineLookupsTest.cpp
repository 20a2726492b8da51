#include "rules/LineSlots.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <string>

namespace dravik {
namespace {

class LineLookupsTest : public SmallLeague {
protected:
    Lines& pro = Teams[5].ProLines[3];
    Lines& farm = Teams[5].Farm.FarmLines[3];
};

int NumberThrownBy(auto&& action)
{
    try {
        action();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

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

TEST_F(LineLookupsTest, TrailingCommaAndBlankStay)
{
    pro.NormalForward(1, 1) = 7;
    pro.PPForward(1, 1) = 7;
    pro.PenaltyShot[2] = 7;
    EXPECT_EQ(PlayOnLineString(5, 7, 3), "L-1C, PP-1C, PS-2, ");
    EXPECT_EQ(PlayOnLineInteger(5, 7, 3), 3);
}

TEST_F(LineLookupsTest, GoalieSlotsAreNotSearched)
{
    pro.StartGoalie = 7;
    pro.BackupGoalie = 7;
    farm.StartGoalie = 7;
    farm.BackupGoalie = 7;
    EXPECT_EQ(PlayOnLineString(5, 7, 3), "");
    EXPECT_EQ(PlayOnLineInteger(5, 7, 3), 0);
    EXPECT_EQ(PlayOnLineStringFarm(5, 7, 3), "");
    EXPECT_EQ(PlayOnLineIntegerFarm(5, 7, 3), 0);
}

TEST_F(LineLookupsTest, ReservedWordsAndPointsAreNotSearched)
{
    pro.PK3Reserved[1] = 3;
    pro.PK3Reserved[2] = 3;
    for (Int16& points : pro.Strategy)
        points = 3;
    pro.PullGoalerMinGoal = 3;
    pro.PullGoalerMinPct = 3;
    EXPECT_EQ(PlayOnLineString(5, 3, 3), "");
    EXPECT_EQ(PlayOnLineInteger(5, 3, 3), 0);
}

TEST_F(LineLookupsTest, PlayerTwiceInOneGroupCountsTwice)
{
    for (Lines* lines : {&pro, &farm}) {
        lines->PKDefense(1, 1) = 7;
        lines->PKDefense(1, 2) = 7;
    }
    EXPECT_EQ(PlayOnLineString(5, 7, 3), "PK-1D, PK-1D, ");
    EXPECT_EQ(PlayOnLineInteger(5, 7, 3), 2);
    EXPECT_EQ(PlayOnLineStringFarm(5, 7, 3), "PK-1D, PK-1D, ");
    EXPECT_EQ(PlayOnLineIntegerFarm(5, 7, 3), 2);
}

TEST_F(LineLookupsTest, AllSlotsAreToldInTheirFixedOrder)
{
    const std::string expected =
        "L-1C, L-1LW, L-1RW, L-1D, L-1D, L-2C, L-2LW, L-2RW, L-2D, L-2D, "
        "L-3C, L-3LW, L-3RW, L-3D, L-3D, L-4C, L-4LW, L-4RW, L-4D, L-4D, "
        "PP-1C, PP-1LW, PP-1RW, PP-1D, PP-1D, PP-2C, PP-2LW, PP-2RW, PP-2D, PP-2D, "
        "44-1F, 44-1F, 44-1D, 44-1D, 44-2F, 44-2F, 44-2D, 44-2D, "
        "PK-1F, PK-1F, PK-1D, PK-1D, PK-2F, PK-2F, PK-2D, PK-2D, "
        "PK3-1F, PK3-1D, PK3-1D, PK3-2F, PK3-2D, PK3-2D, "
        "EF-1, ED-1, PS-1, EF-2, ED-2, PS-2, EF-3, ED-3, PS-3, EF-4, ED-4, PS-4, EF-5, ED-5, PS-5, ";
    for (const LineSlot& slot : SkaterSlots) {
        At(pro, slot) = 7;
        At(farm, slot) = 8;
    }
    EXPECT_EQ(PlayOnLineString(5, 7, 3), expected);
    EXPECT_EQ(PlayOnLineInteger(5, 7, 3), 67);
    EXPECT_EQ(PlayOnLineStringFarm(5, 8, 3), expected);
    EXPECT_EQ(PlayOnLineIntegerFarm(5, 8, 3), 67);
}

// Every slot by the name of its field, so that no table can swap two of them unseen.
TEST_F(LineLookupsTest, EachSlotHasItsOwnTag)
{
    const auto expectTag = [&](Int16& slot, const std::string& tag) {
        slot = 7;
        EXPECT_EQ(PlayOnLineString(5, 7, 3), tag);
        EXPECT_EQ(PlayOnLineInteger(5, 7, 3), 1) << tag;
        slot = 0;
    };
    const std::string wing[] = {"C, ", "LW, ", "RW, "};
    for (int n = 1; n <= 4; ++n) {
        const std::string number = std::to_string(n);
        for (int place = 1; place <= 3; ++place)
            expectTag(pro.NormalForward(n, place), "L-" + number + wing[place - 1]);
        for (int place = 1; place <= 2; ++place)
            expectTag(pro.NormalDefense(n, place), "L-" + number + "D, ");
    }
    for (int n = 1; n <= 2; ++n) {
        const std::string number = std::to_string(n);
        for (int place = 1; place <= 3; ++place)
            expectTag(pro.PPForward(n, place), "PP-" + number + wing[place - 1]);
        for (int place = 1; place <= 2; ++place) {
            expectTag(pro.PPDefense(n, place), "PP-" + number + "D, ");
            expectTag(pro.FourVsFourForward(n, place), "44-" + number + "F, ");
            expectTag(pro.FourVsFourDefense(n, place), "44-" + number + "D, ");
            expectTag(pro.PKForward(n, place), "PK-" + number + "F, ");
            expectTag(pro.PKDefense(n, place), "PK-" + number + "D, ");
            expectTag(pro.PK3Defense(n, place), "PK3-" + number + "D, ");
        }
        expectTag(pro.PK3Forward[n], "PK3-" + number + "F, ");
    }
    for (int n = 1; n <= 5; ++n) {
        expectTag(pro.ExtraForward[n], "EF-" + std::to_string(n) + ", ");
        expectTag(pro.ExtraDefense[n], "ED-" + std::to_string(n) + ", ");
        expectTag(pro.PenaltyShot[n], "PS-" + std::to_string(n) + ", ");
    }
}

TEST_F(LineLookupsTest, OtherDaysSidesAndTeamsAreNotSearched)
{
    pro.NormalForward(1, 1) = 7;
    EXPECT_EQ(PlayOnLineInteger(5, 7, 2), 0);
    EXPECT_EQ(PlayOnLineInteger(4, 7, 3), 0);
    EXPECT_EQ(PlayOnLineIntegerFarm(5, 7, 3), 0);
    farm.NormalForward(1, 1) = 8;
    EXPECT_EQ(PlayOnLineInteger(5, 8, 3), 0);
    EXPECT_EQ(PlayOnLineIntegerFarm(5, 8, 3), 1);
}

TEST_F(LineLookupsTest, TeamOrDayOutsideItsRangeFailsWithNumber9)
{
    const int wrong[][2] = {{0, 1}, {101, 1}, {1, 0}, {1, 11}};
    for (const auto& [team, day] : wrong) {
        EXPECT_EQ(NumberThrownBy([&] { (void)PlayOnLineString(team, 7, day); }), failure::OutOfRange);
        EXPECT_EQ(NumberThrownBy([&] { (void)PlayOnLineStringFarm(team, 7, day); }), failure::OutOfRange);
        EXPECT_EQ(NumberThrownBy([&] { (void)PlayOnLineInteger(team, 7, day); }), failure::OutOfRange);
        EXPECT_EQ(NumberThrownBy([&] { (void)PlayOnLineIntegerFarm(team, 7, day); }), failure::OutOfRange);
    }
    EXPECT_TRUE(Machine.Boxes().empty());
}

TEST_F(LineLookupsTest, CountIsAlwaysTheNumberOfTagsAndNothingChanges)
{
    Dice dice(51);
    for (int round = 0; round < 300; ++round) {
        RollLeague(dice, {.Teams = 2, .Skaters = 12, .Goalies = 4, .Coaches = 1});
        const auto before = ImageOf(Teams);
        for (int player = 1; player <= 12; ++player) {
            const auto day = static_cast<int>(dice.Roll(1, 10));
            const std::string tags = PlayOnLineString(2, player, day);
            ASSERT_EQ(PlayOnLineInteger(2, player, day), std::count(tags.begin(), tags.end(), ','));
            const std::string farmTags = PlayOnLineStringFarm(2, player, day);
            ASSERT_EQ(PlayOnLineIntegerFarm(2, player, day), std::count(farmTags.begin(), farmTags.end(), ','));
        }
        ASSERT_EQ(ImageOf(Teams), before);
    }
}

} // namespace
} // namespace dravik
