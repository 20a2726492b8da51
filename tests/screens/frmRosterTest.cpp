#include "OnRosterScreen.h"

#include "support/LeagueImage.h"
#include "support/Routines.h"

#include <algorithm>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmRosterTest : public OnRosterScreen {
protected:
    // How the screen of a viewer comes and goes.
    class PaperViewer : public Screen {
    public:
        explicit PaperViewer(Stage& stage) : Screen(stage, "frmEditPlayer") {}
        void FormLoad() override {}
        void FormUnload() override { Owner.ViewerClosed(HasChanged); }
        static inline bool HasChanged = false;
    };
    void ProvideViewer(bool hasChanged)
    {
        PaperViewer::HasChanged = hasChanged;
        TheStage.Provide("EditPlayer", [](Stage& stage) { return std::make_unique<PaperViewer>(stage); });
    }
};

TEST_F(frmRosterTest, EveryControlStandsUnderItsName)
{
    for (const char* name :
         {"cmdToFarm", "cmdToPro", "cmdToScratchesFromPro", "cmdToScratchesFromFarm", "cmdTradeAvailable", "cmdCaptain",
          "cmdAssistant", "cmdRelease", "cmdSendToWaiver", "cmdAutoRoster", "cmdAutoRosterPartial", "cmdExit"})
        EXPECT_NE(Roster().findChild<QPushButton*>(name), nullptr) << name;
    for (const char* name : {"chkPosition(1)", "chkPosition(2)", "chkPosition(3)", "chkPosition(4)", "chkPosition(5)",
                             "chkProtected", "chkNoApplyRerate", "chkNoTrade"})
        EXPECT_NE(Roster().findChild<QCheckBox*>(name), nullptr) << name;
    for (const char* name : {"lblTeamName", "lblComplete", "lblProtectedTotal", "lblPlayer(0)", "lblPlayer(1)",
                             "lblPlayer(2)", "lblStat(0)", "lblStat(16)", "lblStatLabel(0)", "lblStatLabel(16)"})
        EXPECT_NE(Roster().findChild<QLabel*>(name), nullptr) << name;
    for (const char* name : {"lstPlayer(0)", "lstPlayer(1)", "lstPlayer(2)"})
        EXPECT_NE(Roster().findChild<QListWidget*>(name), nullptr) << name;
}

TEST_F(frmRosterTest, CaptionsReadAsTheGeneralManagerKnowsThem)
{
    frmRoster& roster = Roster();
    const std::pair<QAbstractButton*, QString> captions[] = {{roster.cmdToFarm, "To Farm -->"},
                                                             {roster.cmdToPro, "<-- To Pro"},
                                                             {roster.cmdToScratchesFromPro, "To Scratch -->"},
                                                             {roster.cmdToScratchesFromFarm, "<-- To Scratch"},
                                                             {roster.cmdTradeAvailable, "Trade Available"},
                                                             {roster.cmdCaptain, "Make Captain"},
                                                             {roster.cmdAssistant, "Make Assistant"},
                                                             {roster.cmdRelease, "Release"},
                                                             {roster.cmdSendToWaiver, "Send To Waiver"},
                                                             {roster.chkProtected, "Protected"},
                                                             {roster.chkNoApplyRerate, "Do Not Apply Rerate"},
                                                             {roster.chkNoTrade, "No Trade"},
                                                             {roster.cmdAutoRoster, "Auto Made Roster"},
                                                             {roster.cmdAutoRosterPartial, "Partial Auto Made Roster"},
                                                             {roster.cmdExit, "Exit"},
                                                             {roster.chkPosition[1], "Center"},
                                                             {roster.chkPosition[2], "Left Wing"},
                                                             {roster.chkPosition[3], "Right Wing"},
                                                             {roster.chkPosition[4], "Defense"},
                                                             {roster.chkPosition[5], "Goalie"}};
    for (const auto& [control, caption] : captions)
        EXPECT_EQ(control->text().remove('&'), caption);
    EXPECT_EQ(roster.Stats->title(), "Stats");
    const QList<QLabel*> labels = roster.findChildren<QLabel*>();
    EXPECT_EQ(std::ranges::count(labels, "Show : ", &QLabel::text), 1);
}

TEST_F(frmRosterTest, ListsAreNamedUntilTheirTotalsStandThere)
{
    const frmRoster& opened = Roster();
    const frmRoster unopened(TheStage);
    const char* captions[] = {"Farm Players", "Scratch Players", "Pro Players"};
    for (int index = 0; index <= 2; ++index) {
        EXPECT_EQ(Of(unopened.lblPlayer[index]), captions[index]);
        EXPECT_EQ(opened.lstPlayer[index]->accessibleName(), captions[index]);
    }
}

TEST_F(frmRosterTest, OpeningShowsTheTeamAndItsVerdictWithoutAWordWhenAllIsWell)
{
    CompleteTeam(5);
    Own().Name = "Harbour City Gulls";
    OpenFrom(MainWithLeague(), "Main");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Roster().windowTitle(), "Dravik Hockey Simulator Client - Harbour City Gulls - Roster");
    EXPECT_EQ(Of(Roster().lblTeamName), "Roster for Harbour City Gulls");
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    EXPECT_TRUE(Roster().lblComplete->IsGood());
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "");
    EXPECT_EQ(Roster().txtReasons->placeholderText(), "Nothing stands against this roster.");
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(frmRosterTest, TheTitleNamesTheProgramAndNotTheFile)
{
    Main();
    WindowTitle = "Dravik Hockey Simulator Client - Winter";
    EXPECT_EQ(Roster().windowTitle(), "Dravik Hockey Simulator Client - Harbour City Gulls - Roster");
}

TEST_F(frmRosterTest, OpeningTellsWhatIsWrongAndItStaysReadableBesideTheVerdict)
{
    CompleteTeam(5);
    LeagueData.RequiredRightWings = 5;
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 19999999;
    OpenFrom(MainWithLeague(), "Main");
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{48, "Team 5 Roster Error : \r\nNot enough Right Wings available in Pro Team! 4 Dressed. "
                            "5 Required.\r\nSome errors will be automatically fixed.\r\n"},
                    Box{48, "Team 5 is over the salary cap by $1.00!"}));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_FALSE(Roster().lblComplete->IsGood());
    EXPECT_EQ(Roster().txtReasons->toPlainText(),
              "Not enough Right Wings available in Pro Team! 4 Dressed. 5 Required.\n"
              "Team 5 is over the salary cap by $1.00!");
    EXPECT_TRUE(IsShown(Roster().txtReasons));
    EXPECT_TRUE(IsShown(Roster().Payroll));
}

// The lists are filled, and the roster repaired silently, before the judge may speak.
TEST_F(frmRosterTest, PeopleWhomTheFirstRebuildRepairedAreNotNamedByTheBoxOfOpening)
{
    const TeamMaker made = CompleteTeam(5);
    Players[made.Skaters[0]].Condition = 50;
    OpenFrom(MainWithLeague(), "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Team 5 Roster Error : \r\nNot enough players available in Pro "
                                                     "Team! 17 Dressed. 18 Required.\r\nSome errors will be "
                                                     "automatically fixed.\r\n"}));
    EXPECT_EQ(Players[made.Skaters[0]].Status, 1);
}

TEST_F(frmRosterTest, APayrollBarStandsThereOnlyWhereThereIsACap)
{
    EXPECT_FALSE(IsShown(Roster().Payroll));
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 71500000;
    PutSkater(1, 5, position::Center, status::Pro);
    Roster().ShowPlayer(false);
    EXPECT_TRUE(IsShown(Roster().Payroll));
    EXPECT_EQ(Roster().findChild<QLabel*>("lblPayroll")->text(), "$1,000,000 pro of $71,500,000");
}

TEST_F(frmRosterTest, ProtectionShowsOnlyInTheOffSeason)
{
    EXPECT_FALSE(IsShown(Roster().chkProtected));
    EXPECT_FALSE(IsShown(Roster().lblProtectedTotal));
    Click(Roster().cmdExit);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, WhatItLacks()}));
    LeagueData.OffSeason = true;
    EXPECT_TRUE(IsShown(Roster().chkProtected));
    EXPECT_TRUE(IsShown(Roster().lblProtectedTotal));
    EXPECT_EQ(Of(Roster().lblProtectedTotal), " Total Protected Players: 0");
}

TEST_F(frmRosterTest, WhatTheLeagueKeepsToItselfStaysHiddenWhateverIsClicked)
{
    LeagueData.OffSeason = true;
    LeagueData.WaiverAllowed = true;
    PutSkater(1, 5, position::Center, status::Scratch);
    ClickEntry(1, 0);
    EXPECT_TRUE(Roster().cmdSendToWaiver->isEnabled());
    for (const QWidget* hidden : std::initializer_list<QWidget*>{Roster().cmdRelease, Roster().cmdSendToWaiver,
                                                                 Roster().chkNoApplyRerate, Roster().chkNoTrade})
        EXPECT_FALSE(IsShown(hidden)) << hidden->objectName().toStdString();
}

TEST_F(frmRosterTest, AutomaticRostersAreClosedWhereTheLeagueForbidsThem)
{
    EXPECT_TRUE(Roster().cmdAutoRoster->isEnabled());
    EXPECT_TRUE(Roster().cmdAutoRosterPartial->isEnabled());
    Click(Roster().cmdExit);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, WhatItLacks()}));
    LeagueData.AutoRosterDisabled = true;
    EXPECT_FALSE(Roster().cmdAutoRoster->isEnabled());
    EXPECT_FALSE(Roster().cmdAutoRosterPartial->isEnabled());
}

// The judge that runs when the screen closes finds the same number out of range.
TEST_F(frmRosterTest, ATeamOutOfRangeBringsTheOpenerBack)
{
    MainWithLeague();
    for (const int team : {0, 101}) {
        OpenFrom(Main(), "Main", team);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{16, "Integrity Check Failed!"}, Box{16, "Integrity Check Failed!"}));
        EXPECT_EQ(RosterScreen(), nullptr);
        EXPECT_TRUE(Main().isVisible());
    }
}

TEST_F(frmRosterTest, ClosingJudgesAndTellsThenShowsTheMainScreen)
{
    Roster();
    Click(Roster().cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, WhatItLacks()}));
    EXPECT_EQ(WhatItLacks().substr(0, 35), "Harbour City Gulls Roster Error : \r");
    EXPECT_EQ(RosterScreen(), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmRosterTest, ClosingShowsTheTeamScreenThatOpenedIt)
{
    CompleteTeam(5);
    frmTeam& office = OpenTeam(5);
    Click(office.CmdRoster);
    EXPECT_FALSE(office.isVisible());
    Own().City = "Port Ellery";
    Click(Roster().cmdExit);
    EXPECT_TRUE(office.isVisible());
    EXPECT_EQ(office.txtCity->text(), "Port Ellery");
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(frmRosterTest, ClosingForAnUnknownCallerIsAnIntegrityFailureAndShowsNothing)
{
    CompleteTeam(5);
    Roster();
    CallerScreen = "Nobody";
    Click(Roster().cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(frmRosterTest, DoubleClickOpensTheViewerAndHidesTheScreen)
{
    ProvideViewer(false);
    PutGoalie(3, 5, status::Pro);
    Roster();
    ViewerReturnMode = 0;
    DoubleClickEntry(2, 0);
    EXPECT_EQ(SelectedPlayer, 3);
    EXPECT_TRUE(SelectedIsGoalie);
    EXPECT_EQ(ViewerReturnMode, 2);
    ASSERT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_TRUE(TheStage.Find("EditPlayer")->isVisible());
    EXPECT_FALSE(Roster().isVisible());
}

TEST_F(frmRosterTest, EnterOnAnEntryOpensTheViewerToo)
{
    ProvideViewer(false);
    PutSkater(3, 5, position::Center, status::Pro);
    ClickEntry(2, 0);
    Press(Roster().lstPlayer[2], Qt::Key_Return);
    EXPECT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_FALSE(Roster().isVisible());
}

TEST_F(frmRosterTest, AViewerThatChangedNothingHasTheStatsShownAnewAndTheSelectionStays)
{
    ProvideViewer(false);
    PutSkater(3, 5, position::Center, status::Pro);
    DoubleClickEntry(2, 0);
    Players[3].Stats[skater::CK] = 77;
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_TRUE(Roster().isVisible());
    EXPECT_EQ(Of(Roster().Stats->lblStat[1]), "77");
    EXPECT_THAT(ChosenRows(2), ElementsAre(0));
}

TEST_F(frmRosterTest, AViewerThatChangedSomethingHasTheListsReadAgain)
{
    ProvideViewer(true);
    PutSkater(3, 5, position::Center, status::Pro);
    DoubleClickEntry(2, 0);
    Players[3].Name = "Ward Tilton";
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_TRUE(Roster().isVisible());
    EXPECT_EQ(EntryTextAt(2, 0), "Ward Tilton");
    EXPECT_THAT(ChosenRows(2), IsEmpty());
}

TEST_F(frmRosterTest, AViewerOpenedByAnotherScreenLeavesTheRosterAlone)
{
    PutSkater(3, 5, position::Center, status::Pro);
    Roster();
    Players[3].Name = "Ward Tilton";
    ViewerReturnMode = 3;
    TheStage.ViewerClosed(true);
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 3");
}

TEST_F(frmRosterTest, ClosingJudgesThePayrollToo)
{
    CompleteTeam(5);
    Roster();
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 19999999;
    Click(Roster().cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Team 5 is over the salary cap by $1.00!"}));
}

TEST_F(frmRosterTest, ABrokenOpeningIsToldUnderItsName)
{
    MainWithLeague();
    FailingBoxes desktop;
    desktop.FailuresLeft = 1;
    UseMachine(desktop);
    OpenFrom(Main(), "Main", 101);
    EXPECT_THAT(desktop.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in FormLoad FrmRoster!"}));
    UseMachine(Machine);
}

// The line that the second judgement broke off behind is no heading, and the last one no closing. It never came to the
// payroll, and what another team was told about its own stays with that team.
TEST_F(frmRosterTest, AJudgementThatBrokeOffShowsEverythingItHadFoundAndNothingElse)
{
    CompleteTeam(5);
    CompleteTeam(6);
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 19999999;
    CheckSalaryCap(6, false);
    ASSERT_EQ(LastCapText(), "Team 6 is over the salary cap by $1.00!\r\n");
    LeagueData.FarmEnabled = true;
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredCenters = 5;
    LeagueData.RequiredLeftWings = 20000; // twice as many fit no count
    OpenFrom(MainWithLeague(), "Main");
    const Box broken{16, "6 - Overflow in CheckRoster!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(broken, broken));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(),
              "Not enough Centers available in Pro Team! 4 Dressed. 5 Required.\n"
              "Not enough Left Wings available in Pro Team! 4 Dressed. 20000 Required.\n"
              "Not enough Centers available in Pro and Farm Team! 8 Dressed. 10 Required.");
}

TEST_F(frmRosterTest, TheListsStayWhereTheyAreWhenReasonsComeAndGo)
{
    CompleteTeam(5);
    const auto topOfLists = [&] {
        Settle();
        return Roster().lstPlayer[2]->mapTo(&Roster(), QPoint()).y();
    };
    const int complete = topOfLists();
    LeagueData.RequiredRightWings = 5;
    Roster().ShowPlayer(false);
    EXPECT_NE(Roster().txtReasons->toPlainText(), "");
    EXPECT_EQ(topOfLists(), complete);
    LeagueData.RequiredRightWings = 3;
    Roster().ShowPlayer(false);
    EXPECT_EQ(topOfLists(), complete);
}

TEST_F(frmRosterTest, EnterOpensTheCurrentOneOfSeveralChosenEntriesAsADoubleClickDoes)
{
    ProvideViewer(false);
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 2, Qt::ShiftModifier);
    Press(Roster().lstPlayer[1], Qt::Key_Return);
    EXPECT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_EQ(SelectedPlayer, 3);
}

TEST_F(frmRosterTest, EnterOpensNobodyWhereTheCurrentEntryIsNotChosenOrThereIsNone)
{
    ProvideViewer(false);
    PutSeven();
    ClickEntry(1, 0);
    ClickEntry(1, 1, Qt::ControlModifier);
    ClickEntry(1, 1, Qt::ControlModifier);
    ASSERT_THAT(ChosenRows(1), ElementsAre(0));
    ASSERT_EQ(Roster().lstPlayer[1]->currentRow(), 1);
    Press(Roster().lstPlayer[1], Qt::Key_Return);
    EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
    ClickEntry(2, 1); // list 1 keeps its first entry chosen and has no current one
    Press(Roster().lstPlayer[1], Qt::Key_Return);
    EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_EQ(SelectedPlayer, 7);
}

TEST_F(frmRosterTest, TheRealViewerThatChangedNothingHasTheStatsShownAnewAndTheListsLeftAlone)
{
    PutSkater(3, 5, position::Center, status::Pro);
    DoubleClickEntry(2, 0);
    ASSERT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_EQ(ViewerReturnMode, 2);
    Players[3].Name = "Ward Tilton";
    Players[3].Stats[skater::CK] = 77;
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_TRUE(Roster().isVisible());
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 3");
    EXPECT_THAT(ChosenRows(2), ElementsAre(0));
    EXPECT_EQ(Of(Roster().Stats->lblStat[1]), "77");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// At the right edge of an entry stands what the eye compares; the name gives way.
TEST_F(frmRosterTest, ALongNameIsCutAndHisPositionAndOverallStay)
{
    PutSkaters(3, status::Pro);
    Players[2].Name = "Perry Pemlow-Crumcombe Anderssen";
    Players[3].Name = "Perry Pemlow-Crumcombe Anderssen";
    Own().Captain = 3;
    Roster().resize(1180, 760);
    Settle();
    PickList* list = Roster().lstPlayer[2];
    list->setAlternatingRowColors(false);
    const QStringList aside = list->item(0)->data(entry::AsideRole).toStringList();
    const int right = list->fontMetrics().horizontalAdvance("WW") * static_cast<int>(aside.size() + 1);
    const auto edgeOf = [&](int row, int width) {
        const QRect area = list->visualItemRect(list->item(row));
        return list->viewport()->grab(QRect(area.right() - width, area.top(), width, area.height())).toImage();
    };
    ASSERT_LT(list->viewport()->width(), right + list->fontMetrics().horizontalAdvance(list->item(1)->text()));
    EXPECT_EQ(edgeOf(1, right), edgeOf(0, right));
    EXPECT_EQ(edgeOf(2, right), edgeOf(0, right));
}

TEST_F(frmRosterTest, OnlyTheWordMinus1IsAnOffSeason)
{
    LeagueData.OffSeason.SetWord(1);
    EXPECT_FALSE(IsShown(Roster().chkProtected));
    EXPECT_FALSE(IsShown(Roster().lblProtectedTotal));
}

TEST_F(frmRosterTest, ARefusedTeamLeavesEveryByteOfTheTables)
{
    CompleteTeam(5);
    PutSkater(900, 0, position::Center, status::Pro).Condition = 50;
    PutSkater(901, 101, position::Center, status::Pro).Condition = 50;
    MainWithLeague();
    const auto tables = [] {
        return std::vector{FiveTables(), ImageOf(LeagueData), ImageOf(Coaches), ImageOf(RosterChanges),
                           ImageOf(RosterChangesGoalie)};
    };
    const auto before = tables();
    for (const int team : {-1, 0, 101}) {
        OpenFrom(Main(), "Main", team);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{16, "Integrity Check Failed!"}, Box{16, "Integrity Check Failed!"}))
            << team;
        EXPECT_EQ(RosterScreen(), nullptr) << team;
        EXPECT_TRUE(tables() == before) << team;
    }
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterTest, TheLastTeamIsATeamLikeAnyOther)
{
    CompleteTeam(100);
    OpenFrom(MainWithLeague(), "Main", 100);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    ASSERT_NE(RosterScreen(), nullptr);
    EXPECT_EQ(Of(Roster().lblTeamName), "Roster for Team 100");
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    EXPECT_EQ(Roster().lstPlayer[2]->count(), 20);
}

} // namespace
} // namespace dravik
