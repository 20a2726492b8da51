// What is closed says why.

#include "screens/panels/WhyClosed.h"

#include "OnEveryScreen.h"
#include "screens/panels/EditArea.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"
#include "screens/squad/frmSquad.h"
#include "screens/team/frmTeam.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QToolTip>
#include <set>

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;
using ::testing::Not;

// What comes up where the mouse rests on a widget, as plain text.
std::string TipAt(QWidget* widget)
{
    QToolTip::hideText();
    const QPoint middle = widget->rect().center();
    QHelpEvent help(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QApplication::sendEvent(widget, &help);
    const std::string words = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().toStdString();
    QToolTip::hideText();
    return words;
}

TEST(WhyClosed, IsToldForAsLongAsItHoldsBehindTheWordsThatAreThereAnyway)
{
    QPushButton command("Release");
    command.setToolTip("Lets him go");
    command.setAccessibleDescription("for good");
    QString why("Choose somebody first.");
    TellWhyClosed({&command}, [&why] { return why; });
    EXPECT_EQ(command.toolTip(), "Lets him go");
    command.setEnabled(false);
    EXPECT_EQ(TipAt(&command), "Lets him go\nChoose somebody first.");
    EXPECT_EQ(command.accessibleDescription(), "for good, Choose somebody first.");
    why = "The <deadline> has passed.";
    EXPECT_EQ(TipAt(&command), "Lets him go\nThe <deadline> has passed.") << "asked once more";
    command.setToolTip("Other words");
    EXPECT_EQ(TipAt(&command), "Other words\nThe <deadline> has passed.");
    command.setEnabled(true);
    EXPECT_EQ(command.toolTip(), "Other words");
    EXPECT_EQ(command.accessibleDescription(), "for good");
    EXPECT_EQ(ReasonOf(command), "");
}

// What a screen tells a screen reader of a command meanwhile stays, whatever comes up beside it.
TEST(WhyClosed, KeepsADescriptionThatComesLater)
{
    QPushButton command("Save Lines");
    TellWhyClosed({&command}, "The lines are not complete.");
    command.setEnabled(false);
    command.setAccessibleDescription("Day 1 of the farm is incomplete.");
    TipAt(&command);
    EXPECT_EQ(command.accessibleDescription(), "Day 1 of the farm is incomplete. The lines are not complete.");
    TipAt(&command);
    EXPECT_EQ(command.accessibleDescription(), "Day 1 of the farm is incomplete. The lines are not complete.");
    command.setEnabled(true);
    EXPECT_EQ(command.accessibleDescription(), "Day 1 of the farm is incomplete.");
}

TEST(WhyClosed, IsToldByEntriesOfAMenu)
{
    QMenu menu;
    QAction* item = menu.addAction("Free Agents");
    TellWhyClosed(item, [] { return QString("The deadline is over."); });
    EXPECT_TRUE(menu.toolTipsVisible());
    item->setEnabled(false);
    EXPECT_EQ(ReasonOf(*item), "The deadline is over.");
    EXPECT_EQ(QTextDocumentFragment::fromHtml(item->toolTip()).toPlainText(), "The deadline is over.");
    item->setEnabled(true);
    EXPECT_EQ(ReasonOf(*item), "");
    EXPECT_THAT(item->toolTip().toStdString(), Not(HasSubstr("deadline")));
}

class WhyClosedTest : public OnEveryScreen {
protected:
    ~WhyClosedTest() override { Machine.ForgetBoxes("what the screens tell is not asked here"); }

    static bool TellsBesides(const std::string& tip)
    {
        return tip.starts_with("Nothing to undo") || tip.starts_with("Nothing to redo") || tip.starts_with("closed: ");
    }
    // A box for a text, a number or a choice that takes none now. Parts of other boxes are none, and neither are the figures beside the
    // list of free agents, which nobody could ever type.
    static bool IsClosedBox(const QWidget& widget)
    {
        const auto* line = qobject_cast<const QLineEdit*>(&widget);
        const bool isBox = line != nullptr || qobject_cast<const EditArea*>(&widget) != nullptr ||
                           qobject_cast<const QComboBox*>(&widget) != nullptr ||
                           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr;
        const bool isPart = qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) != nullptr ||
                            qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
        const bool isFigure = widget.window()->objectName() == "frmFreeAgentClient" &&
                              (widget.objectName() == "txtAge" || widget.objectName() == "txtSalary");
        return isBox && !isPart && !isFigure && (!widget.isEnabled() || (line != nullptr && line->isReadOnly()));
    }
    // Expects of everything closed on a window that it tells why; gives the names of what was closed.
    static void ExpectReasons(QWidget& window, const std::string& where, std::set<std::string>& closed)
    {
        for (auto* command : window.findChildren<QAbstractButton*>()) {
            const bool hasCaption = !command->text().isEmpty() || !command->accessibleName().isEmpty();
            if (!command->isVisible() || command->isEnabled() || !hasCaption)
                continue;
            const std::string name = command->objectName().toStdString();
            closed.insert(name);
            const std::string tip = TipAt(command);
            const std::string reason = ReasonOf(*command).toStdString();
            if (reason.empty()) {
                EXPECT_TRUE(TellsBesides(tip)) << where << ": " << name << " says \"" << tip << '"';
                continue;
            }
            EXPECT_THAT(tip, HasSubstr(reason)) << where << ": " << name;
            EXPECT_THAT(command->accessibleDescription().toStdString(), HasSubstr(reason)) << where << ": " << name;
        }
        for (QWidget* box : window.findChildren<QWidget*>()) {
            if (!box->isVisible() || !IsClosedBox(*box))
                continue;
            const std::string name = box->objectName().toStdString();
            closed.insert(name);
            const std::string reason = ReasonOf(*box).toStdString();
            EXPECT_NE(reason, "") << where << ": " << name;
            EXPECT_THAT(TipAt(box), HasSubstr(reason)) << where << ": " << name;
            EXPECT_THAT(box->accessibleDescription().toStdString(), HasSubstr(reason)) << where << ": " << name;
        }
        for (auto* item : window.findChildren<QAction*>()) {
            if (!item->isVisible() || item->isEnabled() || item->text().isEmpty() || item->objectName().isEmpty())
                continue;
            closed.insert(item->objectName().toStdString());
            EXPECT_NE(ReasonOf(*item), "") << where << ": " << item->objectName().toStdString();
        }
    }
    std::set<std::string> ClosedOnAll()
    {
        std::set<std::string> closed;
        EachScreen([&closed](Screen& screen, const std::string& name) { ExpectReasons(screen, name, closed); });
        return closed;
    }
};

TEST_F(WhyClosedTest, InALeagueThatAllowsAlmostEverything)
{
    const std::set<std::string> closed = ClosedOnAll();
    EXPECT_THAT(closed, IsSupersetOf({"cmdUndo", "cmdRedo", "cmdToPro", "cmdToFarm", "cmdToScratchesFromPro",
                                      "cmdToScratchesFromFarm", "cmdCaptain", "cmdAssistant", "cmdTradeAvailable",
                                      "txtTeamName", "txtFarmMorale", "txtArena", "txtArenaCapacity(5)", "txtName",
                                      "txtSalary", "txtStats(1)"}));
    EXPECT_THAT(closed, Not(Contains("txtTicket(1)")));
}

TEST_F(WhyClosedTest, InALeagueThatClosesWhatItCan)
{
    LeagueData.AutoRosterDisabled = true;
    LeagueData.FarmEnabled = false;
    LeagueData.ScheduleShown = false;
    LeagueData.TicketRuleFlag = true;
    MainWithLeague();
    Main().SetFreeAgentsMenu(false);
    Main().SetDraftMenu(false, "&Draft List");
    const std::set<std::string> closed = ClosedOnAll();
    EXPECT_THAT(closed, IsSupersetOf({"cmdAutoRoster", "cmdAutoRosterPartial", "cmdAutoLines", "cmdPartialLine",
                                      "cmdRepairAll", "cmdCopy", "cmdFarmLines", "cmdFreeAgents", "cmdDraft",
                                      "mnuFreeAgents", "mnuDraft", "txtTicket(1)", "txtTicket(5)"}));
}

TEST_F(WhyClosedTest, WhereThereIsNobody)
{
    for (Player& player : Players)
        player.Team = 0;
    for (Goalie& goalie : Goalies)
        goalie.Team = 0;
    EXPECT_THAT(ClosedOnAll(), Contains("cmdSaveToFile"));
}

TEST_F(WhyClosedTest, TheOfferWhereNobodyIsChosen)
{
    for (Player& player : Players)
        player = {};
    for (Goalie& goalie : Goalies)
        goalie = {};
    std::set<std::string> closed;
    EachScreen([&closed](Screen& screen, const std::string& name) {
        if (name == "FreeAgent")
            ExpectReasons(screen, name, closed);
    });
    EXPECT_THAT(closed, IsSupersetOf({"txtOffer", "txtDuration", "txtBonus", "txtComment"}));
}

TEST_F(WhyClosedTest, TextThatIsCutStandsInFrontOfTheReason)
{
    Teams[OwnTeam].City = "Saint-Ambrelin-des-Grandes-Rives-du-Nord";
    MainWithLeague();
    CurrentTeam = OwnTeam;
    CallerScreen = "Main";
    TheStage.Open("Team", Main());
    Settle();
    auto& team = static_cast<frmTeam&>(*TheStage.Find("Team"));
    team.txtCity->setFixedWidth(60);
    Settle();
    EXPECT_EQ(TipAt(team.txtCity),
              "Saint-Ambrelin-des-Grandes-Rives-du-Nord\n" + ReasonOf(*team.txtCity).toStdString());
    EXPECT_NE(ReasonOf(*team.txtCity), "");
}

TEST_F(WhyClosedTest, OnTheSquadTable)
{
    MainWithLeague();
    QTest::keyClick(&Main(), Qt::Key_T, Qt::ControlModifier);
    frmSquad* squad = TheStage.Squad();
    ASSERT_NE(squad, nullptr);
    Settle();
    std::set<std::string> closed;
    for (int page = 0; page < squad->tabKind->count(); ++page) {
        squad->tabKind->setCurrentIndex(page);
        Settle();
        ExpectReasons(*squad, "page " + std::to_string(page), closed);
    }
    squad->tabKind->setCurrentIndex(0);
    QTest::keyClicks(squad->txtName, "qqqqq");
    Settle();
    ExpectReasons(*squad, "nobody found", closed);
    EXPECT_THAT(closed, IsSupersetOf({"chkPosition(1)", "cmdShowPlayer", "cmdPin", "cmdCopy", "cmdSaveCsv",
                                      "cmdShowAll", "cboTeam", "cboStands", "spnAgeFrom", "spnContract"}));
}

TEST_F(WhyClosedTest, TheRosterTellsWhatIsWrongWithWhoIsChosen)
{
    MainWithLeague();
    CurrentTeam = OwnTeam;
    CallerScreen = "Main";
    TheStage.Open("Roster", Main());
    Settle();
    auto& roster = static_cast<frmRoster&>(*TheStage.Find("Roster"));
    EXPECT_EQ(TipAt(roster.cmdCaptain), "Choose one player first.");
    EXPECT_EQ(TipAt(roster.cmdToScratchesFromPro), "With Ctrl on to the farm\nChoose somebody of the pro team first.");
    PickList* pro = roster.lstPlayer[status::Pro];
    int goalie = 0;
    while (goalie < pro->count() && !EntryPerson(*NumberOf(pro->item(goalie))).IsGoalie)
        ++goalie;
    ASSERT_LT(goalie, pro->count());
    pro->scrollToItem(pro->item(goalie));
    QTest::mouseClick(pro->viewport(), Qt::LeftButton, {}, pro->visualItemRect(pro->item(goalie)).center());
    Settle();
    ASSERT_FALSE(roster.cmdCaptain->isEnabled());
    EXPECT_THAT(TipAt(roster.cmdCaptain), HasSubstr("no goalie"));
    EXPECT_EQ(TipAt(roster.cmdToScratchesFromPro), "With Ctrl on to the farm");
}

} // namespace
} // namespace dravik
