#include "rules/RosterTexts.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

// What the judges still show while the program allows no messages: only what nobody has to ask for.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A complete team 5, dressed and on the farm, with perfect lines on day 1.
class AllowedReportsTest : public SmallLeague {
protected:
    AllowedReportsTest() : team(5)
    {
        team.DressesFullRoster();
        FillDay(Teams[5].ProLines[1], team);
        Machine.MessagesAllowed = false;
    }

    TeamMaker team;
};

TEST_F(AllowedReportsTest, AReportNeedsBothTheRequestAndThePermission)
{
    EXPECT_FALSE(Machine.MayReport(true));
    EXPECT_FALSE(Machine.MayReport(false));
    Machine.MessagesAllowed = true;
    EXPECT_TRUE(Machine.MayReport(true));
    EXPECT_FALSE(Machine.MayReport(false));
}

TEST_F(AllowedReportsTest, TheRosterJudgeKeepsItsTextToItself)
{
    Players[1].Condition = 0;
    EXPECT_FALSE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(LastRosterText(),
              RosterError("Team 5",
                          {"Skater 1" + NotFit, "Not enough players available in Pro Team! 17 Dressed. 18 Required."}));
    EXPECT_EQ(RosterFixed, 1);
}

TEST_F(AllowedReportsTest, TheSalaryCapIsJudgedWithoutAWord)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    LeagueData.MinSalaryCap = 2147483647;
    LeagueData.FarmSalaryCap = 1;
    team.Farms(1, position::Center);
    EXPECT_FALSE(CheckSalaryCap(5, true));
    EXPECT_FALSE(CheckRoster(5, false, true, true));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, TheLineJudgeKeepsItsTextToItself)
{
    EXPECT_TRUE(CheckLine(5, true, 1, false));
    EXPECT_EQ(LastLinesText(), "Lines are perfect!");
    Teams[5].ProLines[1].StartGoalie = 0;
    EXPECT_FALSE(CheckLine(5, true, 1, false));
    EXPECT_EQ(LastLinesText(), Told({"Starting Goaler is empty.", "Some errors will be automatically fixed."}));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, TheFarmLineJudgeKeepsItsTextToItselfInBothDegrees)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        Teams[5].Farm.FarmLines[1].StartGoalie = 1; // a dressed goalie
        EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
        EXPECT_NE(LastLinesText().find("Goalie 1 is not on farm roster for this team.\r\n"), std::string::npos);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, ATeamOutOfRangeIsToldAllTheSame)
{
    EXPECT_FALSE(CheckRoster(0, false, false, false));
    EXPECT_FALSE(CheckSalaryCap(0, false));
    EXPECT_FALSE(CheckLine(0, false, 1, false));
    EXPECT_FALSE(CheckLineFarm(0, false, 1, false));
    EXPECT_EQ(Machine.Boxes(), std::vector<Box>(4, {box::Critical, "Integrity Check Failed!"}));
}

TEST_F(AllowedReportsTest, APlayerWithoutPositionIsToldAllTheSame)
{
    Players[1].Position = 0;
    EXPECT_FALSE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Skater 1 has no position!"}));
}

TEST_F(AllowedReportsTest, AFailureIsToldAllTheSame)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredCenters = 16384;
    EXPECT_FALSE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckRoster!"}));
}

} // namespace
} // namespace dravik
