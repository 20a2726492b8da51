#include "OnTeamScreen.h"
#include "support/Routines.h"

#include "rules/Finance.h"
#include "screens/panels/KeptPlace.h"
#include "screens/roster/frmRoster.h"
#include "session/Session.h"
#include <QEventLoop>
#include <QHelpEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmTeamTest : public OnTeamScreen {};

TEST_F(frmTeamTest, OpeningFillsEveryBoxFromTheTables)
{
    Own().ProCoach = 7;
    Own().Farm.FarmCoach = 8;
    Main();
    WindowTitle = "Dravik Hockey Simulator Client - Winter";
    const frmTeam& office = OpenTeam(5);
    EXPECT_EQ(office.windowTitle(), "Dravik Hockey Simulator Client - Winter - Harbour City Gulls");
    EXPECT_EQ(Of(office.txtTeamName), "Harbour City Gulls");
    EXPECT_EQ(Of(office.txtAbbre), "HCG");
    EXPECT_EQ(Of(office.txtCity), "Harbour City");
    EXPECT_EQ(Of(office.txtGm), "Ward Tilton");
    EXPECT_EQ(Of(office.txtMessenger), "wtilton");
    EXPECT_EQ(Of(office.txtEmail), "ward@example.org");
    EXPECT_EQ(Of(office.txtFarmTeamName), "Pebble Creek Ducks");
    EXPECT_EQ(Of(office.txtFarmAbbre), "PCD");
    EXPECT_EQ(Of(office.txtProMorale), "51");
    EXPECT_EQ(Of(office.txtFarmMorale), "47");
    EXPECT_EQ(Of(office.lblLoadLine), "3");
    EXPECT_EQ(Of(office.lblCoach), "Tor Lindqvist");
    EXPECT_EQ(Of(office.lblFarmCoach), "Marek Zelinka");
    EXPECT_EQ(Of(office.lblDivision), "Division 5");
    EXPECT_EQ(Of(office.lblConference), "West");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTeamTest, EveryControlStandsUnderItsName)
{
    for (const char* name : {"txtTeamName", "txtAbbre", "txtCity", "txtGm", "txtFarmTeamName", "txtFarmAbbre",
                             "txtProMorale", "txtFarmMorale", "txtMessenger", "txtEmail"})
        EXPECT_NE(Office().findChild<EditBox*>(name), nullptr) << name;
    for (const char* name :
         {"lblLoadLine", "lblCoach", "lblFarmCoach", "lblDivision", "lblConference", "lblFinance", "lblProPayRoll",
          "lblFarmPayRoll", "lblHGLeft", "lblGameLeft", "lblAverageAttendance", "lblAverageIncome",
          "lblEstimatedRevenue", "lblExpensesPerGame", "lblEstimatedSeasonExpense", "lblEstimatedBankAccount"})
        EXPECT_NE(Office().findChild<QLabel*>(name), nullptr) << name;
    for (const char* name : {"cmdChangeFinance", "cmdPayrollBonus", "cmdPassword", "cmdChangeCoach",
                             "cmdFarmChangeCoach", "cmdFirePro", "cmdFireFarm", "cmdProspect", "cmdTicketArena",
                             "CmdRoster", "cmdLines", "cmdFarmLines", "cmdSaveToFile", "cmdLoadFile", "cmdExit"})
        EXPECT_NE(Office().findChild<QPushButton*>(name), nullptr) << name;
}

TEST_F(frmTeamTest, OpeningClosesTheEightBoxesAndHidesTheEightCommands)
{
    const frmTeam& office = Office();
    for (const EditBox* box : {office.txtTeamName, office.txtAbbre, office.txtCity, office.txtGm,
                               office.txtFarmTeamName, office.txtFarmAbbre, office.txtProMorale, office.txtFarmMorale})
        EXPECT_FALSE(box->isEnabled()) << box->objectName().toStdString();
    for (const EditBox* box : {office.txtMessenger, office.txtEmail})
        EXPECT_TRUE(box->isEnabled()) << box->objectName().toStdString();
    for (const QPushButton* command :
         {office.cmdChangeFinance, office.cmdPayrollBonus, office.cmdPassword, office.cmdChangeCoach,
          office.cmdFarmChangeCoach, office.cmdFirePro, office.cmdFireFarm, office.cmdProspect})
        EXPECT_FALSE(command->isVisible()) << command->objectName().toStdString();
    for (const QPushButton* command : {office.cmdTicketArena, office.CmdRoster, office.cmdLines, office.cmdFarmLines,
                                       office.cmdLoadFile, office.cmdExit}) {
        EXPECT_TRUE(command->isVisible()) << command->objectName().toStdString();
        EXPECT_TRUE(command->isEnabled()) << command->objectName().toStdString();
    }
    EXPECT_TRUE(office.cmdSaveToFile->isVisible());
}

TEST_F(frmTeamTest, WithoutACoachNoneIsShownAndHeCannotBeFired)
{
    const frmTeam& office = Office();
    EXPECT_EQ(Of(office.lblCoach), "");
    EXPECT_EQ(Of(office.lblFarmCoach), "");
    EXPECT_FALSE(office.cmdFirePro->isEnabled());
    EXPECT_FALSE(office.cmdFireFarm->isEnabled());
}

TEST_F(frmTeamTest, ACoachBelowOneIsNoCoach)
{
    Own().ProCoach = -3;
    Own().Farm.FarmCoach = -3;
    EXPECT_EQ(Of(Office().lblCoach), "");
    EXPECT_FALSE(Office().cmdFirePro->isEnabled());
    EXPECT_FALSE(Office().cmdFireFarm->isEnabled());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTeamTest, ACoachCanBeFiredOnceTheCommandIsOpen)
{
    Own().ProCoach = 7;
    Own().Farm.FarmCoach = 8;
    EXPECT_TRUE(Office().cmdFirePro->isEnabled());
    EXPECT_TRUE(Office().cmdFireFarm->isEnabled());
}

TEST_F(frmTeamTest, ACoachOutsideTheTableIsAFailureOfOpening)
{
    Own().ProCoach = 501;
    const frmTeam& office = Office();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in FormLoad FrmTeam!"}));
    EXPECT_FALSE(office.cmdPassword->isVisible());
    EXPECT_FALSE(office.txtAbbre->isEnabled());
    EXPECT_TRUE(office.isVisible());
}

TEST_F(frmTeamTest, WithoutFarmTeamsTheFarmLinesAreClosed)
{
    LeagueData.FarmEnabled = false;
    EXPECT_FALSE(Office().cmdFarmLines->isEnabled());
}

TEST_F(frmTeamTest, AFarmWordOfOneIsNotTrue)
{
    LeagueData.FarmEnabled.SetWord(1);
    EXPECT_FALSE(Office().cmdFarmLines->isEnabled());
}

TEST_F(frmTeamTest, ATeamOutOfRangeIsToldAndTheScreenClosesAgain)
{
    for (const int team : {0, 101}) {
        MainWithLeague();
        CurrentTeam = team;
        TheStage.Open("Team", Main());
        Settle();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})) << team;
        EXPECT_EQ(TeamScreen(), nullptr);
        EXPECT_TRUE(Main().isVisible());
        EXPECT_EQ(CurrentTeam, team);
    }
}

TEST_F(frmTeamTest, ReloadingShowsWhatTheTablesHoldNow)
{
    Own().ProCoach = 7;
    frmTeam& office = Office();
    Own().City = "Port Ellery";
    Own().ProCoach = 0;
    office.ReloadForm();
    EXPECT_EQ(Of(office.txtCity), "Port Ellery");
    EXPECT_EQ(Of(office.lblCoach), "");
}

TEST_F(frmTeamTest, SaveComesUpWhenDay1OfBothLinesIsComplete)
{
    CompleteTeam(5);
    EXPECT_TRUE(Office().cmdSaveToFile->isEnabled());
    EXPECT_FALSE(Office().lblSaveHint->isVisible());
}

TEST_F(frmTeamTest, SaveStaysDownWhileTheProLinesAreIncomplete)
{
    CompleteTeam(5);
    Own().ProLines[1].StartGoalie = 0;
    EXPECT_FALSE(Office().cmdSaveToFile->isEnabled());
    EXPECT_EQ(Of(Office().lblSaveHint), "Lines for Day #1 are Incomplete!");
    EXPECT_TRUE(Office().lblSaveHint->isVisible());
}

TEST_F(frmTeamTest, SaveStaysDownWhileTheFarmLinesAreIncomplete)
{
    CompleteTeam(5);
    LeagueData.FarmRosterRequired = true;
    Own().Farm.FarmLines[1].StartGoalie = 0;
    EXPECT_FALSE(Office().cmdSaveToFile->isEnabled());
    EXPECT_EQ(Of(Office().lblSaveHint), "Farm Lines for Day #1 are Incomplete!");
}

TEST_F(frmTeamTest, BothReasonsAreToldTogether)
{
    LeagueData.FarmRosterRequired = true;
    EXPECT_EQ(Of(Office().lblSaveHint), "Lines for Day #1 are Incomplete!\nFarm Lines for Day #1 are Incomplete!");
}

TEST_F(frmTeamTest, OnlyDay1Counts)
{
    CompleteTeam(5);
    Own().ProLines[2] = {};
    EXPECT_TRUE(Office().cmdSaveToFile->isEnabled());
}

TEST_F(frmTeamTest, BothJudgesRepairEvenWhenTheFarmIsIncomplete)
{
    TeamMaker stranger(6);
    stranger.Dresses(1, position::Center);
    const int id = stranger.Skaters.front();
    LeagueData.FarmRosterRequired = true;
    Own().Farm.FarmLines[1].NormalForward(1, 1) = id;
    Own().ProLines[1].NormalForward(1, 1) = id;
    EXPECT_FALSE(Office().cmdSaveToFile->isEnabled());
    EXPECT_EQ(Own().Farm.FarmLines[1].NormalForward(1, 1), 0);
    EXPECT_EQ(Own().ProLines[1].NormalForward(1, 1), 0);
}

TEST_F(frmTeamTest, TheFarmIsJudgedFirst)
{
    CompleteTeam(5);
    LeagueData.FarmRosterRequired = true;
    // Whom the farm's judge takes out leaves the pro lines too, which are complete until then.
    Own().Farm.FarmLines[1].NormalForward(1, 1) = Own().ProLines[1].NormalForward(1, 1);
    EXPECT_EQ(Of(Office().lblSaveHint), "Lines for Day #1 are Incomplete!\nFarm Lines for Day #1 are Incomplete!");
    EXPECT_EQ(Own().ProLines[1].NormalForward(1, 1), 0);
}

TEST_F(frmTeamTest, SaveComesUpWhenTheLinesScreenReturnsWithCompleteLines)
{
    CompleteTeam(5);
    const Lines complete = Own().ProLines[1];
    Own().ProLines[1] = {};
    frmTeam& office = Office();
    ASSERT_FALSE(office.cmdSaveToFile->isEnabled());
    class LinesScreen : public Screen {
    public:
        explicit LinesScreen(Stage& stage) : Screen(stage, "frmLine") {}
        void FormLoad() override {}
    };
    TheStage.Provide("Line", [](Stage& stage) { return std::make_unique<LinesScreen>(stage); });
    Click(office.cmdLines);
    ASSERT_NE(TheStage.Find("Line"), nullptr);
    EXPECT_FALSE(office.isVisible());
    Own().ProLines[1] = complete;
    TheStage.Find("Line")->close();
    EXPECT_TRUE(office.isVisible());
    EXPECT_TRUE(office.cmdSaveToFile->isEnabled());
}

TEST_F(frmTeamTest, ExitShowsTheMainScreenAndKeepsTheTeam)
{
    Click(Office().cmdExit);
    EXPECT_EQ(TeamScreen(), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(CurrentTeam, 5);
}

TEST_F(frmTeamTest, ClosingTheWindowShowsTheMainScreen)
{
    Office().close();
    Settle();
    EXPECT_EQ(TeamScreen(), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmTeamTest, ABoxThatHasTheFocusActsWhenTheWindowCloses)
{
    TypeInto(Office().txtEmail, "new@example.org");
    Office().close();
    Settle();
    EXPECT_EQ(Own().Email.Trimmed(), "new@example.org");
    EXPECT_TRUE(Modified);
    EXPECT_EQ(TeamScreen(), nullptr);
}

TEST_F(frmTeamTest, ABoxThatHasTheFocusActsBeforeACommandByKeyboard)
{
    TypeInto(Office().txtMessenger, "gulls");
    QEventLoop untilClosed; // the toolkit shows the command pressed for a moment
    QObject::connect(&Office(), &QObject::destroyed, &untilClosed, &QEventLoop::quit);
    QTest::keyClick(&Office(), Qt::Key_X, Qt::AltModifier); // the mnemonic of Exit
    untilClosed.exec();
    EXPECT_EQ(Own().Messenger.Trimmed(), "gulls");
    EXPECT_EQ(TeamScreen(), nullptr);
}

TEST_F(frmTeamTest, ACommandIsDroppedWhileABoxRefusesItsText)
{
    TypeInto(Office().txtAbbre, "HC");
    Office().cmdExit->click();
    Settle();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Abbreviation must be 3 characters long!"}));
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_TRUE(Office().txtAbbre->hasFocus());
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
}

TEST_F(frmTeamTest, ARefusedBoxDropsTheMousePressOnACommandToo)
{
    TypeInto(Office().txtAbbre, "HC");
    Click(Office().cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Abbreviation must be 3 characters long!"}));
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_FALSE(Office().cmdExit->isDown());
    EXPECT_TRUE(Office().txtAbbre->hasFocus());
}

// Each press of a double click tries to leave the box; the command itself does not try a third time.
TEST_F(frmTeamTest, ARefusedBoxDropsBothPressesOfADoubleClickOnACommand)
{
    TypeInto(Office().txtAbbre, "HC");
    QTest::mouseClick(Office().cmdExit, Qt::LeftButton);
    QTest::mouseDClick(Office().cmdExit, Qt::LeftButton);
    EXPECT_FALSE(Office().cmdExit->isDown());
    QTest::mouseRelease(Office().cmdExit, Qt::LeftButton);
    Settle();
    const Box refusal{48, "Abbreviation must be 3 characters long!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(refusal, refusal));
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_TRUE(Office().txtAbbre->hasFocus());
}

TEST_F(frmTeamTest, ABoxActsOnceForEachLeaving)
{
    TypeInto(Office().txtAbbre, "HC");
    Press(Office().txtAbbre, Qt::Key_Tab);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Abbreviation must be 3 characters long!"}));
    EXPECT_TRUE(Office().txtAbbre->hasFocus());
    Press(Office().txtAbbre, Qt::Key_Tab);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Abbreviation must be 3 characters long!"}));
}

TEST_F(frmTeamTest, LinesCommandsOpenTheLinesScreensAndNoteTheTeamScreenAsTheirCaller)
{
    CompleteTeam(5);
    const std::pair<QPushButton*, const char*> commands[] = {{Office().cmdLines, "Line"},
                                                             {Office().cmdFarmLines, "FarmLine"}};
    for (const auto& [command, screen] : commands) {
        CallerScreen = "Main";
        Click(command);
        EXPECT_EQ(CallerScreen, "Team") << screen;
        ASSERT_NE(TheStage.Find(screen), nullptr) << screen;
        EXPECT_TRUE(TheStage.Find(screen)->isVisible());
        EXPECT_FALSE(Office().isVisible());
        TheStage.Find(screen)->close();
        Settle();
        EXPECT_TRUE(Office().isVisible());
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTeamTest, RosterCommandOpensTheRosterScreenAndNotesTheTeamScreenAsItsCaller)
{
    CompleteTeam(5);
    CallerScreen = "Main";
    Click(Office().CmdRoster);
    EXPECT_EQ(CallerScreen, "Team");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    ASSERT_NE(TheStage.Find("Roster"), nullptr);
    EXPECT_TRUE(TheStage.Find("Roster")->isVisible());
    EXPECT_FALSE(Office().isVisible());
}

TEST_F(frmTeamTest, HiddenScreenCommandsKeepTheirRoutines)
{
    frmTeam& office = Office();
    office.cmdProspect_Click();
    EXPECT_EQ(CallerScreen, "Team");
    CallerScreen = "";
    office.cmdChangeCoach_Click();
    EXPECT_EQ(ViewerReturnMode, 2);
    EXPECT_EQ(CallerScreen, "Team");
    office.cmdFarmChangeCoach_Click();
    EXPECT_EQ(ViewerReturnMode, 3);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_NE(TheStage.Find("Prospect"), nullptr);
    EXPECT_NE(TheStage.Find("Coach"), nullptr);
}

TEST_F(frmTeamTest, LinesAreRefusedWhileTheRosterIsIncomplete)
{
    CallerScreen = "Main";
    Click(Office().cmdLines);
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{48, "Roster is incomplete!\r\nYou cannot make your lines if your roster is incomplete!"}));
    EXPECT_EQ(CallerScreen, "Main");
    EXPECT_TRUE(Office().isVisible());
}

TEST_F(frmTeamTest, LinesAreRefusedWhileThePayrollIsAboveTheCap)
{
    CompleteTeam(5);
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    Click(Office().cmdLines);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Roster is incomplete!\r\nYou cannot make your lines if your "
                                                     "roster is incomplete!"}));
}
// On a small display it takes nearly all of the height, and goes no lower than its title bar leaves it room.
TEST_F(frmTeamTest, StandsInTheMiddleOfTheScreen)
{
    const QRect area = Office().screen()->availableGeometry();
    const QSize left = area.size() - Office().size();
    const int lowest = left.height() - FrameSizeOf(Office()).height();
    EXPECT_EQ(Office().pos() - area.topLeft(), QPoint(left.width() / 2, std::min(left.height() / 2, lowest)));
}

TEST_F(frmTeamTest, NamesOfFortyWideLettersLeaveMoneyAndCommandsInSight)
{
    const std::string longest(40, 'W');
    Own().Name = longest;
    LeagueData.Division[5].Name = longest;
    LeagueData.Conference[2] = longest;
    for (int coach = 7; coach <= 8; ++coach)
        Coaches[coach].Name = longest;
    Own().ProCoach = 7;
    Own().Farm.FarmCoach = 8;
    frmTeam& office = Office();
    office.resize(1280, 720);
    Settle();
    EXPECT_EQ(office.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
    for (const QWidget* control : std::initializer_list<QWidget*>{office.cmdExit, office.cmdLoadFile, office.lblFinance,
                                                                  office.lblEstimatedBankAccount}) {
        const QPoint corner = control->mapTo(&office, control->rect().topRight());
        EXPECT_LT(corner.x(), office.width()) << control->objectName().toStdString();
        EXPECT_FALSE(control->visibleRegion().isEmpty()) << control->objectName().toStdString();
    }
    for (QLabel* label : {office.lblDivision, office.lblConference, office.lblCoach, office.lblFarmCoach}) {
        EXPECT_EQ(Of(label), longest);
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, QPoint(2, 2), label->mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(label, &help);
        EXPECT_TRUE(QToolTip::text().contains(QString::fromStdString(longest))) << label->objectName().toStdString();
    }
    QToolTip::hideText();
}

TEST_F(frmTeamTest, ThePayrollsFollowAMoveOnTheRoster)
{
    LeagueData.FarmEnabled = true;
    LeagueData.FarmSalaryPct = 10;
    Player& moved = PutSkater(7, 5, position::Center, status::Scratch);
    moved.Salary = 500000;
    moved.Contract = 2;
    frmTeam& office = Office();
    ASSERT_EQ(Of(office.lblProPayRoll), "$500,000");
    ASSERT_EQ(Of(office.lblFarmPayRoll), "$0");
    Click(office.CmdRoster);
    CheckRoster(5, false, true, false);
    const Box lacks{48, LastRosterText()};
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(lacks));
    auto& roster = *static_cast<frmRoster*>(TheStage.Find("Roster"));
    bool done = false;
    roster.Change(status::Scratch, status::Farm, 7, position::Center, done);
    ASSERT_TRUE(done);
    EXPECT_EQ(ProPayroll(OpenLeague, Machine, 5), 0);
    EXPECT_EQ(FarmPayroll(OpenLeague, Machine, 5), 50000);
    roster.close();
    Settle();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(lacks));
    EXPECT_EQ(Of(office.lblProPayRoll), "$0");
    EXPECT_EQ(Of(office.lblFarmPayRoll), "$50,000");
}

} // namespace
} // namespace dravik
