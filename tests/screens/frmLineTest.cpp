#include "OnLineScreen.h"
#include "session/Session.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmLineTest : public OnLineScreen {};

TEST_F(frmLineTest, EveryControlStandsUnderItsName)
{
    for (const char* name :
         {"cmdAutoLines", "cmdPartialLine", "cmdWipeLines", "cmdCopy", "cmdCopyAll", "cmdDebug", "cmdExit"})
        EXPECT_NE(Line().findChild<QPushButton*>(name), nullptr) << name;
    for (const char* name : {"lblTeamName",        "lblGame",
                             "lblPlaying",         "lblComplete",
                             "lblPoint",           "lblStat(0)",
                             "lblStat(16)",        "lblStatLabel(0)",
                             "lblStatLabel(16)",   "lblStatsPoint(0)",
                             "lblStatsPoint(1)",   "lblStatsPoint(2)",
                             "lblNormalTrio(1)",   "lblNormalTrio(4)",
                             "lblPPTrio(2)",       "lbl44Trio(2)",
                             "lblPKTrio(2)",       "lblPK3Trio(2)",
                             "lblNormalTrioC(4)",  "lblNormalTrioLW(1)",
                             "lblNormalTrioRW(2)", "lblNormalTrioD1(3)",
                             "lblNormalTrioD2(4)", "lblPPTrioC(1)",
                             "lblPPTrioLW(2)",     "lblPPTrioRW(1)",
                             "lblPPDuoD1(2)",      "lblPPDuoD2(1)",
                             "lbl44TrioC(1)",      "lbl44TrioW(2)",
                             "lbl44DuoD1(1)",      "lbl44DuoD2(2)",
                             "lblPKTrioC(2)",      "lblPKTrioW(1)",
                             "lblPKDuoD1(2)",      "lblPKDuoD2(1)",
                             "lblPK3TrioC(2)",     "lblPK3DuoD1(1)",
                             "lblPK3DuoD2(2)",     "lblExtraForward(5)",
                             "lblExtraDefense(1)", "lblPenaltyShot(3)",
                             "lblStartGoaler",     "lblBackupGoaler"})
        EXPECT_EQ(Line().findChildren<QLabel*>(name).size(), 1) << name;
    for (const char* name : {"hscStats(0)", "hscStats(1)", "hscStats(2)"})
        EXPECT_NE(Line().findChild<QScrollBar*>(name), nullptr) << name;
    for (const char* name : {"txtPullGoalerMinGoal", "txtPullGoalerMinPct"})
        EXPECT_NE(Line().findChild<EditBox*>(name), nullptr) << name;
    for (int position = 1; position <= 5; ++position)
        EXPECT_TRUE(Line().chkPosition[position]->isChecked());
    EXPECT_NE(Line().findChild<QAbstractSlider*>("vscDay"), nullptr);
    EXPECT_NE(Line().findChild<QTabWidget*>("TabLine"), nullptr);
    EXPECT_NE(Line().findChild<QListWidget*>("lstPlayer"), nullptr);
    EXPECT_NE(Line().findChild<QGroupBox*>("frmStat"), nullptr);
}

TEST_F(frmLineTest, OpeningShowsTitlesTheFirstDayAndItsVerdict)
{
    const frmLine& line = Line();
    EXPECT_EQ(line.windowTitle(), "Dravik Hockey Simulator Client - Harbour City Gulls - Lines");
    EXPECT_EQ(Of(line.lblTeamName), "Lines for Harbour City Gulls ");
    EXPECT_EQ(line.Day(), 1);
    EXPECT_EQ(line.TabLine->currentIndex(), 0);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
    EXPECT_FALSE(line.cmdDebug->isEnabled());
    EXPECT_TRUE(line.isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(frmLineTest, OpeningTheScreenMarksTheDataAsChanged)
{
    MainWithLeague();
    Modified = false;
    OpenFrom(Main(), "Line", "Main");
    EXPECT_TRUE(Modified);
}

TEST_F(frmLineTest, APickAndAClickPutAPlayerIntoASlot)
{
    frmLine& line = Line();
    const int id = Pro.Skaters[4];
    Pick(line, id, position::LeftWing);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 4, 1));
    EXPECT_EQ(ProDay().NormalForward(4, 1), id);
    EXPECT_EQ(Of(SlotOn(line, LineField::NormalForward, 4, 1)), Players[id].Name.Trimmed());
    EXPECT_NE(FarmDay().NormalForward(4, 1), id);
    EXPECT_TRUE(Modified);
}

TEST_F(frmLineTest, WithNoSelectionASlotClickDoesNothing)
{
    frmLine& line = Line();
    SelectedPlayer = Pro.Skaters[4];
    const long long before = ProDay().NormalForward(1, 1);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 1, 1));
    EXPECT_EQ(ProDay().NormalForward(1, 1), before);
    EXPECT_FALSE(Modified);
}

TEST_F(frmLineTest, ClosingWarnsOfAnIncompleteFirstDayAndReturnsToTheCaller)
{
    frmLine& line = Line();
    ProDay().StartGoalie = 0;
    Click(line.cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Lines for Day #1 are Incomplete!"}));
    EXPECT_EQ(TheStage.Find("Line"), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmLineTest, ClosingJudgesTheFirstDayWhateverDayIsShown)
{
    PutGames(4);
    frmLine& line = Line();
    line.vscDay->setValue(2);
    ASSERT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    Click(line.cmdExit);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmLineTest, ACompleteDayShownDoesNotHideAnIncompleteFirstDayFromClosing)
{
    PutGames(4);
    FillDay(ProDay(2), Pro);
    frmLine& line = Line();
    line.vscDay->setValue(2);
    ProDay(1).StartGoalie = 0;
    ASSERT_EQ(Of(line.lblComplete), "Lines are Complete");
    Click(line.cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Lines for Day #1 are Incomplete!"}));
}

TEST_F(frmLineTest, ClosingCompleteLinesSaysNothing)
{
    Click(Line().cmdExit);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmLineTest, ABadTeamIsToldAndRunsTheClosingCodeToo)
{
    OpenFrom(MainWithLeague(), "Line", "Main", 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}, Box{16, "Integrity Check Failed!"},
                                             Box{48, "Lines for Day #1 are Incomplete!"}));
    EXPECT_EQ(TheStage.Find("Line"), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmLineTest, AFailureOfOpeningIsToldAndTheScreenStaysOpen)
{
    MainWithLeague();
    Machine.OnEvent = [this](const std::string& event) {
        if (event == "box" && Machine.Boxes().size() == 1)
            Fail(failure::InvalidCall);
    };
    OpenFrom(Main(), "Line", "Main", 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"},
                                             Box{16, "5 - Invalid procedure call or argument in FormLoad FrmLine!"}));
    EXPECT_NE(TheStage.Find("Line"), nullptr);
    Machine.OnEvent = {};
}

TEST_F(frmLineTest, AFailureOfAPickIsToldUnderItsName)
{
    frmLine& line = Line();
    PlayerStatCount = 17;
    Pick(line, Pro.Skaters[0], position::Center);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in lstPlayer_Click!"}));
    EXPECT_TRUE(line.isVisible());
}

} // namespace
} // namespace dravik
