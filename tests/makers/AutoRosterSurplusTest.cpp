#include "makers/AutoRosterTeam.h"
#include "support/LineFindings.h"
#include "support/Routines.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AutoRosterSurplusTest : public AutoRosterTest {};

// ---- Sending skaters down ------------------------------------------------------------------------------------------

TEST_F(AutoRosterSurplusTest, AScratchAboveTheFarmsOverallStaysAScratch)
{
    LeagueData.FarmMaxOverall = 49;
    PutSkater(19, 5, position::Center, status::Scratch, 50);
    PutSkater(20, 5, position::Center, status::Scratch, 49);
    PutOnLines(20);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(RosterChanges[19].Status, Untouched);
    EXPECT_EQ(Players[20].Status, 0);
    EXPECT_EQ(RosterChanges[20].Status, 0);
    EXPECT_FALSE(IsOnLines(20));
}

TEST_F(AutoRosterSurplusTest, AScratchWhoNeedsWaiversStaysAScratch)
{
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverMinGames = 10;
    LeagueData.WaiverExemptAge = 24;
    PutSkater(19, 5, position::Center, status::Scratch, 50).ProGames = 10;
    PutSkater(20, 5, position::Center, status::Scratch, 50).ProGames = 9;
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(Players[20].Status, 0);
}

TEST_F(AutoRosterSurplusTest, AGoalieIsAskedForWaiversAsAGoalie)
{
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverMinGames = 10;
    LeagueData.WaiverExemptAge = 24;
    PutGoalie(3, 5, status::Scratch, 50).ProGames = 10;
    PutGoalie(4, 5, status::Scratch, 50).ProGames = 9;
    Players[4].ProGames = 10;
    Run();
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(Goalies[4].Status, 0);
}

TEST_F(AutoRosterSurplusTest, AScratchAboveTheFarmsSalaryStaysAScratch)
{
    LeagueData.FarmMaxSalary = 1000000;
    PutSkater(19, 5, position::Center, status::Scratch, 50).Salary = 1000001;
    PutSkater(20, 5, position::Center, status::Scratch, 50).Salary = 1000000;
    Run();
    EXPECT_EQ(Players[19].Status, 1);
    EXPECT_EQ(Players[20].Status, 0);
}

TEST_F(AutoRosterSurplusTest, FarmMaxSalaryZeroSendsHighSalariesDown)
{
    for (const int limit : {0, -5}) {
        LeagueData.FarmMaxSalary = limit;
        PutSkater(19, 5, position::Center, status::Scratch, 50).Salary = 9000000;
        Run();
        EXPECT_EQ(Players[19].Status, 0) << limit;
    }
}

TEST_F(AutoRosterSurplusTest, StuckScratchesAreToldEvenByASilentCall)
{
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 19;
    Five.Scratches(2, position::Center, 50);
    EXPECT_THAT(Run(false), ElementsAre(TooManyScratches));
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Run(true), ElementsAre(TooManyScratches, Success));
}

TEST_F(AutoRosterSurplusTest, StuckScratchesUpToTheMaximumAreNotTold)
{
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 20;
    Five.Scratches(2, position::Center, 50);
    EXPECT_THAT(Run(), ElementsAre(Success));
}

TEST_F(AutoRosterSurplusTest, SkatersAndGoaliesWhoAreStuckCountTogether)
{
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 19;
    Five.Scratches(1, position::Center, 50).ScratchesGoalies(1, 50);
    EXPECT_THAT(Run(), ElementsAre(TooManyScratches, Success));
}

TEST_F(AutoRosterSurplusTest, SalaryStuckScratchesCountToo)
{
    LeagueData.MaxProPlayers = 18;
    LeagueData.FarmMaxSalary = 999999;
    Five.Scratches(1, position::Center, 50);
    EXPECT_THAT(Run(), ElementsAre(TooManyScratches, Success));
}

TEST_F(AutoRosterSurplusTest, AfterTheDeadlineSurplusPlayersStayScratchesWithoutAWarning)
{
    LeagueData.TradeDeadlinePassed = true;
    LeagueData.TradeDeadlineInForce = true;
    LeagueData.FarmMaxOverall = 49;
    LeagueData.MaxProPlayers = 18;
    Five.Scratches(2, position::Center, 40).Dresses(1, position::Center, 41);
    Five.ScratchesGoalies(1, 40);
    EXPECT_THAT(Run(), ElementsAre(Success));
    for (int id = 19; id <= 21; ++id)
        EXPECT_EQ(Players[id].Status, 1) << id;
    EXPECT_EQ(Goalies[3].Status, 1);
}

TEST_F(AutoRosterSurplusTest, OneHalfOfTheDeadlineHoldsNobodyBack)
{
    LeagueData.TradeDeadlinePassed = true;
    PutSkater(19, 5, position::Center, status::Scratch, 40);
    PutGoalie(3, 5, status::Scratch, 40);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);

    LeagueData.TradeDeadlinePassed = false;
    LeagueData.TradeDeadlineInForce = true;
    PutSkater(19, 5, position::Center, status::Scratch, 40);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
}

TEST_F(AutoRosterSurplusTest, OnlyTheWordMinus1IsADeadline)
{
    LeagueData.TradeDeadlinePassed.SetWord(1);
    LeagueData.TradeDeadlineInForce = true;
    PutSkater(19, 5, position::Center, status::Scratch, 40);
    PutGoalie(3, 5, status::Scratch, 40);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);

    LeagueData.TradeDeadlinePassed = true;
    LeagueData.TradeDeadlineInForce.SetWord(1);
    PutSkater(19, 5, position::Center, status::Scratch, 40);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
}

// ---- Goalies -------------------------------------------------------------------------------------------------------

TEST_F(AutoRosterSurplusTest, WithoutUsableGoaliesTheSkatersAreRebuiltAndTheOldGoaliesStay)
{
    Goalies[1].Contract = 0;
    Goalies[2].Contract = 0;
    PutSkater(19, 5, position::RightWing, status::Farm, 90);
    EXPECT_THAT(Run(), ElementsAre(Box{48, "Not Enough G available!"}));
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Run(false), IsEmpty());
}

TEST_F(AutoRosterSurplusTest, TheTwoBestGoaliesAreDressed)
{
    LeagueData.FarmMaxOverall = 99;
    PutGoalie(3, 5, status::Farm, 90);
    PutGoalie(4, 5, status::Scratch, 80);
    PutGoalieOnLines(1);
    Run();
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 2);
    EXPECT_EQ(Goalies[4].Status, 2);
    EXPECT_EQ(Goalies[1].Status, 0);
    EXPECT_EQ(Goalies[2].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[1].Status, 0);
    // He lost his slots as he was undressed, before he went down.
    EXPECT_FALSE(IsGoalieOnLines(1));
    EXPECT_EQ(Teams[5].ProLines[3].StartGoalie, 0);
}

TEST_F(AutoRosterSurplusTest, OfEqualGoaliesTheLowerIndexIsDressed)
{
    PutGoalie(3, 5, status::Pro, 60);
    Run();
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
    EXPECT_EQ(Goalies[3].Status, 0);
}

TEST_F(AutoRosterSurplusTest, AGoalieSentDownKeepsHisSlotsInTheLines)
{
    PutGoalie(3, 5, status::Scratch, 50);
    PutGoalieOnLines(3);
    Run();
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 0);
    EXPECT_TRUE(IsGoalieOnLines(3));
}

TEST_F(AutoRosterSurplusTest, AGoalieSentDownIsFoundByTheNextJudgementAndLosesThatDaysSlotOnly)
{
    PutGoalie(3, 5, status::Scratch, 50);
    for (const int day : {1, 2}) {
        FillDay(Teams[5].ProLines[day], Five);
        Teams[5].ProLines[day].StartGoalie = 3;
    }
    Run();
    EXPECT_FALSE(CheckLine(5, false, 1, false));
    EXPECT_EQ(LastLinesText(),
              Told({"Goalie 3 is not on farm roster for this team.", "Some errors will be automatically fixed."}));
    EXPECT_EQ(Teams[5].ProLines[1].StartGoalie, 0);
    EXPECT_EQ(Teams[5].ProLines[1].BackupGoalie, 2);
    EXPECT_EQ(Teams[5].ProLines[2].StartGoalie, 3);
}

TEST_F(AutoRosterSurplusTest, ACalledUpGoalieAndADressedScratchLoseTheirSlots)
{
    for (const int from : {status::Farm, status::Scratch}) {
        PutGoalie(3, 5, from, 90);
        PutGoalieOnLines(3);
        Run();
        EXPECT_EQ(Goalies[3].Status, 2) << from;
        EXPECT_EQ(Teams[5].ProLines[3].StartGoalie, 0) << from;
        EXPECT_EQ(Teams[5].Farm.FarmLines[7].BackupGoalie, 0) << from;
    }
}

TEST_F(AutoRosterSurplusTest, ADressedGoalieWhoStaysKeepsHisSlots)
{
    PutGoalieOnLines(2);
    Run();
    EXPECT_TRUE(IsGoalieOnLines(2));
}

TEST_F(AutoRosterSurplusTest, ASuspendedGoalieIsScratchedEvenFromTheFarm)
{
    PutGoalie(3, 5, status::Farm, 90).Suspension = 1;
    PutGoalieOnLines(3);
    Run();
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 1);
    EXPECT_FALSE(IsGoalieOnLines(3));
}

TEST_F(AutoRosterSurplusTest, AnInjuredGoalieIsScratchedOnlyIfDressed)
{
    PutGoalie(3, 5, status::Farm, 90).Condition = 94;
    PutGoalie(4, 5, status::Pro, 90).Condition = 94;
    Run();
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_EQ(RosterChangesGoalie[3].Status, Untouched);
    EXPECT_EQ(Goalies[4].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[4].Status, 1);
}

TEST_F(AutoRosterSurplusTest, ADressedGoalieWithoutContractKeepsHisStatus)
{
    PutGoalie(3, 5, status::Pro, 90).Contract = 0;
    Run();
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(RosterChangesGoalie[3].Status, Untouched);
}

TEST_F(AutoRosterSurplusTest, GoaliesOfOverallZeroAreDressedAsWell)
{
    for (const int id : {1, 2})
        PutGoalie(id, 5, status::Farm, 0);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_EQ(Goalies[2].Status, 2);
}

TEST_F(AutoRosterSurplusTest, AScratchedGoalieAboveTheFarmsOverallOrSalaryStays)
{
    LeagueData.FarmMaxOverall = 50;
    LeagueData.FarmMaxSalary = 1000000;
    PutGoalie(3, 5, status::Scratch, 51);
    PutGoalie(4, 5, status::Scratch, 50).Salary = 1000001;
    PutGoalie(6, 5, status::Scratch, 50);
    Run();
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(Goalies[4].Status, 1);
    EXPECT_EQ(Goalies[6].Status, 0);
}

} // namespace
} // namespace dravik
