#include "makers/LinesView.h"
#include "makers/OpenRun.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr LineField F = LineField::NormalForward;
constexpr LineField D = LineField::NormalDefense;

// Day 3 of the farm's lines of team 5 is made.
class AutoLinesFarmTest : public SmallLeague {
protected:
    AutoLinesFarmTest() : Five(5), Day(Teams[5].Farm.FarmLines[3])
    {
        Goalies[0].InUse = true;
        Goalies[0].Condition = 100;
    }

    std::vector<Box> Run(bool verbose = true)
    {
        AutoLinesFarm(5, verbose, 3);
        return Machine.TakeBoxes();
    }

    // Skaters of one position on the farm, each one point worse than the one before.
    void Farm(int count, int position, int best)
    {
        for (int i = 0; i < count; ++i)
            Five.Farms(1, position, best - i);
    }

    TeamMaker Five;
    Lines& Day;

    const Box Success{64, "Auto Lines Function has been run successfully."};
    const Box IntegrityFailed{16, "Integrity Check Failed!"};
    const Box Incomplete{64, "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."};
    const Box StillIncomplete{64, "Roster for Team 5 is still incomplete!\r\nCannot make lines for Team 5."};
};

TEST_F(AutoLinesFarmTest, ATeamOutOfRangeIsRefused)
{
    AutoLinesFarm(0, true, 1);
    LeagueData.FarmRosterRequired = true;
    AutoLinesFarm(101, true, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, IntegrityFailed));
    EXPECT_FALSE(Modified);
}

// ---- The simple route ----------------------------------------------------------------------------------------------

TEST_F(AutoLinesFarmTest, TheSimpleRouteFillsADayFromThe17Best)
{
    // Forwards 1-12 in turn as C, LW, RW, defensemen 13-18; forward 12 is the worst of the 18.
    Five.FarmsFullRoster();
    Day.PullGoalerMinGoal = 3;
    Day.PullGoalerMinPct = 880;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), ElementsAre(7, 8, 9), ElementsAre(10, 11, 0)));
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 18), ElementsAre(13, 14)));
    EXPECT_THAT(Held(Day, LineField::PPForward), ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6)));
    EXPECT_THAT(Held(Day, LineField::PPDefense), ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16)));
    EXPECT_THAT(Held(Day, LineField::PKForward), ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4)));
    EXPECT_THAT(Held(Day, LineField::PKDefense), ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16)));
    EXPECT_THAT(Held(Day, LineField::FourVsFourForward), ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4)));
    EXPECT_THAT(Held(Day, LineField::FourVsFourDefense), ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16)));
    EXPECT_THAT(Held(Day, LineField::PK3Forward), ElementsAre(ElementsAre(1), ElementsAre(2)));
    EXPECT_THAT(Held(Day, LineField::PK3Defense), ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16)));
    for (int number = 1; number <= 5; ++number) {
        EXPECT_EQ(Day.ExtraForward[number], number);
        EXPECT_EQ(Day.PenaltyShot[number], number);
        EXPECT_EQ(Day.ExtraDefense[number], 12 + number);
    }
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 2);
    EXPECT_EQ(Day.Strategy[0], 1);
    EXPECT_EQ(Day.Strategy[1], 2);
    EXPECT_EQ(Day.Strategy[2], 2);
    EXPECT_EQ(Day.PullGoalerMinGoal, 3);
    EXPECT_EQ(Day.PullGoalerMinPct, 880);
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesFarmTest, TheSimpleRouteNeverLooksAtTheRosterAndLeavesTheProLinesAlone)
{
    Teams[5].ProLines[3].NormalForward(1, 1) = 77;
    const auto pro = Words(Teams[5].ProLines[3]);
    Day.NormalDefense(4, 2) = 77;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Words(Teams[5].ProLines[3]), pro);
    EXPECT_EQ(SlotsOf(Day, 0), 67);
    EXPECT_EQ(Day.StartGoalie, 0);
    EXPECT_EQ(Day.BackupGoalie, 0);
}

TEST_F(AutoLinesFarmTest, ASilentRunShowsNothing)
{
    EXPECT_THAT(Run(false), IsEmpty());
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesFarmTest, AnyOtherWordThanTrueTakesTheSimpleRoute)
{
    LeagueData.FarmRosterRequired.SetWord(1);
    EXPECT_THAT(Run(), ElementsAre(Success));
}

TEST_F(AutoLinesFarmTest, Of30PlayersThe17BestPlayAndOneOfThemMayBeWithoutContract)
{
    Farm(10, position::Center, 60);
    Farm(10, position::LeftWing, 50);
    Farm(10, position::Defense, 57);
    Players[1].Contract = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
    // Centers 51 to 60 and defensemen 51 to 57: the wings are left out.
    for (int id = 11; id <= 20; ++id)
        EXPECT_EQ(SlotsOf(Day, id), 0) << id;
    EXPECT_GT(SlotsOf(Day, 27), 0);
    EXPECT_EQ(SlotsOf(Day, 28), 0);
}

TEST_F(AutoLinesFarmTest, OnlyFitPeopleOfTheFarmPlay)
{
    PutSkater(1, 5, position::Center, status::Scratch, 90);
    PutSkater(2, 5, position::Center, status::Pro, 90);
    PutSkater(3, 5, position::Center, status::Farm, 90).Condition = 94;
    PutSkater(4, 5, position::Center, status::Farm, 90).Suspension = 1;
    PutSkater(6, 6, position::Center, status::Farm, 90);
    PutSkater(7, 5, position::Center, status::Farm, 20).Condition = 95;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 7);
    EXPECT_EQ(Day.NormalForward(1, 2), 0);
}

TEST_F(AutoLinesFarmTest, EveryPositionGoesDownTheLinesBeforeAnybodyFillsAHole)
{
    // Unlike the pro lines, line 1 keeps its empty wing until all centers are on their own places.
    Farm(5, position::Center, 60);
    Farm(1, position::LeftWing, 40);
    Farm(4, position::RightWing, 50);
    Run();
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 6, 7), ElementsAre(2, 5, 8), ElementsAre(3, 0, 9), ElementsAre(4, 0, 10)));
}

TEST_F(AutoLinesFarmTest, HolesWithoutForwardsStayEmpty)
{
    Farm(7, position::RightWing, 60);
    Run();
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(5, 6, 1), ElementsAre(7, 0, 2), ElementsAre(0, 0, 3), ElementsAre(0, 0, 4)));
}

TEST_F(AutoLinesFarmTest, FiveDefensemenLeaveLineThreeD2AndLineFourEmpty)
{
    Farm(12, position::Center, 60);
    Farm(5, position::Defense, 60);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 0), ElementsAre(0, 0)));
}

TEST_F(AutoLinesFarmTest, TheLenientJudgePassesThoseEmptySlotsAndTheStrictOneDoesNot)
{
    Farm(12, position::Center, 60);
    Farm(5, position::Defense, 60);
    Five.FarmsGoalies(2);
    Run();
    EXPECT_EQ(Day.NormalDefense(4, 1), 0);
    EXPECT_TRUE(CheckLineFarm(5, false, 3, false));
    EXPECT_EQ(LastLinesText(), "Lines are perfect!");
    LeagueData.FarmRosterRequired = true;
    EXPECT_FALSE(CheckLineFarm(5, false, 3, false));
}

TEST_F(AutoLinesFarmTest, SixSevenAndEightDefensemenArePairedAsOnTheProTeam)
{
    Farm(6, position::Defense, 60);
    Run();
    EXPECT_THAT(Held(Day, D), ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4), ElementsAre(5, 6), ElementsAre(1, 2)));
    Farm(1, position::Defense, 50);
    Run();
    EXPECT_THAT(Held(Day, D), ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4), ElementsAre(5, 6), ElementsAre(7, 1)));
    Farm(2, position::Defense, 40);
    Run();
    EXPECT_THAT(Held(Day, D), ElementsAre(ElementsAre(1, 2), ElementsAre(3, 4), ElementsAre(5, 6), ElementsAre(7, 8)));
}

TEST_F(AutoLinesFarmTest, DefensemenBeyondThe17StillCountForTheRepeats)
{
    // Five of the seven defensemen are among the 17. They are dealt as five and repeated as seven.
    Farm(12, position::Center, 70);
    Farm(5, position::Defense, 60);
    Farm(2, position::Defense, 20);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 0), ElementsAre(0, 13)));
}

TEST_F(AutoLinesFarmTest, ThePowerPlayTakesTheTwoBestOfEachPositionOnly)
{
    // The second center of the lines is a wing; the power play leaves his place empty.
    Farm(1, position::Center, 60);
    Farm(5, position::LeftWing, 50);
    Farm(2, position::RightWing, 40);
    Run();
    EXPECT_EQ(Day.NormalForward(2, 1), 6);
    EXPECT_THAT(Held(Day, LineField::PPForward), ElementsAre(ElementsAre(1, 2, 7), ElementsAre(0, 3, 8)));
}

TEST_F(AutoLinesFarmTest, RecordZeroIsWalkedToo)
{
    PutSkater(0, 5, position::Defense, status::Farm, 99);
    Farm(5, position::Defense, 60);
    Run();
    // He takes the first place of the list, and his index reads as an empty slot; six are counted and repeated.
    EXPECT_THAT(Held(Day, D), ElementsAre(ElementsAre(0, 1), ElementsAre(2, 3), ElementsAre(4, 5), ElementsAre(0, 1)));
}

TEST_F(AutoLinesFarmTest, RecordZeroOfTheGoaliesIsNotWalked)
{
    PutGoalie(0, 5, status::Farm, 99);
    Five.FarmsGoalies(2);
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 2);
}

TEST_F(AutoLinesFarmTest, RecordsNotInUseAreNotListed)
{
    PutSkater(1, 5, position::Center, status::Farm, 60).InUse = false;
    PutSkater(2, 5, position::Center, status::Farm, 60).InUse.SetWord(1);
    PutSkater(3, 5, position::Center, status::Farm, 50);
    PutGoalie(1, 5, status::Farm, 60).InUse = false;
    PutGoalie(2, 5, status::Farm, 60).InUse.SetWord(1);
    PutGoalie(3, 5, status::Farm, 50);
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 3);
    EXPECT_EQ(SlotsOf(Day, 1) + SlotsOf(Day, 2), 0);
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 0);
}

TEST_F(AutoLinesFarmTest, AnInjuryTextAt95LeavesSomebodyListedAndNoneAt94Does)
{
    Player& skater = PutSkater(1, 5, position::Center, status::Farm, 50);
    Goalie& goalie = PutGoalie(1, 5, status::Farm, 50);
    skater.Condition = 95;
    skater.Injury = "Broken Leg";
    goalie.Condition = 95;
    goalie.Injury = "Broken Leg";
    PutSkater(2, 5, position::Center, status::Farm, 60).Condition = 94;
    PutGoalie(2, 5, status::Farm, 60).Condition = 94;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
    EXPECT_EQ(SlotsOf(Day, 2), 0);
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 0);
}

TEST_F(AutoLinesFarmTest, ASkaterWithoutAPositionEndsTheRunAfterTheWipe)
{
    Five.FarmsFullRoster();
    PutSkater(30, 5, 0, status::Farm, 50);
    Day.NormalForward(1, 1) = 5;
    EXPECT_THAT(Run(), ElementsAre(Box{16, "9 - Subscript out of range in AutoLinesFarm!"}));
    EXPECT_EQ(SlotsOf(Day, 0), 67);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesFarmTest, ADayOutOfRangeIsToldByTheWipeAndFailsInTheDealing)
{
    AutoLinesFarm(5, true, 11);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, Box{16, "9 - Subscript out of range in AutoLinesFarm!"}));
}

TEST_F(AutoLinesFarmTest, TheIndexOfTheSecondGoalieDecidesWhoStarts)
{
    struct {
        int First, Second;
        bool Swap;
    } const cases[] = {{97, 99, true},  {97, 100, true},  {98, 100, false}, {97, 98, false},
                       {1, 1000, true}, {100, 97, false}, {500, 99, false}};
    for (const auto& [first, second, swap] : cases) {
        for (auto& goalie : Goalies)
            goalie.Team = 0;
        PutGoalie(first, 5, status::Farm, 60);
        PutGoalie(second, 5, status::Farm, 50);
        Run();
        EXPECT_EQ(Day.StartGoalie, swap ? second : first) << first << ", " << second;
        EXPECT_EQ(Day.BackupGoalie, swap ? first : second) << first << ", " << second;
    }
}

TEST_F(AutoLinesFarmTest, TheConditionOfTheGoaliesPlaysNoPart)
{
    PutGoalie(1, 5, status::Farm, 60).Condition = 95;
    PutGoalie(2, 5, status::Farm, 50).Condition = 100;
    PutGoalie(3, 5, status::Farm, 90).Condition = 94;
    PutGoalie(4, 5, status::Farm, 90).Suspension = 1;
    PutGoalie(6, 5, status::Scratch, 90);
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 2);
}

TEST_F(AutoLinesFarmTest, AGoalieWithoutContractPlays)
{
    PutGoalie(1, 5, status::Farm, 60).Contract = 0;
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
}

TEST_F(AutoLinesFarmTest, AMissingGoalieLeavesAnEmptySlotWithoutAWord)
{
    Farm(25, position::Center, 60);
    PutGoalie(50, 5, status::Farm, 60);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.StartGoalie, 50);
    EXPECT_EQ(Day.BackupGoalie, 0);
}

// ---- The twin of the pro routine -----------------------------------------------------------------------------------

// The league requires farm rosters, and team 5 dresses skaters 1-18 and goalies 1-2. The farm's people come behind.
class AutoLinesFarmTwinTest : public AutoLinesFarmTest {
protected:
    AutoLinesFarmTwinTest()
    {
        LeagueData.FarmRosterRequired = true;
        Five.DressesFullRoster();
    }

    // Without farm teams the roster is complete whatever the farm holds.
    void AskForNoFarmPeople() { LeagueData.FarmEnabled = false; }
};

TEST_F(AutoLinesFarmTwinTest, AFullFarmFillsTheWholeDay)
{
    Five.FarmsFullRoster(); // forwards 19-30, defensemen 31-36, goalies 3-4
    Day.PullGoalerMinGoal = 3;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_THAT(Held(Day, F), ElementsAre(ElementsAre(19, 20, 21), ElementsAre(22, 23, 24), ElementsAre(25, 26, 27),
                                          ElementsAre(28, 29, 30)));
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(31, 32), ElementsAre(33, 34), ElementsAre(35, 36), ElementsAre(31, 32)));
    EXPECT_THAT(Held(Day, LineField::PPForward), ElementsAre(ElementsAre(19, 20, 21), ElementsAre(22, 23, 24)));
    EXPECT_THAT(Held(Day, LineField::PKForward), ElementsAre(ElementsAre(19, 20), ElementsAre(21, 22)));
    EXPECT_THAT(Held(Day, LineField::PK3Defense), ElementsAre(ElementsAre(31, 32), ElementsAre(33, 34)));
    for (int number = 1; number <= 5; ++number) {
        EXPECT_EQ(Day.ExtraForward[number], 18 + number);
        EXPECT_EQ(Day.PenaltyShot[number], 18 + number);
        EXPECT_EQ(Day.ExtraDefense[number], 30 + number);
    }
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 4);
    EXPECT_EQ(Day.Strategy[0], 1);
    EXPECT_EQ(Day.Strategy[1], 2);
    EXPECT_EQ(Day.Strategy[2], 2);
    EXPECT_EQ(Day.PullGoalerMinGoal, 3);
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesFarmTwinTest, TheTwinWipesTheFarmsDayAndLeavesTheProLinesAlone)
{
    AskForNoFarmPeople();
    Farm(1, position::Center, 60);
    Five.FarmsGoalies(2);
    Teams[5].ProLines[3].NormalForward(1, 1) = 1;
    const auto pro = Words(Teams[5].ProLines[3]);
    Day.NormalDefense(4, 2) = 77;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Words(Teams[5].ProLines[3]), pro);
    EXPECT_EQ(Day.NormalDefense(4, 2), 0);
}

TEST_F(AutoLinesFarmTwinTest, AnIncompleteRosterIsToldAndTheDayStaysUntouched)
{
    Day.NormalForward(1, 1) = 5;
    const auto before = Words(Day);
    EXPECT_THAT(Run(), ElementsAre(Incomplete, StillIncomplete));
    EXPECT_EQ(Words(Day), before);
}

TEST_F(AutoLinesFarmTwinTest, AnIncompleteRosterIsMadeFirst)
{
    Five.FarmsFullRoster();
    LeagueData.FarmMaxOverall = 99;
    Players[1].Status = 0;
    EXPECT_THAT(Run(), ElementsAre(Incomplete, Success));
    EXPECT_EQ(Players[1].Status, 2);
}

TEST_F(AutoLinesFarmTwinTest, AFarmWithFewerPlayersThanRequiredGetsLinesFromWhatIsThere)
{
    AskForNoFarmPeople();
    Farm(2, position::Center, 60);
    Farm(1, position::LeftWing, 50);
    Farm(5, position::Defense, 55);
    Five.FarmsGoalies(2);
    EXPECT_THAT(Run(), ElementsAre(Success));
    // Three forwards fill line 1, then lines 2 to 4 in their second round as far as they go.
    EXPECT_THAT(Held(Day, F), ElementsAre(ElementsAre(19, 21, 20), ElementsAre(19, 20, 21), ElementsAre(0, 0, 0),
                                          ElementsAre(0, 0, 0)));
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(22, 23), ElementsAre(24, 25), ElementsAre(26, 22), ElementsAre(23, 24)));
}

TEST_F(AutoLinesFarmTwinTest, RequiredPositionsComeBeforeBetterPeople)
{
    AskForNoFarmPeople();
    Farm(16, position::Center, 60);
    Farm(3, position::LeftWing, 20);
    Farm(3, position::RightWing, 15);
    Farm(7, position::Defense, 10);
    Five.FarmsGoalies(2);
    EXPECT_THAT(Run(), ElementsAre(Success));
    // 3 centers, 6 wings and 6 defensemen are required, and the three next centers make 18.
    for (const int id : {19, 24, 35, 40, 41, 46})
        EXPECT_GT(SlotsOf(Day, id), 0) << id;
    EXPECT_EQ(SlotsOf(Day, 25), 0); // the seventh center
    EXPECT_EQ(SlotsOf(Day, 47), 0); // the seventh defenseman
    EXPECT_THAT(Held(Day, D)[3], ElementsAre(41, 42));
}

TEST_F(AutoLinesFarmTwinTest, EqualRatingsStandInTheOrderOfTheirPositions)
{
    AskForNoFarmPeople();
    Farm(1, position::LeftWing, 50);
    Farm(1, position::Center, 50);
    Five.FarmsGoalies(2);
    Run();
    EXPECT_THAT(Held(Day, LineField::PKForward)[0], ElementsAre(20, 19));
}

TEST_F(AutoLinesFarmTwinTest, OnlyFitPeopleUnderContractPlay)
{
    AskForNoFarmPeople();
    PutSkater(20, 5, position::Center, status::Farm, 60).Contract = 0;
    PutSkater(21, 5, position::Center, status::Farm, 60).Condition = 94;
    PutSkater(22, 5, position::Center, status::Farm, 60).Suspension = 1;
    PutSkater(23, 5, position::Center, status::Scratch, 60);
    PutSkater(24, 6, position::Center, status::Farm, 60);
    PutSkater(25, 5, position::Center, status::Farm, 40);
    PutGoalie(3, 5, status::Farm, 60).Contract = 0;
    PutGoalie(4, 5, status::Farm, 60).Condition = 94;
    PutGoalie(6, 5, status::Farm, 60).Suspension = 1;
    PutGoalie(7, 5, status::Farm, 30);
    PutGoalie(8, 5, status::Farm, 20);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_THAT(Held(Day, F)[0], ElementsAre(25, 25, 0)); // the second round puts him next to himself
    EXPECT_EQ(Day.StartGoalie, 7);
    EXPECT_EQ(Day.BackupGoalie, 8);
}

TEST_F(AutoLinesFarmTwinTest, RecordsNotInUseAreNotListed)
{
    AskForNoFarmPeople();
    PutSkater(20, 5, position::Center, status::Farm, 60).InUse = false;
    PutSkater(21, 5, position::Center, status::Farm, 60).InUse.SetWord(1);
    PutSkater(22, 5, position::Center, status::Farm, 40);
    PutGoalie(3, 5, status::Farm, 60).InUse = false;
    PutGoalie(4, 5, status::Farm, 60).InUse.SetWord(1);
    PutGoalie(6, 5, status::Farm, 40);
    PutGoalie(7, 5, status::Farm, 30);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 22);
    EXPECT_EQ(SlotsOf(Day, 20) + SlotsOf(Day, 21), 0);
    EXPECT_EQ(Day.StartGoalie, 6);
    EXPECT_EQ(Day.BackupGoalie, 7);
}

TEST_F(AutoLinesFarmTwinTest, RecordZeroIsNotWalkedEvenWithATeam)
{
    AskForNoFarmPeople();
    PutSkater(0, 5, position::Center, status::Farm, 60);
    PutGoalie(0, 5, status::Farm, 60);
    Farm(1, position::Center, 50);
    Five.FarmsGoalies(2);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 19);
    EXPECT_EQ(Day.PKForward(1, 2), 0); // he is the only one
    EXPECT_EQ(Day.PKForward(1, 1), 19);
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 4);
}

TEST_F(AutoLinesFarmTwinTest, AnInjuryTextAt95LeavesSomebodyListedAndNoneAt94Does)
{
    AskForNoFarmPeople();
    Player& skater = PutSkater(20, 5, position::Center, status::Farm, 50);
    skater.Condition = 95;
    skater.Injury = "Broken Leg";
    PutSkater(21, 5, position::Center, status::Farm, 60).Condition = 94;
    for (const int id : {3, 4}) {
        Goalie& goalie = PutGoalie(id, 5, status::Farm, 50);
        goalie.Condition = 95;
        goalie.Injury = "Broken Leg";
    }
    PutGoalie(6, 5, status::Farm, 60).Condition = 94;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 20);
    EXPECT_EQ(SlotsOf(Day, 21), 0);
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 4);
}

TEST_F(AutoLinesFarmTwinTest, MoreRequiredThanDressedIsRefused)
{
    AskForNoFarmPeople();
    Farm(4, position::Center, 60);
    LeagueData.ProDressedSkaters = 2;
    PositionCounts counts;
    OpenRun run;
    EXPECT_FALSE(ListRequiredFarmSkaters(run, counts));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed));
    EXPECT_EQ(run.Count(), 3);
}

TEST_F(AutoLinesFarmTwinTest, TheListCountsItsPositions)
{
    Farm(5, position::Center, 60);
    Farm(7, position::Defense, 60);
    LeagueData.ProDressedSkaters = 11;
    PositionCounts counts;
    OpenRun run;
    EXPECT_TRUE(ListRequiredFarmSkaters(run, counts));
    EXPECT_EQ(run.Count(), 11);
    EXPECT_EQ(counts[position::Center], 5);
    EXPECT_EQ(counts[position::Defense], 6);
}

TEST_F(AutoLinesFarmTwinTest, MoreThan25MayBeDealt)
{
    AskForNoFarmPeople();
    LeagueData.ProDressedSkaters = 40;
    LeagueData.RequiredCenters = LeagueData.RequiredLeftWings = LeagueData.RequiredRightWings = 0;
    LeagueData.RequiredDefensemen = 0;
    Farm(28, position::Defense, 60);
    Farm(12, position::Center, 30);
    Five.FarmsGoalies(2);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_THAT(Held(Day, F)[3], ElementsAre(56, 57, 58));
}

TEST_F(AutoLinesFarmTwinTest, TheRankingHoldsAThousand)
{
    AskForNoFarmPeople();
    Five.Farms(1000, position::Center, 50).FarmsGoalies(2);
    EXPECT_THAT(Run(), ElementsAre(Success));
    Five.Farms(1, position::Center, 50);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "9 - Subscript out of range in AutoLines!"}));
}

TEST_F(AutoLinesFarmTwinTest, AsManyRequiredAsDressedIsAllowed)
{
    AskForNoFarmPeople();
    Farm(4, position::Center, 60);
    LeagueData.ProDressedSkaters = 3;
    PositionCounts counts;
    OpenRun run;
    EXPECT_TRUE(ListRequiredFarmSkaters(run, counts));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(run.Count(), 3);
}

TEST_F(AutoLinesFarmTwinTest, TheLastOf999AndTheLastOfAThousandAreDealt)
{
    // The only forward is the worst of all, so that the search for him walks to the end of the list.
    constexpr int last = 9000;
    AskForNoFarmPeople();
    Five.FarmsGoalies(2);
    int farmed = 0;
    for (const int defensemen : {998, 999}) {
        Five.Farms(defensemen - farmed, position::Defense, 60);
        farmed = defensemen;
        PutSkater(last, 5, position::Center, status::Farm, 10);
        LeagueData.ProDressedSkaters = defensemen + 1;
        EXPECT_THAT(Run(), ElementsAre(Success)) << defensemen;
        EXPECT_EQ(Day.NormalForward(1, 1), last) << defensemen;
    }
}

TEST_F(AutoLinesFarmTwinTest, ASkaterWithoutAPositionEndsTheRunInTheProRoutinesName)
{
    AskForNoFarmPeople();
    PutSkater(20, 5, 0, status::Farm, 50);
    EXPECT_THAT(Run(), ElementsAre(IntegrityFailed, Box{16, "Skater 20 has no position!"}, IntegrityFailed,
                                   Box{16, "9 - Subscript out of range in AutoLines!"}));
}

TEST_F(AutoLinesFarmTwinTest, ADayOutOfRangeIsToldByTheWipeAndFailsInTheDealing)
{
    AskForNoFarmPeople();
    AutoLinesFarm(5, true, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, Box{16, "9 - Subscript out of range in AutoLines!"}));
}

TEST_F(AutoLinesFarmTwinTest, WithOneGoalieTheSecondSlotStaysEmptyAfterTheMessage)
{
    AskForNoFarmPeople();
    Five.FarmsGoalies(1);
    EXPECT_THAT(Run(), ElementsAre(IntegrityFailed, Success));
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 0);
}

TEST_F(AutoLinesFarmTwinTest, OneTiredGoalieGivesTheStartToNobody)
{
    AskForNoFarmPeople();
    PutGoalie(3, 5, status::Farm, 50).Condition = 97;
    EXPECT_THAT(Run(), ElementsAre(IntegrityFailed, Success));
    EXPECT_EQ(Day.StartGoalie, 0);
    EXPECT_EQ(Day.BackupGoalie, 3);
}

TEST_F(AutoLinesFarmTwinTest, WithoutTheirPlaceholderMissingGoaliesEndTheRunAfterTheSkaters)
{
    AskForNoFarmPeople();
    Goalies[0].InUse = false;
    Farm(1, position::Center, 60);
    EXPECT_THAT(Run(), ElementsAre(IntegrityFailed, IntegrityFailed));
    EXPECT_EQ(Day.NormalForward(1, 1), 19);
    EXPECT_EQ(Day.Strategy[1], 0);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesFarmTwinTest, HereTheConditionOfTheGoaliesDecidesAndNotTheirIndex)
{
    AskForNoFarmPeople();
    PutGoalie(97, 5, status::Farm, 60);
    PutGoalie(100, 5, status::Farm, 50);
    Run();
    EXPECT_EQ(Day.StartGoalie, 97);
    Goalies[97].Condition = 97;
    Run();
    EXPECT_EQ(Day.StartGoalie, 100);
    EXPECT_EQ(Day.BackupGoalie, 97);
}

} // namespace
} // namespace dravik
