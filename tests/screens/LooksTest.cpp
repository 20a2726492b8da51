// The windows of figures beside the screens: the calendar of the season left, and the graphs.

#include "OnHistory.h"
#include "OnLineScreen.h"
#include "rules/SalaryCap.h"
#include "rules/TeamStrength.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"
#include "support/LeagueImage.h"

#include <QWheelEvent>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr auto Both = Qt::ControlModifier | Qt::ShiftModifier;

class LooksTest : public OnLineScreen {
protected:
    LooksTest()
    {
        PutGames(12);
        LeagueData.ShowOverall = true;
        TeamMaker(6).Dresses(1, position::Center, 70).DressesGoalies(1, 80);
        Teams[6].Name = "Ironport Foxes";
        for (int day = 2; day <= 10; ++day)
            ProDay(day) = ProDay(1);
    }

    template <class Look>
    static Look* Find(Screen& screen)
    {
        return screen.findChild<Look*>(Look::Name);
    }
    static CalendarWindow& Calendar(Screen& screen)
    {
        PressScreenKey(screen, Qt::Key_C, Both);
        Settle();
        EXPECT_NE(Find<CalendarWindow>(screen), nullptr);
        return *Find<CalendarWindow>(screen);
    }
    static GraphsWindow& Graphs(Screen& screen)
    {
        PressScreenKey(screen, Qt::Key_G, Both);
        Settle();
        EXPECT_NE(Find<GraphsWindow>(screen), nullptr);
        return *Find<GraphsWindow>(screen);
    }
    static std::vector<std::string> Row(const FigureTable* table, int row)
    {
        std::vector<std::string> cells;
        for (int column = 0; column < table->columnCount(); ++column)
            cells.push_back(table->TextAt(row, column).toStdString());
        return cells;
    }
    static std::string Of(int figure) { return std::to_string(figure); }
    using OnLineScreen::Of;
    static std::string MoneyOf(long long amount)
    {
        return dravik::Machine().CurrencyNoDecimals(static_cast<double>(amount));
    }
};

TEST_F(LooksTest, TheCalendarTellsTheWholeSeasonLeft)
{
    CalendarWindow& calendar = Calendar(OpenTeam(5));
    ASSERT_TRUE(calendar.isVisible());
    EXPECT_EQ(calendar.windowTitle(), "Harbour City Gulls - Calendar");
    EXPECT_EQ(Of(calendar.lblSeason), "12 games left");
    EXPECT_EQ(calendar.tblSeason->rowCount(), 12);
    const TeamStrength foxes = StrengthOfTeams(OpenLeague)[6];
    EXPECT_THAT(Row(calendar.tblSeason, 0),
                ElementsAre("1", "101", "Home", "Ironport Foxes", Of(*foxes.Skaters), Of(*foxes.Goalie), "", ""));
    EXPECT_THAT(Row(calendar.tblSeason, 10),
                ElementsAre("", "111", "Home", "Ironport Foxes", Of(*foxes.Skaters), Of(*foxes.Goalie), "11", ""));
    EXPECT_EQ(Row(calendar.tblSeason, 1)[2], "Away");
    EXPECT_NE(calendar.StarterOf(10), nullptr);
    EXPECT_EQ(calendar.StarterOf(11), nullptr);
    EXPECT_EQ(calendar.StarterOf(1)->currentData().toInt(), ProDay().StartGoalie);
    EXPECT_EQ(calendar.StarterOf(1)->accessibleName(), "Starts in goal, day 1");
}

TEST_F(LooksTest, AGoalieChosenThereStartsAsAStepThatGoesBack)
{
    frmTeam& office = OpenTeam(5);
    CalendarWindow& calendar = Calendar(office);
    const Lines before = ProDay(3);
    ASSERT_NE(before.StartGoalie, before.BackupGoalie);
    const auto image = AllTables();
    QComboBox* starter = calendar.StarterOf(3);
    starter->setFocus();
    QTest::keyClick(starter, starter->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    Settle();
    EXPECT_EQ(ProDay(3).StartGoalie, before.BackupGoalie);
    EXPECT_EQ(ProDay(3).BackupGoalie, before.StartGoalie);
    EXPECT_EQ(ProDay(2).StartGoalie, before.StartGoalie);
    EXPECT_EQ(UndoWords(office),
              "Undo: Start Goalie " + std::to_string(static_cast<int>(before.BackupGoalie)) + " in goal, day 3");
    EXPECT_TRUE(Modified);
    EXPECT_EQ(starter->currentData().toInt(), before.BackupGoalie);
    Undo(office);
    Settle();
    EXPECT_TRUE(AllTables() == image);
    EXPECT_EQ(starter->currentData().toInt(), before.StartGoalie);
}

TEST_F(LooksTest, TheLinesScreenBehindShowsWhoStarts)
{
    frmLine& line = Line();
    CalendarWindow& calendar = Calendar(line);
    const QString before = StartSlot(line).Label->text();
    QComboBox* starter = calendar.StarterOf(1);
    starter->setFocus();
    QTest::keyClick(starter, starter->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    Settle();
    EXPECT_NE(StartSlot(line).Label->text(), before);
    EXPECT_EQ(BackupSlot(line).Label->text(), before);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
}

TEST_F(LooksTest, TheWheelChangesNoGoalie)
{
    CalendarWindow& calendar = Calendar(OpenTeam(5));
    const auto image = AllTables();
    QComboBox* starter = calendar.StarterOf(1);
    const QPointF spot(5, 5);
    for (const int turn : {120, -120}) {
        QWheelEvent event(spot, starter->mapToGlobal(spot), {}, QPoint(0, turn), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(starter, &event);
        Settle();
    }
    EXPECT_TRUE(AllTables() == image);
}

TEST_F(LooksTest, WhoStandsThereAndMayNotIsToldAllTheSame)
{
    ProDay(2).StartGoalie = 0;
    Goalies[40].Name = "Tor Lindqvist";
    ProDay(4).StartGoalie = 40;
    CalendarWindow& calendar = Calendar(OpenTeam(5));
    EXPECT_EQ(calendar.StarterOf(2)->currentText(), "Nobody");
    EXPECT_EQ(calendar.StarterOf(4)->currentText(), "Tor Lindqvist");
    EXPECT_EQ(ProDay(4).StartGoalie, 40);
}

TEST_F(LooksTest, WithoutACompleteRosterNoGoalieCanBeChosen)
{
    for (const int keeper : Pro.GoalieIds)
        Goalies[keeper].Status = status::Farm;
    CalendarWindow& calendar = Calendar(OpenTeam(5));
    EXPECT_FALSE(calendar.StarterOf(1)->isEnabled());
    EXPECT_EQ(calendar.StarterOf(1)->toolTip(), "With a complete roster alone");
}

TEST_F(LooksTest, AHiddenScheduleHoldsNoGame)
{
    LeagueData.ScheduleBlocked = 1;
    CalendarWindow& calendar = Calendar(OpenTeam(5));
    EXPECT_EQ(Of(calendar.lblHint), "The league does not show its schedule.");
    EXPECT_FALSE(calendar.tblSeason->isVisible());
    EXPECT_EQ(calendar.tblSeason->rowCount(), 0);
}

TEST_F(LooksTest, HiddenOverallsAreNowhere)
{
    LeagueData.ShowOverall = false;
    frmTeam& office = OpenTeam(5);
    CalendarWindow& calendar = Calendar(office);
    for (int column = 0; column < calendar.tblSeason->columnCount(); ++column) {
        const QString caption = calendar.tblSeason->horizontalHeaderItem(column)->text();
        EXPECT_EQ(calendar.tblSeason->isColumnHidden(column), caption == "Skaters" || caption == "Goalie");
    }
    EXPECT_EQ(calendar.tblSeason->TextAt(0, 4), "-");
    for (int entry = 0; entry < calendar.StarterOf(1)->count(); ++entry)
        EXPECT_FALSE(calendar.StarterOf(1)->itemText(entry).contains("  ")); // no figure behind the name
    GraphsWindow& graphs = Graphs(office);
    for (const GraphsWindow::Page* page : {&graphs.Days, &graphs.Ranks}) {
        EXPECT_EQ(Of(page->lblCaption), "The league shows no overalls.");
        EXPECT_TRUE(page->Bars->isHidden());
        EXPECT_TRUE(page->tblFigures->isHidden());
    }
    EXPECT_FALSE(graphs.Ages.Bars->isHidden());
}

TEST_F(LooksTest, ALookGoesWithEscWithItsKeyAndWithItsScreen)
{
    frmTeam& office = OpenTeam(5);
    CalendarWindow& calendar = Calendar(office);
    QTest::keyClick(&calendar, Qt::Key_Escape);
    EXPECT_FALSE(calendar.isVisible());
    Calendar(office);
    EXPECT_TRUE(calendar.isVisible());
    Calendar(office);
    EXPECT_FALSE(calendar.isVisible());
    Click(office.findChild<QPushButton*>("cmdCalendar"));
    EXPECT_TRUE(calendar.isVisible());
    Click(office.findChild<QPushButton*>("cmdGraphs"));
    GraphsWindow* graphs = Find<GraphsWindow>(office);
    ASSERT_NE(graphs, nullptr);
    EXPECT_TRUE(graphs->isVisible());
    Click(office.cmdTicketArena);
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_FALSE(graphs->isVisible());
}

TEST_F(LooksTest, TheMainScreenAsksForThePasswordAndWaits)
{
    Own().Password = "0Cc175b9c0f1b6a831c399e269772661"; // of "a"
    frmMain& main = MainWithLeague();
    CurrentTeam = 0;
    PressScreenKey(main, Qt::Key_C, Both);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "No Team is Selected!"}));
    CurrentTeam = 5;
    Machine.Type("b");
    PressScreenKey(main, Qt::Key_C, Both);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Password is incorrect!"}));
    EXPECT_EQ(Find<CalendarWindow>(main), nullptr);
    Machine.Type("a");
    CalendarWindow& calendar = Calendar(main);
    EXPECT_TRUE(calendar.isVisible());
    EXPECT_TRUE(calendar.isModal());
    EXPECT_EQ(Machine.Questions(), std::vector(2, Question{"Password Required!"}));
}

TEST_F(LooksTest, ThePayrollPageTellsTheRulesOwnFigures)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 60000000;
    for (Player& player : Players)
        player.Contract = 1;
    for (Goalie& keeper : Goalies)
        keeper.Contract = 1;
    Players[Pro.Skaters[0]].Contract = 2;
    GraphsWindow& graphs = Graphs(OpenTeam(5));
    const CapStanding now = StandingAgainstCap(OpenLeague, 5);
    EXPECT_THAT(Row(graphs.Payroll.tblFigures, 0),
                ElementsAre("This season", MoneyOf(now.Total), MoneyOf(60000000), MoneyOf(60000000 - now.Total)));
    EXPECT_EQ(Row(graphs.Payroll.tblFigures, 1)[0], "+1");
    EXPECT_EQ(Row(graphs.Payroll.tblFigures, 1)[1], MoneyOf(Players[Pro.Skaters[0]].Salary));
    ASSERT_TRUE(graphs.Payroll.Bars->Shown().Mark);
    EXPECT_EQ(graphs.Payroll.Bars->Shown().Mark->At, 60000000);
    EXPECT_EQ(graphs.Payroll.Bars->accessibleName(), graphs.Payroll.lblCaption->text());
    LeagueData.SalaryCapMode = 0;
    TheStage.ShowAnew();
    EXPECT_FALSE(graphs.Payroll.Bars->Shown().Mark);
    EXPECT_EQ(Row(graphs.Payroll.tblFigures, 0)[2], "-");
}

TEST_F(LooksTest, EveryBarOfEveryPageStandsInItsTable)
{
    GraphsWindow& graphs = Graphs(OpenTeam(5));
    for (const GraphsWindow::Page* page : {&graphs.Payroll, &graphs.Ages, &graphs.Days, &graphs.Ranks}) {
        const PlotData& data = page->Bars->Shown();
        ASSERT_EQ(data.Categories.size(), page->tblFigures->rowCount());
        EXPECT_FALSE(page->lblCaption->text().isEmpty());
        for (qsizetype row = 0; row < data.Categories.size(); ++row) {
            const auto cells = Row(page->tblFigures, static_cast<int>(row));
            for (const PlotSeries& series : data.Series)
                if (const auto value = series.Values[row]; value) {
                    EXPECT_THAT(cells, ::testing::Contains(data.Worded(*value).toStdString()))
                        << data.Categories[row].toStdString() << series.Name.toStdString();
                }
            EXPECT_THAT(page->Bars->accessibleDescription().toStdString(),
                        HasSubstr(page->Bars->WordsOf(static_cast<int>(row)).toStdString()));
        }
    }
    EXPECT_EQ(graphs.Days.tblFigures->TextAt(0, 1), "Ironport Foxes");
    EXPECT_EQ(graphs.Ranks.tblFigures->TextAt(0, 1), "1 of 1"); // the foxes have one center
}

TEST_F(LooksTest, PagesTurnByKeys)
{
    GraphsWindow& graphs = Graphs(OpenTeam(5));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&graphs));
    for (int page = 1; page <= 3; ++page)
        QTest::keyClick(graphs.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(graphs.tabPages->currentIndex(), 3);
    EXPECT_TRUE(graphs.Ranks.Bars->isVisible());
}

TEST_F(LooksTest, AnEmptyTeamHasItsPagesToo)
{
    TeamMaker(7);
    frmTeam& office = OpenTeam(7);
    GraphsWindow& graphs = Graphs(office);
    EXPECT_EQ(graphs.Payroll.tblFigures->rowCount(), 1);
    EXPECT_EQ(graphs.Ranks.tblFigures->TextAt(0, 1), "-");
    EXPECT_EQ(graphs.Days.tblFigures->TextAt(0, 2), "-");
    CalendarWindow& calendar = Calendar(office);
    EXPECT_EQ(Of(calendar.lblSeason), "0 games left");
}

} // namespace
} // namespace dravik
