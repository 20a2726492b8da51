#include "OnEveryScreen.h"
#include "screens/squad/frmSquad.h"

#include <QTextDocumentFragment>

// What the commands and ticks of every screen say of themselves where the mouse rests on them, before anything is done there.
namespace dravik {
namespace {

using ::testing::UnorderedElementsAreArray;

// A control by its name, and its words.
using Tip = std::pair<std::string, std::string>;

class TooltipsTest : public OnEveryScreen {
protected:
    TooltipsTest() { Teams[OwnTeam].Password = ""; }

    // The tooltips of the commands, ticks and boxes of a window that have a name, without marks for their form.
    static std::vector<Tip> TipsOf(const QWidget& window)
    {
        std::vector<Tip> tips;
        for (const QWidget* part : window.findChildren<QWidget*>()) {
            const bool isControl = qobject_cast<const QAbstractButton*>(part) != nullptr;
            if (isControl && !part->objectName().isEmpty() && !part->toolTip().isEmpty())
                tips.emplace_back(part->objectName().toStdString(),
                                  QTextDocumentFragment::fromHtml(part->toolTip()).toPlainText().toStdString());
        }
        return tips;
    }
    std::vector<Tip> TipsOf(const char* name)
    {
        MainWithLeague();
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        TheStage.Open(name, Main());
        Settle();
        return TipsOf(*TheStage.Find(name));
    }
};

// What the two commands of the history say where nothing was done yet, and those beside ratings where nobody is pinned.
constexpr const char* NothingToUndo = "Nothing to undo (Ctrl+Z)";
constexpr const char* NothingToRedo = "Nothing to redo (Ctrl+Shift+Z)";
constexpr const char* PinHim = "Pin him to hold others against him (Ctrl+M)";
constexpr const char* LetAllGo = "Let all go who are pinned (Ctrl+Shift+P)";

TEST_F(TooltipsTest, OfTheTeamScreen)
{
    EXPECT_THAT(TipsOf("Team"), UnorderedElementsAreArray(std::vector<Tip>{
                                    {"cmdEveningRanking", "closed: no draft is near"},
                                    {"cmdUndo", NothingToUndo},
                                    {"cmdRedo", NothingToRedo},
                                }));
}

TEST_F(TooltipsTest, OfTheRoster)
{
    constexpr const char* onePlayer = "Choose one player first.";
    EXPECT_THAT(TipsOf("Roster"),
                UnorderedElementsAreArray(std::vector<Tip>{
                    {"cmdToScratchesFromPro", "With Ctrl on to the farm\nChoose somebody of the pro team first."},
                    {"cmdToPro", "Choose somebody among the scratches first."},
                    {"cmdToFarm", "Choose somebody among the scratches first."},
                    {"cmdToScratchesFromFarm", "Choose somebody on the farm first."},
                    {"cmdPin", PinHim},
                    {"cmdLetGo", LetAllGo},
                    {"cmdCaptain", onePlayer},
                    {"cmdAssistant", onePlayer},
                    {"cmdTradeAvailable", onePlayer},
                    {"chkProtected", onePlayer},
                    {"cmdRelease", onePlayer},
                    {"cmdSendToWaiver", onePlayer},
                    {"chkNoApplyRerate", onePlayer},
                    {"chkNoTrade", onePlayer},
                    {"cmdUndo", NothingToUndo},
                    {"cmdRedo", NothingToRedo},
                }));
}

TEST_F(TooltipsTest, OfBothScreensOfLines)
{
    const std::vector<Tip> expected{
        {"cmdShowPlayer", "Shows him without placing him (Shift+Enter)"},
        {"cmdDebug", "The lines of this day are complete."},
        {"chkPosition(1)", "Center"},
        {"chkPosition(2)", "Left Wing"},
        {"chkPosition(3)", "Right Wing"},
        {"chkPosition(4)", "Defense"},
        {"chkPosition(5)", "Goalie"},
        {"cmdPin", PinHim},
        {"cmdLetGo", LetAllGo},
        {"cmdSheet", "All slots of the day at once, in a window of its own (Ctrl+B)"},
        {"cmdRepairAll", "Makes the rest of every day that is incomplete, and tells of all at the end"},
        {"cmdUndo", NothingToUndo},
        {"cmdRedo", NothingToRedo},
    };
    for (const char* name : {"Line", "FarmLine"}) {
        std::vector<Tip> tips = TipsOf(name);
        std::erase_if(tips, [](const Tip& tip) { return tip.first.starts_with("cmdAdvice"); }); // what it would do
        EXPECT_THAT(tips, UnorderedElementsAreArray(expected)) << name;
        TheStage.Find(name)->close();
        Settle();
    }
}

TEST_F(TooltipsTest, OfTheOffers)
{
    EXPECT_THAT(TipsOf("FreeAgent"), UnorderedElementsAreArray(std::vector<Tip>{
                                         {"cmdPin", PinHim},
                                         {"cmdLetGo", LetAllGo},
                                         {"cmdFindNext", "The next player with what was searched for (F3)"},
                                         {"cmdWhatIf", "The team with all offers taken"},
                                         {"cmdUndo", NothingToUndo},
                                         {"cmdRedo", NothingToRedo},
                                     }));
}

TEST_F(TooltipsTest, OfTheDraftList)
{
    EXPECT_THAT(TipsOf("Draft"), UnorderedElementsAreArray(std::vector<Tip>{
                                     {"cmdChoose", "Add to the draft list"},
                                     {"cmdRemove", "Take off the draft list"},
                                     {"cmdFindNext", "The next player with what was searched for (F3)"},
                                     {"cmdUndo", NothingToUndo},
                                     {"cmdRedo", NothingToRedo},
                                 }));
}

TEST_F(TooltipsTest, OfTheTickets)
{
    EXPECT_THAT(TipsOf("Ticket"), UnorderedElementsAreArray(std::vector<Tip>{
                                      {"cmdUndo", NothingToUndo},
                                      {"cmdRedo", NothingToRedo},
                                  }));
}

TEST_F(TooltipsTest, OfTheViewer)
{
    std::vector<Tip> expected{{"cmdPin", PinHim}, {"cmdLetGo", LetAllGo}};
    for (const char* closed :
         {"optPosition(1)", "optPosition(2)", "optPosition(3)", "optPosition(4)", "optGoaler", "chkRookie",
          "chkNoTrade", "chkNoApplyRerate", "chkEdit", "cmdSearch", "cmdNewPlayer", "cmdNewGoaler", "cmdErase"})
        expected.emplace_back(closed, "Records are kept by the league: a manager sees them, and changes none.");
    EXPECT_THAT(TipsOf("EditPlayer"), UnorderedElementsAreArray(expected));
}

TEST_F(TooltipsTest, OfTheSquadTable)
{
    MainWithLeague();
    TheStage.ShowSquad(Main());
    Settle();
    EXPECT_THAT(TipsOf(*TheStage.Squad()),
                UnorderedElementsAreArray(std::vector<Tip>{
                    {"chkDock", "Keep it beside the screen in front, where the display has room for both"},
                    {"chkMayBeAsked", "Those alone to whom the chosen team may make an offer"},
                    {"cmdPin", "Compare him with others who are pinned (Ctrl+M)"},
                    {"cmdPick", "Choose somebody first who is in a list of the screen in front."},
                }));
}

} // namespace
} // namespace dravik
