#include "OnLineScreen.h"
#include "support/Routines.h"

#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Opening, commands and closing of the farm's lines.
class frmFarmLineTest : public OnLineScreen {
protected:
    static Box Integrity() { return {16, "Integrity Check Failed!"}; }

    static bool AreAlike(const Lines& left, const Lines& right) { return std::memcmp(&left, &right, sizeof left) == 0; }

    // Remembers the pro lines of all days.
    frmFarmLineTest() : ProBefore(Own().ProLines) {}
    [[nodiscard]] bool AreProLinesUntouched() const
    {
        return std::memcmp(&ProBefore, &Own().ProLines, sizeof ProBefore) == 0;
    }

    decltype(Team::ProLines) ProBefore;
};

TEST_F(frmFarmLineTest, OpeningShowsTheFarmsNameInBothTitles)
{
    const frmFarmLine& farm = FarmLine();
    EXPECT_EQ(farm.windowTitle(), "Dravik Hockey Simulator Client - Pebble Creek Ducks - Lines");
    EXPECT_EQ(Of(farm.lblTeamName), "Lines for Pebble Creek Ducks ");
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
    EXPECT_EQ(farm.Day(), 1);
    EXPECT_EQ(farm.TabLine->currentIndex(), 0);
}

TEST_F(frmFarmLineTest, ThereIsNoCommandForPartialLines)
{
    for (const QPushButton* command : FarmLine().findChildren<QPushButton*>())
        EXPECT_NE(command->objectName(), "cmdPartialLine");
    for (const char* name : {"cmdAutoLines", "cmdWipeLines", "cmdCopy", "cmdCopyAll", "cmdDebug", "cmdExit"})
        EXPECT_NE(FarmLine().findChild<QPushButton*>(name), nullptr) << name;
}

TEST_F(frmFarmLineTest, WithoutAutomaticRostersOnlyAutoLinesIsClosed)
{
    PutGames(4, true);
    LeagueData.AutoRosterDisabled = true;
    const frmFarmLine& farm = FarmLine();
    EXPECT_FALSE(farm.cmdAutoLines->isEnabled());
    for (const QPushButton* command : {farm.cmdWipeLines, farm.cmdCopy, farm.cmdCopyAll, farm.cmdExit})
        EXPECT_TRUE(command->isEnabled()) << command->objectName().toStdString();
}

TEST_F(frmFarmLineTest, WithAutomaticRostersAutoLinesIsOpen) { EXPECT_TRUE(FarmLine().cmdAutoLines->isEnabled()); }

TEST_F(frmFarmLineTest, ABadTeamIsToldAndRunsTheClosingCodeToo)
{
    for (const int team : {0, 101}) {
        OpenFrom(MainWithLeague(), "FarmLine", "Main", team);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Integrity(), Integrity(), Box{48, "Farm Lines for Day #1 are Incomplete!"}));
        EXPECT_EQ(TheStage.Find("FarmLine"), nullptr);
        EXPECT_TRUE(Main().isVisible());
    }
}

TEST_F(frmFarmLineTest, WithoutFarmTeamsClosingABadTeamJudgesNothing)
{
    LeagueData.FarmEnabled = false;
    OpenFrom(MainWithLeague(), "FarmLine", "Main", 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity()));
    EXPECT_EQ(TheStage.Find("FarmLine"), nullptr);
}

TEST_F(frmFarmLineTest, OpeningTheScreenMarksTheDataAsChanged)
{
    MainWithLeague();
    Modified = false;
    OpenFrom(Main(), "FarmLine", "Main");
    EXPECT_TRUE(Modified);
}

TEST_F(frmFarmLineTest, AFailureOfOpeningIsToldAndTheScreenStaysOpen)
{
    MainWithLeague();
    Machine.OnEvent = [this](const std::string& event) {
        if (event == "box" && Machine.Boxes().size() == 1)
            Fail(failure::InvalidCall);
    };
    OpenFrom(Main(), "FarmLine", "Main", 0);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Integrity(), Box{16, "5 - Invalid procedure call or argument in FormLoad FrmFarmLine!"}));
    EXPECT_NE(TheStage.Find("FarmLine"), nullptr);
    Machine.OnEvent = {};
}

TEST_F(frmFarmLineTest, AutoLinesFillsTheFarmsDayAsTheMakerDoes)
{
    AutoLinesFarm(5, false, 1);
    const Lines made = FarmDay();
    WipesLines(5, 1, false);
    frmFarmLine& farm = FarmLine();
    Click(farm.cmdAutoLines);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Auto Lines Function has been run successfully."}));
    EXPECT_TRUE(AreAlike(FarmDay(), made));
    EXPECT_TRUE(AreProLinesUntouched());
    EXPECT_EQ(Of(SlotOn(farm, LineField::NormalForward, 1)), Players[made.NormalForward(1, 1)].Name.Trimmed());
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
    EXPECT_TRUE(Modified);
}

TEST_F(frmFarmLineTest, AutoLinesFillsTheShownDayOnly)
{
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    const Lines first = FarmDay(1);
    farm.vscDay->setValue(3);
    Click(farm.cmdAutoLines);
    EXPECT_NE(FarmDay(3).NormalForward(1, 1), 0);
    EXPECT_EQ(FarmDay(2).NormalForward(1, 1), 0);
    EXPECT_TRUE(AreAlike(FarmDay(1), first));
    EXPECT_TRUE(AreProLinesUntouched());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Auto Lines Function has been run successfully."}));
}

TEST_F(frmFarmLineTest, WipingLeavesTheProLinesOfTheDayAlone)
{
    FarmDay().PullGoalerMinGoal = 3;
    frmFarmLine& farm = FarmLine();
    Click(farm.cmdWipeLines);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
    for (const BoardSlot& slot : farm.TabLine->Slots) {
        EXPECT_EQ(slot.In(FarmDay()), 0);
        EXPECT_EQ(Of(slot.Label), slot.IsGoalies() ? "Unknown Goalie" : "Unknown Player");
    }
    EXPECT_EQ(FarmDay().PullGoalerMinGoal, 3);
    EXPECT_TRUE(AreProLinesUntouched());
}

TEST_F(frmFarmLineTest, WipingLeavesTheOtherDaysOfTheFarmAlone)
{
    FarmDay(2) = FarmDay(1);
    const Lines second = FarmDay(2);
    Click(FarmLine().cmdWipeLines);
    EXPECT_TRUE(AreAlike(FarmDay(2), second));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
}

TEST_F(frmFarmLineTest, WipingTheSecondDayLeavesTheFirstAlone)
{
    PutGames(2, true);
    FarmDay(2) = FarmDay(1);
    const Lines first = FarmDay(1);
    frmFarmLine& farm = FarmLine();
    farm.vscDay->setValue(2);
    Click(farm.cmdWipeLines);
    for (const BoardSlot& slot : farm.TabLine->Slots)
        EXPECT_EQ(slot.In(FarmDay(2)), 0) << slot.Name;
    EXPECT_TRUE(AreAlike(FarmDay(1), first));
    EXPECT_TRUE(AreProLinesUntouched());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
}

TEST_F(frmFarmLineTest, NoToTheQuestionWipesNothing)
{
    const Lines before = FarmDay();
    frmFarmLine& farm = FarmLine();
    Modified = false;
    Machine.Answer(button::No);
    Click(farm.cmdWipeLines);
    EXPECT_TRUE(AreAlike(FarmDay(), before));
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
}

TEST_F(frmFarmLineTest, TheReasonsOfAnIncompleteDayAreShownOnCommand)
{
    LeagueData.FarmRosterRequired = true;
    FarmDay().BackupGoalie = 0;
    const frmFarmLine& farm = FarmLine();
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Incomplete");
    ASSERT_TRUE(farm.cmdDebug->isEnabled());
    Click(farm.cmdDebug);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Backup Goaler is empty.\r\n"}));
}

TEST_F(frmFarmLineTest, TheReasonsAreThoseOfTheShownDayWhenTheFirstIsComplete)
{
    PutGames(2, true);
    LeagueData.FarmRosterRequired = true;
    FarmDay(2) = FarmDay(1);
    FarmDay(2).StartGoalie = 0;
    frmFarmLine& farm = FarmLine();
    ASSERT_EQ(Of(farm.lblComplete), "Lines are Complete");
    farm.vscDay->setValue(2);
    ASSERT_TRUE(farm.cmdDebug->isEnabled());
    Click(farm.cmdDebug);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Starting Goaler is empty.\r\n"}));
}

TEST_F(frmFarmLineTest, OneGameADayIsCopiedToAnother)
{
    PutGames(4, true);
    FarmDay().Strategy[2] = 4;
    FarmDay().PullGoalerMinGoal = 3;
    FarmDay().PullGoalerMinPct = 50;
    const frmFarmLine& farm = FarmLine();
    Machine.Type("4");
    Click(farm.cmdCopy);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"What day do you have to copy your lines?"}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day 4?"},
                                             Box{64, "Lines 1 was successfully copy to Lines 4."}));
    EXPECT_TRUE(AreAlike(FarmDay(4), FarmDay(1)));
    EXPECT_EQ(FarmDay(3).NormalForward(1, 1), 0);
    EXPECT_TRUE(AreProLinesUntouched());
}

TEST_F(frmFarmLineTest, ACopyLeavesTheReservedWordsOfTheTargetAlone)
{
    FarmDay(1).PK3Reserved[1] = 7;
    FarmDay(2).PK3Reserved[1] = 9;
    FarmLine().Copy(2);
    EXPECT_EQ(FarmDay(2).PK3Reserved[1], 9);
    EXPECT_EQ(FarmDay(2).NormalForward(1, 1), FarmDay(1).NormalForward(1, 1));
}

TEST_F(frmFarmLineTest, ADayOutOfTheSeasonsReachIsRefused)
{
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    for (const char* answer : {"0", "5", "-1", "ten", ""}) {
        Machine.Type(answer);
        Click(farm.cmdCopy);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Please entry a number between 1 and 4."})) << answer;
    }
    for (int day = 2; day <= 10; ++day)
        EXPECT_EQ(FarmDay(day).NormalForward(1, 1), 0);
}

TEST_F(frmFarmLineTest, NoToTheQuestionCopiesNothing)
{
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    Machine.Type("2");
    Machine.Answer(button::No);
    Click(farm.cmdCopy);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day 2?"}));
    Machine.Answer(button::No);
    Click(farm.cmdCopyAll);
    EXPECT_THAT(
        Machine.TakeBoxes(),
        ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day all the others day?"}));
    EXPECT_EQ(FarmDay(2).NormalForward(1, 1), 0);
}

TEST_F(frmFarmLineTest, CopyingToAllWritesTenDaysWithFourGamesOnTheCalendar)
{
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    farm.vscDay->setValue(2);
    FarmDay(2).StartGoalie = 4;
    FarmDay(2).BackupGoalie = 3;
    Click(farm.cmdCopyAll);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{36, "Are you want to you want to copy the lines from day 2 to day all the others day?"},
                            Box{64, "Lines 2 was successfully copy to day all the others day."}));
    for (int day = 1; day <= 10; ++day)
        EXPECT_TRUE(AreAlike(FarmDay(day), FarmDay(2))) << day;
    EXPECT_TRUE(AreProLinesUntouched());
}

TEST_F(frmFarmLineTest, AFailureOfACopyIsToldUnderItsName)
{
    FarmLine().Copy(11);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Copy!"}));
}

TEST_F(frmFarmLineTest, ClosingWarnsOfAnIncompleteFirstDay)
{
    LeagueData.FarmRosterRequired = true;
    frmFarmLine& farm = FarmLine();
    FarmDay().StartGoalie = 0;
    Click(farm.cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Farm Lines for Day #1 are Incomplete!"}));
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmFarmLineTest, ClosingJudgesTheFirstDayWhateverDayIsShown)
{
    PutGames(4, true);
    LeagueData.FarmRosterRequired = true;
    frmFarmLine& farm = FarmLine();
    farm.vscDay->setValue(2);
    ASSERT_EQ(Of(farm.lblComplete), "Lines are Incomplete");
    Click(farm.cmdExit);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmFarmLineTest, AnEmptyFirstDayIsCompleteWhereNoFarmRosterIsRequired)
{
    WipesLines(5, 1, false);
    const frmFarmLine& farm = FarmLine();
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
    EXPECT_FALSE(farm.cmdDebug->isEnabled());
    Click(farm.cmdExit);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// The placeholders are listed where the word is 0, the strict judge sits where it is True: at 1 there is neither.
TEST_F(frmFarmLineTest, AWordOfOneNeitherListsPlaceholdersNorRequiresAFullFarm)
{
    LeagueData.FarmRosterRequired.SetWord(1);
    WipesLines(5, 1, false);
    const frmFarmLine& farm = FarmLine();
    EXPECT_EQ(farm.lstPlayer->RowOf(320001), -1);
    EXPECT_EQ(farm.lstPlayer->RowOf(320005), -1);
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
}

TEST_F(frmFarmLineTest, ClosingReturnsToTheMainScreen)
{
    Click(FarmLine().cmdExit);
    EXPECT_EQ(TheStage.Find("FarmLine"), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmFarmLineTest, ClosingReturnsToTheTeamScreen)
{
    frmTeam& office = OpenTeam(5);
    OpenFrom(office, "FarmLine", "Team");
    EXPECT_FALSE(office.isVisible());
    Click(FarmLine().cmdExit);
    EXPECT_EQ(TheStage.Find("FarmLine"), nullptr);
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(frmFarmLineTest, ClosingForAnUnknownCallerIsAnIntegrityFailureAndShowsNothing)
{
    const frmFarmLine& farm = FarmLine();
    CallerScreen = "Nobody";
    Click(farm.cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity()));
    EXPECT_EQ(TheStage.Find("FarmLine"), nullptr);
    EXPECT_FALSE(Main().isVisible());
}

} // namespace
} // namespace dravik
