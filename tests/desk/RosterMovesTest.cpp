#include "desk/RosterMoves.h"

#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RosterMovesTest : public SmallLeague {
protected:
    RosterMovesTest()
    {
        const TeamMaker made(5);
        PutSkater(1, 5, position::Center, status::Pro, 60);
        PutGoalie(1, 5, status::Pro, 60);
        LeagueData.WaiverAllowed = false;
    }

    bool Move(PersonId who, status::Number from, status::Number to)
    {
        return MoveOnRoster(OpenWork(), 5, who, from, to, Counts);
    }

    RosterCounts Counts{};
    PersonId Skater{.IsGoalie = false, .Slot = 1};
    PersonId Keeper{.IsGoalie = true, .Slot = 1};
};

TEST_F(RosterMovesTest, HealthIsToldBeforeSuspensionContractAndSalary)
{
    LeagueData.FarmMaxSalary = 1;
    Player& player = Players[1];
    player.Condition = 94;
    player.Suspension = 3;
    player.Contract = 0;
    std::vector<std::string> told;
    const auto tryOnce = [&] {
        EXPECT_FALSE(Move(Skater, status::Pro, status::Farm));
        const std::vector<Box> boxes = Machine.TakeBoxes();
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].Kind, box::Warning);
        told.push_back(boxes[0].Text);
    };
    tryOnce();
    player.Condition = 95;
    tryOnce();
    player.Suspension = 0;
    tryOnce();
    player.Contract = 1;
    tryOnce();
    EXPECT_THAT(told, ElementsAre("Cannot Move an Injured Player!", "Cannot Move an Suspended Player!",
                                  "Player without a contract can not be move!",
                                  "Player Salary is too high to be send in the Farm!"));
}

TEST_F(RosterMovesTest, ASuspendedGoalieIsAPlayerInHisBox)
{
    Goalies[1].Condition = 94;
    EXPECT_FALSE(Move(Keeper, status::Pro, status::Scratch));
    Goalies[1].Condition = 100;
    Goalies[1].Suspension = 3;
    EXPECT_FALSE(Move(Keeper, status::Pro, status::Scratch));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Cannot Move an Injured Goalie!"},
                                                 Box{box::Warning, "Cannot Move an Suspended Player!"}));
}

TEST_F(RosterMovesTest, AMoveIsCountedAndLeavesTheLines)
{
    Teams[5].ProLines[4].NormalForward(1, 1) = 1;
    Counts[2] = 20;
    Counts[1] = 3;
    Counts[3] = 22;
    EXPECT_TRUE(Move(Skater, status::Pro, status::Scratch));
    EXPECT_EQ(Players[1].Status, status::Scratch);
    EXPECT_EQ(RosterChanges[1].Status, status::Scratch);
    EXPECT_EQ(Teams[5].ProLines[4].NormalForward(1, 1), 0);
    EXPECT_EQ(Counts[2], 19);
    EXPECT_EQ(Counts[1], 4);
    EXPECT_EQ(Counts[3], 22);
    EXPECT_TRUE(Modified);
}

TEST_F(RosterMovesTest, TheCountOfFitPeopleFollowsTheFarmAlone)
{
    EXPECT_TRUE(Move(Skater, status::Scratch, status::Farm));
    EXPECT_EQ(Counts[3], -1);
    EXPECT_TRUE(Move(Skater, status::Farm, status::Scratch));
    EXPECT_EQ(Counts[3], 0);
    EXPECT_TRUE(Move(Skater, status::Scratch, status::Pro));
    EXPECT_EQ(Counts[3], 0);
}

TEST_F(RosterMovesTest, ASkaterWhoNeedsWaiversGoesThroughThemAGoalieDoesNot)
{
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverMinGames = 0;
    LeagueData.WaiverExemptAge = 20;
    Players[1].Age = Goalies[1].Age = 30;
    EXPECT_TRUE(Move(Skater, status::Scratch, status::Farm));
    EXPECT_TRUE(Move(Keeper, status::Scratch, status::Farm));
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_EQ(Goalies[1].Suspension, 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::YesNo, "Do you want to send this player to waiver?"},
                                                 Box{box::YesNo, "Do you want to send this goalie to waiver?"}));
}

TEST_F(RosterMovesTest, WhoIsNotSentToWaiversStays)
{
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverExemptAge = 20;
    Players[1].Age = 30;
    Machine.Answer(button::No);
    EXPECT_FALSE(Move(Skater, status::Scratch, status::Farm));
    EXPECT_EQ(Players[1].Status, status::Pro);
    EXPECT_EQ(Players[1].Suspension, 0);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::YesNo, "Do you want to send this player to waiver?"}));
}

TEST_F(RosterMovesTest, TheOverallShownLastAndTheDeadlineKeepOffTheFarm)
{
    LeagueData.FarmMaxOverall = 70;
    EXPECT_EQ(MayGoToFarm(OpenWork(), 70), Permission::Given);
    EXPECT_EQ(MayGoToFarm(OpenWork(), 71), Permission::Refused);
    LeagueData.TradeDeadlinePassed = LeagueData.TradeDeadlineInForce = true;
    EXPECT_EQ(MayGoToFarm(OpenWork(), 71), Permission::Refused);
    EXPECT_EQ(MayGoToFarm(OpenWork(), 70), Permission::Ended);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Player Overall is too high to be sent to farm!"},
                                                 Box{box::Warning, "Player Overall is too high to be sent to farm!"},
                                                 Box{box::Information, "Trade Deadline is Passed!"}));
}

TEST_F(RosterMovesTest, AFullProTeamKeepsEverybodyOnTheFarm)
{
    LeagueData.MaxProPlayers = 3;
    Counts[3] = 2;
    EXPECT_EQ(MayLeaveFarm(OpenWork(), Counts), Permission::Given);
    Counts[3] = 3;
    EXPECT_EQ(MayLeaveFarm(OpenWork(), Counts), Permission::Ended);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Maximum Pro Players Limit Reached!"}));
}

TEST_F(RosterMovesTest, AManOfTheProTeamIsScratchedBeforeHisWaivers)
{
    int asked = 0;
    SendToWaivers(OpenWork(), 5, Skater, [&] {
        ++asked;
        return Move(Skater, status::Pro, status::Scratch);
    });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Players[1].Suspension, 99);
    SendToWaivers(OpenWork(), 5, Skater, [&] { return ++asked == 0; });
    EXPECT_EQ(asked, 1);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Skater 1 was sent to Waiver."},
                                                 Box{box::Information, "Skater 1 was sent to Waiver."}));
}

TEST_F(RosterMovesTest, WhoCannotBeScratchedGoesToWaiversFromWhereHeStands)
{
    SendToWaivers(OpenWork(), 5, Keeper, [] { return false; });
    EXPECT_EQ(Goalies[1].Status, status::Pro);
    EXPECT_EQ(Goalies[1].Suspension, 99);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"},
                                                 Box{box::Information, "Goalie 1 was sent to Waiver."}));
}

TEST_F(RosterMovesTest, BehindTheDeadlineNobodyGoesToWaivers)
{
    LeagueData.TradeDeadlinePassed = LeagueData.TradeDeadlineInForce = true;
    SendToWaivers(OpenWork(), 5, Skater, [] { return false; });
    EXPECT_EQ(Players[1].Suspension, 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Trade Deadline is Passed!"}));
}

TEST_F(RosterMovesTest, WhoIsTooGoodOrTooDearForTheFarmIsKeptOffItInSilence)
{
    LeagueData.FarmMaxOverall = 60;
    LeagueData.FarmMaxSalary = 1000000;
    const auto keepOff = [this](PersonId who) {
        OnPerson(OpenLeague, who, [](auto& person) { person.Status = status::Farm; });
        KeepOffFarm(OpenWork(), who);
        return OnPerson(OpenLeague, who, [](const auto& person) { return person.Status == status::Scratch; });
    };
    for (const PersonId who : {Skater, Keeper}) {
        EXPECT_FALSE(keepOff(who));
        LeagueData.FarmMaxOverall = 59;
        EXPECT_TRUE(keepOff(who));
        LeagueData.FarmMaxOverall = 60;
        LeagueData.FarmMaxSalary = 999999;
        EXPECT_TRUE(keepOff(who));
        LeagueData.FarmMaxSalary = 0;
        EXPECT_FALSE(keepOff(who));
        LeagueData.FarmMaxSalary = 1000000;
    }
    EXPECT_EQ(RosterChanges[1].Status, RosterChange::Untouched);
    EXPECT_EQ(RosterChangesGoalie[1].Status, RosterChange::Untouched);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
