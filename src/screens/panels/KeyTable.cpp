#include "screens/panels/KeyTable.h"

#include <QStringList>

namespace dravik {

namespace {

constexpr auto Everywhere = "*";
constexpr auto WithHistory = "frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket";
constexpr auto WithLooks =
    "frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmTicket frmEditPlayer "
    "frmCoach frmProspect";
constexpr auto OnLines = "frmLine frmFarmLine";
constexpr auto OnMain = "frmMain";
constexpr auto WithLists = "frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmCompare";
constexpr auto WithCards = "frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft";
constexpr auto WithPins = "frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmEditPlayer";
constexpr auto WithLetGo =
    "frmMain frmTeam frmRoster frmLine frmFarmLine frmFreeAgentClient frmDraft frmEditPlayer frmSquad";
constexpr auto OnMarket = "frmFreeAgentClient frmDraft";
constexpr auto Slot = "a slot";
constexpr auto List = "a list";

constexpr auto OnSquad = "frmSquad";

constexpr KeyRow Rows[] = {
    {Everywhere, KeyScope::Screen, "F1", "", "Keys, signs and ratings"},
    {Everywhere, KeyScope::Screen, "Ctrl+T", "", "The squad table, and back from it"},
    {WithHistory, KeyScope::Screen, "Ctrl+Z", "", "Undo"},
    {WithHistory, KeyScope::Screen, "Ctrl+Shift+Z / Ctrl+Y", "", "Redo"},
    {WithLooks, KeyScope::Screen, "Ctrl+Shift+C", "", "Calendar of the team, and away; Esc closes it too"},
    {WithLooks, KeyScope::Screen, "Ctrl+Shift+G", "", "Graphs of the team, and away; Esc closes them too"},
    {WithLooks, KeyScope::Screen, "Shift+F1", "", "The guide: an evening in ten steps"},
    {OnMain, KeyScope::Screen, "", "", "Open a client file", QKeySequence::Open},
    {OnMain, KeyScope::Screen, "", "", "Exit", QKeySequence::Quit},
    {OnMain, KeyScope::Screen, "Ctrl+Return", "", "View the team"},
    {OnMain, KeyScope::Screen, "Ctrl+R", "", "Set the roster"},
    {OnMain, KeyScope::Screen, "Ctrl+L", "", "Set the lines"},
    {OnMain, KeyScope::Screen, "Ctrl+Shift+L", "", "Set the farm's lines"},
    {OnMain, KeyScope::Screen, "Ctrl+Shift+A", "", "Free agents"},
    {OnMain, KeyScope::Screen, "Ctrl+D", "", "Draft list"},
    {OnMain, KeyScope::Screen, "Ctrl+Shift+O", "", "Compare with another client file"},
    {"frmAbout frmCompare", KeyScope::Screen, "Esc", "", "Exit"},
    {WithCards, KeyScope::Screen, "Ctrl+I", "", "The card of a person"},
    {WithPins, KeyScope::Screen, "Ctrl+M", "", "Pin a person to hold others against him, or let him go"},
    {WithLetGo, KeyScope::Screen, "Ctrl+Shift+P", "", "Let all go who are pinned"},
    {OnMarket, KeyScope::Screen, "F3", "", "Find next"},
    {OnLines, KeyScope::Screen,
     "Ctrl+1 / Ctrl+2 / Ctrl+3 / Ctrl+4 / Ctrl+5 / Ctrl+6 / Ctrl+7 / Ctrl+8 / Ctrl+9 / Ctrl+0", "", "Day 1 to day 10"},
    {OnLines, KeyScope::Screen, "Ctrl+Tab", "", "Next page of the board"},
    {OnLines, KeyScope::Screen, "Ctrl+Shift+Tab", "", "Page before"},
    {OnLines, KeyScope::Screen, "F6", "", "From the list to the board and back"},
    {OnLines, KeyScope::Screen, "Ctrl+B", "", "The whole line-up on one sheet, and away; Esc closes it too"},
    {OnLines, KeyScope::Screen, "Ctrl+Shift+M", "", "Compare two lines or units; Esc closes it"},
    {"frmTeam", KeyScope::Screen, "F6", "", "To this evening, on to what changed, and back"},
    {OnSquad, KeyScope::Screen, "Ctrl+F", "", "Type a part of a name"},
    {OnSquad, KeyScope::Screen, "Ctrl+Tab", "", "Next table"},
    {OnSquad, KeyScope::Screen, "Ctrl+Shift+Tab", "", "Table before"},
    {OnSquad, KeyScope::Screen, "Alt+Down / Alt+Up", "", "Sort by the column at hand, downwards or upwards"},
    {OnSquad, KeyScope::Screen, "Alt+Shift+Down / Alt+Shift+Up", "", "Sort by it behind the first column"},
    {OnSquad, KeyScope::Screen, "Alt+Left / Alt+Right", "", "Move the column at hand"},
    {OnSquad, KeyScope::Screen, "Ctrl+M", "", "Pin somebody to compare him with others, or let him go"},
    {OnSquad, KeyScope::Screen, "Ctrl+C", "", "Copy the chosen rows"},
    {OnSquad, KeyScope::Screen, "Ctrl+S", "", "Save the table as CSV"},
    {OnSquad, KeyScope::Screen, "Esc", "", "Take back what was typed, or close"},
    {WithLists, KeyScope::Control, "Up / Down / Home / End", List, "Choose somebody"},
    {WithLists, KeyScope::Control, "letters", List, "Go to a name with these letters in it; Backspace takes one back"},
    {WithCards, KeyScope::Control, "Menu / right press", List,
     "A menu that pins somebody or lets all go; nobody is chosen"},
    {OnLines, KeyScope::Control, "Left / Right / Up / Down", Slot, "Walk the board"},
    {OnLines, KeyScope::Control, "Space / Return", Slot, "Place who is picked in the list"},
    {OnLines, KeyScope::Control, "F2 / Menu / a letter / right press", Slot, "Pick who may stand there; Esc closes"},
    {OnLines, KeyScope::Control, "Ctrl+Space", Slot, "Take somebody up, and have him change places; Esc lets him go"},
    {OnLines, KeyScope::Control, "drag", Slot, "Drag from slot to slot: change places"},
    {OnLines, KeyScope::Control, "Shift+press / middle press", Slot, "Look at who stands there without placing"},
    {OnLines, KeyScope::Control, "Left / Right", "the days", "Day before and day behind"},
    {"frmRoster", KeyScope::Control, "drag", "a list of the roster", "Drag to another list: move there"},
    {"frmRoster", KeyScope::Control, "Ctrl+press", "To Scratch", "On to the farm"},
};

} // namespace

QString KeysOf(const KeyRow& row)
{
    return row.Standard == QKeySequence::UnknownKey ? QString(row.Keys) : QKeySequence(row.Standard).toString();
}

std::span<const KeyRow> KeyTable() { return Rows; }

bool IsOn(const KeyRow& row, const QString& screen)
{
    const QString screens(row.Screens);
    return screens == Everywhere || screens.split(' ').contains(screen);
}

} // namespace dravik
