#include "OnRosterScreen.h"

#include "rules/Waivers.h"
#include "support/Routines.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmRosterChangeTest : public OnRosterScreen {
protected:
    bool Move(int from, int to, int id, int position)
    {
        bool done = true;
        Roster().Change(static_cast<status::Number>(from), static_cast<status::Number>(to), id, position, done);
        return done;
    }
};

TEST_F(frmRosterChangeTest, ChangeRefusesAPositionThatIsNone)
{
    PutSkater(1, 5, position::Center, status::Pro);
    for (const int position : {0, 6}) {
        EXPECT_FALSE(Move(2, 1, 1, position));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Unable to extract position information!"}));
    }
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterChangeTest, ChangeTellsASkaterOfInjuryThenSuspensionThenContractThenSalary)
{
    LeagueData.FarmMaxSalary = 999999;
    Player& player = PutSkater(1, 5, position::Center, status::Scratch);
    player.Condition = 94;
    player.Suspension = 3;
    player.Contract = 0;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Injured Player!"}));
    player.Condition = 95;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Suspended Player!"}));
    player.Suspension = 0;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Player without a contract can not be move!"}));
    player.Contract = 1;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Player Salary is too high to be send in the Farm!"}));
    player.Salary = 999999;
    EXPECT_TRUE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(frmRosterChangeTest, ChangeTellsAGoalieTheSameButCallsASuspendedOnePlayer)
{
    LeagueData.FarmMaxSalary = 999999;
    Goalie& keeper = PutGoalie(1, 5, status::Scratch);
    keeper.Condition = 94;
    keeper.Suspension = 3;
    keeper.Contract = 0;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Injured Goalie!"}));
    keeper.Condition = 95;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Suspended Player!"}));
    keeper.Suspension = 0;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Goalie without a contract can not be move!"}));
    keeper.Contract = 1;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Goalie Salary is too high to be send in the Farm!"}));
    keeper.Salary = 999999;
    EXPECT_TRUE(Move(1, 0, 1, 5));
    EXPECT_EQ(Goalies[1].Status, 0);
}

TEST_F(frmRosterChangeTest, ChangeTestsTheSalaryOnTheWayToTheFarmOnlyAndNotAtALimitOfZero)
{
    PutSkater(1, 5, position::Center, status::Scratch).Salary = 9000000;
    LeagueData.FarmMaxSalary = 999999;
    EXPECT_TRUE(Move(1, 2, 1, 1));
    LeagueData.FarmMaxSalary = 0;
    EXPECT_TRUE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmRosterChangeTest, ASkaterWhoNeedsWaiversIsAskedAboutAndPlacedOnThem)
{
    LeagueData.WaiverAllowed = true;
    PutSkater(1, 5, position::Center, status::Scratch);
    Roster();
    Machine.Answer(button::No);
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Do you want to send this player to waiver?"}));
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_EQ(Players[1].Suspension, 0);
    EXPECT_FALSE(Modified);
    Machine.Answer(button::Yes);
    EXPECT_TRUE(Move(1, 0, 1, 1));
    EXPECT_EQ(Players[1].Status, 0);
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Do you want to send this player to waiver?"}));
}

TEST_F(frmRosterChangeTest, AGoalieWhoNeedsWaiversIsAskedAboutAndGoesDownWithoutThem)
{
    LeagueData.WaiverAllowed = true;
    PutGoalie(1, 5, status::Scratch);
    Roster();
    Machine.Answer(button::No);
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Do you want to send this goalie to waiver?"}));
    EXPECT_EQ(Goalies[1].Status, 1);
    Machine.Answer(button::Yes);
    EXPECT_TRUE(Move(1, 0, 1, 5));
    EXPECT_EQ(Goalies[1].Status, 0);
    EXPECT_EQ(Goalies[1].Suspension, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Do you want to send this goalie to waiver?"}));
}

TEST_F(frmRosterChangeTest, ChangeTakesThePersonOffTheLinesAndWritesStatusAndChanges)
{
    const TeamMaker made = CompleteTeam(5);
    const int center = made.Skaters[0];
    const int keeper = made.GoalieIds[0];
    ASSERT_GT(PlayOnLineInteger(5, center, 1), 0);
    ASSERT_EQ(Own().ProLines[1].StartGoalie, keeper);
    EXPECT_TRUE(Move(2, 1, center, 1));
    EXPECT_TRUE(Move(2, 1, keeper, 5));
    EXPECT_EQ(PlayOnLineInteger(5, center, 1), 0);
    EXPECT_EQ(Own().ProLines[1].StartGoalie, 0);
    EXPECT_EQ(Players[center].Status, 1);
    EXPECT_EQ(RosterChanges[center].Status, 1);
    EXPECT_EQ(Goalies[keeper].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[keeper].Status, 1);
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterChangeTest, ChangeKeepsTheCountersAndTheFourthOneOnlyByTheFarm)
{
    PutSkater(1, 5, position::Center, status::Pro);
    Roster();
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 1, 1));
    Move(2, 1, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(0, 1, 0, 1));
    Move(1, 0, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(1, 0, 0, 0));
    Move(0, 1, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(0, 1, 0, 1));
    Move(1, 2, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 1, 1));
    Move(2, 0, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(1, 0, 0, 0));
    Move(0, 2, 1, 1); // no command does this; the fourth entry would not hear of it
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 1, 0));
}

TEST_F(frmRosterChangeTest, ChangeShowsTheVerdictWithoutThePayrollAndHidesTheDetails)
{
    const TeamMaker made = CompleteTeam(5);
    PutSkater(900, 5, position::Center, status::Scratch);
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    LeagueData.ProDressedSkaters = 19;
    Roster({Box{48, "Team 5 is over the salary cap by $20,999,999.00!"}});
    ClickEntry(1, 0);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_TRUE(Move(1, 2, 900, 1));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "");
    EXPECT_FALSE(IsShown(Roster().Stats->lblStat[1]));
    EXPECT_FALSE(Roster().cmdToPro->isEnabled());
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(Move(2, 1, made.Skaters[0], 1));
    EXPECT_TRUE(Move(2, 1, made.Skaters[1], 2));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "Not enough players available in Pro Team! 17 Dressed. 18 Required.");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmRosterChangeTest, ABrokenChangeIsToldUnderItsName)
{
    EXPECT_FALSE(Move(2, 1, 10001, 1));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Change!"}));
}

TEST_F(frmRosterChangeTest, ASalaryTooHighForTheFarmIsToldBeforeAnythingIsAskedAboutWaivers)
{
    LeagueData.FarmMaxSalary = 999999;
    LeagueData.WaiverAllowed = true;
    Player& player = PutSkater(1, 5, position::Center, status::Scratch);
    Goalie& keeper = PutGoalie(1, 5, status::Scratch);
    player.Age = 40;
    keeper.Age = 40;
    ASSERT_TRUE(WaiverCheck(OpenLeague, Machine, 1));
    ASSERT_TRUE(WaiverCheck(OpenLeague, Machine, 10001));
    EXPECT_FALSE(Move(1, 0, 1, position::Center));
    EXPECT_FALSE(Move(1, 0, 1, position::Goalie));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Player Salary is too high to be send in the Farm!"},
                                             Box{48, "Goalie Salary is too high to be send in the Farm!"}));
    EXPECT_EQ(player.Suspension, 0);
}

TEST_F(frmRosterChangeTest, AGoalieWhoMovesLeavesTheSlotsAndTheOfficeOfTheSkaterOfHisNumber)
{
    PutSkater(7, 5, position::Center, status::Pro);
    PutGoalie(7, 5, status::Pro);
    Own().Captain = 7;
    Lines& day = Own().ProLines[2];
    day.NormalForward(1, 1) = 7;
    day.PenaltyShot[1] = 7;
    day.StartGoalie = 7;
    EXPECT_TRUE(Move(2, 1, 7, position::Goalie));
    EXPECT_EQ(day.NormalForward(1, 1), 7);
    EXPECT_EQ(day.PenaltyShot[1], 7);
    EXPECT_EQ(day.StartGoalie, 0);
    EXPECT_EQ(Own().Captain, 7);
    EXPECT_EQ(Players[7].Status, 2);
}

TEST_F(frmRosterChangeTest, ASkaterWhoMovesLeavesTheGoalieOfHisNumberInHisSlots)
{
    PutSkater(7, 5, position::Center, status::Pro);
    PutGoalie(7, 5, status::Pro);
    Lines& day = Own().ProLines[2];
    day.NormalForward(1, 1) = 7;
    day.StartGoalie = 7;
    EXPECT_TRUE(Move(2, 1, 7, position::Center));
    EXPECT_EQ(day.NormalForward(1, 1), 0);
    EXPECT_EQ(day.StartGoalie, 7);
    EXPECT_EQ(Goalies[7].Status, 2);
}

TEST_F(frmRosterChangeTest, AMoveCostsTheCaptainAndAnAssistantTheirOffice)
{
    PutSkaters(2, status::Pro);
    Own().Captain = 1;
    Own().Assistant[2] = 2;
    EXPECT_TRUE(Move(2, 1, 1, position::Center));
    EXPECT_TRUE(Move(2, 1, 2, position::Center));
    EXPECT_EQ(Own().Captain, 0);
    EXPECT_EQ(Own().Assistant[2], 0);
    Roster().ShowPlayer(true);
    EXPECT_EQ(EntryTextAt(1, 0), "Skater 1");
    EXPECT_EQ(EntryTextAt(1, 1), "Skater 2");
}

TEST_F(frmRosterChangeTest, TheEntriesAndTotalsAreUpToTheCaller)
{
    PutSeven();
    const std::vector<Entries> before{Listed(0), Listed(1), Listed(2)};
    ClickEntry(1, 0);
    EXPECT_TRUE(Move(1, 2, 1, position::Center));
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_EQ((std::vector<Entries>{Listed(0), Listed(1), Listed(2)}), before);
    EXPECT_THAT(ChosenRows(1), ElementsAre(0));
    EXPECT_EQ(Of(Roster().lblPlayer[1]), "Scratches Player = 3");
    EXPECT_EQ(Of(Roster().lblPlayer[2]), "Pro Player = 2");
}

} // namespace
} // namespace dravik
