#include "rules/LineSlots.h"
#include "rules/RosterTexts.h"
#include "support/LeagueImage.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <string>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// A complete team 5: skaters 1 to 18 (13 to 18 defensemen) and goalies 1 and 2, all dressed, standing in all lines.
class RosterJudgeTest : public SmallLeague {
protected:
    RosterJudgeTest()
    {
        std::vector<int> forwards(team.Skaters.begin(), team.Skaters.begin() + 12);
        std::vector<int> defense(team.Skaters.begin() + 12, team.Skaters.end());
        for (int day = 1; day <= 10; ++day) {
            FillLines(Teams[5].ProLines[day], forwards, defense, team.GoalieIds);
            FillLines(Teams[5].Farm.FarmLines[day], forwards, defense, team.GoalieIds);
        }
    }

    // Judges aloud, without the payroll, and expects the result and one box with these lines; no box without lines.
    void Expect(bool complete, const std::vector<std::string>& lines)
    {
        EXPECT_EQ(CheckRoster(5, false, false, true), complete);
        const std::string text = RosterError("Team 5", lines);
        std::vector<Box> boxes;
        if (!lines.empty())
            boxes.push_back({box::Warning, text});
        EXPECT_EQ(Machine.TakeBoxes(), boxes);
        EXPECT_EQ(LastRosterText(), text);
    }

    // In how many slots of the team the person stands, all days, pro and farm.
    static int SlotsOf(int id)
    {
        int count = 0;
        for (const Side side : {Side::Pro, Side::Farm})
            for (int day = 1; day <= 10; ++day) {
                const Lines& lines = LinesOf(5, day, side);
                if (id > GoalieOffset)
                    count += (lines.StartGoalie == id - GoalieOffset) + (lines.BackupGoalie == id - GoalieOffset);
                else
                    for (const LineSlot& slot : SkaterSlots)
                        count += At(lines, slot) == id;
            }
        return count;
    }

    // Adds one skater to the farm and puts him into the farm's lines.
    int AddOnFarm(int rating)
    {
        team.Farms(1, position::Center, rating);
        const int index = team.Skaters.back();
        Teams[5].Farm.FarmLines[1].NormalForward(1, 1) = index;
        return index;
    }
    int AddGoalieOnFarm(int rating)
    {
        team.FarmsGoalies(1, rating);
        const int index = team.GoalieIds.back();
        Teams[5].Farm.FarmLines[1].StartGoalie = index;
        return index;
    }

    TeamMaker team = TeamMaker(5).DressesFullRoster();
};

TEST_F(RosterJudgeTest, CompleteRosterPassesWithoutAWord)
{
    const auto people = ImageOf(Players);
    const auto teams = ImageOf(Teams);
    EXPECT_TRUE(CheckRoster(5, true, true, true));
    EXPECT_EQ(LastRosterText(), "");
    EXPECT_EQ(RosterFixed, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
    EXPECT_EQ(ImageOf(Players), people);
    EXPECT_EQ(ImageOf(Teams), teams);
}

TEST_F(RosterJudgeTest, ProPlayerBelowTheMinimumSalaryIsScratchedWipedAndCountedAsScratch)
{
    LeagueData.ProDressedSkaters = 19;
    team.Dresses(1, position::Center);
    LeagueData.MaxProPlayers = 21;
    Players[1].Salary = LeagueData.MinSalary - 1;
    Teams[5].Captain = 1;
    EXPECT_GT(SlotsOf(1), 0);

    Expect(true, {"Skater 1" + NotFit});
    EXPECT_EQ(Players[1].Status, status::Scratch);
    EXPECT_EQ(RosterChanges[1].Status, status::Scratch);
    EXPECT_EQ(RosterFixed, 1);
    EXPECT_EQ(SlotsOf(1), 0);
    EXPECT_EQ(Teams[5].Captain, 0);

    LeagueData.MaxProPlayers = 20; // 18 skaters, 2 goalies and the scratch
    Expect(false, {"Maximum Players Limit Reached in Pro Team!"});
}

TEST_F(RosterJudgeTest, MovedPlayerIsCountedAsScratchInTheSameJudgement)
{
    LeagueData.ProDressedSkaters = 19;
    team.Dresses(1, position::Center);
    LeagueData.MaxProPlayers = 20;
    Players[1].Salary = LeagueData.MinSalary - 1;
    Expect(false, {"Skater 1" + NotFit, "Maximum Players Limit Reached in Pro Team!"});
}

TEST_F(RosterJudgeTest, ProPlayerWithoutContractIsScratchedAndNotCountedAsScratch)
{
    team.Dresses(1, position::Center);
    LeagueData.MaxProPlayers = 20;
    Players[1].Contract = 0;
    Expect(true, {"Skater 1" + NotFit});
    EXPECT_EQ(Players[1].Status, status::Scratch);
}

TEST_F(RosterJudgeTest, BothEndsOfTheSalariesAreAllowed)
{
    Players[1].Salary = LeagueData.MinSalary;
    Players[2].Salary = LeagueData.MaxSalary;
    Goalies[1].Salary = LeagueData.MinSalary;
    Goalies[2].Salary = LeagueData.MaxSalary;
    Expect(true, {});
    team.Dresses(1, position::LeftWing);
    Players[2].Salary = LeagueData.MaxSalary + 1;
    Expect(true, {"Skater 2" + NotFit});
}

TEST_F(RosterJudgeTest, Condition95IsFitAnd94IsNot)
{
    Players[1].Condition = 95;
    Goalies[1].Condition = 95;
    Expect(true, {});
    Players[1].Condition = 94;
    Expect(false, {"Skater 1" + NotFit, "Not enough players available in Pro Team! 17 Dressed. 18 Required."});
}

TEST_F(RosterJudgeTest, SuspendedProPlayerIsScratched)
{
    Players[1].Suspension = 1;
    Expect(false, {"Skater 1" + NotFit, "Not enough players available in Pro Team! 17 Dressed. 18 Required."});
    EXPECT_EQ(Players[1].Status, status::Scratch);
}

TEST_F(RosterJudgeTest, ProGoalieIsScratchedAndWipedLikeASkater)
{
    Goalies[1].Condition = 50;
    Teams[5].Captain = 1;
    const int skatersSlots = SlotsOf(1);
    Expect(false, {"Goalie 1" + NotFit, "Not enough Goalie available in Pro Team! 1 Dressed. 2 Required."});
    EXPECT_EQ(Goalies[1].Status, status::Scratch);
    EXPECT_EQ(RosterChangesGoalie[1].Status, status::Scratch);
    EXPECT_EQ(RosterFixed, 1);
    EXPECT_EQ(SlotsOf(10001), 0);
    EXPECT_EQ(SlotsOf(1), skatersSlots); // the skater of the same index
    EXPECT_EQ(Players[1].Status, status::Pro);
    EXPECT_EQ(RosterChanges[1].Status, RosterChange::Untouched);
    EXPECT_EQ(Teams[5].Captain, 1);
}

TEST_F(RosterJudgeTest, HealthyProGoalieMovedForHisSalaryIsCountedAsScratch)
{
    team.DressesGoalies(1);
    Goalies[3].Salary = 0;
    LeagueData.MaxProPlayers = 20;
    Expect(false, {"Goalie 3" + NotFit, "Maximum Players Limit Reached in Pro Team!"});
}

TEST_F(RosterJudgeTest, MovedPersonAloneLeavesTheRosterComplete)
{
    team.Dresses(1, position::Center).DressesGoalies(1);
    Players[19].Condition = 0;
    Goalies[3].Condition = 0;
    Expect(true, {"Skater 19" + NotFit, "Goalie 3" + NotFit});
    Expect(true, {});
    EXPECT_EQ(RosterFixed, 0);
}

TEST_F(RosterJudgeTest, NamesAreTrimmed)
{
    team.Dresses(1, position::Center);
    Players[19].Name = "  Ward Tilton ";
    Players[19].Condition = 0;
    Teams[5].Name = " Quarry  Town ";
    EXPECT_TRUE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, RosterError("Quarry  Town", {"Ward Tilton" + NotFit})}));
}

TEST_F(RosterJudgeTest, FarmPlayerAboveOverallStaysStatusZero)
{
    const int index = AddOnFarm(71);
    for (int call = 1; call <= 2; ++call) {
        Teams[5].ProLines[1].NormalForward(1, 1) = index;
        Expect(true, {"Skater 19 overall is too high to be in farm!"}); // told again by every call
        EXPECT_EQ(Players[index].Status, status::Farm);
        EXPECT_EQ(RosterChanges[index].Status, status::Scratch);
        EXPECT_EQ(RosterFixed, 1);
        EXPECT_EQ(SlotsOf(index), 0);
    }
}

TEST_F(RosterJudgeTest, FarmPlayerOverALimitIsNoScratch)
{
    AddOnFarm(71);
    LeagueData.MaxProPlayers = 20;
    Expect(true, {"Skater 19 overall is too high to be in farm!"});
}

TEST_F(RosterJudgeTest, FarmPlayerEqualToTheLimitsStays)
{
    const int index = AddOnFarm(70);
    AddGoalieOnFarm(70);
    LeagueData.FarmMaxSalary = 1000000;
    Expect(true, {});
    EXPECT_EQ(SlotsOf(index), 1);
    LeagueData.FarmMaxSalary = 999999;
    Expect(true, {"Skater 19 salary is too high to be in farm!", "Goalie 3 salary is too high to be in farm!"});
}

TEST_F(RosterJudgeTest, FarmPlayerOverBothLimitsIsToldTwice)
{
    LeagueData.FarmMaxSalary = 1;
    AddOnFarm(71);
    Expect(true, {"Skater 19 overall is too high to be in farm!", "Skater 19 salary is too high to be in farm!"});
}

TEST_F(RosterJudgeTest, FarmPlayerOverTheSalaryLimitAloneStaysStatusZeroToo)
{
    LeagueData.FarmMaxSalary = 999999;
    const int index = AddOnFarm(50);
    Expect(true, {"Skater 19 salary is too high to be in farm!"});
    EXPECT_EQ(Players[index].Status, status::Farm);
    EXPECT_EQ(RosterChanges[index].Status, status::Scratch);
    EXPECT_EQ(RosterFixed, 1);
    EXPECT_EQ(SlotsOf(index), 0);
}

TEST_F(RosterJudgeTest, FarmSalaryLimitBelow1IsNone)
{
    AddOnFarm(50);
    AddGoalieOnFarm(50);
    for (const int limit : {0, -1}) {
        LeagueData.FarmMaxSalary = limit;
        Expect(true, {});
    }
}

TEST_F(RosterJudgeTest, FarmLimitsHoldForUnfitPeopleToo)
{
    Players[AddOnFarm(71)].Condition = 0;
    Goalies[AddGoalieOnFarm(71)].Contract = 0;
    Expect(true, {"Skater 19 overall is too high to be in farm!", "Goalie 3 Overall is too high to be in farm!"});
}

TEST_F(RosterJudgeTest, FarmLimitsHoldWithoutFarmTeams)
{
    LeagueData.FarmEnabled = false;
    AddOnFarm(71);
    Expect(true, {"Skater 19 overall is too high to be in farm!"});
}

TEST_F(RosterJudgeTest, FarmGoalieAboveOverallIsMovedAndToldWithACapital)
{
    const int index = AddGoalieOnFarm(71);
    Expect(true, {"Goalie 3 Overall is too high to be in farm!"});
    EXPECT_EQ(Goalies[index].Status, status::Scratch);
    EXPECT_EQ(RosterChangesGoalie[index].Status, status::Scratch);
    EXPECT_EQ(RosterFixed, 1);
    EXPECT_EQ(SlotsOf(GoalieOffset + index), 0);
    Expect(true, {});
    EXPECT_EQ(RosterFixed, 0);
}

TEST_F(RosterJudgeTest, FarmGoalieOverBothLimitsIsToldTwice)
{
    LeagueData.FarmMaxSalary = 999999;
    AddGoalieOnFarm(71);
    Expect(true, {"Goalie 3 Overall is too high to be in farm!", "Goalie 3 salary is too high to be in farm!"});
}

TEST_F(RosterJudgeTest, FarmGoalieOverTheSalaryLimitAloneIsMovedToo)
{
    LeagueData.FarmMaxSalary = 999999;
    const int index = AddGoalieOnFarm(50);
    Expect(true, {"Goalie 3 salary is too high to be in farm!"});
    EXPECT_EQ(Goalies[index].Status, status::Scratch);
    EXPECT_EQ(RosterChangesGoalie[index].Status, status::Scratch);
}

TEST_F(RosterJudgeTest, MovedFarmGoalieCountsForTheFarmAndAmongTheScratches)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.MaxProPlayers = 20;
    team.Farms(3, position::Center).Farms(3, position::LeftWing).Farms(3, position::RightWing);
    team.Farms(9, position::Defense);
    AddGoalieOnFarm(50);
    AddGoalieOnFarm(71);
    Expect(false, {"Goalie 4 Overall is too high to be in farm!", "Maximum Players Limit Reached in Pro Team!"});
    // The next judgement sees him among the scratches alone.
    Expect(false, {"Maximum Players Limit Reached in Pro Team!",
                   "Not enough Goalie available in Pro and Farm Team! 3 Dressed. 4 Required."});
}

TEST_F(RosterJudgeTest, ProPlayerWithoutPositionIsToldAndNotCounted)
{
    team.Dresses(1, 0).Dresses(1, 5);
    Players[19].Name = " Ward Tilton";
    LeagueData.MaxProPlayers = 20;
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Ward Tilton has no position!"},
                                             Box{box::Critical, "Skater 20 has no position!"}));
    EXPECT_EQ(Players[19].Status, status::Pro);
    EXPECT_EQ(RosterFixed, 0);
    EXPECT_EQ(LastRosterText(), "");
}

TEST_F(RosterJudgeTest, UnfitProPlayerWithoutPositionIsScratchedWithoutThatBox)
{
    team.Dresses(1, 0);
    Players[19].Condition = 0;
    Expect(true, {"Skater 19" + NotFit});
}

TEST_F(RosterJudgeTest, FarmPlayerWithoutPositionFailsTheIntegrityCheckFirst)
{
    team.Farms(1, 0);
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"},
                                                 Box{box::Critical, "Skater 19 has no position!"}));
    Players[19].Condition = 0;
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
}

TEST_F(RosterJudgeTest, ScratchWithoutPositionIsNoMatter)
{
    team.Scratches(1, 0);
    Expect(true, {});
}

TEST_F(RosterJudgeTest, UnknownStatusIsNoMatter)
{
    team.Dresses(1, position::Center).DressesGoalies(1);
    Players[19].Status = 3;
    Players[19].Condition = 0;
    Goalies[3].Status = 3;
    LeagueData.MaxProPlayers = 20;
    Expect(true, {});
    EXPECT_EQ(Players[19].Status, 3);
}

TEST_F(RosterJudgeTest, EmptyTeamGetsEveryLineOfThePro)
{
    TeamMaker(6);
    LeagueData.RequiredLeftWings = 4;
    LeagueData.RequiredRightWings = 5;
    EXPECT_FALSE(CheckRoster(6, false, false, true));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{
                    box::Warning,
                    RosterError("Team 6", {
                                              "Not enough Centers available in Pro Team! 0 Dressed. 3 Required.",
                                              "Not enough Left Wings available in Pro Team! 0 Dressed. 4 Required.",
                                              "Not enough Right Wings available in Pro Team! 0 Dressed. 5 Required.",
                                              "Not enough Defenseman available in Pro Team! 0 Dressed. 6 Required.",
                                              "Not enough Goalie available in Pro Team! 0 Dressed. 2 Required.",
                                              "Not enough players available in Pro Team! 0 Dressed. 18 Required.",
                                          })}));
}

TEST_F(RosterJudgeTest, EmptyTeamGetsEveryLineOfProAndFarm)
{
    TeamMaker(6);
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredLeftWings = 4;
    LeagueData.RequiredRightWings = 5;
    EXPECT_FALSE(CheckRoster(6, false, false, false));
    EXPECT_EQ(
        LastRosterText(),
        RosterError("Team 6", {
                                  "Not enough Centers available in Pro Team! 0 Dressed. 3 Required.",
                                  "Not enough Left Wings available in Pro Team! 0 Dressed. 4 Required.",
                                  "Not enough Right Wings available in Pro Team! 0 Dressed. 5 Required.",
                                  "Not enough Defenseman available in Pro Team! 0 Dressed. 6 Required.",
                                  "Not enough Goalie available in Pro Team! 0 Dressed. 2 Required.",
                                  "Not enough players available in Pro Team! 0 Dressed. 18 Required.",
                                  "Not enough Centers available in Pro and Farm Team! 0 Dressed. 6 Required.",
                                  "Not enough Left Wings available in Pro and Farm Team! 0 Dressed. 8 Required.",
                                  "Not enough Right Wings available in Pro and Farm Team! 0 Dressed. 10 Required.",
                                  "Not enough Defenseman available in Pro and Farm Team! 0 Dressed. 12 Required.",
                                  "Not enough Goalie available in Pro and Farm Team! 0 Dressed. 4 Required.",
                                  "Not enough players available in Pro Team and Farm Team! 0 Dressed. 36 Required.",
                              }));
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(RosterJudgeTest, TooManyGoaliesShowTheLimit3)
{
    team.DressesGoalies(1);
    Expect(false, {"Too many Goalie available in Pro Team! 3 Dressed. 3 Maximum."});
    LeagueData.MaxDressedGoalies = 3;
    Expect(true, {});
}

TEST_F(RosterJudgeTest, TooManyPlayersAreRequired)
{
    team.Dresses(2, position::Center);
    Expect(false, {"Too many players available in Pro Team! 20 Dressed. 18 Required."});
    LeagueData.ProDressedSkaters = 20;
    Expect(true, {});
}

TEST_F(RosterJudgeTest, MaximumOfPlayersCountsDressedAndScratches)
{
    LeagueData.MaxProPlayers = 21;
    team.Scratches(1, position::Center);
    Expect(true, {});
    team.ScratchesGoalies(1);
    Expect(false, {"Maximum Players Limit Reached in Pro Team!"});
    Goalies[3].Condition = 94; // an unfit scratch does not count
    Expect(true, {});
}

TEST_F(RosterJudgeTest, AllLimitsAboveFailTogetherInOrder)
{
    team.Dresses(1, position::Center).DressesGoalies(1);
    LeagueData.MaxProPlayers = 21;
    LeagueData.RequiredCenters = 6;
    Expect(false, {
                      "Not enough Centers available in Pro Team! 5 Dressed. 6 Required.",
                      "Too many Goalie available in Pro Team! 3 Dressed. 3 Maximum.",
                      "Too many players available in Pro Team! 19 Dressed. 18 Required.",
                      "Maximum Players Limit Reached in Pro Team!",
                  });
}

TEST_F(RosterJudgeTest, EighteenSkatersAreNeededHoweverLowThePositionsAreSet)
{
    LeagueData.RequiredCenters = 0;
    LeagueData.RequiredLeftWings = 0;
    LeagueData.RequiredRightWings = 0;
    LeagueData.RequiredDefensemen = 0;
    LeagueData.ProDressedSkaters = 17;
    Players[1].Status = status::Scratch;
    Expect(false, {"Not enough players available in Pro Team! 17 Dressed. 18 Required."});
}

TEST_F(RosterJudgeTest, FarmCountsFailOnlyWhenTheFarmIsThereAndRequired)
{
    LeagueData.FarmEnabled = true;
    LeagueData.FarmRosterRequired = false;
    Expect(true, {});
    LeagueData.FarmEnabled = false;
    LeagueData.FarmRosterRequired = true;
    Expect(true, {});
    LeagueData.FarmEnabled = true;
    Expect(false, {
                      "Not enough Centers available in Pro and Farm Team! 4 Dressed. 6 Required.",
                      "Not enough Left Wings available in Pro and Farm Team! 4 Dressed. 6 Required.",
                      "Not enough Right Wings available in Pro and Farm Team! 4 Dressed. 6 Required.",
                      "Not enough Defenseman available in Pro and Farm Team! 6 Dressed. 12 Required.",
                      "Not enough Goalie available in Pro and Farm Team! 2 Dressed. 4 Required.",
                      "Not enough players available in Pro Team and Farm Team! 18 Dressed. 36 Required.",
                  });
}

TEST_F(RosterJudgeTest, FarmCountsTakeProAndFarmAndNoScratches)
{
    LeagueData.FarmRosterRequired = true;
    team.FarmsFullRoster();
    Expect(true, {});
    Players[team.Skaters.back()].Status = status::Scratch;
    Goalies[team.GoalieIds.back()].Status = status::Scratch;
    Expect(false, {
                      "Not enough Defenseman available in Pro and Farm Team! 11 Dressed. 12 Required.",
                      "Not enough Goalie available in Pro and Farm Team! 3 Dressed. 4 Required.",
                      "Not enough players available in Pro Team and Farm Team! 35 Dressed. 36 Required.",
                  });
}

TEST_F(RosterJudgeTest, UnfitFarmPeopleDoNotCount)
{
    LeagueData.FarmRosterRequired = true;
    team.FarmsFullRoster();
    Players[team.Skaters.back()].Condition = 94;
    Goalies[team.GoalieIds.back()].Suspension = 1;
    Expect(false, {
                      "Not enough Defenseman available in Pro and Farm Team! 11 Dressed. 12 Required.",
                      "Not enough Goalie available in Pro and Farm Team! 3 Dressed. 4 Required.",
                      "Not enough players available in Pro Team and Farm Team! 35 Dressed. 36 Required.",
                  });
}

TEST_F(RosterJudgeTest, RequirementTwiceAsLargeAs16BitsIsAnOverflow)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredLeftWings = 16384;
    EXPECT_FALSE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckRoster!"}));
    LeagueData.RequiredLeftWings = -16385; // nothing else is wrong: the result so far is True
    team.Farms(2, position::Center);
    EXPECT_TRUE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckRoster!"}));
}

TEST_F(RosterJudgeTest, SkatersComeBeforeGoaliesAndEachInIndexOrder)
{
    Players[3].Condition = 0;
    Players[1].Condition = 0;
    Goalies[2].Condition = 0;
    Goalies[1].Condition = 0;
    team.Dresses(2, position::Center).DressesGoalies(2);
    Expect(true, {"Skater 1" + NotFit, "Skater 3" + NotFit, "Goalie 1" + NotFit, "Goalie 2" + NotFit});
}

TEST_F(RosterJudgeTest, SilentCallStillMovesPeople)
{
    Players[1].Condition = 0;
    EXPECT_FALSE(CheckRoster(5, false, false, false));
    EXPECT_EQ(Players[1].Status, status::Scratch);
    EXPECT_EQ(SlotsOf(1), 0);
    EXPECT_EQ(RosterFixed, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
    EXPECT_EQ(LastRosterText(),
              RosterError("Team 5",
                          {"Skater 1" + NotFit, "Not enough players available in Pro Team! 17 Dressed. 18 Required."}));
}

TEST_F(RosterJudgeTest, LoggedCallSaysNothingMore)
{
    Players[1].Condition = 0;
    EXPECT_FALSE(CheckRoster(5, true, false, true));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::Warning, RosterError("Team 5", {"Skater 1" + NotFit,
                                                                     "Not enough players available in Pro Team! 17 "
                                                                     "Dressed. 18 Required."})}));
}

TEST_F(RosterJudgeTest, TeamOutOfRangeFailsTheIntegrityCheckAndLeavesRosterFixedAlone)
{
    team.DressesGoalies(1);
    EXPECT_FALSE(CheckRoster(5, false, false, false));
    const std::string text = LastRosterText();
    RosterFixed = 7;
    for (const int number : {-1, 0, 101}) {
        EXPECT_FALSE(CheckRoster(number, false, true, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
    }
    EXPECT_EQ(RosterFixed, 7);
    EXPECT_EQ(LastRosterText(), text);
}

TEST_F(RosterJudgeTest, RosterFixedIsClearedOnEntry)
{
    RosterFixed = 1;
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_EQ(RosterFixed, 0);
}

TEST_F(RosterJudgeTest, PeopleOfOtherTeamsAndUnusedRecordsAreLeftAlone)
{
    PutSkater(30, 6, position::Center, status::Pro).Condition = 0;
    PutSkater(31, 0, position::Center, status::Pro).Condition = 0;
    PutSkater(32, 5, position::Center, status::Pro).InUse = false;
    PutSkater(33, 5, position::Center, status::Pro).InUse.SetWord(1);
    PutSkater(0, 5, position::Center, status::Pro).Condition = 0;
    PutGoalie(30, 6, status::Pro).Condition = 0;
    PutGoalie(31, 5, status::Pro).InUse = false;
    PutGoalie(0, 5, status::Pro).Condition = 0;
    Expect(true, {});
    for (const int index : {0, 30, 31, 32, 33})
        EXPECT_EQ(Players[index].Status, status::Pro);
    EXPECT_EQ(Goalies[0].Status, status::Pro);
    EXPECT_EQ(Goalies[30].Status, status::Pro);
}

TEST_F(RosterJudgeTest, LastRecordsOfTheTablesAreExamined)
{
    PutSkater(10000, 5, position::Center, status::Pro).Condition = 0;
    PutGoalie(1000, 5, status::Pro).Condition = 0;
    Expect(true, {"Skater 10000" + NotFit, "Goalie 1000" + NotFit});
    EXPECT_EQ(RosterChanges[10000].Status, status::Scratch);
    EXPECT_EQ(RosterChangesGoalie[1000].Status, status::Scratch);
}

TEST_F(RosterJudgeTest, ProtectionAndTradeMarksOfTheChangeListStay)
{
    Players[1].Condition = 0;
    RosterChanges[1].Protected = true;
    RosterChanges[1].TradeAvailable = true;
    (void)CheckRoster(5, false, false, false);
    EXPECT_EQ(RosterChanges[1].Protected.Word(), -1);
    EXPECT_EQ(RosterChanges[1].TradeAvailable.Word(), -1);
}

TEST_F(RosterJudgeTest, PayrollIsJudgedOnlyWhenAskedFor)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 19999999;
    EXPECT_TRUE(CheckRoster(5, false, false, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre());
    EXPECT_FALSE(CheckRoster(5, false, true, true));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Team 5 is over the salary cap by $1.00!"}));
    EXPECT_EQ(LastRosterText(), ""); // the payroll has boxes of its own
    EXPECT_FALSE(CheckRoster(5, false, true, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre());
}

TEST_F(RosterJudgeTest, PayrollIsJudgedAfterTheMovesOfTheSameCall)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 20000000;
    AddGoalieOnFarm(71); // 1000000 that belong to the pro payroll once he is moved
    EXPECT_FALSE(CheckRoster(5, false, true, true));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::Warning, RosterError("Team 5", {"Goalie 3 Overall is too high to be in farm!"})},
                            Box{box::Warning, "Team 5 is over the salary cap by $1,000,000.00!"}));
}

TEST_F(RosterJudgeTest, PayrollWithinTheCapDoesNotMendTheRoster)
{
    team.DressesGoalies(1);
    EXPECT_FALSE(CheckRoster(5, false, true, false));
}

} // namespace
} // namespace dravik
