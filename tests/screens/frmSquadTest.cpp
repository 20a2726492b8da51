#include "screens/squad/frmSquad.h"
#include "AnswerDialog.h"
#include "OnEveryScreen.h"
#include "OnHistory.h"
#include "PaintedContrast.h"
#include "screens/lines/frmLine.h"
#include "screens/market/frmDraft.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/panels/KeySheet.h"
#include "screens/panels/KeyTable.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"

#include <cstring>
#include <fstream>
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QShortcut>
#include <QTextDocument>
#include <QToolTip>
#include <set>
#include <sstream>

namespace dravik {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// The squad table on the sample league, with keys and clicks.
// Counts how often a window comes in front of the others; a platform without a window system does not show it.
class Raises : public QObject {
public:
    explicit Raises(QWidget& window) { window.installEventFilter(this); }
    [[nodiscard]] int Count() const { return count; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return false;
    }

private:
    int count = 0;
};

class frmSquadTest : public OnEveryScreen {
protected:
    frmSquadTest()
    {
        PlayerStatCount = RatingsShownBy(LeagueData).Skater;
        GoalieStatCount = RatingsShownBy(LeagueData).Goalie;
    }
    ~frmSquadTest() override { Machine.ForgetBoxes("what the screens in front tell is not asked here"); }

    // A screen of the own team, opened from the main one.
    Screen& Front(const char* name)
    {
        MainWithLeague();
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        TheStage.Open(name, Main());
        Settle();
        return *TheStage.Find(name);
    }
    frmSquad& SquadOver(Screen& screen)
    {
        PressScreenKey(screen, Qt::Key_T);
        EXPECT_NE(TheStage.Squad(), nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(TheStage.Squad()));
        Settle();
        return *TheStage.Squad();
    }
    static SquadModel& People(const frmSquad& squad) { return squad.Table().People(); }
    static void ClickHeading(frmSquad& squad, const char* column, Qt::KeyboardModifiers modifiers = {})
    {
        QHeaderView* heading = squad.Table().horizontalHeader();
        const int section = People(squad).ColumnOf(column);
        ASSERT_GE(section, 0) << column;
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, modifiers,
                          {heading->sectionViewportPosition(section) + 10, heading->height() / 2});
        Settle();
    }
    static void Type(frmSquad& squad, const char* letters)
    {
        QTest::keyClicks(squad.txtName, letters);
        Settle();
    }
    // Makes somebody the current one.
    static void GoTo(frmSquad& squad, SquadPerson who)
    {
        const int row = People(squad).RowOf(who);
        ASSERT_GE(row, 0);
        squad.Table().setCurrentIndex(People(squad).index(row, 0));
        squad.Table().setFocus();
    }
    static int FirstOf(int team, int status)
    {
        for (int slot = 1; slot <= PlayerTable::last; ++slot)
            if (Players[slot].InUse && Players[slot].Team == team && Players[slot].Status == status)
                return slot;
        return 0;
    }
};

TEST_F(frmSquadTest, CtrlTShowsItOverEveryScreenAndGoesBackFromIt)
{
    int times = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (name.find(',') != std::string::npos || name == "About")
            return;
        frmSquad& squad = SquadOver(screen);
        EXPECT_TRUE(squad.isVisible()) << name;
        EXPECT_TRUE(squad.txtName->hasFocus()) << name;
        EXPECT_TRUE(screen.isVisible()) << name;
        QTest::keyClick(squad.txtName, Qt::Key_T, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen)) << name;
        EXPECT_TRUE(squad.isVisible()) << name;
        ++times;
    });
    EXPECT_EQ(times, 9);
}

TEST_F(frmSquadTest, TheAboutScreenGoesBeforeItComes)
{
    MainWithLeague();
    TheStage.Open("About", Main());
    Settle();
    PressScreenKey(*TheStage.Find("About"), Qt::Key_T);
    Settle();
    EXPECT_EQ(TheStage.Find("About"), nullptr);
    EXPECT_TRUE(TheStage.Squad()->isVisible());
}

TEST_F(frmSquadTest, LettersFindNamesAndEscTakesThemBackBeforeItCloses)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    const int all = People(squad).rowCount();
    Type(squad, "aub");
    EXPECT_GT(People(squad).rowCount(), 0);
    EXPECT_LT(People(squad).rowCount(), all);
    EXPECT_EQ(squad.lblFound->text(), QString("%1 of %2").arg(People(squad).rowCount()).arg(QLocale().toString(all)));
    Press(squad.txtName, Qt::Key_Down);
    EXPECT_TRUE(squad.Table().hasFocus());
    QTest::keyClick(&squad.Table(), 'r'); // letters typed in the table go on in the box
    EXPECT_EQ(squad.txtName->text(), "aubr");
    EXPECT_TRUE(squad.txtName->hasFocus());
    Press(squad.txtName, Qt::Key_Escape);
    EXPECT_EQ(squad.txtName->text(), "");
    EXPECT_EQ(People(squad).rowCount(), all);
    EXPECT_TRUE(squad.isVisible());
    Press(squad.txtName, Qt::Key_Escape);
    EXPECT_FALSE(squad.isVisible());
}

TEST_F(frmSquadTest, WhoIsCurrentStaysSoAndInSight)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    Type(squad, "aub");
    Press(squad.txtName, Qt::Key_Down);
    const auto who = squad.Table().Current();
    const auto isInSight = [&squad] {
        return squad.Table().viewport()->rect().contains(
            squad.Table().visualRect(squad.Table().currentIndex()).center());
    };
    squad.txtName->clear();
    Settle();
    EXPECT_EQ(squad.Table().Current(), who);
    EXPECT_TRUE(isInSight());
    ClickHeading(squad, "Salary");
    EXPECT_EQ(squad.Table().Current(), who);
    EXPECT_TRUE(isInSight());
    Click(squad.cmdPin); // the table becomes lower
    EXPECT_TRUE(isInSight());
}

TEST_F(frmSquadTest, APressOnAHeadingSortsAndWithShiftAsTheSecondKey)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    ClickHeading(squad, "Age");
    ClickHeading(squad, "Overall", Qt::ShiftModifier);
    EXPECT_THAT(People(squad).Keys(), ::testing::ElementsAre(SquadKey{"Age", false}, SquadKey{"Overall", true}));
    ClickHeading(squad, "Age");
    EXPECT_THAT(People(squad).Keys(), ::testing::ElementsAre(SquadKey{"Age", true}));
    GoTo(squad, People(squad).PersonAt(3));
    squad.Table().setCurrentIndex(People(squad).index(3, People(squad).ColumnOf("Team")));
    Press(&squad.Table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(People(squad).Keys(), ::testing::ElementsAre(SquadKey{"Team", false}));
    squad.Table().setCurrentIndex(People(squad).index(3, People(squad).ColumnOf("Age")));
    Press(&squad.Table(), Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_THAT(People(squad).Keys(), ::testing::ElementsAre(SquadKey{"Team", false}, SquadKey{"Age", true}));
}

TEST_F(frmSquadTest, ControlsFilterAndShowAllLiftsThem)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    const int all = People(squad).rowCount();
    squad.cboTeam->setFocus();
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(OwnTeam));
    EXPECT_EQ(squad.Filter().Team, OwnTeam);
    Click(squad.chkPosition[1]);
    EXPECT_FALSE(squad.Filter().Positions[1]);
    squad.spnAgeFrom->setFocus();
    squad.spnAgeFrom->selectAll();
    QTest::keyClicks(squad.spnAgeFrom, "21");
    EXPECT_EQ(squad.Filter().AgeFrom, std::nullopt); // not before it is whole
    Press(squad.spnAgeFrom, Qt::Key_Return);
    EXPECT_EQ(squad.Filter().AgeFrom, 21);
    Press(squad.spnOverall, Qt::Key_Up);
    EXPECT_EQ(squad.Filter().OverallFrom, 1);
    Press(squad.spnContract, Qt::Key_Up);
    EXPECT_EQ(squad.Filter().ContractTo, 0);
    squad.chkMayBeAsked->setFocus();
    Press(squad.chkMayBeAsked, Qt::Key_Space);
    EXPECT_TRUE(squad.Filter().MayBeAsked);
    EXPECT_LT(People(squad).rowCount(), all);
    Click(squad.cmdShowAll);
    EXPECT_EQ(squad.Filter(), SquadFilter());
    EXPECT_EQ(People(squad).rowCount(), all);
}

TEST_F(frmSquadTest, TheTeamOfTheFilterStandsWholeInItsTooltip)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(OwnTeam));
    const QPoint at = squad.cboTeam->rect().center();
    QHelpEvent help(QEvent::ToolTip, at, squad.cboTeam->mapToGlobal(at));
    QApplication::sendEvent(squad.cboTeam, &help);
    EXPECT_EQ(QToolTip::text(), Qt::convertFromPlainText(squad.cboTeam->currentText()));
    QToolTip::hideText();
}

TEST_F(frmSquadTest, WordsStandOffTheNumbersBeforeThemAndBelowTheirHeading)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    SquadTable& table = squad.Table();
    table.setCurrentIndex({});
    const int column = People(squad).ColumnOf("Name");
    const auto firstInk = [](const QImage& picture) {
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 0; y < picture.height(); ++y)
                if (qGray(picture.pixel(x, y)) < 120)
                    return x;
        return -1;
    };
    const QRect cell = table.visualRect(People(squad).index(2, column)); // the first one is chosen
    const int ofCell = firstInk(table.viewport()->grab(cell).toImage());
    const QHeaderView* heading = table.horizontalHeader();
    const QRect head(heading->sectionViewportPosition(column), 2, cell.width() - 3, heading->height() - 5);
    const int ofHead = firstInk(heading->viewport()->grab(head).toImage());
    EXPECT_GE(ofCell, 10);
    EXPECT_NEAR(ofHead, ofCell, 2);
}

TEST_F(frmSquadTest, TablesHaveTabsOfTheirOwnAndTheKeysTurnThem)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    EXPECT_EQ(squad.tabKind->tabText(1), QString("Goalies %1").arg(CountOf(OpenLeague, SquadKind::Goalies)));
    Press(squad.txtName, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(People(squad).Kind(), SquadKind::Goalies);
    EXPECT_TRUE(squad.Table().isVisible());
    EXPECT_FALSE(squad.chkPosition[0]->isEnabled());
    Type(squad, "a");
    const int found = People(squad).rowCount();
    Press(squad.txtName, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(People(squad).Kind(), SquadKind::Prospects);
    EXPECT_LT(People(squad).rowCount(), People(squad).People()); // what was typed goes along
    EXPECT_FALSE(squad.cmdShowPlayer->isEnabled());
    Press(squad.txtName, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(People(squad).Kind(), SquadKind::Goalies);
    EXPECT_EQ(People(squad).rowCount(), found);
}

TEST_F(frmSquadTest, ColumnsAreHiddenMovedAndRemembered)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    emit squad.mnuColumns->aboutToShow();
    auto* country = squad.mnuColumns->findChild<QAction*>("mnuColumn(Country)");
    auto* age = squad.mnuColumns->findChild<QAction*>("mnuColumn(Age)");
    ASSERT_NE(country, nullptr);
    EXPECT_FALSE(country->isChecked());
    country->trigger();
    age->trigger();
    const auto keys = [](const frmSquad& shown) {
        std::vector<std::string> names;
        for (const int column : shown.Table().ShownColumns())
            names.emplace_back(People(shown).Columns()[static_cast<std::size_t>(column)].Key);
        return names;
    };
    EXPECT_THAT(keys(squad), ::testing::Contains("Country"));
    EXPECT_THAT(keys(squad), Not(::testing::Contains("Age")));
    squad.Table().setCurrentIndex(People(squad).index(0, People(squad).ColumnOf("Team")));
    squad.Table().setFocus();
    Press(&squad.Table(), Qt::Key_Left, Qt::AltModifier);
    const std::vector<std::string> arranged = keys(squad);
    EXPECT_EQ(arranged.front(), "Team");
    squad.Table().setColumnWidth(People(squad).ColumnOf("Name"), 333);
    squad.close();
    EXPECT_THAT(Machine.Settings["Screens/SquadSkaters"], HasSubstr("Name=333"));

    const std::string kept = Machine.Settings["Screens/SquadSkaters"];
    frmSquad& again = SquadOver(Main());
    EXPECT_EQ(keys(again), arranged);
    EXPECT_EQ(again.Table().columnWidth(People(again).ColumnOf("Name")), 333);
    // A league that shows less forgets nothing.
    LeagueData.ShowOverall = false;
    Main().PlaceTeam();
    EXPECT_THAT(keys(again), Not(::testing::Contains("Overall")));
    LeagueData.ShowOverall = true;
    Main().PlaceTeam();
    EXPECT_EQ(keys(again), arranged);
    emit again.mnuColumns->aboutToShow();
    again.mnuColumns->findChild<QAction*>("mnuColumnsAtFirst")->trigger();
    EXPECT_EQ(keys(again).front(), "Name");
    EXPECT_THAT(keys(again), ::testing::Contains("Age"));
}

TEST_F(frmSquadTest, WhatItIsSortedByAndTheFiltersAreRemembered)
{
    {
        frmSquad& squad = SquadOver(MainWithLeague());
        ClickHeading(squad, "Age");
        ClickHeading(squad, "Overall", Qt::ShiftModifier);
        squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(OwnTeam));
        Click(squad.chkPosition[1]);
        Press(squad.spnOverall, Qt::Key_Up);
        squad.chkMayBeAsked->setFocus();
        Press(squad.chkMayBeAsked, Qt::Key_Space);
        squad.close();
        EXPECT_EQ(Machine.Settings["Screens/SquadSkatersSort"], "Age Overall-");
        EXPECT_EQ(Machine.Settings["Screens/SquadGoaliesSort"], ""); // as at first, whatever the league shows
        EXPECT_EQ(Machine.Settings["Screens/SquadTeam"], "Harbour City Gulls");
    }
    frmSquad again(TheStage);
    again.Open({});
    EXPECT_THAT(People(again).Keys(), ::testing::ElementsAre(SquadKey{"Age", false}, SquadKey{"Overall", true}));
    SquadFilter wanted;
    wanted.Team = OwnTeam;
    wanted.Positions[1] = false;
    wanted.OverallFrom = 1;
    wanted.MayBeAsked = true;
    EXPECT_EQ(again.Filter(), wanted);
    Click(again.cmdShowAll);
    EXPECT_EQ(again.Filter(), SquadFilter());
    again.close();

    // A team is known by its name, and one that this league lacks asks for nothing.
    Machine.Settings["Screens/SquadTeam"] = "Nobody's Team";
    Machine.Settings["Screens/SquadFilters"] = "AgeFrom=x Positions=0 Overall=70 Something=5 Positions";
    frmSquad other(TheStage);
    other.Open({});
    EXPECT_EQ(other.Filter().Team, std::nullopt);
    EXPECT_EQ(other.Filter().OverallFrom, 70);
    EXPECT_EQ(other.Filter().AgeFrom, std::nullopt);
    EXPECT_FALSE(other.Filter().Positions[0]);
    EXPECT_TRUE(other.Filter().Positions[1]);
}

TEST_F(frmSquadTest, DockedItStandsBesideTheScreenInFrontOrSaysWhyNot)
{
    Screen& front = Front("Roster");
    frmSquad& squad = SquadOver(front);
    const QRect before = squad.geometry();
    Click(squad.chkDock);
    EXPECT_EQ(Machine.Settings["Screens/SquadDocked"], "1");
    EXPECT_EQ(squad.lblTold->text(), "The display has no room for it beside this screen.");
    EXPECT_EQ(squad.geometry(), before);
    EXPECT_LE(squad.minimumSizeHint().width(), 860); // beside a screen of 1040 on a display of 1920
    squad.chkDock->setChecked(false);
    squad.chkDock->setChecked(true);
    squad.resize(860, 700);
    EXPECT_EQ(squad.width(), 860); // at once
    EXPECT_LE(squad.chkDock->geometry().right(), 860);
    Click(squad.chkDock);
    EXPECT_EQ(Machine.Settings["Screens/SquadDocked"], "0");
}

TEST_F(frmSquadTest, SettingsThatCannotBeWrittenStopNothing)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    Machine.SaveSettingFailure = 75;
    squad.close();
    EXPECT_FALSE(squad.isVisible());
    EXPECT_TRUE(SquadOver(Main()).isVisible());
}

TEST_F(frmSquadTest, CopiesTheChosenRowsPartedByTabs)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    ClickHeading(squad, "Name");
    squad.Table().selectRow(1);
    squad.Table().setFocus();
    Press(&squad.Table(), Qt::Key_Down, Qt::ShiftModifier);
    Press(&squad.Table(), Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 4); // heading, two rows, the end
    EXPECT_EQ(lines[0].section('\t', 0, 2), "Name\tTeam\tPos");
    for (const int row : {1, 2}) {
        const QStringList cells = lines[row].split('\t');
        const std::vector<int> columns = squad.Table().ShownColumns();
        ASSERT_EQ(cells.size(), static_cast<qsizetype>(columns.size()));
        for (qsizetype at = 0; at < cells.size(); ++at)
            EXPECT_EQ(cells[at], People(squad).index(row, columns[static_cast<std::size_t>(at)]).data().toString());
    }
}

TEST_F(frmSquadTest, SavesTheRowsThatAreShownAsTheRatingsAreExported)
{
    const std::string path = Machine.InFolder("Gulls.csv");
    frmSquad& squad = SquadOver(MainWithLeague());
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(OwnTeam));
    ClickHeading(squad, "Name");
    OnDialog<QFileDialog>([&path](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
        QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    Press(squad.txtName, Qt::Key_S, Qt::ControlModifier);
    std::ifstream file(path, std::ios::binary);
    std::stringstream read;
    read << file.rdbuf();
    const QStringList lines = ToQString(read.str()).split("\r\n");
    ASSERT_EQ(lines.size(), People(squad).rowCount() + 2);
    EXPECT_EQ(lines[0].section(',', 0, 3), "Name,Team,Pos,Age");
    const int salary = static_cast<int>(lines[0].split(',').indexOf("Salary"));
    ASSERT_GT(salary, 0);
    for (int row = 0; row < People(squad).rowCount(); ++row) {
        const int slot = People(squad).PersonAt(row).Slot;
        const QStringList cells = lines[row + 1].split(',');
        EXPECT_EQ(cells[0], ToQString(Players[slot].Name.Trimmed()));
        EXPECT_EQ(cells[salary].toLongLong(), static_cast<long long>(Players[slot].Salary));
    }
    EXPECT_THAT(squad.lblTold->text().toStdString(), HasSubstr("rows saved to"));
}

TEST_F(frmSquadTest, ACancelledSaveLeavesNothingAndAFailedOneIsTold)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    OnDialog<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    Click(squad.cmdSaveCsv);
    EXPECT_THAT(squad.lblTold->text().toStdString(), Not(HasSubstr("saved")));
    const QString folder = QString::fromStdString(Machine.InFolder("none.csv"));
    OnDialog<QFileDialog>([&folder](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(folder);
        QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    Machine.FailFileOperation(Machine.FileOperations().size() + 1, 70);
    Click(squad.cmdSaveCsv);
    EXPECT_THAT(Machine.TakeBoxes(),
                ::testing::ElementsAre(Box{box::Critical, "70 - Permission denied in cmdSaveCsv!"}));
}

TEST_F(frmSquadTest, EnterPicksOnTheRosterAsAPressOnHisEntryDoes)
{
    auto& roster = static_cast<frmRoster&>(Front("Roster"));
    frmSquad& squad = SquadOver(roster);
    EXPECT_EQ(squad.cmdPick->text(), "P&ick in the List");
    const int slot = FirstOf(OwnTeam, status::Scratch);
    GoTo(squad, {SquadKind::Skaters, slot});
    EXPECT_TRUE(squad.cmdPick->isEnabled());
    const Raises raised(roster);
    Press(&squad.Table(), Qt::Key_Return);
    EXPECT_GT(raised.Count(), 0);
    EXPECT_EQ(SelectedPlayer, slot);
    const PickList* list = roster.lstPlayer[status::Scratch];
    ASSERT_NE(list->Chosen(), nullptr);
    EXPECT_EQ(EntryPerson(*NumberOf(list->Chosen())).Slot, slot);
    EXPECT_EQ(roster.Stats->lblStat[0]->text(), ToQString(PositionName[Players[slot].Position]));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&roster));
}

TEST_F(frmSquadTest, OnTheLinesSomebodyIsPutIntoTheSlotThatHasTheFocusAsOneStep)
{
    auto& line = static_cast<frmLine&>(Front("Line"));
    SlotLabel* slot = line.TabLine->SlotAt(LineField::NormalForward, 1, 1).Label;
    slot->setFocus();
    frmSquad& squad = SquadOver(line);
    EXPECT_EQ(squad.cmdPick->text(), "Put on the L&ines");
    int center = 0;
    for (int row = 0; row < line.lstPlayer->count() && center == 0; ++row)
        if (const int number = *NumberOf(line.lstPlayer->item(row));
            EntryPosition(number) == position::Center &&
            Teams[OwnTeam].ProLines[1].NormalForward(1, 1) != EntryId(number))
            center = EntryId(number);
    ASSERT_GT(center, 0);
    GoTo(squad, {SquadKind::Skaters, center});
    Click(squad.cmdPick);
    EXPECT_EQ(Teams[OwnTeam].ProLines[1].NormalForward(1, 1), center);
    EXPECT_THAT(UndoWords(line), HasSubstr("Place "));
    Undo(line);
    EXPECT_NE(Teams[OwnTeam].ProLines[1].NormalForward(1, 1), center);
}

TEST_F(frmSquadTest, OnTheLinesWithoutASlotHeIsPickedAlone)
{
    auto& line = static_cast<frmLine&>(Front("Line"));
    line.lstPlayer->setFocus();
    frmSquad& squad = SquadOver(line);
    const Lines before = Teams[OwnTeam].ProLines[1];
    const int slot = EntryId(*NumberOf(line.lstPlayer->item(5)));
    GoTo(squad, {SquadKind::Skaters, slot});
    Press(&squad.Table(), Qt::Key_Return);
    EXPECT_EQ(SelectedPlayer, slot);
    EXPECT_EQ(std::memcmp(&before, &Teams[OwnTeam].ProLines[1], sizeof before), 0);
}

TEST_F(frmSquadTest, PicksAmongFreeAgentsAndForTheDraft)
{
    auto& offers = static_cast<frmFreeAgentClient&>(Front("FreeAgent"));
    const int id = *NumberOf(offers.lstPlayers->item(9));
    frmSquad& squad = SquadOver(offers);
    GoTo(squad, {SquadKind::Skaters, id});
    Press(&squad.Table(), Qt::Key_Return);
    ASSERT_NE(offers.lstPlayers->Chosen(), nullptr);
    EXPECT_EQ(NumberOf(offers.lstPlayers->Chosen()), id);
    EXPECT_EQ(offers.Stats->lblStat[1]->text(), QString::number(StatRowsOf(PersonOf(id)).Ratings.front().Value));
    Machine.ForgetBoxes("whether he is barred is not asked here");
    offers.close();
    Settle();

    LeagueData.EntryDraft = true;
    LeagueData.EntryDraftDone = 0;
    auto& draft = static_cast<frmDraft&>(Front("Draft"));
    int prospect = 0;
    for (int row = 0; row < draft.lstPlayers->count() && prospect == 0; ++row)
        if (const int number = *NumberOf(draft.lstPlayers->item(row)); number > ProspectOffset)
            prospect = number;
    ASSERT_GT(prospect, 0);
    squad.tabKind->setCurrentIndex(2);
    GoTo(squad, {SquadKind::Prospects, prospect - ProspectOffset});
    Press(&squad.Table(), Qt::Key_Return);
    EXPECT_EQ(NumberOf(draft.lstPlayers->Chosen()), prospect);
}

TEST_F(frmSquadTest, ADoublePressShowsTheRecordAndOneComesBackAsOneLeft)
{
    auto& line = static_cast<frmLine&>(Front("Line"));
    line.lstPlayer->setFocus();
    line.lstPlayer->setCurrentRow(2);
    Settle();
    const int chosen = SelectedPlayer;
    frmSquad& squad = SquadOver(line);
    const int stranger = FirstOf(OwnTeam + 1, status::Pro);
    GoTo(squad, {SquadKind::Skaters, stranger});
    Settle();
    EXPECT_FALSE(squad.cmdPick->isEnabled()); // he is not on that list
    const QRect cell = squad.Table().visualRect(squad.Table().currentIndex());
    QTest::mouseClick(squad.Table().viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(squad.Table().viewport(), Qt::LeftButton, {}, cell.center());
    Settle();
    auto* viewer = static_cast<frmEditPlayer*>(TheStage.Find("EditPlayer"));
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(viewer->isVisible());
    EXPECT_FALSE(line.isVisible());
    EXPECT_EQ(viewer->txtName->text(), ToQString(Players[stranger].Name.Trimmed()));
    // Another one from there, and back.
    const int next = FirstOf(OwnTeam + 2, status::Pro);
    GoTo(squad, {SquadKind::Skaters, next});
    Click(squad.cmdShowPlayer);
    viewer = static_cast<frmEditPlayer*>(TheStage.Find("EditPlayer"));
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->txtName->text(), ToQString(Players[next].Name.Trimmed()));
    viewer->cmdExit_Click();
    Settle();
    EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(SelectedPlayer, chosen);
}

TEST_F(frmSquadTest, ARecordTellsNoFlagsOfAnotherTeam)
{
    const int own = FirstOf(OwnTeam, status::Pro);
    const int stranger = FirstOf(OwnTeam + 1, status::Pro);
    Front("Team");
    frmSquad& squad = SquadOver(*TheStage.Find("Team"));
    const auto flags = [&](int slot) {
        GoTo(squad, {SquadKind::Skaters, slot});
        squad.cmdShowPlayer->click();
        Settle();
        const auto& viewer = static_cast<frmEditPlayer&>(*TheStage.Find("EditPlayer"));
        EXPECT_TRUE(viewer.chkRookie->isVisible());
        return std::pair(viewer.chkNoTrade->isVisible(), viewer.chkNoApplyRerate->isVisible());
    };
    EXPECT_EQ(flags(own), std::pair(true, true));
    EXPECT_EQ(flags(stranger), std::pair(false, false));
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_TRUE(TheStage.Find("Team")->isVisible());
    TheStage.Find("Team")->close();
    Settle();
    EXPECT_EQ(flags(own), std::pair(false, false)); // the password's screens are closed
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(frmSquadTest, WhereTheOwnPeopleStandGoesWithTheScreensOfTheTeam)
{
    MainWithLeague();
    CurrentTeam = OwnTeam;
    frmSquad& squad = SquadOver(Main());
    EXPECT_EQ(People(squad).ColumnOf("Stands"), -1);
    EXPECT_FALSE(squad.cboStands->isEnabled());
    EXPECT_THAT(squad.cboStands->toolTip().toStdString(), HasSubstr("whose screens are open"));
    Front("Roster");
    EXPECT_GE(People(squad).ColumnOf("Stands"), 0);
    EXPECT_TRUE(squad.cboStands->isEnabled());
    squad.cboStands->setCurrentIndex(2);
    EXPECT_GT(People(squad).rowCount(), 0);
    for (int row = 0; row < People(squad).rowCount(); ++row)
        EXPECT_EQ(Players[People(squad).PersonAt(row).Slot].Status, status::Scratch);
    TheStage.Find("Roster")->close();
    Settle();
    EXPECT_EQ(People(squad).ColumnOf("Stands"), -1);
    EXPECT_EQ(squad.Filter().Status, std::nullopt);
}

TEST_F(frmSquadTest, WhatIsDoneOnTheScreenInFrontIsSeenAtOnce)
{
    auto& roster = static_cast<frmRoster&>(Front("Roster"));
    frmSquad& squad = SquadOver(roster);
    const int slot = EntryId(*NumberOf(roster.lstPlayer[status::Pro]->item(0)));
    const auto stands = [&] {
        const SquadModel& people = People(squad);
        return people.index(people.RowOf({SquadKind::Skaters, slot}), people.ColumnOf("Stands")).data().toString();
    };
    EXPECT_EQ(stands(), "Pro");
    roster.lstPlayer[status::Pro]->setCurrentRow(0);
    Click(roster.cmdToScratchesFromPro);
    EXPECT_EQ(Players[slot].Status, status::Scratch);
    EXPECT_EQ(stands(), "Scratch");
    Undo(roster);
    EXPECT_EQ(stands(), "Pro");
}

TEST_F(frmSquadTest, WhoIsPinnedIsComparedInTheFiguresOfTheRules)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    EXPECT_FALSE(squad.Comparison->isVisible());
    std::vector<SquadPerson> people;
    for (int at = 0; at < 4; ++at) {
        people.push_back(People(squad).PersonAt(at * 50));
        GoTo(squad, people.back());
        Press(&squad.Table(), Qt::Key_M, Qt::ControlModifier);
        EXPECT_TRUE(squad.Comparison->isVisible());
        EXPECT_EQ(squad.tblCompare->Figures->rowCount(), at + 1);
    }
    const CompareModel& figures = *squad.tblCompare->Figures;
    const QAbstractItemModelTester tester(squad.tblCompare->Figures,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(figures.columnCount(), 3 + static_cast<int>(PlayerStatCount)); // name, age, overall
    for (const int outside : {-1, figures.columnCount()})
        EXPECT_FALSE(figures.headerData(outside, Qt::Horizontal, Qt::DisplayRole).isValid()) << outside;
    for (int row = 0; row < 4; ++row) {
        const PersonId who = people[static_cast<std::size_t>(row)].Id();
        const StatRows own = StatRowsOf(who);
        const StatRows first = StatRowsOf(people.front().Id());
        EXPECT_EQ(figures.index(row, 0).data().toString(), NameOf(who));
        for (int column = 2; column < figures.columnCount(); ++column) {
            const auto value = [column](const StatRows& rows) {
                return column == 2 ? rows.OverallRow->Value : rows.Ratings[static_cast<std::size_t>(column - 3)].Value;
            };
            const int difference = value(own) - value(first);
            EXPECT_EQ(figures.index(row, column).data().toInt(), value(own));
            const QString shown = figures.index(row, column).data(CompareModel::DifferenceRole).toString();
            if (row == 0) {
                EXPECT_EQ(shown, "");
            } else if (difference == 0) {
                EXPECT_EQ(shown, "=");
            } else {
                EXPECT_EQ(shown,
                          (difference > 0 ? QString("+") : QString(u'\u2212')) + QString::number(std::abs(difference)));
            }
        }
    }
    EXPECT_THAT(figures.index(1, 2).data(Qt::AccessibleTextRole).toString().toStdString(),
                HasSubstr(NameOf(people.front().Id()).toStdString()));
    // A fifth is one too many; who is pinned is let go by the same key.
    GoTo(squad, People(squad).PersonAt(300));
    Press(&squad.Table(), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(figures.rowCount(), 4);
    EXPECT_EQ(squad.lblTold->text(), "4 people are compared at most.");
    GoTo(squad, people[1]);
    EXPECT_EQ(squad.cmdPin->text(), "Unpi&n");
    EXPECT_THAT(squad.Table().currentIndex().data(Qt::AccessibleTextRole).toString().toStdString(),
                HasSubstr(", pinned"));
    Press(&squad.Table(), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(figures.rowCount(), 3);
    Click(squad.cmdLetGo);
    EXPECT_FALSE(squad.Comparison->isVisible());
}

TEST_F(frmSquadTest, ThePinnedStayWhateverIsFilteredAndGoWithTheirLeague)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    const SquadPerson who = People(squad).PersonAt(3);
    GoTo(squad, who);
    Click(squad.cmdPin);
    Type(squad, "zzzz");
    EXPECT_EQ(People(squad).rowCount(), 0);
    EXPECT_TRUE(squad.Comparison->isVisible());
    EXPECT_FALSE(squad.cmdPin->isEnabled());
    squad.tabKind->setCurrentIndex(1); // skaters are compared among skaters
    EXPECT_FALSE(squad.Comparison->isVisible());
    squad.tabKind->setCurrentIndex(0);
    EXPECT_TRUE(squad.Comparison->isVisible());
    LeagueData.ShowOverall = false;
    LeagueData.ShowAllRatings = false;
    Main().PlaceTeam();
    EXPECT_EQ(squad.tblCompare->Figures->columnCount(), 2 + RatingsShownBy(LeagueData).Skater);
    Players[who.Slot].Name = "Somebody Else";
    Main().PlaceTeam();
    EXPECT_FALSE(squad.Comparison->isVisible());
}

// The number of a team is another team's there.
TEST_F(frmSquadTest, InAnotherLeagueTheChosenTeamIsTheOneOfThatNameOrNone)
{
    LeagueData.LeagueCode = "AAAAA";
    frmSquad& squad = SquadOver(MainWithLeague());
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(OwnTeam));
    const std::string name = Teams[OwnTeam].Name.Trimmed();
    Teams[OwnTeam].Name = "Renamed Gulls";
    Main().PlaceTeam();
    EXPECT_EQ(squad.cboTeam->currentText(), "Renamed Gulls");
    LeagueData.LeagueCode = "BBBBB";
    Teams[OwnTeam].Name = "Some Others";
    Teams[OwnTeam + 1].Name = "Renamed Gulls";
    Main().PlaceTeam();
    EXPECT_EQ(squad.cboTeam->currentData().toInt(), OwnTeam + 1);
    EXPECT_EQ(squad.Filter().Team, OwnTeam + 1);
    LeagueData.LeagueCode = "CCCCC";
    Teams[OwnTeam + 1].Name = name;
    Main().PlaceTeam();
    EXPECT_EQ(squad.cboTeam->currentText(), "Whole league");
    EXPECT_EQ(squad.Filter().Team, std::nullopt);
}

TEST_F(frmSquadTest, AnEmptyLeagueAndAnEmptyTeamSaySo)
{
    EmptyLeagueTables(OpenLeague);
    frmSquad& squad = SquadOver(Main());
    EXPECT_TRUE(squad.lblEmpty->isVisible());
    EXPECT_EQ(squad.lblEmpty->text(), "There is nobody here.");
    EXPECT_FALSE(squad.cmdCopy->isEnabled());
    EXPECT_FALSE(squad.cmdShowPlayer->isEnabled());
    Press(&squad.Table(), Qt::Key_Return);
    EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
    PutSkater(1, 6, position::Center, status::Pro);
    TeamMaker(5);
    Main().PlaceTeam();
    EXPECT_FALSE(squad.lblEmpty->isVisible());
    squad.cboTeam->setCurrentIndex(squad.cboTeam->findData(5));
    EXPECT_TRUE(squad.lblEmpty->isVisible());
    EXPECT_EQ(squad.lblFound->text(), "0 of 1");
}

TEST_F(frmSquadTest, ItGoesWithTheMainWindow)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    EXPECT_TRUE(squad.isVisible());
    Main().close();
    Settle();
    EXPECT_EQ(TheStage.Squad(), nullptr);
}

TEST_F(frmSquadTest, KeysAreThoseThatAreToldAndNoOther)
{
    const frmSquad& squad = SquadOver(MainWithLeague());
    std::set<std::string> told;
    std::set<std::string> known;
    for (const KeyRow& row : KeyTable())
        if (IsOn(row, "frmSquad"))
            for (const QString& key : KeysOf(row).split(" / "))
                told.insert(QKeySequence(key).toString().toStdString());
    for (const auto* shortcut : squad.findChildren<QShortcut*>())
        known.insert(shortcut->key().toString().toStdString());
    EXPECT_EQ(told, known);
    Press(squad.txtName, Qt::Key_F1);
    auto* sheet = squad.findChild<KeySheet*>("KeySheet");
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_THAT(sheet->txtSheet->toPlainText().toStdString(), HasSubstr("Move the column at hand"));
    sheet->activateWindow();
    QTest::keyClick(sheet, Qt::Key_F1);
    EXPECT_FALSE(sheet->isVisible());
}

TEST_F(frmSquadTest, EveryControlHasANameAndIsReachedByTheTabKey)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    std::set<const QWidget*> reached;
    for (int step = 0; step < 60; ++step) {
        Press(squad.focusWidget(), Qt::Key_Tab);
        reached.insert(squad.focusWidget());
    }
    for (QWidget* control : std::initializer_list<QWidget*>{
             squad.txtName, squad.tabKind, squad.cboTeam, squad.chkPosition[0], squad.chkPosition[3], squad.spnAgeFrom,
             squad.spnAgeTo, squad.spnOverall, squad.spnContract, squad.chkMayBeAsked, squad.cmdShowAll,
             squad.tables[0], squad.cmdColumns, squad.cmdCopy, squad.cmdSaveCsv, squad.cmdShowPlayer, squad.cmdClose}) {
        EXPECT_TRUE(reached.contains(control)) << control->objectName().toStdString();
        QAccessibleInterface* said = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(said, nullptr);
        EXPECT_FALSE(said->text(QAccessible::Name).isEmpty()) << control->objectName().toStdString();
        EXPECT_FALSE(control->objectName().isEmpty());
    }
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(squad.tables[0]);
    EXPECT_EQ(table->text(QAccessible::Name), "Skaters");
}

TEST_F(frmSquadTest, ItIsUsableOnASmallDisplay)
{
    frmSquad& squad = SquadOver(MainWithLeague());
    EXPECT_LE(squad.minimumSizeHint().width(), 1280);
    EXPECT_LE(squad.minimumSizeHint().height(), 760);
    const QRect area = squad.screen()->availableGeometry();
    EXPECT_TRUE(area.contains(squad.geometry()));
}

// In every palette, of a plain cell, a chosen one, an injured one and one with nothing in it.
TEST_F(frmSquadTest, CellsCanBeReadInEveryPalette)
{
    EmptyLeagueTables(OpenLeague);
    for (int slot = 1; slot <= 6; ++slot)
        PutSkater(slot, 5, position::Center, status::Pro).Condition = slot % 2 == 0 ? 60 : 100;
    frmSquad& squad = SquadOver(Main());
    squad.setFont(SharpFont());
    SquadTable& table = squad.Table();
    table.setFont(SharpFont());
    const QPalette before = QApplication::palette();
    std::vector<QPalette> palettes = DesktopPalettes();
    UseLightLook();
    palettes.push_back(QApplication::palette());
    UseDarkLook();
    palettes.push_back(QApplication::palette());
    int measured = 0;
    for (const QPalette& palette : palettes) {
        QApplication::setPalette(palette);
        Settle();
        table.setCurrentIndex(People(squad).index(2, 0));
        const QImage picture = table.viewport()->grab().toImage();
        for (int row = 0; row < 6; ++row)
            for (const char* column : {"Name", "Team", "Age", "Condition"}) {
                QRect cell = table.visualRect(People(squad).index(row, People(squad).ColumnOf(column)));
                cell.adjust(2, 2, -3, -6);
                const auto contrast = PaintedContrast(picture, cell);
                if (!contrast)
                    continue;
                ++measured;
                EXPECT_GE(*contrast, 4.5)
                    << column << ' ' << row << ' ' << palette.color(QPalette::Base).name().toStdString();
            }
    }
    QApplication::setPalette(before);
    EXPECT_GT(measured, 100);
}

} // namespace
} // namespace dravik
