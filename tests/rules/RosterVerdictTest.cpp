#include "rules/RosterJudge.h"

#include "rules/Finance.h"
#include "session/Session.h"
#include "support/SmallLeague.h"

#include <ostream>
#include <vector>

namespace dravik {

bool operator==(const RosterFinding& left, const RosterFinding& right)
{
    return left.Fault == right.Fault && left.Person == right.Person && left.Count == right.Count &&
           left.Limit == right.Limit;
}
void PrintTo(const RosterFinding& finding, std::ostream* out)
{
    *out << static_cast<int>(finding.Fault) << " of " << finding.Person.CommonId() << ": " << finding.Count
         << " beside " << finding.Limit;
}
bool operator==(const CapFinding& left, const CapFinding& right)
{
    return left.Fault == right.Fault && left.Amount == right.Amount;
}
void PrintTo(const CapFinding& finding, std::ostream* out)
{
    *out << static_cast<int>(finding.Fault) << " by " << finding.Amount;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RosterVerdictTest : public SmallLeague {
protected:
    static RosterVerdict Judged(int number = 5) { return CheckRoster(OpenWork(), number, false, true, false); }

    TeamMaker team = TeamMaker(5).DressesFullRoster();
};

TEST_F(RosterVerdictTest, ACompleteRosterHasNoFindingsAndNoText)
{
    const RosterVerdict verdict = Judged();
    EXPECT_TRUE(verdict.Complete);
    EXPECT_TRUE(verdict.Ended);
    EXPECT_THAT(verdict.Findings, IsEmpty());
    EXPECT_EQ(TextOf(OpenLeague, 5, verdict), "");
}

TEST_F(RosterVerdictTest, AFindingAboutAPersonNamesHim)
{
    Players[3].Contract = 0;
    Goalies[2].Condition = 50;
    team.Farms(1, position::Center, 60).FarmsGoalies(1, 60);
    LeagueData.FarmMaxOverall = 50;
    LeagueData.FarmMaxSalary = 1;
    const PersonId farmed{.IsGoalie = false, .Slot = team.Skaters.back()};
    const PersonId keeper{.IsGoalie = true, .Slot = team.GoalieIds.back()};
    const std::vector<RosterFinding> found = Judged().Findings;
    ASSERT_GE(found.size(), 6U);
    EXPECT_THAT(std::vector<RosterFinding>(found.begin(), found.begin() + 6),
                ElementsAre(RosterFinding{.Fault = RosterFault::UnfitOnPro, .Person = {.IsGoalie = false, .Slot = 3}},
                            RosterFinding{.Fault = RosterFault::TooGoodForFarm, .Person = farmed},
                            RosterFinding{.Fault = RosterFault::TooDearForFarm, .Person = farmed},
                            RosterFinding{.Fault = RosterFault::UnfitOnPro, .Person = {.IsGoalie = true, .Slot = 2}},
                            RosterFinding{.Fault = RosterFault::TooGoodForFarm, .Person = keeper},
                            RosterFinding{.Fault = RosterFault::TooDearForFarm, .Person = keeper}));
    EXPECT_EQ(WordsOf(OpenLeague, found[1]), "Skater 19 overall is too high to be in farm!");
    EXPECT_EQ(WordsOf(OpenLeague, found[4]), "Goalie 3 Overall is too high to be in farm!");
}

TEST_F(RosterVerdictTest, AFindingAboutNumbersHoldsWhatWasCountedAndWhatTheLeagueWants)
{
    team.DressesGoalies(3);
    LeagueData.MaxDressedGoalies = 4;
    LeagueData.RequiredCenters = 5;
    LeagueData.MaxProPlayers = 22;
    const RosterVerdict verdict = Judged();
    EXPECT_FALSE(verdict.Complete);
    EXPECT_THAT(verdict.Findings,
                ElementsAre(RosterFinding{.Fault = RosterFault::FewCenters, .Count = 4, .Limit = 5},
                            RosterFinding{.Fault = RosterFault::ManyGoalies, .Count = 5, .Limit = 4},
                            RosterFinding{.Fault = RosterFault::ManyPeople, .Count = 23, .Limit = 22}));
    // The limit of goalies that is told is 3 whatever the league allows.
    EXPECT_EQ(WordsOf(OpenLeague, verdict.Findings[1]), "Too many Goalie available in Pro Team! 5 Dressed. 3 Maximum.");
}

TEST_F(RosterVerdictTest, AJudgementThatBreaksOffKeepsWhatItFoundByThenWithoutHeadAndClose)
{
    LeagueData.RequiredCenters = 5;
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredLeftWings = 16384;
    const RosterVerdict verdict = Judged();
    EXPECT_EQ(verdict.Failed, 6);
    EXPECT_FALSE(verdict.Ended);
    EXPECT_FALSE(verdict.Cap);
    EXPECT_THAT(verdict.Findings,
                ElementsAre(RosterFinding{.Fault = RosterFault::FewCenters, .Count = 4, .Limit = 5},
                            RosterFinding{.Fault = RosterFault::FewLeftWings, .Count = 4, .Limit = 16384},
                            RosterFinding{.Fault = RosterFault::FewCentersInBoth, .Count = 4, .Limit = 10}));
    EXPECT_EQ(TextOf(OpenLeague, 5, verdict),
              "Not enough Centers available in Pro Team! 4 Dressed. 5 Required.\r\n"
              "Not enough Left Wings available in Pro Team! 4 Dressed. 16384 Required.\r\n"
              "Not enough Centers available in Pro and Farm Team! 4 Dressed. 10 Required.\r\n");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckRoster!"}));
}

TEST_F(RosterVerdictTest, ATeamOutOfRangeHasNeitherFindingsNorPayroll)
{
    const RosterVerdict verdict = Judged(101);
    EXPECT_FALSE(verdict.Complete);
    EXPECT_FALSE(verdict.Failed);
    EXPECT_THAT(verdict.Findings, IsEmpty());
    EXPECT_FALSE(verdict.Cap);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
}

TEST_F(RosterVerdictTest, ThePayrollIsJudgedBesideAndSaysByHowMuch)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 19999999;
    LeagueData.MinSalaryCap = 20000002;
    team.Farms(1, position::Center, 10);
    Players[team.Skaters.back()].Salary = 1000000;
    LeagueData.FarmSalaryCap = 1;
    const RosterVerdict verdict = Judged();
    ASSERT_TRUE(verdict.Cap);
    EXPECT_FALSE(verdict.Complete);
    EXPECT_FALSE(verdict.Cap->Within);
    const long long farm = PayrollsOf(OpenLeague, 5).Farm;
    EXPECT_THAT(verdict.Cap->Findings,
                ElementsAre(CapFinding{CapFault::Over, 1}, CapFinding{CapFault::FarmOver, farm - 1},
                            CapFinding{CapFault::Under, 2}));
    EXPECT_EQ(WordsOf(OpenLeague, Machine, 5, verdict.Cap->Findings[0]), "Team 5 is over the salary cap by $1.00!");
    EXPECT_EQ(WordsOf(OpenLeague, Machine, 5, verdict.Cap->Findings[2]),
              "Team 5 is under the minimum salary cap by $2.00!");
}

} // namespace
} // namespace dravik
