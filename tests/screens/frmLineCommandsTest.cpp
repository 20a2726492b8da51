#include "OnLineScreen.h"
#include "support/Routines.h"

#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LineCommands : public OnLineScreen {
protected:
    static bool AreSame(const Lines& a, const Lines& b) { return std::memcmp(&a, &b, sizeof(Lines)) == 0; }

    // A line-up that nobody else has, down to the words that are not copied.
    static void MarkDay(Lines& lines)
    {
        lines.Strategy[0] = 3;
        lines.Strategy[1] = 1;
        lines.PullGoalerMinGoal = 2;
        lines.PullGoalerMinPct = 85;
        lines.PK3Reserved[1] = 77;
    }
};

TEST_F(LineCommands, AutoLinesFillTheShownDayAndSaySo)
{
    PutGames(5);
    frmLine& line = Line();
    line.vscDay->setValue(4);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    Click(line.cmdAutoLines);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Auto Lines Function has been run successfully."}));
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
    EXPECT_NE(ProDay(4).NormalForward(1, 1), 0);
    EXPECT_EQ(ProDay(5).NormalForward(1, 1), 0);
    EXPECT_EQ(Of(SlotOn(line, LineField::NormalForward, 1, 1)), Players[ProDay(4).NormalForward(1, 1)].Name.Trimmed());
    EXPECT_EQ(Of(line.lblPoint), "0");
}

TEST_F(LineCommands, PartialLinesKeepWhatStandsAndFillTheRest)
{
    frmLine& line = Line();
    const long long kept = ProDay().NormalForward(1, 1);
    ProDay().NormalForward(2, 1) = 0;
    Click(line.cmdPartialLine);
    EXPECT_EQ(ProDay().NormalForward(1, 1), kept);
    EXPECT_NE(ProDay().NormalForward(2, 1), 0);
    EXPECT_NE(Of(SlotOn(line, LineField::NormalForward, 2, 1)), "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Auto Lines Partial Function has been run successfully."}));
}

TEST_F(LineCommands, ALeagueWithoutAutomaticRostersHasNoMakers)
{
    LeagueData.AutoRosterDisabled = true;
    EXPECT_FALSE(Line().cmdAutoLines->isEnabled());
    EXPECT_FALSE(Line().cmdPartialLine->isEnabled());
    EXPECT_TRUE(Line().cmdWipeLines->isEnabled());
}

TEST_F(LineCommands, AWordThatIsNotTrueLeavesTheMakersOpen)
{
    LeagueData.AutoRosterDisabled.SetWord(1);
    EXPECT_TRUE(Line().cmdAutoLines->isEnabled());
    EXPECT_TRUE(Line().cmdPartialLine->isEnabled());
}

TEST_F(LineCommands, WipingAsksAndEmptiesTheShownDay)
{
    const Lines farm = FarmDay();
    frmLine& line = Line();
    Machine.Answer(button::No);
    Click(line.cmdWipeLines);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
    EXPECT_NE(ProDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
    Machine.Answer(button::Yes);
    Click(line.cmdWipeLines);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 1));
    EXPECT_EQ(Of(SlotOn(line, LineField::NormalForward, 1, 1)), "");
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_TRUE(AreSame(FarmDay(), farm));
}

TEST_F(LineCommands, WipingTheSecondDayLeavesTheFirstAlone)
{
    PutGames(2);
    FillDay(ProDay(2), Pro);
    MarkDay(ProDay(2));
    frmLine& line = Line();
    line.vscDay->setValue(2);
    const Lines first = ProDay(1);
    ASSERT_FALSE(CheckLineEmpty(OpenLeague, Machine, 5, 2));
    Click(line.cmdWipeLines);
    EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, 5, 2));
    EXPECT_TRUE(AreSame(ProDay(1), first));
    EXPECT_EQ(Of(SlotOn(line, LineField::NormalForward, 1, 1)), "");
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
}

TEST_F(LineCommands, TheReasonsAreTheJudgesAndStandBesideTheVerdict)
{
    PutGames(2);
    frmLine& line = Line();
    line.vscDay->setValue(2);
    const QString reasons = line.txtReasons->toPlainText();
    EXPECT_TRUE(line.txtReasons->isVisible());
    ASSERT_FALSE(CheckLine(5, false, 2, false));
    EXPECT_EQ(reasons.toStdString() + "\n",
              QString::fromStdString(LastLinesText()).replace("\r\n", "\n").toStdString());
    line.vscDay->setValue(1);
    EXPECT_EQ(line.txtReasons->toPlainText(), "");
    EXPECT_EQ(line.txtReasons->placeholderText(), "Nothing stands against these lines.");
}

TEST_F(LineCommands, WhyTellsTheFaultsOfTheShownDay)
{
    ProDay().StartGoalie = 0;
    frmLine& line = Line();
    ASSERT_TRUE(line.cmdDebug->isEnabled());
    Click(line.cmdDebug);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Starting Goaler is empty.\r\nSome errors will be automatically fixed.\r\n"}));
}

TEST_F(LineCommands, WhyJudgesTheShownDayWhenTheFirstIsComplete)
{
    PutGames(2);
    FillDay(ProDay(2), Pro);
    ProDay(2).BackupGoalie = 0;
    frmLine& line = Line();
    ASSERT_EQ(Of(line.lblComplete), "Lines are Complete");
    line.vscDay->setValue(2);
    ASSERT_TRUE(line.cmdDebug->isEnabled());
    Click(line.cmdDebug);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Backup Goaler is empty.\r\nSome errors will be automatically fixed.\r\n"}));
}

TEST_F(LineCommands, CopyAsksForTheDayAndForAYesAndTells)
{
    PutGames(4);
    frmLine& line = Line();
    MarkDay(ProDay(1));
    ProDay(3).PK3Reserved[1] = 12;
    Machine.Type("3");
    Click(line.cmdCopy);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"What day do you have to copy your lines?"}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day 3?"},
                                             Box{64, "Lines 1 was successfully copy to Lines 3."}));
    Lines expected = ProDay(1);
    expected.PK3Reserved[1] = 12; // keeps its place and its value
    EXPECT_TRUE(AreSame(ProDay(3), expected));
    EXPECT_EQ(ProDay(2).StartGoalie, 0);
}

TEST_F(LineCommands, ANoLeavesTheOtherDayAlone)
{
    PutGames(4);
    frmLine& line = Line();
    Machine.Type("3");
    Machine.Answer(button::No);
    Click(line.cmdCopy);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day 3?"}));
    EXPECT_EQ(ProDay(3).StartGoalie, 0);
}

TEST_F(LineCommands, ADayOutOfRangeIsRefusedInAWarning)
{
    PutGames(7);
    frmLine& line = Line();
    for (const char* typed : {"0", "-1", "8", "10", "x", "0.5", "7.6"}) {
        Machine.Type(typed);
        Click(line.cmdCopy);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Please entry a number between 1 and 7."})) << typed;
    }
}

TEST_F(LineCommands, CancellingTheInputBoxCountsAsZero)
{
    PutGames(2);
    Click(Line().cmdCopy);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Please entry a number between 1 and 2."}));
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"What day do you have to copy your lines?"}));
}

TEST_F(LineCommands, TheTypedDayIsRoundedTiesToEven)
{
    PutGames(10);
    frmLine& line = Line();
    for (const auto& [typed, day] : {std::pair("2.5", 2), std::pair("3.5", 4), std::pair(" 6th", 6)}) {
        Machine.Type(typed);
        Machine.Answer(button::No);
        Click(line.cmdCopy);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day " +
                                            std::to_string(day) + "?"}));
    }
}

TEST_F(LineCommands, ADayBeyondSixteenBitsIsAFailure)
{
    PutGames(2);
    Machine.Type("40000");
    Click(Line().cmdCopy);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in cmdCopy!"}));
}

TEST_F(LineCommands, NothingStopsTheTargetBeingTheShownDay)
{
    PutGames(2);
    frmLine& line = Line();
    const Lines before = ProDay();
    Machine.Type("1");
    Click(line.cmdCopy);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day 1?"},
                                             Box{64, "Lines 1 was successfully copy to Lines 1."}));
    EXPECT_TRUE(AreSame(ProDay(), before));
}

TEST_F(LineCommands, CopyToAllWritesAllTenDaysEvenWithFourGames)
{
    PutGames(4);
    frmLine& line = Line();
    line.vscDay->setValue(2);
    FillDay(ProDay(2), Pro);
    MarkDay(ProDay(2));
    ProDay(2).PK3Reserved[1] = 0;
    Click(line.cmdCopyAll);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{36, "Are you want to you want to copy the lines from day 2 to day all the others day?"},
                            Box{64, "Lines 2 was successfully copy to day all the others day."}));
    for (int day = 1; day <= 10; ++day)
        EXPECT_TRUE(AreSame(ProDay(day), ProDay(2))) << day;
}

TEST_F(LineCommands, ANoToAllLeavesAllDaysAlone)
{
    frmLine& line = Line();
    Machine.Answer(button::No);
    Click(line.cmdCopyAll);
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{36, "Are you want to you want to copy the lines from day 1 to day all the others day?"}));
    for (int day = 2; day <= 10; ++day)
        EXPECT_EQ(ProDay(day).StartGoalie, 0);
}

TEST_F(LineCommands, APassingFirstDayOpensTheSaveCommandOfTheTeamScreen)
{
    ProDay().StartGoalie = 0;
    frmTeam& office = OpenTeam(5);
    ASSERT_FALSE(office.cmdSaveToFile->isEnabled());
    Click(office.cmdLines);
    auto& line = *static_cast<frmLine*>(TheStage.Find("Line"));
    EXPECT_FALSE(office.cmdSaveToFile->isEnabled());
    Pick(line, Pro.GoalieIds[0], position::Goalie);
    ClickOn(line, StartSlot(line).Label);
    EXPECT_TRUE(office.cmdSaveToFile->isEnabled());
    Pick(line, Pro.GoalieIds[1], position::Goalie);
    ClickOn(line, StartSlot(line).Label); // both goalies are the same now
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_TRUE(office.cmdSaveToFile->isEnabled()); // nothing here ever closes it
}

TEST_F(LineCommands, ACompleteDayShownDoesNotOpenTheSaveCommandForAnIncompleteFirstDay)
{
    PutGames(2);
    ProDay(1).StartGoalie = 0;
    FillDay(ProDay(2), Pro);
    frmTeam& office = OpenTeam(5);
    Click(office.cmdLines);
    auto& line = *static_cast<frmLine*>(TheStage.Find("Line"));
    line.vscDay->setValue(2);
    line.Check();
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
    EXPECT_FALSE(office.cmdSaveToFile->isEnabled());
}

TEST_F(LineCommands, AMendedFirstDayOpensTheSaveCommandWhileAnIncompleteDayIsShown)
{
    PutGames(2);
    const long long starting = ProDay(1).StartGoalie;
    ProDay(1).StartGoalie = 0;
    frmTeam& office = OpenTeam(5);
    Click(office.cmdLines);
    auto& line = *static_cast<frmLine*>(TheStage.Find("Line"));
    line.vscDay->setValue(2);
    ASSERT_FALSE(office.cmdSaveToFile->isEnabled());
    ProDay(1).StartGoalie = starting;
    line.Check();
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_TRUE(office.cmdSaveToFile->isEnabled());
}

TEST_F(LineCommands, ClosingReturnsToTheTeamScreenThatOpenedIt)
{
    frmTeam& office = OpenTeam(5);
    Click(office.cmdLines);
    Click(static_cast<frmLine*>(TheStage.Find("Line"))->cmdExit);
    EXPECT_TRUE(office.isVisible());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LineCommands, AnUnknownCallerIsToldAndNoScreenComes)
{
    frmLine& line = Line();
    CallerScreen = "nobody";
    Click(line.cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_FALSE(Main().isVisible());
    EXPECT_EQ(TheStage.Find("Line"), nullptr);
}

} // namespace
} // namespace dravik
