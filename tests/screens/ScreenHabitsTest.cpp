#include "OnMainScreen.h"
#include "OnTeamScreen.h"

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
    std::string Fixed(double value, int decimals) override
    {
        std::string text = ScriptedPlatform::Fixed(value, decimals);
        text[text.find('.')] = ',';
        return text;
    }
};

TEST_F(TeamFinance, TheAttendanceIsWrittenByTheMachineAndHomeGamesAreNot)
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
    EXPECT_EQ(Of(office.lblHGLeft), "38.5");
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

TEST_F(TeamOpening, TheSaveHintShowsATagAsItIsWritten)
{
    CompleteTeam(5);
    Own().ProLines[1].StartGoalie = 0;
    const frmTeam& office = Office();
    const std::string seen = Seen(office.lblSaveHint->toolTip());
    std::string words = LastLinesText();
    EXPECT_TRUE(CheckLineFarm(5, false, 1, false));
    EXPECT_FALSE(words.empty());
    words.erase(std::remove(words.begin(), words.end(), '\r'), words.end());
    EXPECT_EQ(seen, words);
    EXPECT_TRUE(Qt::mightBeRichText(office.lblSaveHint->toolTip()));
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

TEST_F(EntryHabits, AClickBesideTheEntriesLeavesTheChoice)
{
    EntryList& list = ListWithTwo();
    ClickEntry(1, 0);
    const int below = list.visualItemRect(list.item(1)).bottom() + 20;
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, below));
    EXPECT_EQ(list.Chosen(), list.item(0));
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

} // namespace
} // namespace dravik
