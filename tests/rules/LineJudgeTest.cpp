#include "rules/LineSlots.h"
#include "support/LeagueImage.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <algorithm>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* Closing = "Some errors will be automatically fixed.";

// Team 5 dresses skaters 1..18 and goalies 1 and 2, and day 1 of its lines is perfect. Skater 1 is the center of line 1,
// skater 2 its left wing, skater 13 its first defenseman.
class LineJudgeTest : public SmallLeague {
protected:
    LineJudgeTest() : team(5)
    {
        team.DressesFullRoster();
        FillDay(Day1(), team);
    }

    static Lines& Day1() { return Teams[5].ProLines[1]; }

    // Judges day 1 aloud; expects False and exactly these findings.
    void ExpectFindings(std::vector<std::string> findings)
    {
        findings.emplace_back(Closing);
        EXPECT_FALSE(CheckLine(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, Told(findings)}));
        EXPECT_EQ(LastLinesText(), Told(findings));
    }

    void ExpectPerfect()
    {
        EXPECT_TRUE(CheckLine(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Lines are perfect!"}));
        EXPECT_EQ(LastLinesText(), "Lines are perfect!");
    }

    TeamMaker team;
};

TEST_F(LineJudgeTest, CompleteLinesArePerfect) { ExpectPerfect(); }

TEST_F(LineJudgeTest, ASilentCallShowsNothingAndKeepsItsText)
{
    EXPECT_TRUE(CheckLine(5, false, 1, false));
    EXPECT_EQ(LastLinesText(), "Lines are perfect!");
    EXPECT_FALSE(CheckLine(5, false, 2, false));
    auto findings = EmptyDayFindings();
    findings.emplace_back(Closing);
    EXPECT_EQ(LastLinesText(), Told(findings));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LineJudgeTest, ASilentCallOnCompleteLinesChangesNothing)
{
    const auto before = AllTables();
    EXPECT_TRUE(CheckLine(5, false, 1, false));
    EXPECT_TRUE(AllTables() == before);
}

TEST_F(LineJudgeTest, TheLogChangesNeitherTextNorResult)
{
    EXPECT_TRUE(CheckLine(5, true, 1, true));
    Day1().StartGoalie = 0;
    EXPECT_FALSE(CheckLine(5, true, 1, true));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Lines are perfect!"}, Box{64, Told({"Starting Goaler is empty.", Closing})}));
}

TEST_F(LineJudgeTest, OnlyTheDayAskedForIsJudged)
{
    FillDay(Teams[5].ProLines[10], team);
    Teams[5].ProLines[10].BackupGoalie = 0;
    EXPECT_FALSE(CheckLine(5, false, 10, false));
    EXPECT_EQ(LastLinesText(), Told({"Backup Goaler is empty.", Closing}));
    ExpectPerfect();
}

TEST_F(LineJudgeTest, ATeamOrDayOutOfRangeFailsTheIntegrityCheck)
{
    (void)CheckLine(5, false, 1, false);
    Players[1].Condition = 50; // a day that is judged loses him
    const auto before = AllTables();
    for (const auto& [number, day] : {std::pair{0, 1}, {101, 1}, {-1, 1}, {5, 0}, {5, 11}, {5, -1}}) {
        EXPECT_FALSE(CheckLine(number, true, day, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
        EXPECT_EQ(LastLinesText(), "");
    }
    EXPECT_TRUE(AllTables() == before);
}

TEST_F(LineJudgeTest, AnEmptyDayTellsOfEverySlotAndEveryDoubleWithBlankNames)
{
    Day1() = {};
    ExpectFindings(EmptyDayFindings());
}

TEST_F(LineJudgeTest, AnEmptyDayOfALeagueThatKeepsLinesOneAndTwoApartHasFiveDoublesMore)
{
    LeagueData.LinesOneTwoExclusive = true;
    Day1() = {};
    auto findings = EmptyDayFindings();
    // Behind the nine findings of each of the four normal lines.
    findings.insert(findings.begin() + 36, 5, " is used twice in lines 1 and 2.");
    ExpectFindings(findings);
}

TEST_F(LineJudgeTest, EmptySlotsCarryTheNameThatRecordZeroHasAfterALoad)
{
    Players[0].Name = "Unknown Player";
    Day1().PK3Defense(2, 1) = 0;
    Day1().PK3Defense(2, 2) = 0;
    Day1().PenaltyShot[2] = 0;
    Day1().PenaltyShot[4] = 0;
    ExpectFindings({"PK3 line 2 Defense #2 is empty.", "PK3 line 2 Defense #2 is empty.",
                    "Unknown Player is used twice PK3 in line#2", "Penalty Shot Player #2 is empty.",
                    "Penalty Shot Player #4 is empty.", "Unknown Player is used twice in Extra Penalty Shot"});
}

TEST_F(LineJudgeTest, OneEmptySlotIsOneFinding)
{
    for (const LineSlot& slot : SkaterSlots) {
        FillDay(Day1(), team);
        At(Day1(), slot) = 0;
        EXPECT_FALSE(CheckLine(5, false, 1, false));
        const std::string& text = LastLinesText();
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2) << text;
        EXPECT_NE(text.find(" is empty.\r\n"), std::string::npos) << text;
    }
}

TEST_F(LineJudgeTest, EmptySlotsOfThePowerPlayForwardsAndTheLoneForwardHaveTheProJudgesWords)
{
    Day1().PPForward(1, 3) = 0;
    Day1().PK3Forward[1] = 0;
    ExpectFindings({"PP line 1 RW is empty.", "PK3 line 1 forward is empty."});
}

TEST_F(LineJudgeTest, AnEmptyDefenseSlotTellsTheLineOnceMoreAndNotTheDefenseman)
{
    Day1().NormalDefense(3, 1) = 0;
    Day1().PPDefense(1, 2) = 0;
    ExpectFindings({"Normal line # 3 Defense #3 is empty.", "PP line 1 Defense #1 is empty."});
}

TEST_F(LineJudgeTest, TheWingOfThePenaltyKillAndOfFourAgainstFourIsCalledLeftWing)
{
    Day1().PKForward(2, 2) = 0;
    Day1().FourVsFourForward(1, 2) = 0;
    ExpectFindings({"4 vs 4 line 1 LW is empty.", "PK line 2 LW is empty."});
}

// Who stands in two slots of a group is told once, under the words of the left slot.
TEST_F(LineJudgeTest, EveryDoubleWithinAGroupIsTold)
{
    PutSkater(50, 5, position::Center, status::Pro).Name = "  Ward Tilton ";
    for (const DoublesCase& group : DoublesCases())
        for (std::size_t left = 0; left < group.Slots.size(); ++left)
            for (std::size_t right = left + 1; right < group.Slots.size(); ++right) {
                FillDay(Day1(), team);
                At(Day1(), group.Slots[left]) = 50;
                At(Day1(), group.Slots[right]) = 50;
                const bool pair = left + 2 == group.Slots.size();
                ExpectFindings({"Ward Tilton" + (pair ? group.PairWords : group.Words)});
            }
}

TEST_F(LineJudgeTest, WhoStandsEverywhereInAGroupIsToldForEachLeftSlotOnce)
{
    PutSkater(50, 5, position::Center, status::Pro).Name = "Ward Tilton";
    for (const DoublesCase& group : DoublesCases()) {
        FillDay(Day1(), team);
        for (const LineSlot& slot : group.Slots)
            At(Day1(), slot) = 50;
        std::vector<std::string> findings(group.Slots.size() - 2, "Ward Tilton" + group.Words);
        findings.push_back("Ward Tilton" + group.PairWords);
        ExpectFindings(findings);
    }
}

TEST_F(LineJudgeTest, TwoDefensemenOfAUnitAreToldInAnotherOrderOfWords)
{
    Day1().PPDefense(1, 2) = Day1().PPDefense(1, 1);
    Day1().PKDefense(1, 2) = Day1().PKDefense(1, 1);
    Day1().FourVsFourDefense(1, 2) = Day1().FourVsFourDefense(1, 1);
    Day1().PK3Defense(1, 2) = Day1().PK3Defense(1, 1);
    const auto name = [](long long index) { return Players[index].Name.Trimmed(); };
    ExpectFindings({name(Day1().PPDefense(1, 1)) + " is used twice PP in line#1",
                    name(Day1().PKDefense(1, 1)) + " is used twice PK in line#1",
                    name(Day1().FourVsFourDefense(1, 1)) + " is used twice 4 vs 4 in line#1",
                    name(Day1().PK3Defense(1, 1)) + " is used twice PK3 in line#1"});
}

TEST_F(LineJudgeTest, DoublesOfTheListsAreToldListByList)
{
    for (int number = 1; number <= 5; ++number) {
        Day1().ExtraForward[number] = number <= 2 ? 1 : number;
        Day1().PenaltyShot[number] = number >= 4 ? 2 : number + 5;
        Day1().ExtraDefense[number] = number % 2 == 1 ? 13 : 12 + number;
    }
    ExpectFindings({"Skater 1 is used twice in Extra Forward", "Skater 13 is used twice in Extra Defense",
                    "Skater 13 is used twice in Extra Defense", "Skater 2 is used twice in Extra Penalty Shot"});
}

TEST_F(LineJudgeTest, TheSameSkaterOnDifferentGroupsPasses)
{
    // He is no defenseman either, and nobody minds.
    PutSkater(50, 5, position::Center, status::Pro);
    Day1().NormalForward(1, 1) = 50;
    Day1().NormalForward(3, 1) = 50;
    Day1().PPForward(1, 1) = 50;
    Day1().PPForward(2, 1) = 50;
    Day1().PKForward(1, 1) = 50;
    Day1().FourVsFourForward(1, 1) = 50;
    Day1().PK3Forward[1] = 50;
    Day1().ExtraForward[5] = 50;
    Day1().ExtraDefense[5] = 50;
    Day1().PenaltyShot[5] = 50;
    ExpectPerfect();
    EXPECT_EQ(PlayOnLineInteger(5, 50, 1), 10);
}

TEST_F(LineJudgeTest, TheSameSkaterOnLinesOneAndTwoPassesWhereTheLeagueAllowsIt)
{
    Day1().NormalForward(2, 2) = 1;
    ExpectPerfect();
    LeagueData.LinesOneTwoExclusive.SetWord(1); // only -1 is True
    ExpectPerfect();
}

TEST_F(LineJudgeTest, TheSameSkaterOnLinesOneAndTwoIsToldWhereTheyAreKeptApart)
{
    LeagueData.LinesOneTwoExclusive = true;
    ExpectPerfect();
    Day1().NormalDefense(2, 1) = 1; // the center of line 1 on defense in line 2
    Day1().NormalForward(2, 3) = 14;
    ExpectFindings({"Skater 1 is used twice in lines 1 and 2.", "Skater 14 is used twice in lines 1 and 2."});
}

TEST_F(LineJudgeTest, LineTwoHoldingASkaterOfLineOneTwiceIsOneFindingOfThatTest)
{
    LeagueData.LinesOneTwoExclusive = true;
    Day1().NormalForward(2, 1) = 3;
    Day1().NormalForward(2, 2) = 3;
    ExpectFindings({"Skater 3 is used twice in Normal line #2", "Skater 3 is used twice in lines 1 and 2."});
}

TEST_F(LineJudgeTest, LinesOneAndTwoAreComparedBehindAllNormalLines)
{
    LeagueData.LinesOneTwoExclusive = true;
    Day1().NormalForward(2, 1) = 3;
    Day1().NormalForward(4, 3) = 0;
    Day1().PPForward(1, 1) = 0;
    ExpectFindings(
        {"Normal line # 4 RW is empty.", "Skater 3 is used twice in lines 1 and 2.", "PP line 1 C is empty."});
}

TEST_F(LineJudgeTest, ASkaterOfAnotherTeamIsWipedFromAllLinesOfAllDays)
{
    PutSkater(50, 6, position::Center, status::Pro).Name = "Ward Tilton";
    Day1().NormalForward(1, 1) = 50;
    Day1().NormalForward(3, 1) = 50;
    Day1().PPForward(2, 2) = 50;
    Day1().ExtraForward[4] = 50;
    Teams[5].ProLines[7].PenaltyShot[3] = 50;
    Teams[5].Farm.FarmLines[10].PK3Forward[2] = 50;
    Teams[5].Captain = 50;
    Teams[5].Assistant[2] = 50;
    Teams[6].ProLines[1].NormalForward(1, 1) = 50;
    // One finding for the slot that held him; his later slots are told as the empty slots that they are by then.
    ExpectFindings({"Ward Tilton is not on farm roster for this team.", "Normal line # 3 C is empty.",
                    "PP line 2 LW is empty.", "Extra Forward #4 is empty."});
    EXPECT_EQ(PlayOnLineInteger(5, 50, 1), 0);
    EXPECT_EQ(Teams[5].ProLines[7].PenaltyShot[3], 0);
    EXPECT_EQ(Teams[5].Farm.FarmLines[10].PK3Forward[2], 0);
    EXPECT_EQ(Teams[5].Captain, 0);
    EXPECT_EQ(Teams[5].Assistant[2], 0);
    EXPECT_EQ(Teams[6].ProLines[1].NormalForward(1, 1), 50);
    // Now the first slot is empty too.
    ExpectFindings({"Normal line # 1 C is empty.", "Normal line # 3 C is empty.", "PP line 2 LW is empty.",
                    "Extra Forward #4 is empty."});
}

TEST_F(LineJudgeTest, AScratchedSkaterOnALineIsNotOnTheRoster)
{
    PutSkater(50, 5, position::Defense, status::Scratch).Name = "Ward Tilton";
    Day1().NormalDefense(4, 2) = 50;
    ExpectFindings({"Ward Tilton is not on farm roster for this team."});
    EXPECT_EQ(Day1().NormalDefense(4, 2), 0);
}

TEST_F(LineJudgeTest, AFarmSkaterOnAProLineIsNotOnTheRoster)
{
    PutSkater(50, 5, position::Defense, status::Farm).Name = "Ward Tilton";
    Day1().PKDefense(1, 1) = 50;
    ExpectFindings({"Ward Tilton is not on farm roster for this team."});
}

TEST_F(LineJudgeTest, AnInjuredSkaterOfAnotherTeamIsOnlyNotOnTheRoster)
{
    PutSkater(50, 6, position::Defense, status::Pro).Condition = 10;
    Day1().PKDefense(1, 1) = 50;
    ExpectFindings({"Skater 50 is not on farm roster for this team."});
}

TEST_F(LineJudgeTest, ConditionNinetyFiveIsFitAndNinetyFourIsNot)
{
    PutSkater(50, 5, position::Center, status::Pro).Condition = 95;
    Day1().PK3Forward[2] = 50;
    ExpectPerfect();
    Players[50].Condition = 94;
    ExpectFindings({"Skater 50 is injured or suspended."});
    EXPECT_EQ(Day1().PK3Forward[2], 0);
}

TEST_F(LineJudgeTest, ASuspendedSkaterIsNotFit)
{
    PutSkater(50, 5, position::Center, status::Pro).Suspension = 1;
    Day1().PK3Forward[2] = 50;
    Teams[5].ProLines[2].PK3Forward[2] = 50;
    ExpectFindings({"Skater 50 is injured or suspended."});
    EXPECT_EQ(Teams[5].ProLines[2].PK3Forward[2], 0);
}

TEST_F(LineJudgeTest, NeitherContractNorPositionIsAsked)
{
    Player& skater = PutSkater(50, 5, position::Defense, status::Pro);
    skater.Contract = 0;
    skater.InUse = false;
    Day1().NormalForward(1, 1) = 50;
    ExpectPerfect();
}

TEST_F(LineJudgeTest, TwoSlotsThatTheWalkEmptiedAreAlike)
{
    PutSkater(50, 6, position::Center, status::Pro);
    PutSkater(51, 6, position::Center, status::Pro);
    Day1().FourVsFourForward(2, 1) = 50;
    Day1().FourVsFourDefense(2, 2) = 51;
    ExpectFindings({"Skater 50 is not on farm roster for this team.", "Skater 51 is not on farm roster for this team.",
                    " is used twice in 4 vs 4 line#2"});
}

TEST_F(LineJudgeTest, ARefusedSkaterStandingTwiceInALineIsNoDoubleByName)
{
    PutSkater(50, 6, position::Center, status::Pro);
    Day1().NormalForward(2, 1) = 50;
    Day1().NormalDefense(2, 2) = 50;
    ExpectFindings({"Skater 50 is not on farm roster for this team.", "Normal line # 2 Defense #2 is empty.",
                    " is used twice in Normal line #2"});
}

TEST_F(LineJudgeTest, AnInjuredStartingGoalieEmptiesOnlyThatSlotOfThatDay)
{
    FillDay(Teams[5].ProLines[2], team);
    Teams[5].Farm.FarmLines[1].StartGoalie = 1;
    Goalies[1].Condition = 94;
    ExpectFindings({"Goalie 1 is injured or suspended."});
    EXPECT_EQ(Day1().StartGoalie, 0);
    EXPECT_EQ(Day1().BackupGoalie, 2);
    EXPECT_EQ(Teams[5].ProLines[2].StartGoalie, 1);
    EXPECT_EQ(Teams[5].Farm.FarmLines[1].StartGoalie, 1);
    ExpectFindings({"Starting Goaler is empty."});
}

TEST_F(LineJudgeTest, ARefusedBackupGoalieEmptiesOnlyHisSlot)
{
    Goalies[2].Suspension = 3;
    ExpectFindings({"Goalie 2 is injured or suspended."});
    EXPECT_EQ(Day1().StartGoalie, 1);
    EXPECT_EQ(Day1().BackupGoalie, 0);
    ExpectFindings({"Backup Goaler is empty."});
}

TEST_F(LineJudgeTest, AGoalieOfAnotherStatusOrTeamIsNotOnTheRoster)
{
    Goalies[1].Status = status::Scratch;
    Goalies[2].Team = 6;
    Goalies[2].Condition = 0;
    // By then both slots are empty, and so the same.
    ExpectFindings({"Goalie 1 is not on farm roster for this team.", "Goalie 2 is not on farm roster for this team.",
                    "Starting Goalie and BackUp Goalie are the same"});
    ExpectFindings(
        {"Starting Goaler is empty.", "Backup Goaler is empty.", "Starting Goalie and BackUp Goalie are the same"});
}

TEST_F(LineJudgeTest, AGoalieAtConditionNinetyFivePasses)
{
    Goalies[1].Condition = 95;
    ExpectPerfect();
}

TEST_F(LineJudgeTest, TheSameGoalieTwiceIsToldAndStays)
{
    Day1().BackupGoalie = 1;
    ExpectFindings({"Starting Goalie and BackUp Goalie are the same"});
    EXPECT_EQ(Day1().StartGoalie, 1);
    EXPECT_EQ(Day1().BackupGoalie, 1);
}

TEST_F(LineJudgeTest, AnUnfitGoalieStandingTwiceIsToldTwice)
{
    Goalies[1].Condition = 50;
    Day1().BackupGoalie = 1;
    ExpectFindings({"Goalie 1 is injured or suspended.", "Goalie 1 is injured or suspended.",
                    "Starting Goalie and BackUp Goalie are the same"});
}

TEST_F(LineJudgeTest, ASkaterOfAGoaliesIndexHasNothingToDoWithHim)
{
    Players[1].Condition = 10;
    Teams[5].Captain = 2;
    Goalies[2].Condition = 10;
    EXPECT_FALSE(CheckLine(5, false, 1, false));
    EXPECT_EQ(Day1().StartGoalie, 1);
    EXPECT_EQ(Day1().BackupGoalie, 0);
    EXPECT_EQ(Day1().NormalForward(1, 2), 2);
    EXPECT_EQ(Teams[5].Captain, 2);
}

TEST_F(LineJudgeTest, NoHeadsAreCountedInAProLineUp)
{
    LeagueData.ProDressedSkaters = 1;
    ExpectPerfect();
    LeagueData.ProDressedSkaters = 26;
    ExpectPerfect();
}

TEST_F(LineJudgeTest, TheReservedWordsAreNotJudged)
{
    Day1().PK3Reserved[1] = 50;
    Day1().Strategy[0] = 9;
    Day1().PullGoalerMinGoal = 999;
    ExpectPerfect();
    EXPECT_EQ(Day1().PK3Reserved[1], 50);
}

TEST_F(LineJudgeTest, ASkaterSlotOutsideTheTableFailsWith9AndKeepsTheRepairsMadeSoFar)
{
    PutSkater(50, 6, position::Center, status::Pro);
    for (const int outside : {10001, 32767, -1, -32768}) {
        FillDay(Day1(), team);
        Day1().NormalForward(1, 1) = 50;
        Day1().NormalForward(1, 2) = outside;
        Day1().StartGoalie = 9; // nobody gets as far as this slot
        EXPECT_FALSE(CheckLine(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in CheckLine!"}));
        EXPECT_EQ(LastLinesText(), Told({"Skater 50 is not on farm roster for this team."}));
        EXPECT_EQ(Day1().NormalForward(1, 1), 0);
        EXPECT_EQ(Day1().NormalForward(1, 2), outside);
        EXPECT_EQ(Day1().StartGoalie, 9);
    }
}

TEST_F(LineJudgeTest, AGoalieSlotOutsideTheTableFailsWith9)
{
    Goalies[1].Condition = 1;
    for (const int outside : {1001, 10002, -1}) {
        Day1().StartGoalie = 1;
        Day1().BackupGoalie = outside;
        EXPECT_FALSE(CheckLine(5, false, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in CheckLine!"}));
        EXPECT_EQ(Day1().StartGoalie, 0);
        EXPECT_EQ(Day1().BackupGoalie, outside);
    }
}

class LineEmptyTest : public SmallLeague {};

TEST_F(LineEmptyTest, ADayWithoutAnybodyIsEmpty) { EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 1)); }

TEST_F(LineEmptyTest, ADayWithOnlyStrategyPointsIsEmpty)
{
    Teams[5].ProLines[3].Strategy[0] = 2;
    Teams[5].ProLines[3].Strategy[2] = 3;
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 3));
}

TEST_F(LineEmptyTest, ReservedWordsAndGoaliePullPlayNoPart)
{
    Teams[5].ProLines[3].PK3Reserved[1] = 2;
    Teams[5].ProLines[3].PullGoalerMinGoal = 4;
    Teams[5].ProLines[3].PullGoalerMinPct = 850;
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 3));
}

TEST_F(LineEmptyTest, AnybodyInAnySlotIsSomebody)
{
    for (const LineSlot& slot : SkaterSlots) {
        Teams[5].ProLines[3] = {};
        At(Teams[5].ProLines[3], slot) = -1; // whatever is not 0
        EXPECT_FALSE(CheckLineEmpty(OpenLeague, Machine, 5, 3));
    }
    Teams[5].ProLines[3] = {};
    Teams[5].ProLines[3].StartGoalie = 1;
    EXPECT_FALSE(CheckLineEmpty(OpenLeague, Machine, 5, 3));
    Teams[5].ProLines[3] = {};
    Teams[5].ProLines[3].BackupGoalie = 1;
    EXPECT_FALSE(CheckLineEmpty(OpenLeague, Machine, 5, 3));
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 4));
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 4, 3));
}

TEST_F(LineEmptyTest, TheFarmsDayIsNotLookedAt)
{
    Teams[5].Farm.FarmLines[1].StartGoalie = 1;
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 1));
}

TEST_F(LineEmptyTest, ATeamOrDayOutOfRangeFailsTheIntegrityCheck)
{
    const auto before = AllTables();
    for (const auto& [number, day] : {std::pair{0, 1}, {101, 1}, {5, 0}, {5, 11}}) {
        EXPECT_FALSE(CheckLineEmpty(OpenLeague, Machine, number, day));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    }
    EXPECT_TRUE(AllTables() == before);
}

} // namespace
} // namespace dravik
