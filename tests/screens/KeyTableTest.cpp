#include "screens/panels/KeyTable.h"

#include <gtest/gtest.h>
#include <QGuiApplication>

namespace dravik {
namespace {

// Every key that the program tells of, as it is told.
constexpr KeyRow Expected[] = {
    {"*", KeyScope::Screen, "F1", "", "Keys, signs and ratings"},
    {"*", KeyScope::Screen, "Ctrl+T", "", "The squad table, and back from it"},
    {"frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket", KeyScope::Screen, "Ctrl+Z", "",
     "Undo"},
    {"frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket", KeyScope::Screen,
     "Ctrl+Shift+Z / Ctrl+Y", "", "Redo"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket frmEditPlayer frmCoach "
     "frmProspect",
     KeyScope::Screen, "Ctrl+Shift+C", "", "Calendar of the team, and away; Esc closes it too"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket frmEditPlayer frmCoach "
     "frmProspect",
     KeyScope::Screen, "Ctrl+Shift+G", "", "Graphs of the team, and away; Esc closes them too"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket frmEditPlayer frmCoach "
     "frmProspect",
     KeyScope::Screen, "Shift+F1", "", "The guide: an evening in ten steps"},
    {"frmMain", KeyScope::Screen, "", "", "Open a client file", QKeySequence::Open},
    {"frmMain", KeyScope::Screen, "", "", "Exit", QKeySequence::Quit},
    {"frmMain", KeyScope::Screen, "Ctrl+Return", "", "View the team"},
    {"frmMain", KeyScope::Screen, "Ctrl+R", "", "Set the roster"},
    {"frmMain", KeyScope::Screen, "Ctrl+L", "", "Set the lines"},
    {"frmMain", KeyScope::Screen, "Ctrl+Shift+L", "", "Set the farm's lines"},
    {"frmMain", KeyScope::Screen, "Ctrl+Shift+A", "", "Free agents"},
    {"frmMain", KeyScope::Screen, "Ctrl+D", "", "Draft list"},
    {"frmMain", KeyScope::Screen, "Ctrl+Shift+O", "", "Compare with another client file"},
    {"frmAbout frmCompare", KeyScope::Screen, "Esc", "", "Exit"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft", KeyScope::Screen, "Ctrl+I", "",
     "The card of a person"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmEditPlayer", KeyScope::Screen,
     "Ctrl+M", "", "Pin a person to hold others against him, or let him go"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmEditPlayer frmSquad",
     KeyScope::Screen, "Ctrl+Shift+P", "", "Let all go who are pinned"},
    {"frmFreeAgentClient frmDraft", KeyScope::Screen, "F3", "", "Find next"},
    {"frmLine frmFarmLine", KeyScope::Screen,
     "Ctrl+1 / Ctrl+2 / Ctrl+3 / Ctrl+4 / Ctrl+5 / Ctrl+6 / Ctrl+7 / Ctrl+8 / Ctrl+9 / Ctrl+0", "", "Day 1 to day 10"},
    {"frmLine frmFarmLine", KeyScope::Screen, "Ctrl+Tab", "", "Next page of the board"},
    {"frmLine frmFarmLine", KeyScope::Screen, "Ctrl+Shift+Tab", "", "Page before"},
    {"frmLine frmFarmLine", KeyScope::Screen, "F6", "", "From the list to the board and back"},
    {"frmLine frmFarmLine", KeyScope::Screen, "Ctrl+B", "",
     "The whole line-up on one sheet, and away; Esc closes it too"},
    {"frmLine frmFarmLine", KeyScope::Screen, "Ctrl+Shift+M", "", "Compare two lines or units; Esc closes it"},
    {"frmTeam", KeyScope::Screen, "F6", "", "To this evening, on to what changed, and back"},
    {"frmSquad", KeyScope::Screen, "Ctrl+F", "", "Type a part of a name"},
    {"frmSquad", KeyScope::Screen, "Ctrl+Tab", "", "Next table"},
    {"frmSquad", KeyScope::Screen, "Ctrl+Shift+Tab", "", "Table before"},
    {"frmSquad", KeyScope::Screen, "Alt+Down / Alt+Up", "", "Sort by the column at hand, downwards or upwards"},
    {"frmSquad", KeyScope::Screen, "Alt+Shift+Down / Alt+Shift+Up", "", "Sort by it behind the first column"},
    {"frmSquad", KeyScope::Screen, "Alt+Left / Alt+Right", "", "Move the column at hand"},
    {"frmSquad", KeyScope::Screen, "Ctrl+M", "", "Pin somebody to compare him with others, or let him go"},
    {"frmSquad", KeyScope::Screen, "Ctrl+C", "", "Copy the chosen rows"},
    {"frmSquad", KeyScope::Screen, "Ctrl+S", "", "Save the table as CSV"},
    {"frmSquad", KeyScope::Screen, "Esc", "", "Take back what was typed, or close"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmCompare", KeyScope::Control,
     "Up / Down / Home / End", "a list", "Choose somebody"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmCompare", KeyScope::Control,
     "letters", "a list", "Go to a name with these letters in it; Backspace takes one back"},
    {"frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft", KeyScope::Control,
     "Menu / right press", "a list", "A menu that pins somebody or lets all go; nobody is chosen"},
    {"frmLine frmFarmLine", KeyScope::Control, "Left / Right / Up / Down", "a slot", "Walk the board"},
    {"frmLine frmFarmLine", KeyScope::Control, "Space / Return", "a slot", "Place who is picked in the list"},
    {"frmLine frmFarmLine", KeyScope::Control, "F2 / Menu / a letter / right press", "a slot",
     "Pick who may stand there; Esc closes"},
    {"frmLine frmFarmLine", KeyScope::Control, "Ctrl+Space", "a slot",
     "Take somebody up, and have him change places; Esc lets him go"},
    {"frmLine frmFarmLine", KeyScope::Control, "drag", "a slot", "Drag from slot to slot: change places"},
    {"frmLine frmFarmLine", KeyScope::Control, "Shift+press / middle press", "a slot",
     "Look at who stands there without placing"},
    {"frmLine frmFarmLine", KeyScope::Control, "Left / Right", "the days", "Day before and day behind"},
    {"frmRoster", KeyScope::Control, "drag", "a list of the roster", "Drag to another list: move there"},
    {"frmRoster", KeyScope::Control, "Ctrl+press", "To Scratch", "On to the farm"},
};

TEST(KeyTableTest, TellsEveryKey)
{
    const auto rows = KeyTable();
    ASSERT_EQ(rows.size(), std::size(Expected));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_STREQ(rows[i].Screens, Expected[i].Screens) << i;
        EXPECT_EQ(rows[i].Scope, Expected[i].Scope) << i;
        EXPECT_STREQ(rows[i].Keys, Expected[i].Keys) << i;
        EXPECT_STREQ(rows[i].Where, Expected[i].Where) << i;
        EXPECT_STREQ(rows[i].Does, Expected[i].Does) << i;
        EXPECT_EQ(rows[i].Standard, Expected[i].Standard) << i;
    }
}

TEST(KeyTableTest, ARowIsOnItsScreensOrOnAll)
{
    const KeyRow all{"*", KeyScope::Screen, "F1", "", "Help"};
    const KeyRow lines{"frmLine frmFarmLine", KeyScope::Screen, "F6", "", "On"};
    for (const char* screen : {"frmMain", "frmLine", "frmFarmLine"})
        EXPECT_TRUE(IsOn(all, screen)) << screen;
    EXPECT_TRUE(IsOn(lines, "frmLine"));
    EXPECT_TRUE(IsOn(lines, "frmFarmLine"));
    EXPECT_FALSE(IsOn(lines, "frmFarm"));
    EXPECT_FALSE(IsOn(lines, "Line"));
}

TEST(KeyTableTest, TheDesktopsOwnKeyStandsForOneThatIsNotNamed)
{
    EXPECT_EQ(KeysOf({"*", KeyScope::Screen, "Alt+1 / Alt+2", "", "On"}), "Alt+1 / Alt+2");
    EXPECT_EQ(KeysOf({"*", KeyScope::Screen, "", "", "Open", QKeySequence::Open}),
              QKeySequence(QKeySequence::Open).toString());
}

} // namespace
} // namespace dravik
