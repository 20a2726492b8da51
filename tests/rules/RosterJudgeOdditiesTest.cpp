#include "rules/RosterTexts.h"
#include "support/LeagueImage.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <string>
#include <vector>

// The roster judge on records that no league should hold, and where it stops in the middle.
namespace dravik {
namespace {

using ::testing::ElementsAre;

// A complete team 5: skaters 1 to 18 and goalies 1 and 2, all dressed; its farm is empty.
class RosterJudgeOdditiesTest : public SmallLeague {
protected:
    TeamMaker team = TeamMaker(5).DressesFullRoster();
};

// ---- Flags that are neither True nor False -------------------------------------------------------------------------

TEST_F(RosterJudgeOdditiesTest, OnlyTheWordMinus1RequiresFarmRosters)
{
    LeagueData.FarmEnabled = true;
    LeagueData.FarmRosterRequired.SetWord(1);
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_EQ(LastRosterText(), "");
}

TEST_F(RosterJudgeOdditiesTest, OnlyTheWordMinus1EnablesTheFarmThatIsRequired)
{
    LeagueData.FarmEnabled.SetWord(1);
    LeagueData.FarmRosterRequired = true;
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_EQ(LastRosterText(), "");
}

// ---- A skater in the position of a goalie --------------------------------------------------------------------------

TEST_F(RosterJudgeOdditiesTest, ADressedSkaterInAGoaliesPositionIsNoGoalie)
{
    Goalies[2].InUse = false;
    team.Dresses(1, position::Goalie);
    EXPECT_FALSE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Skater 19 has no position!"}));
    EXPECT_EQ(LastRosterText(),
              RosterError("Team 5", {"Not enough Goalie available in Pro Team! 1 Dressed. 2 Required."}));
    EXPECT_EQ(Players[19].Status, status::Pro);
}

TEST_F(RosterJudgeOdditiesTest, AFarmSkaterInAGoaliesPositionIsRatedAsTheGoalieOfHisIndexAndCountsForNothing)
{
    team.Farms(1, position::Goalie, 99);
    PutGoalie(19, 6, status::Pro, 70); // the most that the farm takes
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Skater 19 has no position!"}));
    EXPECT_EQ(LastRosterText(), "");

    PutGoalie(19, 6, status::Pro, 71);
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Skater 19 has no position!"}));
    EXPECT_EQ(LastRosterText(), RosterError("Team 5", {"Skater 19 overall is too high to be in farm!"}));
    EXPECT_EQ(Players[19].Status, status::Farm);
}

TEST_F(RosterJudgeOdditiesTest, AFarmSkaterInAGoaliesPositionIsNoFarmGoalie)
{
    LeagueData.FarmRosterRequired = true;
    team.FarmsFullRoster();
    Goalies[4].InUse = false;
    team.Farms(1, position::Goalie);
    EXPECT_FALSE(CheckRoster(5, false, false, false));
    EXPECT_EQ(LastRosterText(),
              RosterError("Team 5", {"Not enough Goalie available in Pro and Farm Team! 3 Dressed. 4 Required."}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Skater 37 has no position!"}));
}

// ---- Failures ------------------------------------------------------------------------------------------------------

TEST_F(RosterJudgeOdditiesTest, APayrollThatFailsIsToldOnceAndLeavesTheRosterItsOwnResult)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.MaxSalary = 2147483647;
    Players[1].Salary = 2147483647;
    Players[2].Salary = 2147483647;
    EXPECT_TRUE(CheckRoster(5, false, true, true)); // the cap was judged True before it failed
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));

    LeagueData.RequiredCenters = 5;
    EXPECT_FALSE(CheckRoster(5, false, true, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));
}

TEST_F(RosterJudgeOdditiesTest, APayrollThatFailsBehindItsResultFailsTheRosterToo)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = -2147483648;
    EXPECT_FALSE(CheckRoster(5, false, true, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));
}

TEST_F(RosterJudgeOdditiesTest, AnOverflowOfTheFarmsRequirementKeepsTheMovesAndShowsNoText)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredDefensemen = 16384;
    LeagueData.SalaryCapMode = 1; // not judged any more
    Players[1].Condition = 0;
    Teams[5].ProLines[1].NormalForward(1, 1) = 1;
    EXPECT_FALSE(CheckRoster(5, false, true, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckRoster!"}));
    EXPECT_EQ(Players[1].Status, status::Scratch);
    EXPECT_EQ(RosterChanges[1].Status, status::Scratch);
    EXPECT_EQ(Teams[5].ProLines[1].NormalForward(1, 1), 0);
    EXPECT_EQ(RosterFixed, 1);
}

TEST_F(RosterJudgeOdditiesTest, AnOverflowOfTheFarmsRequirementLeavesACompleteRosterTrueAlthoughSomebodyMoved)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredCenters = -16385;
    team.Dresses(1, position::Center);
    Players[19].Condition = 0;
    EXPECT_TRUE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckRoster!"}));
    EXPECT_EQ(Players[19].Status, status::Scratch);
    EXPECT_EQ(RosterFixed, 1);
}

// ---- Teams at and beyond both ends --------------------------------------------------------------------------

TEST_F(RosterJudgeOdditiesTest, ARefusedTeamLeavesEveryByteOfTheTables)
{
    PutSkater(900, 0, position::Center, status::Pro).Condition = 50;
    PutSkater(901, 101, position::Center, status::Pro).Condition = 50;
    const auto tables = [] {
        return std::vector{FiveTables(), ImageOf(LeagueData), ImageOf(Coaches), ImageOf(RosterChanges),
                           ImageOf(RosterChangesGoalie)};
    };
    const auto before = tables();
    for (const int team : {-1, 0, 101})
        for (const bool withSalaryCap : {false, true}) {
            EXPECT_FALSE(CheckRoster(team, false, withSalaryCap, true)) << team;
            EXPECT_TRUE(tables() == before) << team;
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"})) << team;
        }
}

TEST_F(RosterJudgeOdditiesTest, TheLastTeamIsJudgedLikeAnyOther)
{
    TeamMaker last(100);
    last.DressesFullRoster();
    EXPECT_TRUE(CheckRoster(100, false, true, true));
    EXPECT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty());
    Players[last.Skaters[0]].Condition = 50;
    LeagueData.RequiredCenters = 0;
    EXPECT_FALSE(CheckRoster(100, false, false, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, LastRosterText()}));
    EXPECT_EQ(Players[last.Skaters[0]].Status, 1);
    EXPECT_EQ(RosterFixed, 1);
}

} // namespace
} // namespace dravik
