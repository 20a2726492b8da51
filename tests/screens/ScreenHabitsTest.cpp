#include "OnMainScreen.h"
#include "OnTeamScreen.h"
#include "screens/platform/CodePage.h"
#include "support/Routines.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What a tooltip shows to the eye.
std::string Seen(const QString& tooltip)
{
    if (!Qt::mightBeRichText(tooltip))
        return tooltip.toStdString();
    QTextDocument document;
    document.setHtml(tooltip);
    return document.toPlainText().replace(QChar(0x00A0), ' ').toStdString();
}

class TeamFinance : public OnTeamScreen {};

TEST_F(TeamFinance, APayrollThatDoesNotFitLeavesTheAccountAlone)
{
    TeamMaker(5).Dresses(2, position::Center);
    Players[1].Salary = 2000000000;
    Players[2].Salary = 2000000000;
    Own().Cash = 1000;
    Own().Division = 5;
    const frmTeam& office = Office();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in UpdateFinance!"}));
    EXPECT_EQ(Of(office.lblFinance), "$1,000");
    for (const QLabel* label :
         {office.lblProPayRoll, office.lblFarmPayRoll, office.lblHGLeft, office.lblGameLeft, office.lblExpensesPerGame,
          office.lblEstimatedSeasonExpense, office.lblAverageAttendance, office.lblAverageIncome,
          office.lblEstimatedRevenue, office.lblEstimatedBankAccount})
        EXPECT_EQ(Of(label), "") << label->objectName().toStdString();
}

TEST_F(TeamFinance, ARevenueThatDoesNotFitLeavesWhatStandsBeforeIt)
{
    Own().SeasonGames = 82;
    Own().GamesPlayed = 2;
    Own().HomeGames = 1;
    Own().TotalIncome = 2000000000;
    Own().TotalAttendance = 17000;
    const frmTeam& office = Office();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in UpdateFinance!"}));
    EXPECT_EQ(Of(office.lblFinance), "$1,000");
    EXPECT_EQ(Of(office.lblProPayRoll), "$0");
    EXPECT_EQ(Of(office.lblFarmPayRoll), "$0");
    EXPECT_EQ(Of(office.lblHGLeft), "40");
    EXPECT_EQ(Of(office.lblGameLeft), "80");
    EXPECT_EQ(Of(office.lblExpensesPerGame), "$0");
    EXPECT_EQ(Of(office.lblEstimatedSeasonExpense), "$0");
    for (const QLabel* label : {office.lblAverageAttendance, office.lblAverageIncome, office.lblEstimatedRevenue,
                                office.lblEstimatedBankAccount})
        EXPECT_EQ(Of(label), "") << label->objectName().toStdString();
}

TEST_F(TeamFinance, AFigureThatIsNotReachedKeepsWhatItShowed)
{
    Own().SeasonGames = 82;
    Own().HomeGames = 1;
    Own().TotalIncome = 500;
    frmTeam& office = Office();
    ASSERT_EQ(Of(office.lblEstimatedRevenue), "$20,000");
    Own().TotalIncome = 2000000000;
    Own().HomeGames = 2;
    office.UpdateFinance();
    EXPECT_EQ(Of(office.lblHGLeft), "39");
    EXPECT_EQ(Of(office.lblEstimatedRevenue), "$20,000");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in UpdateFinance!"}));
}

TEST_F(TeamFinance, HiddenAveragesShowAnAttendanceOfPlainZero)
{
    LeagueData.HideFinanceAverages = true;
    Own().SeasonGames = 82;
    Own().HomeGames = 1;
    Own().TotalAttendance = 17000;
    EXPECT_EQ(Of(Office().lblAverageAttendance), "0");
}

TEST_F(TeamFinance, AFullSeasonWithoutSpectatorsShowsTwoDigits)
{
    Own().SeasonGames = 82;
    Own().HomeGames = 1;
    EXPECT_EQ(Of(Office().lblAverageAttendance), "0.00");
}

class CommaMachine : public ScriptedPlatform {
public:
    std::string Fixed(double value, int decimals) const override
    {
        std::string text = ScriptedPlatform::Fixed(value, decimals);
        text[text.find('.')] = ',';
        return text;
    }
};

TEST_F(TeamFinance, AttendanceAndHalfGamesAreWrittenByTheMachine)
{
    Own().SeasonGames = 81;
    Own().HomeGames = 2;
    Own().TotalAttendance = 34001;
    frmTeam& office = Office();
    CommaMachine commas;
    UseMachine(commas);
    office.UpdateFinance();
    UseMachine(Machine);
    EXPECT_EQ(Of(office.lblAverageAttendance), "17000,50");
    EXPECT_EQ(Of(office.lblHGLeft), "38,5");
}

class TeamOpening : public OnTeamScreen {};

TEST_F(TeamOpening, AFailureInTheMiddleStillClosesTheEightBoxesAndHidesTheEightCommands)
{
    Own().ProCoach = 501;
    const frmTeam& office = Office();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in FormLoad FrmTeam!"}));
    for (const EditBox* box : {office.txtTeamName, office.txtAbbre, office.txtCity, office.txtGm,
                               office.txtFarmTeamName, office.txtFarmAbbre, office.txtProMorale, office.txtFarmMorale})
        EXPECT_FALSE(box->isEnabled()) << box->objectName().toStdString();
    for (const QPushButton* command :
         {office.cmdChangeFinance, office.cmdPayrollBonus, office.cmdPassword, office.cmdChangeCoach,
          office.cmdFarmChangeCoach, office.cmdFirePro, office.cmdFireFarm, office.cmdProspect})
        EXPECT_FALSE(command->isVisible()) << command->objectName().toStdString();
}

TEST_F(TeamOpening, TheSaveHintShowsTheJudgesWordsAsTheyAreWritten)
{
    CompleteTeam(5);
    Own().ProLines[1].StartGoalie = 0;
    const QString tooltip = Office().lblSaveHint->toolTip();
    ASSERT_FALSE(CheckLine(5, false, 1, false));
    const QString words = ToQString(LastLinesText()).replace("\r\n", "\n");
    ASSERT_FALSE(words.isEmpty());
    EXPECT_TRUE(Qt::mightBeRichText(tooltip));
    EXPECT_EQ(QString::fromStdString(Seen(tooltip)).trimmed(), words.trimmed());
}

class EntryHabits : public OnMainScreen {
protected:
    EntryList& ListWithTwo()
    {
        PutTeam(3, 1);
        PutTeam(4, 1);
        MainWithLeague();
        return *Main().lstDivision[1];
    }

    void Touch(EntryList& list, int row, MouseAction action, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
    {
        action(list.viewport(), button, modifiers, list.visualItemRect(list.item(row)).center(), -1);
        Settle();
    }
};

TEST_F(EntryHabits, TheChosenEntryStaysChosenUnderControlAndClick)
{
    EntryList& list = ListWithTwo();
    ClickEntry(1, 1);
    for (int i = 0; i < 2; ++i) {
        Touch(list, 1, &QTest::mouseClick, Qt::LeftButton, Qt::ControlModifier);
        EXPECT_EQ(list.Chosen(), list.item(1));
        EXPECT_EQ(CurrentTeam, 4);
    }
}

TEST_F(EntryHabits, TheChosenEntryStaysChosenUnderControlAndSpace)
{
    EntryList& list = ListWithTwo();
    ClickEntry(1, 1);
    for (const auto modifiers : {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::NoModifier)}) {
        Press(&list, Qt::Key_Space, modifiers);
        EXPECT_EQ(list.Chosen(), list.item(1));
    }
}

TEST_F(EntryHabits, ControlAndClickChoosesAnotherEntry)
{
    EntryList& list = ListWithTwo();
    ClickEntry(1, 0);
    Touch(list, 1, &QTest::mouseClick, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(list.selectedItems(), QList<QListWidgetItem*>{list.item(1)});
    EXPECT_EQ(CurrentTeam, 4);
}

TEST_F(EntryHabits, AListOfManyChoicesStillTogglesThem)
{
    EntryList& list = ListWithTwo();
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    ClickEntry(1, 0);
    Touch(list, 1, &QTest::mouseClick, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(list.selectedItems().size(), 2);
    Touch(list, 1, &QTest::mouseClick, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(list.selectedItems(), QList<QListWidgetItem*>{list.item(0)});
}

TEST_F(EntryHabits, OnlyTheLeftButtonOpensByDoubleClick)
{
    EntryList& list = ListWithTwo();
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        Touch(list, 1, &QTest::mouseClick, button, Qt::NoModifier);
        Touch(list, 1, &QTest::mouseDClick, button, Qt::NoModifier);
        Touch(list, 1, &QTest::mouseRelease, button, Qt::NoModifier);
        EXPECT_EQ(TeamScreen(), nullptr);
    }
    DoubleClickEntry(1, 1);
    EXPECT_NE(TeamScreen(), nullptr);
}

TEST_F(EntryHabits, ATooltipShowsATagAsItIsWritten)
{
    const std::string name = "The <b>Bold</b> & Brave Switchmen of Wexcombe";
    EntryList list;
    list.Add(QString::fromStdString(name), 5);
    list.resize(80, 100);
    list.show();
    Settle();
    const QPoint point = list.visualItemRect(list.item(0)).center();
    QHelpEvent help(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
    QApplication::sendEvent(list.viewport(), &help);
    EXPECT_EQ(Seen(QToolTip::text()), name);
    QToolTip::hideText();
}

// A screen that fails wherever it is told to.
class FailingScreen : public Screen {
public:
    explicit FailingScreen(Stage& stage) : Screen(stage, "frmFailing") {}

    void FormLoad() override
    {
        setWindowTitle("changed");
        if (Fails == "load")
            Fail(failure::Overflow);
        if (Fails == "load and unload") {
            Unload();
            Fail(failure::Overflow);
        }
    }
    void ReloadForm() override { FailIf("reload"); }
    void FormActivate() override { FailIf("activate"); }
    void FormUnload() override { FailIf("unload"); }

    static inline std::string Fails;

private:
    static void FailIf(const std::string& when)
    {
        if (Fails == when)
            Fail(failure::Overflow);
    }
};

class FailingScreens : public OnStage {
protected:
    FailingScreens()
    {
        FailingScreen::Fails = "";
        for (const char* name : {"Draft", "Team", "Roster"})
            TheStage.Provide(name, [](Stage& stage) { return std::make_unique<FailingScreen>(stage); });
    }

    void Open(const std::string& fails)
    {
        MainWithLeague();
        FailingScreen::Fails = fails;
        TheStage.Open("Draft", Main());
        Settle();
    }

    // Opens a screen in front of another failing one and closes it again.
    void ReturnTo(const std::string& fails)
    {
        TheStage.Open("Team", MainWithLeague());
        CallerScreen = "Team";
        TheStage.Open("Roster", *TheStage.Find("Team"));
        FailingScreen::Fails = fails;
        EXPECT_NO_THROW(TheStage.Find("Roster")->close());
        Settle();
    }
};

TEST_F(FailingScreens, AScreenWhoseLoadingFailsIsToldAndShownAsFarAsItCame)
{
    Open("load");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in Form_Load!"}));
    Screen* screen = TheStage.Find("Draft");
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(screen->windowTitle(), "changed");
    EXPECT_FALSE(Main().isVisible());
    EXPECT_FALSE(TheStage.IsLoading(*screen));
    screen->Unload(); // nothing loads any more, so it closes at once
    Settle();
    EXPECT_EQ(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(FailingScreens, AScreenThatWantedToCloseBeforeItFailedIsClosed)
{
    Open("load and unload");
    EXPECT_EQ(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in Form_Load!"}));
}

TEST_F(FailingScreens, TheOpenerHidesEvenWhenTheScreenFailsInFront)
{
    Open("activate");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in Form_Activate!"}));
    EXPECT_TRUE(TheStage.Find("Draft")->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(FailingScreens, AScreenThatFailsWhenItIsFilledAnewComesBackAllTheSame)
{
    ReturnTo("reload");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in Form_Load!"}));
    EXPECT_TRUE(TheStage.Find("Team")->isVisible());
    EXPECT_EQ(TheStage.Find("Roster"), nullptr);
}

TEST_F(FailingScreens, AScreenThatFailsWhenItComesBackStaysInFront)
{
    ReturnTo("activate");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in Form_Activate!"}));
    EXPECT_TRUE(TheStage.Find("Team")->isVisible());
    EXPECT_EQ(TheStage.Find("Roster"), nullptr);
}

// A machine on which nothing can even be told.
class SilentMachine : public ScriptedPlatform {
public:
    int MessageBox(const std::string& /*text*/, int /*kind*/, const std::string& /*title*/) override
    {
        Fail(failure::OutOfMemory);
    }
};

TEST_F(FailingScreens, AFailureThatCannotEvenBeToldLeavesNoEvent)
{
    SilentMachine silent;
    MainWithLeague();
    UseMachine(silent);
    for (const char* fails : {"load", "activate", "unload"}) {
        FailingScreen::Fails = fails;
        EXPECT_NO_THROW(TheStage.Open("Draft", Main())) << fails;
        EXPECT_FALSE(Main().isVisible()) << fails;
        EXPECT_NO_THROW(TheStage.Find("Draft")->close()) << fails;
        Settle();
        EXPECT_EQ(TheStage.Find("Draft"), nullptr) << fails;
        EXPECT_TRUE(Main().isVisible()) << fails;
    }
    CallerScreen = "nobody"; // the way back fails as well
    TheStage.Open("Roster", Main());
    EXPECT_NO_THROW(TheStage.Find("Roster")->close());
    UseMachine(Machine);
}

class MainWindowSize : public OnMainScreen {};

TEST_F(MainWindowSize, TeamsPlacedAnewLeaveTheSizeThatTheUserGave)
{
    MainWithLeague();
    const QSize own(1300, 700);
    Main().resize(own);
    TheStage.PlaceTeam();
    EXPECT_EQ(Main().size(), own);
    LeagueData.DivisionCount = 4;
    TheStage.PlaceTeam();
    EXPECT_NE(Main().size(), own);
}

TEST_F(MainWindowSize, AMaximisedOrFullScreenWindowKeepsItsSize)
{
    for (void (QWidget::*show)() : {&QWidget::showMaximized, &QWidget::showFullScreen}) {
        LeagueData.DivisionCount = 6;
        MainWithLeague();
        (Main().*show)();
        Settle();
        const QSize before = Main().size();
        LeagueData.DivisionCount = 4;
        TheStage.PlaceTeam();
        Settle();
        EXPECT_EQ(Main().size(), before);
        Main().showNormal();
        Settle();
    }
}

} // namespace
} // namespace dravik
