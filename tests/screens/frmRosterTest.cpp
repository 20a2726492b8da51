#include "OnRosterScreen.h"

#include "rules/Function.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int DeadlinePassedAndInForce = 3;

class frmRosterTest : public OnRosterScreen {
protected:
    bool Move(int from, int to, int id, int position)
    {
        bool done = true;
        Roster().Change(from, to, id, position, done);
        return done;
    }

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

    // What the stat panel shows from row 1 on.
    std::vector<std::string> PanelRows()
    {
        std::vector<std::string> rows;
        for (int row = 1; row <= 16; ++row)
            if (IsShown(Roster().Stats->lblStat[row]))
                rows.push_back(Of(Roster().Stats->lblStatLabel[row]) + " " + Of(Roster().Stats->lblStat[row]));
        return rows;
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
    EXPECT_FALSE(IsShown(Roster().txtReasons));
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
    ASSERT_EQ(Machine.Boxes().size(), 1U);
    EXPECT_EQ(Machine.Boxes()[0].Kind, 48);
    EXPECT_EQ(Machine.Boxes()[0].Text.substr(0, 35), "Harbour City Gulls Roster Error : \r");
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

TEST_F(frmRosterTest, StatPanelShowsAllRatingsOfASkaterWithHisOverallBehindThem)
{
    Player& player = PutSkater(1, 5, position::Center, status::Pro);
    for (int stat = 1; stat <= 15; ++stat)
        player.Stats[stat] = 40 + stat;
    ClickEntry(2, 0);
    const int overall = CalculateOverall(position::Center, 1);
    EXPECT_THAT(PanelRows(),
                ElementsAre("CK 41", "FG 42", "DI 43", "SK 44", "ST 45", "DU 46", "PH 47", "FO 48", "PA 49", "SC 50",
                            "DF 51", "EX 52", "LD 53", "MO 54", "PO 55", "OV " + std::to_string(overall)));
    EXPECT_EQ(Roster().PlayerOverall, overall);
}

TEST_F(frmRosterTest, StatPanelShowsTheGroupsOfAGoalieWithHisOverallInTheEighthRow)
{
    ShowAllRatings(false);
    Goalie& keeper = PutGoalie(1, 5, status::Pro);
    for (int stat = 1; stat <= 13; ++stat)
        keeper.Stats[stat] = 40 + stat;
    ClickEntry(2, 0);
    const int overall = CalculateOverall(position::Goalie, 1);
    EXPECT_THAT(PanelRows(), ElementsAre("PH 43", "RD 46", "SC 47", "HS 48", "RT 49", "ME 51", "PO 53",
                                         "OV " + std::to_string(overall)));
    EXPECT_EQ(Roster().PlayerOverall, overall);
}

TEST_F(frmRosterTest, TheOverallHasNoRowWhereTheLeagueHidesItButTheScreenKnowsIt)
{
    LeagueData.ShowOverall = false;
    PutSkater(1, 5, position::Center, status::Pro, 66);
    PutGoalie(1, 5, status::Pro, 55);
    ClickEntry(2, 0);
    EXPECT_EQ(PanelRows().size(), 15U);
    EXPECT_EQ(Roster().PlayerOverall, CalculateOverall(position::Center, 1));
    ClickEntry(2, 1);
    EXPECT_EQ(PanelRows().size(), 13U);
    EXPECT_EQ(Roster().PlayerOverall, CalculateOverall(position::Goalie, 1));
}

TEST_F(frmRosterTest, NumbersOfTheStatPanelStandAtTheRight)
{
    for (const QLabel* number : Roster().Stats->lblStat)
        EXPECT_TRUE(number->alignment() & Qt::AlignRight);
}

TEST_F(frmRosterTest, AGoalieNumberOutOfRangeEndsTheStatPanel)
{
    PutSkater(1, 5, position::Center, status::Pro, 66);
    ClickEntry(2, 0);
    SelectedIsGoalie = true;
    for (const int id : {-1, 1001, 10001}) {
        SelectedPlayer = id;
        Roster().ShowStats();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})) << id;
    }
    EXPECT_EQ(Roster().PlayerOverall, CalculateOverall(position::Center, 1));
}

TEST_F(frmRosterTest, ASkaterNumberOutOfRangeIsAFailureOfTheStatPanel)
{
    Roster();
    SelectedPlayer = 10001;
    Roster().ShowStats();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in ShowStats!"}));
}

TEST_F(frmRosterTest, ClickEnablesTheCommandsOfOnePerson)
{
    PutSkater(1, 5, position::Center, status::Pro);
    ClickEntry(2, 0);
    frmRoster& roster = Roster();
    for (const QWidget* enabled : std::initializer_list<QWidget*>{
             roster.cmdTradeAvailable, roster.cmdCaptain, roster.cmdAssistant, roster.cmdRelease, roster.chkProtected,
             roster.chkNoApplyRerate, roster.chkNoTrade})
        EXPECT_TRUE(enabled->isEnabled()) << enabled->objectName().toStdString();
    EXPECT_FALSE(roster.cmdSendToWaiver->isEnabled());
}

TEST_F(frmRosterTest, WaiversAreOpenWhereTheLeagueAllowsThemUntilTheDeadlineHasPassedAndIsInForce)
{
    LeagueData.WaiverAllowed = true;
    PutSkater(1, 5, position::Center, status::Pro);
    for (int both = 0; both <= DeadlinePassedAndInForce; ++both) {
        LeagueData.TradeDeadlinePassed = (both & 1) != 0;
        LeagueData.TradeDeadlineInForce = (both & 2) != 0;
        ClickEntry(2, 0);
        EXPECT_EQ(Roster().cmdSendToWaiver->isEnabled(), both != DeadlinePassedAndInForce) << both;
    }
}

TEST_F(frmRosterTest, FarmPlayersAndGoaliesCannotBeMadeCaptainOrAssistant)
{
    PutSkater(1, 5, position::Center, status::Farm);
    PutSkater(2, 5, position::Center, status::Scratch);
    PutGoalie(1, 5, status::Pro);
    for (const auto& [id, position, may] : {std::tuple{1, 1, false}, std::tuple{2, 1, true}, std::tuple{1, 5, false}}) {
        Choose(id, position);
        EXPECT_EQ(Roster().cmdCaptain->isEnabled(), may) << id << ' ' << position;
        EXPECT_EQ(Roster().cmdAssistant->isEnabled(), may) << id << ' ' << position;
        EXPECT_TRUE(Roster().cmdTradeAvailable->isEnabled()) << id << ' ' << position;
    }
}

TEST_F(frmRosterTest, FlagBoxesAreSetFromTheRecordWithoutCountingAsAnEdit)
{
    Player& player = PutSkater(1, 5, position::Center, status::Pro);
    player.Protected = true;
    player.NoTrade = true;
    player.NoApplyRerate = true;
    Goalie& keeper = PutGoalie(1, 5, status::Pro);
    keeper.NoApplyRerate = true;
    ClickEntry(2, 0);
    EXPECT_TRUE(Roster().chkProtected->isChecked());
    EXPECT_TRUE(Roster().chkNoTrade->isChecked());
    EXPECT_TRUE(Roster().chkNoApplyRerate->isChecked());
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    ClickEntry(2, 1);
    EXPECT_FALSE(Roster().chkProtected->isChecked());
    EXPECT_FALSE(Roster().chkNoTrade->isChecked());
    EXPECT_TRUE(Roster().chkNoApplyRerate->isChecked());
    EXPECT_TRUE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(player.NoTrade);
    EXPECT_EQ(Own().ProtectedCount, 1);
    EXPECT_FALSE(Modified);
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(frmRosterTest, ChangeRefusesAPositionThatIsNone)
{
    PutSkater(1, 5, position::Center, status::Pro);
    for (const int position : {0, 6}) {
        EXPECT_FALSE(Move(2, 1, 1, position));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Unable to extract position information!"}));
    }
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterTest, ChangeTellsASkaterOfInjuryThenSuspensionThenContractThenSalary)
{
    LeagueData.FarmMaxSalary = 999999;
    Player& player = PutSkater(1, 5, position::Center, status::Scratch);
    player.Condition = 94;
    player.Suspension = 3;
    player.Contract = 0;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Injured Player!"}));
    player.Condition = 95;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Suspended Player!"}));
    player.Suspension = 0;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Player without a contract can not be move!"}));
    player.Contract = 1;
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Player Salary is too high to be send in the Farm!"}));
    player.Salary = 999999;
    EXPECT_TRUE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(frmRosterTest, ChangeTellsAGoalieTheSameButCallsASuspendedOnePlayer)
{
    LeagueData.FarmMaxSalary = 999999;
    Goalie& keeper = PutGoalie(1, 5, status::Scratch);
    keeper.Condition = 94;
    keeper.Suspension = 3;
    keeper.Contract = 0;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Injured Goalie!"}));
    keeper.Condition = 95;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Cannot Move an Suspended Player!"}));
    keeper.Suspension = 0;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Goalie without a contract can not be move!"}));
    keeper.Contract = 1;
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Goalie Salary is too high to be send in the Farm!"}));
    keeper.Salary = 999999;
    EXPECT_TRUE(Move(1, 0, 1, 5));
    EXPECT_EQ(Goalies[1].Status, 0);
}

TEST_F(frmRosterTest, ChangeTestsTheSalaryOnTheWayToTheFarmOnlyAndNotAtALimitOfZero)
{
    PutSkater(1, 5, position::Center, status::Scratch).Salary = 9000000;
    LeagueData.FarmMaxSalary = 999999;
    EXPECT_TRUE(Move(1, 2, 1, 1));
    LeagueData.FarmMaxSalary = 0;
    EXPECT_TRUE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmRosterTest, ASkaterWhoNeedsWaiversIsAskedAboutAndPlacedOnThem)
{
    LeagueData.WaiverAllowed = true;
    PutSkater(1, 5, position::Center, status::Scratch);
    Roster();
    Machine.Answer(button::No);
    EXPECT_FALSE(Move(1, 0, 1, 1));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Do you want to send this player to waiver?"}));
    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_EQ(Players[1].Suspension, 0);
    EXPECT_FALSE(Modified);
    Machine.Answer(button::Yes);
    EXPECT_TRUE(Move(1, 0, 1, 1));
    EXPECT_EQ(Players[1].Status, 0);
    EXPECT_EQ(Players[1].Suspension, 99);
}

TEST_F(frmRosterTest, AGoalieWhoNeedsWaiversIsAskedAboutAndGoesDownWithoutThem)
{
    LeagueData.WaiverAllowed = true;
    PutGoalie(1, 5, status::Scratch);
    Roster();
    Machine.Answer(button::No);
    EXPECT_FALSE(Move(1, 0, 1, 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Do you want to send this goalie to waiver?"}));
    EXPECT_EQ(Goalies[1].Status, 1);
    Machine.Answer(button::Yes);
    EXPECT_TRUE(Move(1, 0, 1, 5));
    EXPECT_EQ(Goalies[1].Status, 0);
    EXPECT_EQ(Goalies[1].Suspension, 0);
}

TEST_F(frmRosterTest, ChangeTakesThePersonOffTheLinesAndWritesStatusAndChanges)
{
    const TeamMaker made = CompleteTeam(5);
    const int center = made.Skaters[0];
    const int keeper = made.GoalieIds[0];
    ASSERT_GT(PlayOnLineInteger(5, center, 1), 0);
    ASSERT_EQ(Own().ProLines[1].StartGoalie, keeper);
    EXPECT_TRUE(Move(2, 1, center, 1));
    EXPECT_TRUE(Move(2, 1, keeper, 5));
    EXPECT_EQ(PlayOnLineInteger(5, center, 1), 0);
    EXPECT_EQ(Own().ProLines[1].StartGoalie, 0);
    EXPECT_EQ(Players[center].Status, 1);
    EXPECT_EQ(RosterChanges[center].Status, 1);
    EXPECT_EQ(Goalies[keeper].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[keeper].Status, 1);
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterTest, ChangeKeepsTheCountersAndTheFourthOneOnlyByTheFarm)
{
    PutSkater(1, 5, position::Center, status::Pro);
    Roster();
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 1, 1));
    Move(2, 1, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(0, 1, 0, 1));
    Move(1, 0, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(1, 0, 0, 0));
    Move(0, 1, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(0, 1, 0, 1));
    Move(1, 2, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 1, 1));
    Move(2, 0, 1, 1);
    EXPECT_THAT(Counters(), ElementsAre(1, 0, 0, 0));
    Move(0, 2, 1, 1); // no command does this; the fourth entry would not hear of it
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 1, 0));
}

TEST_F(frmRosterTest, ChangeShowsTheVerdictWithoutThePayrollAndHidesTheDetails)
{
    const TeamMaker made = CompleteTeam(5);
    PutSkater(900, 5, position::Center, status::Scratch);
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    LeagueData.ProDressedSkaters = 19;
    ClickEntry(1, 0);
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_TRUE(Move(1, 2, 900, 1));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "");
    EXPECT_FALSE(IsShown(Roster().Stats->lblStat[1]));
    EXPECT_FALSE(Roster().cmdToPro->isEnabled());
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(Move(2, 1, made.Skaters[0], 1));
    EXPECT_TRUE(Move(2, 1, made.Skaters[1], 2));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Incomplete");
    EXPECT_EQ(Roster().txtReasons->toPlainText(), "Not enough players available in Pro Team! 17 Dressed. 18 Required.");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmRosterTest, ABrokenChangeIsToldUnderItsName)
{
    EXPECT_FALSE(Move(2, 1, 10001, 1));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Change!"}));
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

} // namespace
} // namespace dravik
