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

// Team 5 is filled by the tests; day 3 of its pro lines is made.
class AutoLinesTest : public SmallLeague {
protected:
    AutoLinesTest() : Five(5), Day(Teams[5].ProLines[3])
    {
        Goalies[0].InUse = true;
        Goalies[0].Condition = 100;
    }

    // Forwards 1-12 in turn as C, LW, RW, defensemen 13-18 and goalies 1-2, each better than the next of his kind.
    void DressFullRoster() { Five.DressesFullRoster(); }

    // Forwards of falling rating, all of one position, and defensemen of falling rating behind them.
    void Dress(int forwards, int defensemen)
    {
        LeagueData.ProDressedSkaters = forwards + defensemen;
        LeagueData.RequiredCenters = LeagueData.RequiredLeftWings = LeagueData.RequiredRightWings = 0;
        LeagueData.RequiredDefensemen = 0;
        for (int i = 0; i < forwards; ++i)
            Five.Dresses(1, position::Center, 90 - i);
        for (int i = 0; i < defensemen; ++i)
            Five.Dresses(1, position::Defense, 90 - i);
        Five.DressesGoalies(1, 80).DressesGoalies(1, 70);
    }

    std::vector<Box> Run(bool verbose = true)
    {
        AutoLines(5, verbose, 3);
        return Machine.TakeBoxes();
    }

    TeamMaker Five;
    Lines& Day;

    const Box Success{64, "Auto Lines Function has been run successfully."};
    const Box IntegrityFailed{16, "Integrity Check Failed!"};
    const Box Incomplete{64, "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."};
    const Box StillIncomplete{64, "Roster for Team 5 is still incomplete!\r\nCannot make lines for Team 5."};
};

// ---- Opening -------------------------------------------------------------------------------------------------------

TEST_F(AutoLinesTest, ATeamOutOfRangeIsRefused)
{
    AutoLines(0, true, 1);
    AutoLines(101, true, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, IntegrityFailed));
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesTest, ADayOutOfRangeIsToldByTheWipeAndFailsInTheDealing)
{
    DressFullRoster();
    AutoLines(5, true, 11);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, Box{16, "9 - Subscript out of range in AutoLines!"}));
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesTest, AnIncompleteRosterThatCannotBeMadeLeavesTheDayUntouched)
{
    Five.Dresses(3, position::Center);
    Day.NormalForward(1, 1) = 1;
    Day.Strategy[0] = 5;
    const auto before = Words(Day);
    EXPECT_THAT(Run(false), ElementsAre(Incomplete, StillIncomplete));
    EXPECT_EQ(Words(Day), before);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesTest, AnIncompleteRosterIsMadeFirst)
{
    DressFullRoster();
    Players[1].Status = 1;
    EXPECT_THAT(Run(), ElementsAre(Incomplete, Success));
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
}

TEST_F(AutoLinesTest, TheRosterIsMadeInCompleteMode)
{
    // A complete rebuild prefers the better center from the farm over the dressed one, and sends that one down.
    LeagueData.FarmMaxOverall = 99;
    DressFullRoster();
    Players[2].Status = 1;
    Five.Farms(1, position::Center, 99);
    EXPECT_THAT(Run(), ElementsAre(Incomplete, Success));
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[12].Status, 0);
}

TEST_F(AutoLinesTest, ThePayrollIsJudgedWithTheRoster)
{
    DressFullRoster();
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    EXPECT_THAT(Run(), ElementsAre(Incomplete, StillIncomplete));
}

TEST_F(AutoLinesTest, TheNamesInTheMessagesAreTrimmed)
{
    Teams[5].Name = "  Wolves ";
    EXPECT_THAT(Run(),
                ElementsAre(Box{64, "Roster for Wolves is incomplete!\r\nTrying Auto Rosters Function for Wolves."},
                            Box{64, "Roster for Wolves is still incomplete!\r\nCannot make lines for Wolves."}));
}

// ---- A whole day ---------------------------------------------------------------------------------------------------

TEST_F(AutoLinesTest, AFullRosterFillsTheWholeDay)
{
    DressFullRoster();
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), ElementsAre(7, 8, 9), ElementsAre(10, 11, 12)));
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
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesTest, ASilentRunShowsNothing)
{
    DressFullRoster();
    EXPECT_THAT(Run(false), IsEmpty());
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesTest, OtherDaysAndTheFarmStayAsTheyAre)
{
    DressFullRoster();
    Teams[5].ProLines[2].NormalForward(1, 1) = 7;
    Teams[5].Farm.FarmLines[3].NormalForward(1, 1) = 8;
    const auto day2 = Words(Teams[5].ProLines[2]);
    const auto farm = Words(Teams[5].Farm.FarmLines[3]);
    Run();
    EXPECT_EQ(Words(Teams[5].ProLines[2]), day2);
    EXPECT_EQ(Words(Teams[5].Farm.FarmLines[3]), farm);
}

TEST_F(AutoLinesTest, PullGoalerValuesSurviveARun)
{
    DressFullRoster();
    Day.PullGoalerMinGoal = 3;
    Day.PullGoalerMinPct = 880;
    Run();
    EXPECT_EQ(Day.PullGoalerMinGoal, 3);
    EXPECT_EQ(Day.PullGoalerMinPct, 880);
}

// ---- Forward lines -------------------------------------------------------------------------------------------------

TEST_F(AutoLinesTest, OfTwoEqualCentersTheLowerIndexTakesLineOne)
{
    DressFullRoster();
    PutSkater(4, 5, position::Center, status::Pro, 79);
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
    EXPECT_EQ(Day.NormalForward(2, 1), 4);
}

TEST_F(AutoLinesTest, ADressedSkaterBelowCondition95IsOnNoLine)
{
    LeagueData.ProDressedSkaters = 19;
    DressFullRoster();
    PutSkater(19, 5, position::Center, status::Pro, 95).Condition = 94;
    Run();
    EXPECT_EQ(SlotsOf(Day, 19), 0);
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
}

TEST_F(AutoLinesTest, WithElevenForwardsTheLastWingIsTheBestForwardOnceMore)
{
    LeagueData.RequiredDefensemen = 6;
    DressFullRoster();
    PutSkater(12, 5, position::Defense, status::Pro, 40);
    Run();
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), ElementsAre(7, 8, 9), ElementsAre(10, 11, 1)));
}

TEST_F(AutoLinesTest, ALeftWingPlaysCenterOnceTheCentersAreUsedUp)
{
    LeagueData.RequiredCenters = 2;
    DressFullRoster();
    PutSkater(7, 5, position::LeftWing, status::Pro, 71);
    PutSkater(10, 5, position::RightWing, status::Pro, 30);
    Run();
    // 7 is the better of the left wings and has the wing of line 3; 8, second best, fills its empty center.
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), ElementsAre(8, 7, 9), ElementsAre(10, 11, 12)));
}

TEST_F(AutoLinesTest, OwnPositionsOfALineComeBeforeAnyForwardOfIt)
{
    // All centers: each line takes its center first, then the two best who are left.
    Dress(12, 6);
    Run();
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), ElementsAre(7, 8, 9), ElementsAre(10, 11, 12)));
}

TEST_F(AutoLinesTest, ALineIsFilledBeforeTheNextOneTakesItsOwnPositions)
{
    // There is no left wing: line 1 takes the second best center there, and line 2 gets the third.
    DressFullRoster();
    LeagueData.RequiredLeftWings = 0;
    for (const int id : {2, 5, 8, 11})
        Players[id].Position = position::RightWing;
    Run();
    // Right wings by rating: 2, 3, 5, 6, 8, 9, 11, 12.
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 3, 2), ElementsAre(4, 6, 5), ElementsAre(7, 9, 8), ElementsAre(10, 12, 11)));
}

TEST_F(AutoLinesTest, WithSixForwardsTheLastLinesRepeatThemFromTheTop)
{
    Dress(6, 12);
    Run();
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 6), ElementsAre(1, 2, 3), ElementsAre(4, 5, 6)));
}

TEST_F(AutoLinesTest, WithFiveForwardsEvenTheSecondRoundRunsDryAndThePowerPlayRepeatsToo)
{
    Dress(5, 13);
    Run();
    EXPECT_THAT(Held(Day, F),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 1), ElementsAre(2, 3, 4), ElementsAre(5, 0, 0)));
    EXPECT_THAT(Held(Day, LineField::PPForward), ElementsAre(ElementsAre(1, 2, 3), ElementsAre(4, 5, 1)));
}

TEST_F(AutoLinesTest, PowerPlayUnitsEqualLinesOneAndTwo)
{
    DressFullRoster();
    LeagueData.RequiredLeftWings = 0;
    for (const int id : {2, 5, 8, 11})
        Players[id].Position = position::RightWing;
    Run();
    for (int unit = 1; unit <= 2; ++unit)
        EXPECT_EQ(Held(Day, LineField::PPForward)[static_cast<std::size_t>(unit - 1)],
                  Held(Day, F)[static_cast<std::size_t>(unit - 1)]);
}

TEST_F(AutoLinesTest, SpecialTeamsTakeTheFourBestForwardsWhateverTheirPosition)
{
    // The four best are right wings.
    DressFullRoster();
    for (const int id : {3, 6, 9, 12})
        PutSkater(id, 5, position::RightWing, status::Pro, 95 - id);
    Run();
    for (const LineField field : {LineField::PKForward, LineField::FourVsFourForward})
        EXPECT_THAT(Held(Day, field), ElementsAre(ElementsAre(3, 6), ElementsAre(9, 12)));
}

TEST_F(AutoLinesTest, ThePenaltyKillWithThreeUsesTheTwoBestForwardsAndLeavesTheReservedWords)
{
    DressFullRoster();
    Run();
    EXPECT_EQ(Day.PK3Forward[1], 1);
    EXPECT_EQ(Day.PK3Forward[2], 2);
    EXPECT_EQ(Day.PK3Reserved[1], 0);
    EXPECT_EQ(Day.PK3Reserved[2], 0);
}

TEST_F(AutoLinesTest, AShortListLeavesTheLaterSlotsEmpty)
{
    Dress(3, 15);
    Day.PenaltyShot[5] = 3;
    Run();
    EXPECT_EQ(Day.PenaltyShot[5], 0);
    EXPECT_THAT(Held(Day, LineField::PKForward), ElementsAre(ElementsAre(1, 2), ElementsAre(3, 0)));
    EXPECT_EQ(Day.ExtraForward[3], 3);
    EXPECT_EQ(Day.ExtraForward[4], 0);
    EXPECT_EQ(Day.PenaltyShot[4], 0);
}

// ---- Defense pairs -------------------------------------------------------------------------------------------------

TEST_F(AutoLinesTest, OfNineDefensemenOnlyEightAreOnTheLines)
{
    Dress(12, 9);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 18), ElementsAre(19, 20)));
    EXPECT_EQ(SlotsOf(Day, 21), 0);
}

TEST_F(AutoLinesTest, SevenDefensemenRepeatTheBest)
{
    Dress(12, 7);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 18), ElementsAre(19, 13)));
}

TEST_F(AutoLinesTest, SixDefensemenRepeatTheFirstPair)
{
    Dress(12, 6);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 18), ElementsAre(13, 14)));
}

TEST_F(AutoLinesTest, OfFiveDefensemenTheBestPlaysOnLinesOneAndThree)
{
    Dress(13, 5);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(14, 15), ElementsAre(16, 17), ElementsAre(18, 14), ElementsAre(15, 16)));
}

TEST_F(AutoLinesTest, FourDefensemenAreNotRepeated)
{
    Dress(14, 4);
    Run();
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(15, 16), ElementsAre(17, 18), ElementsAre(0, 0), ElementsAre(0, 0)));
}

// ---- The list ------------------------------------------------------------------------------------------------------

TEST_F(AutoLinesTest, TheListStopsByIndexAndNotByRating)
{
    Dress(12, 6);
    Five.Dresses(1, position::Center, 99);
    PositionCounts counts;
    OpenRun run;
    EXPECT_TRUE(ListDressedSkaters(run, &counts));
    EXPECT_EQ(run.Count(), 18);
    EXPECT_EQ(run.IdAt(1), 1);
    EXPECT_EQ(counts[position::Center], 12);
    EXPECT_EQ(counts[position::Defense], 6);
}

TEST_F(AutoLinesTest, RecordsNotInUseAreNotListed)
{
    DressFullRoster();
    LeagueData.ProDressedSkaters = 25;
    Run();
    const auto expected = Words(Day);
    PutSkater(19, 5, position::Center, status::Pro, 99).InUse = false;
    PutSkater(20, 5, position::Defense, status::Pro, 99).InUse.SetWord(1);
    PutGoalie(3, 5, status::Pro, 99).InUse = false;
    PutGoalie(4, 5, status::Pro, 99).InUse.SetWord(1);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Words(Day), expected);
}

TEST_F(AutoLinesTest, RecordZeroIsNotListedEvenWithATeam)
{
    DressFullRoster();
    LeagueData.ProDressedSkaters = 25;
    Run();
    const auto expected = Words(Day);
    PutSkater(0, 5, position::Center, status::Pro, 99);
    PutGoalie(0, 5, status::Pro, 99);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Words(Day), expected);
}

TEST_F(AutoLinesTest, AnInjuryTextAt95LeavesSomebodyListedAndNoneAt94Does)
{
    LeagueData.ProDressedSkaters = 20;
    DressFullRoster();
    Five.Dresses(1, position::Center, 20).DressesGoalies(1, 60);
    Players[1].Condition = 95;
    Players[1].Injury = "Broken Leg";
    Players[4].Condition = 94;
    Goalies[1].Condition = 95;
    Goalies[1].Injury = "Broken Leg";
    Goalies[2].Condition = 94;
    LeagueData.MaxDressedGoalies = 3;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
    EXPECT_EQ(SlotsOf(Day, 4), 0);
    // The tired first goalie stays out of the start, but in the list.
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 1);
}

TEST_F(AutoLinesTest, FewerThan18InTheListAreRefused)
{
    Dress(12, 6);
    Players[18].Condition = 94;
    OpenRun run;
    EXPECT_FALSE(ListDressedSkaters(run));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed));
}

TEST_F(AutoLinesTest, ALeagueThatDressesFewerThan18IsRefused)
{
    Dress(12, 6);
    LeagueData.ProDressedSkaters = 17;
    OpenRun run;
    EXPECT_FALSE(ListDressedSkaters(run));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed));
}

TEST_F(AutoLinesTest, TheListTakesSuspendedPeopleAndThoseWithoutContract)
{
    Dress(12, 6);
    Players[1].Suspension = 2;
    Players[2].Contract = 0;
    OpenRun run;
    EXPECT_TRUE(ListDressedSkaters(run));
    EXPECT_EQ(run.IdAt(1), 1);
    EXPECT_EQ(run.Count(), 18);
}

TEST_F(AutoLinesTest, ASkaterWithoutAPositionEndsTheRunAfterTheWipe)
{
    LeagueData.ProDressedSkaters = 20;
    DressFullRoster();
    PutSkater(19, 5, 0, status::Pro, 50);
    Day.NormalForward(1, 1) = 1;
    EXPECT_THAT(
        Run(), ElementsAre(Box{16, "Skater 19 has no position!"}, Box{16, "9 - Subscript out of range in AutoLines!"}));
    EXPECT_EQ(SlotsOf(Day, 0), 67);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesTest, ASkaterOfPosition5TakesAPlaceInTheListAndNoSlot)
{
    DressFullRoster();
    // Nobody counts him as dressed, so he pushes the skater of the highest index out of the list. He is rated as the
    // goalie of his index.
    PutSkater(18, 5, 5, status::Pro, 50);
    PutSkater(19, 5, position::Defense, status::Pro, 50);
    EXPECT_THAT(Run(), ElementsAre(Box{16, "Skater 18 has no position!"}, Success));
    EXPECT_EQ(SlotsOf(Day, 18), 0);
    EXPECT_EQ(SlotsOf(Day, 19), 0);
    EXPECT_THAT(Held(Day, D),
                ElementsAre(ElementsAre(13, 14), ElementsAre(15, 16), ElementsAre(17, 13), ElementsAre(14, 15)));
}

TEST_F(AutoLinesTest, Place26IsOneTooManyAndTheDayStandsHalfFilled)
{
    Dress(0, 14);
    LeagueData.ProDressedSkaters = 26;
    for (int i = 0; i < 12; ++i)
        Five.Dresses(1, i % 3 + 1, 40 - i); // places 15 to 26
    EXPECT_THAT(Run(), ElementsAre(Box{16, "9 - Subscript out of range in AutoLines!"}));
    EXPECT_THAT(Held(Day, F), ElementsAre(ElementsAre(15, 16, 17), ElementsAre(18, 19, 20), ElementsAre(21, 22, 23),
                                          ElementsAre(24, 25, 0)));
    EXPECT_THAT(Held(Day, D)[0], ElementsAre(0, 0));
    EXPECT_EQ(Day.Strategy[1], 0);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesTest, Place26BehindAllForwardsIsNeverReached)
{
    Dress(12, 14); // forwards rated 90 to 79, so the worst defenseman stands at place 26
    LeagueData.RequiredLeftWings = LeagueData.RequiredRightWings = 4;
    LeagueData.RequiredCenters = 4;
    for (int id = 1; id <= 12; ++id)
        Players[id].Position = (id - 1) % 3 + 1;
    EXPECT_THAT(Run(), ElementsAre(Success));
}

// ---- Goalies -------------------------------------------------------------------------------------------------------

TEST_F(AutoLinesTest, ASecondGoalieAt99TakesTheStartFromAFirstAt97)
{
    DressFullRoster();
    Goalies[1].Condition = 97;
    Goalies[2].Condition = 99;
    Run();
    EXPECT_EQ(Day.StartGoalie, 2);
    EXPECT_EQ(Day.BackupGoalie, 1);
}

TEST_F(AutoLinesTest, AFirstGoalieAt98KeepsTheStart)
{
    DressFullRoster();
    Goalies[1].Condition = 98;
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
}

TEST_F(AutoLinesTest, ASecondGoalieAt98DoesNotTakeTheStart)
{
    DressFullRoster();
    Goalies[1].Condition = 97;
    Goalies[2].Condition = 98;
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
}

TEST_F(AutoLinesTest, OnlyDressedAndHealthyGoaliesAreListed)
{
    LeagueData.MaxDressedGoalies = 3;
    DressFullRoster();
    PutGoalie(3, 5, status::Scratch, 99);
    PutGoalie(4, 5, status::Pro, 98).Condition = 94;
    PutGoalie(6, 6, status::Pro, 97);
    PutGoalie(7, 5, status::Farm, 96);
    PutGoalie(8, 5, status::Pro, 95);
    LeagueData.FarmMaxOverall = 99;
    OpenRun run;
    ListDressedGoalies(run);
    EXPECT_EQ(run.Count(), 3);
    EXPECT_EQ(run.IdAt(1), 8);
    Run();
    EXPECT_EQ(Day.StartGoalie, 8);
    EXPECT_EQ(Day.BackupGoalie, 1);
}

TEST_F(AutoLinesTest, WithOneGoalieTheSecondSlotStaysEmptyAfterTheMessage)
{
    Five.DressesGoalies(1);
    OpenRun run;
    ListDressedGoalies(run);
    EXPECT_TRUE(GoaliesAreListed(run));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed));
    DealGoaliesByCondition(run, Day);
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 0);
}

TEST_F(AutoLinesTest, OneTiredGoalieGivesTheStartToNobody)
{
    Five.DressesGoalies(1);
    Goalies[1].Condition = 97;
    OpenRun run;
    ListDressedGoalies(run);
    EXPECT_TRUE(GoaliesAreListed(run));
    DealGoaliesByCondition(run, Day);
    EXPECT_EQ(Day.StartGoalie, 0);
    EXPECT_EQ(Day.BackupGoalie, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed));
}

TEST_F(AutoLinesTest, AMissingGoalieWhoseRecordIsNotInUseIsToldTwiceAndRefused)
{
    Goalies[0].InUse = false;
    Five.DressesGoalies(1);
    OpenRun run;
    ListDressedGoalies(run);
    EXPECT_FALSE(GoaliesAreListed(run));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, IntegrityFailed));
}

TEST_F(AutoLinesTest, TwoGoaliesPassInSilenceWithoutTheirPlaceholder)
{
    Goalies[0].InUse = false;
    Five.DressesGoalies(2);
    OpenRun run;
    ListDressedGoalies(run);
    EXPECT_TRUE(GoaliesAreListed(run));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
