#include "rules/SalaryCap.h"

#include "rules/Finance.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <cmath>
#include <string>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A team with a pro payroll of 3000000, a farm payroll of 200000 and a coach of 500000.
class SalaryCapTest : public SmallLeague {
protected:
    SalaryCapTest()
    {
        TeamMaker(5).Dresses(3, position::Center).Farms(2, position::Center);
        Coaches[1].InUse = true;
        Coaches[1].Team = 5;
        Coaches[1].Salary = 500000;
        LeagueData.SalaryCapMode = 1;
        LeagueData.SalaryCap = 3000000;
    }

    // Judges with messages and expects exactly these, and the same result of a silent call without any.
    void Expect(bool within, const std::vector<std::string>& texts)
    {
        EXPECT_EQ(CheckSalaryCap(5, false), within);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre());
        EXPECT_EQ(CheckSalaryCap(5, true), within);
        std::vector<Box> expected;
        for (const std::string& text : texts)
            expected.push_back({box::Warning, text});
        EXPECT_EQ(Machine.TakeBoxes(), expected);
    }
};

TEST_F(SalaryCapTest, PayrollEqualToTheCapPassesAndOneUnitAboveFails)
{
    Expect(true, {});
    LeagueData.SalaryCap = 2999999;
    Expect(false, {"Team 5 is over the salary cap by $1.00!"});
}

TEST_F(SalaryCapTest, PayrollEqualToTheMinimumGivesNoWarningAndOneUnitBelowDoesAndStillPasses)
{
    LeagueData.MinSalaryCap = 3000000;
    Expect(true, {});
    LeagueData.MinSalaryCap = 3000001;
    Expect(true, {"Team 5 is under the minimum salary cap by $1.00!"});
}

TEST_F(SalaryCapTest, Mode0LooksAtNothing)
{
    LeagueData.SalaryCapMode = 0;
    LeagueData.SalaryCap = 0;
    LeagueData.FarmSalaryCap = 1;
    LeagueData.MinSalaryCap = 2000000000;
    Expect(true, {});
}

TEST_F(SalaryCapTest, Mode2AddsTheCash)
{
    LeagueData.SalaryCapMode = 2;
    LeagueData.SalaryCap = 2000000;
    Teams[5].Cash = 1000000;
    Expect(true, {});
    Teams[5].Cash = 999999;
    Expect(false, {"Team 5 is over the salary cap by $1.00!"});
}

TEST_F(SalaryCapTest, NegativeCashLowersTheCapInMode2AndNotInMode1)
{
    Teams[5].Cash = -250000;
    Expect(true, {});
    LeagueData.SalaryCapMode = 2;
    Expect(false, {"Team 5 is over the salary cap by $250,000.00!"});
}

TEST_F(SalaryCapTest, OtherModesHaveNoCapButTheFarmsAndTheMinimum)
{
    for (const int mode : {3, 255}) {
        LeagueData.SalaryCapMode = mode;
        LeagueData.SalaryCap = 1;
        LeagueData.FarmSalaryCap = 150000;
        LeagueData.MinSalaryCap = 3500000;
        Expect(false, {"Farm 5 is over the salary cap by $50,000.00!",
                       "Team 5 is under the minimum salary cap by $500,000.00!"});
    }
}

TEST_F(SalaryCapTest, FarmPayrollCountsWhenTheLeagueSaysSo)
{
    LeagueData.FarmPayrollInCap = true;
    Expect(false, {"Team 5 is over the salary cap by $200,000.00!"});
}

TEST_F(SalaryCapTest, CoachPayrollCountsWhenTheLeagueSaysSo)
{
    LeagueData.CoachPayrollInCap = true;
    Expect(false, {"Team 5 is over the salary cap by $500,000.00!"});
    LeagueData.FarmPayrollInCap = true;
    Expect(false, {"Team 5 is over the salary cap by $700,000.00!"});
}

TEST_F(SalaryCapTest, OnlyTheWordMinus1CountsTheFarmPayroll)
{
    LeagueData.FarmPayrollInCap.SetWord(1);
    Expect(true, {});
}

TEST_F(SalaryCapTest, OnlyTheWordMinus1CountsTheCoachPayroll)
{
    LeagueData.CoachPayrollInCap.SetWord(1);
    Expect(true, {});
}

TEST_F(SalaryCapTest, FarmPayrollEqualToItsCapPassesAndOneUnitAboveFails)
{
    LeagueData.FarmSalaryCap = 200000;
    Expect(true, {});
    LeagueData.FarmSalaryCap = 199999;
    Expect(false, {"Farm 5 is over the salary cap by $1.00!"});
}

TEST_F(SalaryCapTest, FarmSalaryCapOf0OrBelowIsNone)
{
    LeagueData.FarmSalaryCap = 0;
    Expect(true, {});
    LeagueData.FarmSalaryCap = -5;
    Expect(true, {});
}

TEST_F(SalaryCapTest, AllThreeMessagesCanComeInOneCall)
{
    LeagueData.SalaryCap = 2000000;
    LeagueData.FarmSalaryCap = 100000;
    LeagueData.MinSalaryCap = 4000000;
    Teams[5].Name = "  Quarry Town  ";
    Teams[5].Farm.Name = "  Little Quarry ";
    Expect(false, {"Quarry Town is over the salary cap by $1,000,000.00!",
                   "Little Quarry is over the salary cap by $100,000.00!",
                   "Quarry Town is under the minimum salary cap by $1,000,000.00!"});
}

TEST_F(SalaryCapTest, PayrollsAreRoundedToTheEvenNumber)
{
    // A tenth of a farm salary counts: 2.5, then 3.5.
    Players[4].Salary = 25;
    Players[5].Salary = 0;
    LeagueData.FarmSalaryCap = 1;
    Expect(false, {"Farm 5 is over the salary cap by $1.00!"});
    Players[4].Salary = 35;
    Expect(false, {"Farm 5 is over the salary cap by $3.00!"});
}

TEST_F(SalaryCapTest, TeamOutOfRangeFailsTheIntegrityCheckWhateverTheMode)
{
    for (const int mode : {0, 1})
        for (const int team : {-1, 0, 101}) {
            LeagueData.SalaryCapMode = mode;
            EXPECT_FALSE(CheckSalaryCap(team, false));
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
        }
}

TEST_F(SalaryCapTest, CapBeyond32BitsIsAnOverflow)
{
    LeagueData.SalaryCapMode = 2;
    LeagueData.SalaryCap = 2000000000;
    Teams[5].Cash = 2000000000;
    EXPECT_TRUE(CheckSalaryCap(5, true)); // what it had found so far
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));
}

TEST_F(SalaryCapTest, PayrollBeyond32BitsIsAnOverflow)
{
    Players[1].Salary = 2000000000;
    Players[2].Salary = 2000000000;
    EXPECT_TRUE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));

    Players[2].Salary = 0;
    Players[4].Salary = 2000000000;
    LeagueData.FarmPayMinGames = -1;
    LeagueData.FarmPayrollInCap = true;
    EXPECT_TRUE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));

    LeagueData.FarmPayrollInCap = false;
    LeagueData.CoachPayrollInCap = true;
    Coaches[1].Salary = 2000000000;
    EXPECT_TRUE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));
}

TEST_F(SalaryCapTest, AmountBeyond32BitsIsAnOverflowAfterTheResult)
{
    Players[1].Salary = 2000000000;
    LeagueData.SalaryCap = -2000000000;
    EXPECT_FALSE(CheckSalaryCap(5, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckSalaryCap!"}));
}

TEST_F(SalaryCapTest, StandingHoldsWhatCountsAgainstTheCap)
{
    CapStanding standing = StandingAgainstCap(5);
    EXPECT_EQ(standing.Pro, 3000000);
    EXPECT_EQ(standing.Farm, 200000);
    EXPECT_EQ(standing.Total, 3000000);
    EXPECT_EQ(standing.Cap, 3000000);
    LeagueData.FarmPayrollInCap = true;
    LeagueData.CoachPayrollInCap = true;
    EXPECT_EQ(StandingAgainstCap(5).Total, 3700000);
    LeagueData.SalaryCapMode = 2;
    Teams[5].Cash = -1000;
    EXPECT_EQ(StandingAgainstCap(5).Cap, 2999000);
    LeagueData.SalaryCapMode = 0;
    EXPECT_EQ(StandingAgainstCap(5).Cap, std::nullopt);
}

TEST_F(SalaryCapTest, TheTextOfTheLastJudgementIsKeptWhetherShownOrNot)
{
    LeagueData.SalaryCap = 2999999;
    LeagueData.FarmSalaryCap = 199999;
    const std::string text = "Team 5 is over the salary cap by $1.00!\r\nFarm 5 is over the salary cap by $1.00!\r\n";
    CheckSalaryCap(5, false);
    EXPECT_EQ(LastCapText(), text);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    CheckSalaryCap(5, true);
    EXPECT_EQ(LastCapText(), text);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Team 5 is over the salary cap by $1.00!"},
                                                 Box{box::Warning, "Farm 5 is over the salary cap by $1.00!"}));
    LeagueData.SalaryCapMode = 0;
    CheckSalaryCap(5, true);
    EXPECT_EQ(LastCapText(), "");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SalaryCapTest, ARosterJudgementThatBreaksOffBeforeThePayrollLeavesNoOlderText)
{
    LeagueData.SalaryCap = 2999999;
    LeagueData.FarmEnabled = true;
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredCenters = 16384; // twice as many fit no count
    const std::string text = "Team 5 is over the salary cap by $1.00!\r\n";
    CheckSalaryCap(5, false);
    (void)CheckRoster(6, false, false, false); // was not to judge the payroll
    EXPECT_EQ(LastCapText(), text);
    (void)CheckRoster(6, false, true, false);
    EXPECT_EQ(LastCapText(), "");
    const Box broken{box::Critical, "6 - Overflow in CheckRoster!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(broken, broken));
}

TEST_F(SalaryCapTest, RandomLeaguesAgreeWithAPlainReadingAndNothingChanges)
{
    Dice dice(72);
    for (int round = 0; round < 300; ++round) {
        RollLeague(dice);
        const auto people = ImageOf(Players);
        const auto teams = ImageOf(Teams);
        for (int team = 1; team <= 3; ++team) {
            const League& league = LeagueData;
            const long long farm = std::llrint(FarmPayroll(OpenLeague, Machine, team));
            const long long total =
                std::llrint(ProPayroll(OpenLeague, Machine, team)) + (league.FarmPayrollInCap ? farm : 0) +
                (league.CoachPayrollInCap ? std::llrint(CoachPayroll(OpenLeague, Machine, team)) : 0);
            std::vector<Box> expected;
            const auto tell = [&](const std::string& text, long long amount) {
                expected.push_back({box::Warning, text + Machine.Currency(static_cast<double>(amount)) + "!"});
            };
            const std::string name = "Team " + std::to_string(team);
            const long long cap = league.SalaryCap + (league.SalaryCapMode == 2 ? 1 : 0) * Teams[team].Cash;
            if ((league.SalaryCapMode == 1 || league.SalaryCapMode == 2) && total > cap)
                tell(name + " is over the salary cap by ", total - cap);
            if (league.SalaryCapMode != 0 && league.FarmSalaryCap >= 1 && farm > league.FarmSalaryCap)
                tell("Farm " + std::to_string(team) + " is over the salary cap by ", farm - league.FarmSalaryCap);
            const bool within = expected.empty();
            if (league.SalaryCapMode != 0 && total < league.MinSalaryCap)
                tell(name + " is under the minimum salary cap by ", league.MinSalaryCap - total);
            ASSERT_EQ(CheckSalaryCap(team, true), within) << "round " << round;
            ASSERT_EQ(Machine.TakeBoxes(), expected) << "round " << round;
        }
        ASSERT_EQ(ImageOf(Players), people);
        ASSERT_EQ(ImageOf(Teams), teams);
    }
}

TEST_F(SalaryCapTest, AStandingThatNobodyHasReckonedIsNothingUnderNoCap)
{
    const CapStanding standing;
    EXPECT_EQ(standing.Pro, 0);
    EXPECT_EQ(standing.Farm, 0);
    EXPECT_EQ(standing.Total, 0);
    EXPECT_EQ(standing.Cap, std::nullopt);
}

TEST_F(SalaryCapTest, ThePayrollOfTheLastTeamIsJudged)
{
    TeamMaker(100).Dresses(1, position::Center);
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 999999;
    EXPECT_FALSE(CheckSalaryCap(100, true));
    EXPECT_THAT(Machine.TakeBoxes(),
                ::testing::ElementsAre(Box{box::Warning, "Team 100 is over the salary cap by $1.00!"}));
}

} // namespace
} // namespace dravik
