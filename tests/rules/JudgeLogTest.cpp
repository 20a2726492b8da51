#include "rules/Finance.h"
#include "rules/RosterTexts.h"
#include "support/FailingBoxes.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <functional>

// What the judges tell the log, and what their failures are called.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Team 5 dresses a full roster and its farm has one too; its name and its farm's have blanks around them.
class JudgeLogTest : public SmallLeague {
protected:
    JudgeLogTest() : Pro(5), Farm(5)
    {
        Pro.DressesFullRoster();
        Farm.FarmsFullRoster();
        Teams[5].Name = " Team 5 ";
        Teams[5].Farm.Name = " Farm 5 ";
    }

    TeamMaker Pro;
    TeamMaker Farm;
};

TEST_F(JudgeLogTest, ARosterWithErrorsIsLoggedWithTheTextThatTheBoxShowsBehindAnotherHead)
{
    LeagueData.RequiredCenters = 5;
    EXPECT_FALSE(CheckRoster(5, true, false, true));
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"log", "Team 5 roster errors : "
                                        "Not enough Centers available in Pro Team! 4 Dressed. 5 Required.\r\n"
                                        "Some errors will be automatically fixed.\r\n"}));
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Warning, "Team 5 Roster Error : \r\n"
                                              "Not enough Centers available in Pro Team! 4 Dressed. 5 Required.\r\n"
                                              "Some errors will be automatically fixed.\r\n"}));
}

TEST_F(JudgeLogTest, ARosterIsLoggedInASilentCallToo)
{
    LeagueData.RequiredCenters = 5;
    EXPECT_FALSE(CheckRoster(5, true, false, false));
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"log", "Team 5 roster errors : "
                                        "Not enough Centers available in Pro Team! 4 Dressed. 5 Required.\r\n"
                                        "Some errors will be automatically fixed.\r\n"}));
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(JudgeLogTest, ARosterIsNotLoggedUnlessAskedFor)
{
    LeagueData.RequiredCenters = 5;
    EXPECT_FALSE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, LastRosterText()}));
}

TEST_F(JudgeLogTest, ACompleteRosterIsNotLogged)
{
    EXPECT_TRUE(CheckRoster(5, true, true, true));
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(JudgeLogTest, AllThreeWordsOfASilentCapAreLoggedInTheirOrder)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1000000;
    LeagueData.FarmSalaryCap = 500000;
    LeagueData.MinSalaryCap = 30000000;
    EXPECT_FALSE(CheckSalaryCap(5, false));
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"log", "Team 5 is over the salary cap by $19,000,000.00!"},
                            News{"log", "Farm 5 is over the salary cap by $1,500,000.00!"},
                            News{"log", "Team 5 is under the minimum salary cap by $10,000,000.00!"}));
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(JudgeLogTest, ACapThatIsShownIsNotLogged)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1000000;
    EXPECT_FALSE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Warning, "Team 5 is over the salary cap by $19,000,000.00!"}));
}

TEST_F(JudgeLogTest, ACapThatMayNotBeShownIsLogged)
{
    Machine.MessagesAllowed = false;
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1000000;
    EXPECT_FALSE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"log", "Team 5 is over the salary cap by $19,000,000.00!"}));
}

TEST_F(JudgeLogTest, ASilentRosterWithItsCapLogsTheCapEvenWhereTheRosterIsNot)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1000000;
    LeagueData.RequiredCenters = 5;
    EXPECT_FALSE(CheckRoster(5, false, true, false));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"log", "Team 5 is over the salary cap by $19,000,000.00!"}));
}

TEST_F(JudgeLogTest, LinesAreLoggedUnderTheTeamsName)
{
    FillDay(Teams[5].ProLines[1], Pro);
    EXPECT_TRUE(CheckLine(5, false, 1, true));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"log", "Team 5 lines errors : Lines are perfect!"}));

    Teams[5].ProLines[1].StartGoalie = 0;
    EXPECT_FALSE(CheckLine(5, false, 1, true));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"log", "Team 5 lines errors : Starting Goaler is empty.\r\n"
                                                            "Some errors will be automatically fixed.\r\n"}));
}

TEST_F(JudgeLogTest, TheFarmsLinesAreLoggedUnderTheFarmsNameAndTheTeams)
{
    for (const bool strict : {false, true}) {
        LeagueData.FarmRosterRequired = strict;
        FillDay(Teams[5].Farm.FarmLines[1], Farm);
        EXPECT_TRUE(CheckLineFarm(5, false, 1, true));
        EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"log", "Farm 5 (Team 5) lines errors : Lines are perfect!"}));
    }

    Teams[5].Farm.FarmLines[1].StartGoalie = 0;
    EXPECT_FALSE(CheckLineFarm(5, false, 1, true));
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"log", "Farm 5 (Team 5) lines errors : Starting Goaler is empty.\r\n"}));
}

TEST_F(JudgeLogTest, LinesAreNotLoggedUnlessAskedFor)
{
    const auto expectShown = [this] {
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, LastLinesText()}));
    };
    EXPECT_FALSE(CheckLine(5, true, 1, false));
    expectShown();
    (void)CheckLineFarm(5, true, 1, false);
    expectShown();
    LeagueData.FarmRosterRequired = true;
    (void)CheckLineFarm(5, true, 1, false);
    expectShown();
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(JudgeLogTest, EveryRoutineEndsItsFailureWithItsOwnName)
{
    struct Call {
        std::function<void()> Make;
        const char* Text;
    };
    const Call calls[] = {
        {[] { (void)ProPayroll(OpenLeague, dravik::Machine(), 0); }, "6 - Overflow in ProPayroll!"},
        {[] { (void)FarmPayroll(OpenLeague, dravik::Machine(), 0); }, "6 - Overflow in FarmPayroll!"},
        {[] { (void)CoachPayroll(OpenLeague, dravik::Machine(), 0); }, "6 - Overflow in CoachPayroll!"},
        {[] { (void)ExpensePerGame(OpenLeague, dravik::Machine(), 0); }, "6 - Overflow in ExpensePerGame!"},
        {[] { WipesLines(0, 1, true); }, "6 - Overflow in WipesLines!"},
        {[] { WipePlayerFromTeamLines(0, 1); }, "6 - Overflow in WipePlayerFromTeamLines!"},
        {[] { (void)CheckRoster(0, false, false, false); }, "6 - Overflow in CheckRoster!"},
        {[] { (void)CheckSalaryCap(0, false); }, "6 - Overflow in CheckSalaryCap!"},
        {[] { (void)CheckLine(0, false, 1, false); }, "6 - Overflow in CheckLine!"},
        {[] { (void)CheckLineFarm(0, false, 1, false); }, "6 - Overflow in CheckLineFarm!"},
    };
    for (const Call& call : calls) {
        // The box that would tell of the team cannot be shown; the one that tells of this failure can.
        FailingBoxes machine(1);
        UseMachine(machine);
        call.Make();
        EXPECT_THAT(machine.Boxes(), ElementsAre(Box{box::Critical, call.Text}));
    }
    UseMachine(Machine);
}

} // namespace
} // namespace dravik
