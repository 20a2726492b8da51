#include "makers/LinesView.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <numeric>

namespace dravik {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Team 5 dresses forwards 1-12, who play in turn as C, LW, RW, and defensemen 13-19, each better than the next of his
// kind, and goalies 1-2; two may be missing. All but defenseman 19 stand on day 3 of the pro lines: the forwards on lines
// 1 to 4 in their order.
class AutoLinesPartialTest : public SmallLeague {
protected:
    AutoLinesPartialTest() : Five(5), Day(Teams[5].ProLines[3])
    {
        Goalies[0].InUse = true;
        Goalies[0].Condition = 100;
        LeagueData.ProDressedSkaters = 20;
        Dress(12, 7);
    }

    void Dress(int forwards, int defensemen)
    {
        for (const int id : Five.Skaters)
            Players[id].InUse = false;
        Five.Skaters.clear();
        for (int i = 0; i < forwards; ++i)
            Five.Dresses(1, i % 3 + 1, 90 - i);
        for (int i = 0; i < defensemen; ++i)
            Five.Dresses(1, position::Defense, 90 - i);
        if (Five.GoalieIds.empty())
            Five.DressesGoalies(1, 80).DressesGoalies(1, 70);
        FillDay(forwards, std::min(defensemen, 6));
    }

    void FillDay(int forwards, int defensemen)
    {
        std::vector<int> forward(static_cast<std::size_t>(forwards));
        std::vector<int> defense(static_cast<std::size_t>(defensemen));
        std::iota(forward.begin(), forward.end(), 1);
        std::iota(defense.begin(), defense.end(), forwards + 1);
        FillLines(Day, forward, defense, {1, 2});
    }

    std::vector<Box> Run(bool verbose = true)
    {
        AutoLinesPartial(5, verbose, 3);
        return Machine.TakeBoxes();
    }

    // Exchanges two skaters on the normal lines.
    void Exchange(int one, int other)
    {
        for (const LineSlot& slot : SkaterSlots) {
            Int16& word = At(Day, slot);
            if (slot.Field == LineField::NormalForward && (word == one || word == other))
                word = word == one ? other : one;
        }
    }

    TeamMaker Five;
    Lines& Day;

    const Box Success{64, "Auto Lines Partial Function has been run successfully."};
    const Box Unfilled{64, "Auto Lines Partial Function Error."};
    const Box IntegrityFailed{16, "Integrity Check Failed!"};
    const Box Incomplete{64, "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."};
    const Box StillIncomplete{64, "Roster for Team 5 is still incomplete!\r\nCannot make lines for Team 5."};
};

// ---- Opening -------------------------------------------------------------------------------------------------------

TEST_F(AutoLinesPartialTest, ATeamOutOfRangeIsRefused)
{
    AutoLinesPartial(0, true, 1);
    AutoLinesPartial(101, true, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(IntegrityFailed, IntegrityFailed));
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesPartialTest, ADayOutOfRangeIsToldByTheTestForEmptinessAndFailsInTheRepair)
{
    AutoLinesPartial(5, true, 0);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(IntegrityFailed, Box{16, "9 - Subscript out of range in AutoLinesPartial!"}));
}

TEST_F(AutoLinesPartialTest, AnEmptyDayIsMadeByAutoLinesWithItsMessages)
{
    Day = {};
    Day.Strategy[0] = 5;
    EXPECT_THAT(Run(), ElementsAre(Box{64, "Auto Lines Function has been run successfully."}));
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
    EXPECT_EQ(Day.Strategy[0], 1);
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesPartialTest, AnEmptyDayIsMadeInSilenceIfAsked)
{
    Day = {};
    EXPECT_THAT(Run(false), IsEmpty());
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
}

TEST_F(AutoLinesPartialTest, ADayWithOneGoalieIsNotEmpty)
{
    Day = {};
    Day.BackupGoalie = 2;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 12); // the worst forward, not the best center
}

TEST_F(AutoLinesPartialTest, AnIncompleteRosterIsMadeFirst)
{
    LeagueData.ProDressedSkaters = 19;
    Players[1].Status = 1;
    Players[2].Status = 1;
    EXPECT_THAT(Run(), ElementsAre(Incomplete, Success));
    EXPECT_EQ(Players[1].Status, 2);
}

TEST_F(AutoLinesPartialTest, AnIncompleteRosterThatCannotBeMadeLeavesTheDayUntouched)
{
    for (const int id : {17, 18})
        Players[id].InUse = false;
    const auto before = Words(Day);
    EXPECT_THAT(Run(false), ElementsAre(Incomplete, StillIncomplete));
    EXPECT_EQ(Words(Day), before);
    EXPECT_FALSE(Modified);
}

// ---- What stays ----------------------------------------------------------------------------------------------------

TEST_F(AutoLinesPartialTest, ACompleteHealthyDayIsNotChanged)
{
    Day.Strategy[1] = 4;
    Day.PullGoalerMinGoal = 2;
    Day.PullGoalerMinPct = 875;
    Day.PK3Reserved[1] = 99;
    const auto before = Words(Day);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Words(Day), before);
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesPartialTest, ASilentRunShowsNothing)
{
    Day.NormalForward(1, 1) = 0;
    EXPECT_THAT(Run(false), IsEmpty());
    EXPECT_TRUE(Modified);
}

TEST_F(AutoLinesPartialTest, AUsableMisfitStaysWhereHeStands)
{
    // A defenseman at center, a forward in a pair, and one man twice on a line.
    Day.NormalForward(1, 1) = 13;
    Day.NormalDefense(2, 1) = 7;
    Day.NormalForward(4, 2) = 12;
    const auto before = Words(Day);
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Words(Day), before);
}

TEST_F(AutoLinesPartialTest, TheStrategyPointsStayAsTheUserSetThem)
{
    Day.NormalForward(1, 1) = 0;
    Day.Strategy[0] = 5;
    Run();
    EXPECT_EQ(Day.Strategy[0], 5);
    EXPECT_EQ(Day.Strategy[1], 0);
    EXPECT_EQ(Day.Strategy[2], 0);
}

// ---- Repairs -------------------------------------------------------------------------------------------------------

TEST_F(AutoLinesPartialTest, AnInjuredFirstLineCenterIsReplacedByTheWorstForwardNotOnTheLine)
{
    Players[1].Condition = 90;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_THAT(Held(Day, LineField::NormalForward), ElementsAre(ElementsAre(12, 2, 3), ElementsAre(4, 5, 6),
                                                                 ElementsAre(7, 8, 9), ElementsAre(10, 11, 12)));
    EXPECT_EQ(SlotsOf(Day, 1), 0);
    EXPECT_EQ(SlotsOf(Day, 0), 0);
}

TEST_F(AutoLinesPartialTest, WhoStandsOnTheLineIsSkippedForTheNextOneUp)
{
    Day.NormalForward(4, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(4, 1), 10); // 12 and 11 are its wings
}

TEST_F(AutoLinesPartialTest, AScratchAndAStrangerAreReplaced)
{
    PutSkater(30, 5, position::Center, status::Scratch, 99);
    PutSkater(31, 6, position::Center, status::Pro, 99);
    PutSkater(32, 5, position::Defense, status::Farm, 60);
    Day.NormalForward(1, 1) = 30;
    Day.NormalForward(2, 1) = 31;
    Day.NormalDefense(1, 1) = 32;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 12);
    EXPECT_EQ(Day.NormalForward(2, 1), 12);
    EXPECT_EQ(Day.NormalDefense(1, 1), 19);
}

TEST_F(AutoLinesPartialTest, ADressedSuspendedSkaterIsReplaced)
{
    Players[5].Suspension = 2;
    Run();
    EXPECT_EQ(SlotsOf(Day, 5), 0);
    EXPECT_EQ(Day.NormalForward(2, 2), 12);
}

TEST_F(AutoLinesPartialTest, ADefenseHoleTakesTheWorstDefenseman)
{
    Day.NormalDefense(1, 2) = 0;
    Day.PPDefense(2, 1) = 0;
    Day.PK3Defense(1, 1) = 0;
    Day.ExtraDefense[1] = 0;
    Run();
    EXPECT_EQ(Day.NormalDefense(1, 2), 19);
    EXPECT_EQ(Day.PPDefense(2, 1), 19);
    EXPECT_EQ(Day.PK3Defense(1, 1), 19);
    EXPECT_EQ(Day.ExtraDefense[1], 19);
}

TEST_F(AutoLinesPartialTest, ExtrasAndShootersStandOnceInTheirOwnListOnly)
{
    Day.ExtraForward[1] = 0;
    Day.ExtraForward[5] = 12;
    Day.PenaltyShot[3] = 0;
    Run();
    EXPECT_EQ(Day.ExtraForward[1], 11);
    EXPECT_EQ(Day.PenaltyShot[3], 12);
}

TEST_F(AutoLinesPartialTest, AUnitBarsOnlyItsOwnPlayers)
{
    Day.PKForward(1, 1) = 0;
    Day.PKForward(1, 2) = 1;
    Day.PKForward(2, 1) = 12;
    Day.FourVsFourForward(1, 2) = 12;
    Day.PKDefense(1, 1) = 11; // a forward in a pair of the unit
    Run();
    EXPECT_EQ(Day.PKForward(1, 1), 12);

    Day.PKForward(1, 1) = 0;
    Day.PKForward(1, 2) = 12;
    Run();
    EXPECT_EQ(Day.PKForward(1, 1), 10);
}

TEST_F(AutoLinesPartialTest, LinesOneAndTwoDoNotBarEachOtherUnlessTheLeagueSaysSo)
{
    Exchange(12, 6);
    Day.NormalForward(1, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 12);
}

TEST_F(AutoLinesPartialTest, WithExclusiveLinesAForwardOfLineTwoIsSkippedForAHoleOnLineOne)
{
    LeagueData.LinesOneTwoExclusive = true;
    Exchange(12, 6);
    Exchange(11, 5);
    Day.NormalForward(1, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 10);
}

TEST_F(AutoLinesPartialTest, OnlyTheWordMinus1MakesLinesExclusive)
{
    LeagueData.LinesOneTwoExclusive.SetWord(1);
    Exchange(12, 6);
    Day.NormalForward(1, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 12);
}

TEST_F(AutoLinesPartialTest, AnInjuryTextAt95LeavesASlotUsableAndNoneAt94Does)
{
    Players[1].Condition = 95;
    Players[1].Injury = "Broken Leg";
    Players[2].Condition = 94;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 1);
    EXPECT_EQ(Day.NormalForward(1, 2), 12); // the worst forward of all
}

TEST_F(AutoLinesPartialTest, WithExclusiveLinesAForwardOfLineOneIsSkippedForAHoleOnLineTwo)
{
    LeagueData.LinesOneTwoExclusive = true;
    Exchange(12, 3);
    Day.NormalForward(2, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(2, 1), 11);
}

TEST_F(AutoLinesPartialTest, WithExclusiveLinesDefensemenAreBarredToo)
{
    LeagueData.LinesOneTwoExclusive = true;
    Day.NormalDefense(2, 1) = 19;
    Day.NormalDefense(1, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalDefense(1, 1), 18);
}

TEST_F(AutoLinesPartialTest, WithExclusiveLinesAForwardInAPairOfTheOtherLineIsBarredToo)
{
    LeagueData.LinesOneTwoExclusive = true;
    Day.NormalDefense(2, 2) = 12;
    Day.NormalForward(1, 1) = 0;
    Run();
    EXPECT_EQ(Day.NormalForward(1, 1), 11);
}

TEST_F(AutoLinesPartialTest, WithExclusiveLinesOtherLinesAndThePowerPlayAreNotBarred)
{
    LeagueData.LinesOneTwoExclusive = true;
    Exchange(12, 3);
    Day.NormalForward(3, 1) = 0;
    Day.PPForward(1, 1) = 0;
    Day.PPForward(2, 2) = 12;
    Run();
    EXPECT_EQ(Day.NormalForward(3, 1), 12);
    EXPECT_EQ(Day.PPForward(1, 1), 12);
}

TEST_F(AutoLinesPartialTest, AHoleThatNobodyCanFillIsToldAndTheOthersAreRepaired)
{
    LeagueData.RequiredDefensemen = 4;
    Dress(14, 4);
    Day.ExtraDefense[5] = 0;
    Day.NormalForward(4, 3) = 0;
    Day.PenaltyShot[5] = 0;
    for (const bool verbose : {false, true}) {
        EXPECT_THAT(Run(verbose), ElementsAre(Unfilled));
        EXPECT_EQ(Day.ExtraDefense[5], 0);
        EXPECT_EQ(Day.NormalForward(4, 3), 14);
        EXPECT_EQ(Day.PenaltyShot[5], 14);
        EXPECT_TRUE(Modified);
        Modified = false;
    }
}

TEST_F(AutoLinesPartialTest, AnUnusableSkaterIsTakenOutEvenIfNobodyCanReplaceHim)
{
    LeagueData.RequiredDefensemen = 4;
    Dress(14, 4);
    PutSkater(30, 6, position::Defense, status::Pro);
    Day.ExtraDefense[5] = 30;
    EXPECT_THAT(Run(), ElementsAre(Unfilled));
    EXPECT_EQ(Day.ExtraDefense[5], 0);
}

TEST_F(AutoLinesPartialTest, ASlotOutsideTheTableEndsTheRun)
{
    Day.NormalForward(2, 1) = 10001;
    Day.NormalForward(1, 1) = 0;
    EXPECT_THAT(Run(), ElementsAre(Box{16, "9 - Subscript out of range in AutoLinesPartial!"}));
    EXPECT_EQ(Day.NormalForward(1, 1), 12);
    EXPECT_EQ(Day.NormalForward(2, 1), 10001);
    EXPECT_FALSE(Modified);
}

TEST_F(AutoLinesPartialTest, ASkaterWithoutAPositionCountsAsAForwardAndIsToldWithEveryList)
{
    PutSkater(20, 5, 0, status::Pro, 99);
    Day.NormalForward(1, 1) = 0;
    EXPECT_THAT(Run(), ElementsAre(Box{16, "Skater 20 has no position!"}, IntegrityFailed, IntegrityFailed,
                                   IntegrityFailed, Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 20); // rated 0, he is the worst
}

TEST_F(AutoLinesPartialTest, TheWalkBeginsAtThePlaceOfTheDressedNumber)
{
    // More than 25 are no fault here, but a place outside the list is.
    LeagueData.ProDressedSkaters = 11000;
    Day.NormalForward(1, 1) = 0;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.NormalForward(1, 1), 12);

    LeagueData.ProDressedSkaters = 11001;
    EXPECT_THAT(Run(), ElementsAre(Success));
    Day.NormalForward(1, 1) = 0;
    EXPECT_THAT(Run(), ElementsAre(Box{16, "9 - Subscript out of range in AutoLinesPartial!"}));
}

// ---- Goalies -------------------------------------------------------------------------------------------------------

TEST_F(AutoLinesPartialTest, TheGoaliesKeepTheOrderThatTheManagerChose)
{
    Day.StartGoalie = 2;
    Day.BackupGoalie = 1;
    Run();
    EXPECT_EQ(Day.StartGoalie, 2);
    EXPECT_EQ(Day.BackupGoalie, 1);
}

TEST_F(AutoLinesPartialTest, AMissingGoalieSetsBoth)
{
    Day.StartGoalie = 2;
    Day.BackupGoalie = 0;
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 2);

    Day.StartGoalie = 0;
    Day.BackupGoalie = 1;
    Run();
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 2);
}

TEST_F(AutoLinesPartialTest, GoaliesWhoAreSetChangePlacesByTheirHealth)
{
    Goalies[1].Condition = 97;
    Day.StartGoalie = 0;
    Run();
    EXPECT_EQ(Day.StartGoalie, 2);
    EXPECT_EQ(Day.BackupGoalie, 1);
}

TEST_F(AutoLinesPartialTest, AnInjuredGoalieWhomTheRosterHoldsAsAScratchStaysInHisSlot)
{
    PutGoalie(3, 5, status::Scratch, 90).Condition = 50;
    Day.StartGoalie = 3;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Day.StartGoalie, 3);
    EXPECT_EQ(Day.BackupGoalie, 2);
}

TEST_F(AutoLinesPartialTest, ADressedGoalieWhoIsInjuredLosesHisSlotToTheRosterCheckAndBothAreSet)
{
    LeagueData.MaxDressedGoalies = 3;
    PutGoalie(3, 5, status::Pro, 90).Condition = 94;
    Day.StartGoalie = 3;
    Day.BackupGoalie = 2;
    EXPECT_THAT(Run(), ElementsAre(Success));
    EXPECT_EQ(Goalies[3].Status, 1);
    EXPECT_EQ(Day.StartGoalie, 1);
    EXPECT_EQ(Day.BackupGoalie, 2);
}

} // namespace
} // namespace dravik
