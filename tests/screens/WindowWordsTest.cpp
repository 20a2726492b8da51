#include "DesignWords.h"
#include "OnEveryScreen.h"
#include "screens/Looks.h"
#include "screens/main/frmCompare.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/panels/LookWindow.h"
#include "screens/squad/frmSquad.h"

#include <memory>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTableView>

// Every word of the windows that stand beside the screens, on the sample league.
namespace dravik {
namespace {

using ::testing::UnorderedElementsAreArray;

class WindowWordsTest : public OnEveryScreen {
protected:
    WindowWordsTest() { Teams[OwnTeam].Password = ""; }

    Screen& Opened(const char* name)
    {
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        TheStage.Open(name, Main());
        Settle();
        return *TheStage.Find(name);
    }
};

bool IsNamedByWords(const QWidget& part)
{
    return qobject_cast<const QAbstractSpinBox*>(&part) != nullptr ||
           qobject_cast<const QComboBox*>(&part) != nullptr || qobject_cast<const QLineEdit*>(&part) != nullptr ||
           qobject_cast<const QTabBar*>(&part) != nullptr || qobject_cast<const QTableView*>(&part) != nullptr;
}

// The words of a window with what a screen reader calls its boxes, tabs and tables. The toolkit's own arrows are none.
std::vector<DesignWords> WordsOf(const QWidget& window)
{
    std::vector<DesignWords> all = DesignWordsOf(window);
    std::erase_if(all, [](const DesignWords& words) { return words.Name.starts_with("Scroll"); });
    for (const QWidget* part : window.findChildren<QWidget*>())
        if (!part->objectName().startsWith("qt_") && IsNamedByWords(*part))
            all.push_back({part->objectName().toStdString(), "", part->accessibleName().toStdString()});
    return all;
}

TEST_F(WindowWordsTest, OfTheSquadTable)
{
    MainWithLeague();
    TheStage.ShowSquad(Main());
    Settle();
    const std::vector<DesignWords> expected{
        {"frmSquad", "Squad"},
        {"mnuColumns", ""},
        {"lblTitle", "Squad"},
        {"chkDock", "Dock &Beside"},
        {"cmdColumns", "Col&umns"},
        {"cmdCopy", "&Copy"},
        {"cmdSaveCsv", "&Save as CSV ..."},
        {"lblFound", "3,728 of 3,728"},
        {"cmdShowAll", "Show &All"},
        {"", "Team", "", "cboTeam"},
        {"", "Position", "", "chkPosition(1)"},
        {"chkPosition(1)", "C", "Position C"},
        {"chkPosition(2)", "LW", "Position LW"},
        {"chkPosition(3)", "RW", "Position RW"},
        {"chkPosition(4)", "D", "Position D"},
        {"", "Stands", "", "cboStands"},
        {"", "\u2013"},
        {"", "Age", "", "spnAgeFrom"},
        {"", "Overall from", "", "spnOverall"},
        {"", "Years left to", "", "spnContract"},
        {"chkMayBeAsked", "may be as&ked", "May be made an offer"},
        {"lblEmpty", ""},
        {"lblCompare", "Pin another one to compare them."},
        {"", "Compare"},
        {"cmdLetGo", "Let All &Go"},
        {"lblTold", "Ratings as the league shows them. Where somebody stands, his slots and flags are shown for your "
                    "own team, while its screens are open."},
        {"cmdPin", "Pi&n"},
        {"cmdShowPlayer", "Show &Player"},
        {"cmdPick", ""},
        {"cmdClose", "C&lose"},
        {"tabKind", "", "Tables"},
        {"txtName", "", "Part of a name"},
        {"cboTeam", "", "Team"},
        {"cboStands", "", "Where he stands"},
        {"spnAgeFrom", "", "Age from"},
        {"spnAgeTo", "", "Age to"},
        {"spnOverall", "", "Overall at least"},
        {"spnContract", "", "Years left on the contract at most"},
        {"tblProspects", "", "Prospects"},
        {"tblGoalies", "", "Goalies"},
        {"tblSkaters", "", "Skaters"},
        {"tblCompare", "", "Comparison"},
    };
    EXPECT_THAT(WordsOf(*TheStage.Squad()), UnorderedElementsAreArray(expected));
}

TEST_F(WindowWordsTest, OfTheCalendar)
{
    MainWithLeague();
    CurrentTeam = OwnTeam;
    OpenLook(dravik::Look::Calendar, TheStage, Main(), {});
    const std::vector<DesignWords> expected{
        {"CalendarWindow", "Harbour City Gulls - Calendar"},
        {"lblSeason", "39 games left"},
        {"lblHint", "Skaters is the mean overall of the opponent's best eighteen, Goalie that of his best one. In a "
                    "Row counts the days with a game without a day off."},
        {"tblSeason", "", "Games left"},
        {"cboStarter(1)", "", "Starts in goal, day 1"},
        {"cboStarter(2)", "", "Starts in goal, day 2"},
        {"cboStarter(3)", "", "Starts in goal, day 3"},
        {"cboStarter(4)", "", "Starts in goal, day 4"},
        {"cboStarter(5)", "", "Starts in goal, day 5"},
        {"cboStarter(6)", "", "Starts in goal, day 6"},
        {"cboStarter(7)", "", "Starts in goal, day 7"},
        {"cboStarter(8)", "", "Starts in goal, day 8"},
        {"cboStarter(9)", "", "Starts in goal, day 9"},
        {"cboStarter(10)", "", "Starts in goal, day 10"},
    };
    EXPECT_THAT(WordsOf(*Main().findChild<LookWindow*>()), UnorderedElementsAreArray(expected));
}

TEST_F(WindowWordsTest, OfTheGraphs)
{
    MainWithLeague();
    CurrentTeam = OwnTeam;
    OpenLook(dravik::Look::Graphs, TheStage, Main(), {});
    const std::vector<DesignWords> expected{
        {"GraphsWindow", "Harbour City Gulls - Graphs"},
        {"lblRanks", "Mean overall of a team's best in each position, and your rank in the league: center pair its "
                     "best two centers; wings its best two wings on each side; defense pairs its best four defensemen; "
                     "goalies its best two goalies."},
        {"lblDays", "Mean overall of your lines and pairs, and your goalie, on the ten days, beside the opponent's "
                    "best eighteen skaters and his best goalie."},
        {"lblAges", "How many people are of an age, by position, pro team, scratches and farm together."},
        {"lblPayroll",
         "Payroll, this season and what contracts bind in the seasons behind it, if nobody is signed or released."},
        {"tblRanks", "", "Ranks"},
        {"tblDays", "", "Ten Days"},
        {"tblAges", "", "Ages"},
        {"tblPayroll", "", "Payroll"},
    };
    EXPECT_THAT(WordsOf(*Main().findChild<LookWindow*>()), UnorderedElementsAreArray(expected));
}

TEST_F(WindowWordsTest, OfTwoClientFiles)
{
    const auto compare = std::make_unique<frmCompare>(TheStage);
    const std::vector<DesignWords> expected{
        {"frmCompare", ""},     {"lblTitle", "Two Client Files"},        {"lblRemark", ""},    {"lblDifferences", ""},
        {"lstDifferences", ""}, {"lblNothing", "Nothing is different."}, {"cmdExit", "E&xit"},
    };
    EXPECT_THAT(WordsOf(*compare), UnorderedElementsAreArray(expected));
}

TEST_F(WindowWordsTest, OfTwoLines)
{
    MainWithLeague();
    Screen& lines = Opened("Line");
    QTest::keyClick(&lines, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    Settle();
    const std::vector<DesignWords> expected{
        {"UnitWindow", "Compare Lines"},
        {"", "Compare", "", "cboUnit(0)"},
        {"", "with", "", "cboUnit(1)"},
        {"lblNote", "Differences are to the first."},
        {"cboUnit(0)", "", "First line or unit"},
        {"cboDay(0)", "", "First day"},
        {"cboUnit(1)", "", "Second line or unit"},
        {"cboDay(1)", "", "Second day"},
        {"tblAverages", "", "Averages"},
        {"tblPeople", "", "People"},
    };
    EXPECT_THAT(WordsOf(*lines.findChild<LookWindow*>()), UnorderedElementsAreArray(expected));
}

TEST_F(WindowWordsTest, OfWhatIf)
{
    MainWithLeague();
    Screen& offers = Opened("FreeAgent");
    dynamic_cast<frmFreeAgentClient&>(offers).cmdWhatIf->click();
    Settle();
    const std::vector<DesignWords> expected{
        {"WhatIfWindow", "Harbour City Gulls - What If"},
        {"lblOffers", "With all offers taken: 0"},
        {"lblHint", "Your own stay where they stand, others count among the scratches. The bank account pays the "
                    "bonuses. Nothing changes by looking."},
        {"tblFigures", "", "With all offers taken"},
    };
    EXPECT_THAT(WordsOf(*offers.findChild<LookWindow*>()), UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace dravik
