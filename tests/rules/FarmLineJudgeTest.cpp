#include "rules/LineSlots.h"
#include "support/LeagueImage.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Team 5 has skaters 1..18 and goalies 1 and 2 on its farm, and day 1 of the farm's lines is perfect. Its pro lines are
// empty throughout.
class FarmLineJudgeTest : public SmallLeague {
protected:
    FarmLineJudgeTest() : team(5)
    {
        team.FarmsFullRoster();
        FillDay(Day1(), team);
    }

    static Lines& Day1() { return Teams[5].Farm.FarmLines[1]; }

    // Judges day 1 aloud; expects False and exactly these findings, with no closing line behind them.
    void ExpectFindings(const std::vector<std::string>& findings)
    {
        EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, Told(findings)}));
        EXPECT_EQ(LastLinesText(), Told(findings));
    }

    void ExpectPerfect()
    {
        EXPECT_TRUE(CheckLineFarm(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Lines are perfect!"}));
        EXPECT_EQ(LastLinesText(), "Lines are perfect!");
    }

    // Fills the lines with `count` different skaters, as far as they reach, in slots that are legal otherwise: each of
    // the others stands wherever he doubles nobody.
    void SpreadOver(int count)
    {
        while (static_cast<int>(team.Skaters.size()) < count)
            team.Farms(1, position::Center);
        int next = 0;
        for (const LineSlot& slot : SkaterSlots)
            At(Day1(), slot) = team.Skaters[static_cast<std::size_t>(next++ % count)];
        for (int number = 1; number <= 5; ++number) {
            Day1().ExtraForward[number] = team.Skaters[static_cast<std::size_t>(number)];
            Day1().ExtraDefense[number] = team.Skaters[static_cast<std::size_t>(number)];
            Day1().PenaltyShot[number] = team.Skaters[static_cast<std::size_t>(number)];
        }
    }

    static void PutAll(int value)
    {
        for (const LineSlot& slot : SkaterSlots)
            At(Day1(), slot) = value;
    }

    TeamMaker team;
};

class StrictFarmLineJudgeTest : public FarmLineJudgeTest {
protected:
    StrictFarmLineJudgeTest() { LeagueData.FarmRosterRequired = true; }
};

class LenientFarmLineJudgeTest : public FarmLineJudgeTest {};

TEST_F(FarmLineJudgeTest, CompleteLinesArePerfectInBothDegrees)
{
    ExpectPerfect();
    LeagueData.FarmRosterRequired = true;
    ExpectPerfect();
}

TEST_F(FarmLineJudgeTest, ASilentCallOnCompleteLinesChangesNothing)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        const auto before = AllTables();
        EXPECT_TRUE(CheckLineFarm(5, false, 1, required));
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        EXPECT_TRUE(AllTables() == before);
    }
}

TEST_F(FarmLineJudgeTest, WithoutFarmTeamsALineUpFullOfStrangersPassesUntouched)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmEnabled = false;
        LeagueData.FarmRosterRequired = required;
        PutSkater(50, 6, position::Center, status::Pro);
        PutAll(50);
        Day1().PenaltyShot[5] = -7; // not even the numbers are looked at
        Day1().StartGoalie = 900;
        const auto before = AllTables();
        EXPECT_TRUE(CheckLineFarm(5, true, 1, false));
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        EXPECT_EQ(LastLinesText(), "");
        EXPECT_TRUE(AllTables() == before);
    }
}

TEST_F(FarmLineJudgeTest, WithoutFarmTeamsEvenATeamOutOfRangePasses)
{
    LeagueData.FarmEnabled.SetWord(1); // only -1 is True
    EXPECT_TRUE(CheckLineFarm(101, true, 0, false));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(FarmLineJudgeTest, ATeamOrDayOutOfRangeFailsTheIntegrityCheck)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        (void)CheckLineFarm(5, false, 1, false);
        const auto before = AllTables();
        for (const auto& [number, day] : {std::pair{0, 1}, {101, 1}, {-1, 1}, {5, 0}, {5, 11}}) {
            EXPECT_FALSE(CheckLineFarm(number, true, day, false));
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
            EXPECT_EQ(LastLinesText(), "");
        }
        EXPECT_TRUE(AllTables() == before);
    }
}

TEST_F(FarmLineJudgeTest, OnlyAWordOfMinusOneRequiresFarmRosters)
{
    Day1() = {};
    LeagueData.FarmRosterRequired.SetWord(1);
    ExpectPerfect();
}

TEST_F(FarmLineJudgeTest, AProPlayerInAFarmSlotIsNotOnTheFarmRoster)
{
    LeagueData.ProDressedSkaters = 19;
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        FillDay(Day1(), team);
        PutSkater(50, 5, position::Center, status::Pro).Name = "Ward Tilton";
        Day1().NormalForward(1, 1) = 50;
        Teams[5].ProLines[4].NormalForward(1, 1) = 50;
        ExpectFindings({"Ward Tilton is not on farm roster for this team."});
        EXPECT_EQ(Day1().NormalForward(1, 1), 0);
        EXPECT_EQ(Teams[5].ProLines[4].NormalForward(1, 1), 0);
    }
}

TEST_F(FarmLineJudgeTest, AScratchedOrForeignSkaterIsNotOnTheFarmRoster)
{
    LeagueData.ProDressedSkaters = 19;
    PutSkater(50, 5, position::Center, status::Scratch);
    PutSkater(51, 6, position::Center, status::Farm);
    Day1().PKForward(1, 2) = 50;
    Day1().PK3Forward[2] = 51;
    ExpectFindings(
        {"Skater 50 is not on farm roster for this team.", "Skater 51 is not on farm roster for this team."});
}

TEST_F(FarmLineJudgeTest, ConditionNinetyFiveIsFitAndNinetyFourIsNot)
{
    PutSkater(50, 5, position::Center, status::Farm).Condition = 95;
    LeagueData.ProDressedSkaters = 19;
    Day1().PK3Forward[2] = 50;
    ExpectPerfect();
    Players[50].Condition = 94;
    ExpectFindings({"Skater 50 is injured or suspended."});
}

TEST_F(FarmLineJudgeTest, AGoalieWhoMayNotStandThereLeavesThatSlotOnly)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        FillDay(Day1(), team);
        FillDay(Teams[5].Farm.FarmLines[2], team);
        Teams[5].ProLines[1].StartGoalie = 1;
        Goalies[1].Condition = 94;
        Goalies[2].Status = status::Pro;
        std::vector<std::string> findings{"Goalie 1 is injured or suspended.",
                                          "Goalie 2 is not on farm roster for this team."};
        if (required)
            findings.emplace_back("Starting Goalie and BackUp Goalie are the same");
        ExpectFindings(findings);
        EXPECT_EQ(Day1().StartGoalie, 0);
        EXPECT_EQ(Day1().BackupGoalie, 0);
        EXPECT_EQ(Teams[5].Farm.FarmLines[2].StartGoalie, 1);
        EXPECT_EQ(Teams[5].ProLines[1].StartGoalie, 1);
    }
}

TEST_F(FarmLineJudgeTest, TheSameGoalieTwiceIsToldInBothDegrees)
{
    Day1().StartGoalie = 2;
    ExpectFindings({"Starting Goalie and BackUp Goalie are the same"});
    LeagueData.FarmRosterRequired = true;
    ExpectFindings({"Starting Goalie and BackUp Goalie are the same"});
}

TEST_F(FarmLineJudgeTest, EveryDoubleWithinAGroupIsToldInBothDegrees)
{
    LeagueData.ProDressedSkaters = 19;
    PutSkater(50, 5, position::Center, status::Farm).Name = "Ward Tilton";
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
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
}

// The head count.

TEST_F(FarmLineJudgeTest, OneSkaterMoreThanTheLeagueDressesIsTooMany)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        LeagueData.ProDressedSkaters = 20;
        SpreadOver(20);
        ExpectPerfect();
        SpreadOver(21);
        ExpectFindings({"More that 20 Players Found"});
    }
}

TEST_F(FarmLineJudgeTest, TheTwentyFivePlacesCanAllBeUsed)
{
    LeagueData.ProDressedSkaters = 25;
    SpreadOver(25);
    ExpectPerfect();
    SpreadOver(26);
    ExpectFindings({"More that 25 Players Found"});
}

TEST_F(FarmLineJudgeTest, NoPlaceAtAllIsTooFewForAnybodyAndForAnEmptySlot)
{
    for (const int places : {0, -1, -32768}) {
        LeagueData.ProDressedSkaters = places;
        FillDay(Day1(), team);
        ExpectFindings({"More that " + std::to_string(places) + " Players Found"});
        Day1() = {};
        ExpectFindings({"More that " + std::to_string(places) + " Players Found"});
    }
}

TEST_F(FarmLineJudgeTest, TheHeadCountComesBehindTheGoalies)
{
    LeagueData.ProDressedSkaters = 17;
    Day1().StartGoalie = 2;
    ExpectFindings({"Starting Goalie and BackUp Goalie are the same", "More that 17 Players Found"});
}

TEST_F(FarmLineJudgeTest, GoaliesAndReservedWordsAreNoHeads)
{
    Day1().PK3Reserved[1] = 77;
    Day1().PK3Reserved[2] = 78;
    ExpectPerfect();
}

TEST_F(FarmLineJudgeTest, WhoWasWipedIsNoHead)
{
    LeagueData.ProDressedSkaters = 19;
    SpreadOver(20);
    Players[team.Skaters[19]].Condition = 50;
    Players[team.Skaters[18]].Condition = 50;
    // Eighteen are left, and the empty slots are the nineteenth value.
    ExpectFindings({Players[team.Skaters[18]].Name.Trimmed() + " is injured or suspended.",
                    Players[team.Skaters[19]].Name.Trimmed() + " is injured or suspended."});
}

TEST_F(FarmLineJudgeTest, TheSlotThatAWipeEmptiedTakesUpAPlace)
{
    PutSkater(50, 5, position::Center, status::Pro);
    Day1().PenaltyShot[5] = 50;
    ExpectFindings({"Skater 50 is not on farm roster for this team.", "More that 18 Players Found"});
}

TEST_F(FarmLineJudgeTest, MoreThanTwentyFiveDressedSkatersFailWith9AfterTheWalk)
{
    LeagueData.ProDressedSkaters = 26;
    Day1() = {};
    PutSkater(50, 6, position::Center, status::Farm);
    Day1().PenaltyShot[5] = 50;
    Goalies[2].Condition = 1;
    Day1().BackupGoalie = 2;
    EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in CheckLineFarm!"}));
    EXPECT_EQ(LastLinesText(),
              Told({"Skater 50 is not on farm roster for this team.", "Goalie 2 is injured or suspended."}));
    EXPECT_EQ(Day1().PenaltyShot[5], 0);
    EXPECT_EQ(Day1().BackupGoalie, 0);

    LeagueData.FarmRosterRequired = true;
    FillDay(Day1(), team);
    EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in CheckLine!"}));
    EXPECT_EQ(Day1().BackupGoalie, 0);
}

TEST_F(FarmLineJudgeTest, ASlotOutsideItsTableFailsWith9UnderTheNameOfTheDegree)
{
    PutSkater(50, 6, position::Center, status::Farm);
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        FillDay(Day1(), team);
        Day1().NormalForward(1, 1) = 50;
        Day1().ExtraDefense[2] = 10001;
        EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{16, required ? "9 - Subscript out of range in CheckLine!"
                                                 : "9 - Subscript out of range in CheckLineFarm!"}));
        EXPECT_EQ(Day1().NormalForward(1, 1), 0);

        FillDay(Day1(), team);
        Day1().BackupGoalie = -1;
        EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{16, required ? "9 - Subscript out of range in CheckLine!"
                                                 : "9 - Subscript out of range in CheckLineFarm!"}));
    }
}

// The strict check.

// What the strict judge finds in a day without anybody: what the pro judge finds, with its own words for two groups.
std::vector<std::string> EmptyFarmDayFindings()
{
    std::vector<std::string> findings = EmptyDayFindings();
    for (std::string& finding : findings)
        for (const auto& [pro, farm] : {std::pair{"PP line 1 C is empty.", "PP line1 C is empty."},
                                        {"PP line 1 LW is empty.", "PP line1 LW is empty."},
                                        {"PP line 1 RW is empty.", "PP line1 RW is empty."},
                                        {"PP line 2 C is empty.", "PP line2 C is empty."},
                                        {"PP line 2 LW is empty.", "PP line2 LW is empty."},
                                        {"PP line 2 RW is empty.", "PP line2 RW is empty."},
                                        {"PK3 line 1 forward is empty.", "PK3 line 1 RW is empty."},
                                        {"PK3 line 2 forward is empty.", "PK3 line 2 RW is empty."}})
            if (finding == pro) {
                finding = farm;
                break;
            }
    findings.emplace_back("Not Enough Players Found. Minimum is 18");
    return findings;
}

TEST_F(StrictFarmLineJudgeTest, AnEmptyDayTellsOfEverySlotAndEveryDoubleAndOfTooFewHeads)
{
    Day1() = {};
    ExpectFindings(EmptyFarmDayFindings());
}

TEST_F(StrictFarmLineJudgeTest, AnEmptyDayOfALeagueThatKeepsLinesOneAndTwoApartHasFiveDoublesMore)
{
    LeagueData.LinesOneTwoExclusive = true;
    Players[0].Name = "Unknown Player";
    Day1() = {};
    auto findings = EmptyFarmDayFindings();
    findings.insert(findings.begin() + 36, 5, " is used twice in lines 1 and 2.");
    for (std::string& finding : findings)
        if (finding.starts_with(" is used twice"))
            finding = "Unknown Player" + finding;
    ExpectFindings(findings);
}

TEST_F(StrictFarmLineJudgeTest, EmptyPowerPlayForwardsHaveNoBlankBehindTheWordLine)
{
    Day1().PPForward(1, 1) = 0;
    Day1().PPDefense(1, 1) = 0;
    Day1().PPForward(2, 3) = 0;
    LeagueData.ProDressedSkaters = 19;
    ExpectFindings({"PP line1 C is empty.", "PP line 1 Defense #1 is empty.", " is used twice in PP line#1",
                    "PP line2 RW is empty."});
}

TEST_F(StrictFarmLineJudgeTest, TheEmptyLoneForwardIsCalledRightWing)
{
    LeagueData.ProDressedSkaters = 19;
    Day1().PK3Forward[1] = 0;
    Day1().PK3Forward[2] = 0;
    ExpectFindings({"PK3 line 1 RW is empty.", "PK3 line 2 RW is empty."});
}

TEST_F(StrictFarmLineJudgeTest, SeventeenDifferentSkatersAreNotEnough)
{
    SpreadOver(17);
    ExpectFindings({"Not Enough Players Found. Minimum is 18"});
    SpreadOver(18);
    ExpectPerfect();
}

// The empty value is a head too, so it takes one skater less to be enough, and the empty slot fails by itself.
TEST_F(StrictFarmLineJudgeTest, AnEmptySlotCountsAsTheEighteenthHead)
{
    SpreadOver(17);
    Day1().PK3Forward[1] = 0;
    ExpectFindings({"PK3 line 1 RW is empty."});
    SpreadOver(16);
    Day1().PK3Forward[1] = 0;
    ExpectFindings({"PK3 line 1 RW is empty.", "Not Enough Players Found. Minimum is 18"});
}

TEST_F(StrictFarmLineJudgeTest, TooManyHeadsAreNeverTooFew)
{
    LeagueData.ProDressedSkaters = 10;
    SpreadOver(17);
    ExpectFindings({"More that 10 Players Found"});
}

TEST_F(StrictFarmLineJudgeTest, ALeagueThatDressesFewerThanEighteenCannotBePleased)
{
    LeagueData.ProDressedSkaters = 17;
    SpreadOver(17);
    ExpectFindings({"Not Enough Players Found. Minimum is 18"});
    SpreadOver(18);
    ExpectFindings({"More that 17 Players Found"});
}

TEST_F(StrictFarmLineJudgeTest, LinesOneAndTwoAreComparedWhereTheyAreKeptApart)
{
    Day1().NormalForward(2, 1) = 1;
    Day1().NormalForward(3, 1) = 4; // the center of line 2, so that all eighteen still stand somewhere
    ExpectPerfect();
    LeagueData.LinesOneTwoExclusive = true;
    ExpectFindings({"Skater 1 is used twice in lines 1 and 2."});
}

TEST_F(StrictFarmLineJudgeTest, EmptyGoalieSlotsAreToldAndAreTheSame)
{
    Day1().StartGoalie = 0;
    Day1().BackupGoalie = 0;
    ExpectFindings(
        {"Starting Goaler is empty.", "Backup Goaler is empty.", "Starting Goalie and BackUp Goalie are the same"});
}

// The lenient check.

TEST_F(LenientFarmLineJudgeTest, AnEmptyDayIsPerfect)
{
    Day1() = {};
    ExpectPerfect();
}

TEST_F(LenientFarmLineJudgeTest, OneInjuredSkaterFailsAndIsWiped)
{
    Day1() = {};
    PutSkater(50, 5, position::Center, status::Farm).Condition = 80;
    Day1().NormalForward(3, 2) = 50;
    Teams[5].Farm.FarmLines[9].NormalForward(3, 2) = 50;
    ExpectFindings({"Skater 50 is injured or suspended."});
    EXPECT_EQ(Day1().NormalForward(3, 2), 0);
    EXPECT_EQ(Teams[5].Farm.FarmLines[9].NormalForward(3, 2), 0);
    ExpectPerfect();
}

TEST_F(LenientFarmLineJudgeTest, NoSingleEmptySlotIsAnError)
{
    LeagueData.ProDressedSkaters = 19;
    for (const LineSlot& slot : SkaterSlots) {
        FillDay(Day1(), team);
        At(Day1(), slot) = 0;
        EXPECT_TRUE(CheckLineFarm(5, false, 1, false));
    }
    Day1().StartGoalie = 0;
    ExpectPerfect();
    Day1().BackupGoalie = 0;
    ExpectPerfect();
}

TEST_F(LenientFarmLineJudgeTest, EmptySlotsAreNoDoublesNextToOneSkater)
{
    Day1() = {};
    Players[0].Name = "Unknown Player";
    Day1().NormalForward(1, 2) = 1;
    Day1().PPDefense(2, 2) = 1;
    Day1().PenaltyShot[3] = 1;
    ExpectPerfect();
}

TEST_F(LenientFarmLineJudgeTest, SkatersWipedFromTwoSlotsLeaveNoDouble)
{
    Day1() = {};
    PutSkater(50, 6, position::Center, status::Farm);
    PutSkater(51, 6, position::Center, status::Farm);
    Day1().NormalForward(1, 1) = 50;
    Day1().NormalForward(1, 2) = 51;
    Day1().NormalForward(1, 3) = 50;
    ExpectFindings(
        {"Skater 50 is not on farm roster for this team.", "Skater 51 is not on farm roster for this team."});
}

TEST_F(LenientFarmLineJudgeTest, LinesOneAndTwoAreNotComparedWhateverTheLeagueSays)
{
    LeagueData.LinesOneTwoExclusive = true;
    Day1().NormalForward(2, 1) = 1;
    ExpectPerfect();
}

TEST_F(LenientFarmLineJudgeTest, TheHeadCountHasNoMinimum)
{
    Day1() = {};
    for (int line = 1; line <= 4; ++line)
        Day1().NormalForward(line, 1) = 1;
    ExpectPerfect();
}

TEST_F(LenientFarmLineJudgeTest, TheEmptyValueTakesUpAPlace)
{
    LeagueData.ProDressedSkaters = 20;
    SpreadOver(20);
    ExpectPerfect();
    Day1().PenaltyShot[5] = 0;
    ExpectFindings({"More that 20 Players Found"});
}

} // namespace
} // namespace dravik
