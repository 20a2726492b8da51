#include "rules/Waivers.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WaiversTest : public SmallLeague {
protected:
    WaiversTest()
    {
        LeagueData.WaiverAllowed = true;
        LeagueData.WaiverExemptAge = 24;
        LeagueData.WaiverMinGames = 40;
        player.ProGames = 40;
        player.Age = 25;
        goalie.ProGames = 40;
        goalie.Age = 25;
    }

    Player& player = PutSkater(7, 5, position::Defense, status::Pro, 60);
    Goalie& goalie = PutGoalie(7, 5, status::Pro, 60);
};

TEST_F(WaiversTest, ExemptAgeNeedsNoWaiversAndAYearMoreDoes)
{
    player.Age = 24;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
    player.Age = 25;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
}

TEST_F(WaiversTest, GamesEqualToTheMinimumNeedWaiversAndOneLessDoesNot)
{
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
    player.ProGames = 39;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
}

TEST_F(WaiversTest, WhoIsTooGoodForTheFarmNeedsNoWaivers)
{
    LeagueData.FarmMaxOverall = 60;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
    LeagueData.FarmMaxOverall = 59;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
}

TEST_F(WaiversTest, LeagueWithoutWaiversNeedsNone)
{
    LeagueData.WaiverAllowed = false;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
    LeagueData.WaiverAllowed.SetWord(1);
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
}

TEST_F(WaiversTest, TradeDeadlineInForceNeedsNoWaivers)
{
    LeagueData.TradeDeadlineInForce = true;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
    LeagueData.TradeDeadlineInForce.SetWord(1);
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
}

TEST_F(WaiversTest, GoalieIsHisIndexAnd10000)
{
    player.ProGames = 0;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 10007));
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
    goalie.ProGames = 39;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 10007));
    goalie.ProGames = 40;
    goalie.Age = 24;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 10007));
    goalie.Age = 25;
    LeagueData.FarmMaxOverall = 59;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 10007));
}

TEST_F(WaiversTest, Number10000IsAPlayerAnd10001IsTheFirstGoalie)
{
    Player& last = PutSkater(10000, 5, position::Center, status::Pro);
    last.ProGames = 40;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 10000));
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 10001));
    PutGoalie(1, 5, status::Pro).ProGames = 40;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 10001));
}

TEST_F(WaiversTest, SkaterIsRatedAtHisOwnPosition)
{
    for (Int16& rating : player.Stats)
        rating = 0;
    player.Stats[skater::DF] = 100; // 10 for a forward, 16 for this defenseman, the league's weights aside
    LeagueData.FarmMaxOverall = 15;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
    player.Position = position::Center;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
}

TEST_F(WaiversTest, PersonWithoutAPositionIsToldAndRated0)
{
    player.Position = 0;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
}

TEST_F(WaiversTest, NumberOutsideTheTablesIsAFailure)
{
    for (const int id : {-1, 11001, 32767}) {
        EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, id));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in WaiverCheck!"}));
    }
}

TEST_F(WaiversTest, RandomPeopleAgreeWithTheFivePlainConditionsAndNothingChanges)
{
    Dice dice(71);
    for (int round = 0; round < 500; ++round) {
        RollLeague(dice, {.Teams = 1, .Skaters = 40, .Goalies = 10, .Coaches = 0});
        for (int index = 1; index <= 40; ++index)
            Players[index].Position = dice.Roll(1, 4);
        const auto before = ImageOf(Players);
        const auto expected = [](const auto& person, int overall) {
            return LeagueData.WaiverAllowed.Word() == -1 && LeagueData.TradeDeadlineInForce.Word() != -1 &&
                   !(person.ProGames < LeagueData.WaiverMinGames) && !(person.Age <= LeagueData.WaiverExemptAge) &&
                   !(overall > LeagueData.FarmMaxOverall);
        };
        for (int index = 1; index <= 40; ++index) {
            const int overall = CalculateOverall(static_cast<int>(Players[index].Position), index);
            ASSERT_EQ(WaiverCheck(OpenLeague, Machine, index), expected(Players[index], overall));
        }
        for (int index = 1; index <= 10; ++index)
            ASSERT_EQ(WaiverCheck(OpenLeague, Machine, GoalieOffset + index),
                      expected(Goalies[index], CalculateOverall(position::Goalie, index)));
        ASSERT_EQ(ImageOf(Players), before);
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(WaiversTest, TheDeadlineHasPassedForGoodWhereItIsPassedAndInForce)
{
    for (const int passed : {0, -1, 1}) {
        for (const int inForce : {0, -1, 1}) {
            LeagueData.TradeDeadlinePassed.SetWord(passed);
            LeagueData.TradeDeadlineInForce.SetWord(inForce);
            EXPECT_EQ(DeadlineHasPassed(LeagueData), passed == -1 && inForce == -1) << passed << ' ' << inForce;
        }
    }
}

TEST_F(WaiversTest, ADeadlineThatHasPassedAndIsNotInForceStillNeedsWaivers)
{
    LeagueData.TradeDeadlinePassed = true;
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 7));
    EXPECT_TRUE(WaiverCheck(OpenLeague, Machine, 10007));
    LeagueData.TradeDeadlinePassed = false;
    LeagueData.TradeDeadlineInForce = true;
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 7));
    EXPECT_FALSE(WaiverCheck(OpenLeague, Machine, 10007));
}

TEST_F(WaiversTest, ASkaterOnWaiversIsSuspendedFor99Games)
{
    PutSkater(1, 5, position::Center, status::Pro);
    PutSkater(10000, 5, position::Defense, status::Farm);
    MarkWaived(OpenLeague, Machine, 5, 1);
    MarkWaived(OpenLeague, Machine, 5, 10000);
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_EQ(Players[10000].Suspension, 99);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(WaiversTest, AGoalieOnWaiversIsKnownByHisIndexAnd10000)
{
    PutGoalie(1, 5, status::Pro);
    PutGoalie(1000, 5, status::Pro);
    MarkWaived(OpenLeague, Machine, 100, 10001);
    MarkWaived(OpenLeague, Machine, 1, 11000);
    EXPECT_EQ(Goalies[1].Suspension, 99);
    EXPECT_EQ(Goalies[1000].Suspension, 99);
    EXPECT_EQ(Players[1].Suspension, 0);
    EXPECT_EQ(Players[1000].Suspension, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(WaiversTest, ASkatersNumberMarksNoGoalie)
{
    MarkWaived(OpenLeague, Machine, 5, 7);
    EXPECT_EQ(Goalies[7].Suspension, 0);
}

TEST_F(WaiversTest, OnlyTheSuspensionOfAWaivedPersonChanges)
{
    Player& skater = PutSkater(7, 5, position::Center, status::Pro);
    Player expected = skater;
    expected.Suspension = 99;
    MarkWaived(OpenLeague, Machine, 5, 7);
    EXPECT_EQ(std::memcmp(&skater, &expected, sizeof skater), 0);
}

TEST_F(WaiversTest, TheTeamOfAWaivedPersonIsNotCompared)
{
    PutSkater(7, 5, position::Center, status::Pro);
    MarkWaived(OpenLeague, Machine, 6, 7);
    EXPECT_EQ(Players[7].Suspension, 99);
}

TEST_F(WaiversTest, ANumberOutOfRangeFailsTheIntegrityCheckAndMarksNobody)
{
    struct Call {
        int Team;
        int Id;
    };
    const Call calls[] = {{0, 7}, {101, 7}, {-1, 7}, {5, 0}, {5, -1}, {5, 11001}, {0, 0}};
    for (const Call& call : calls) {
        MarkWaived(OpenLeague, Machine, call.Team, call.Id);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}))
            << call.Team << " " << call.Id;
    }
    EXPECT_EQ(Players[7].Suspension, 0);
    EXPECT_EQ(Players[0].Suspension, 0);
    EXPECT_EQ(Goalies[0].Suspension, 0);
}

TEST_F(WaiversTest, TheDeadlineIsInForceOnlyWhenTheWordIsTrue)
{
    EXPECT_FALSE(IsDeadlineInForce(LeagueData));
    LeagueData.TradeDeadlineInForce = true;
    EXPECT_TRUE(IsDeadlineInForce(LeagueData));
    LeagueData.TradeDeadlineInForce.SetWord(1);
    EXPECT_FALSE(IsDeadlineInForce(LeagueData));
    LeagueData.TradeDeadlineInForce = false;
    LeagueData.TradeDeadlinePassed = true;
    EXPECT_FALSE(IsDeadlineInForce(LeagueData));
}

} // namespace
} // namespace dravik
