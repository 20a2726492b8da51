#include "DesignWords.h"
#include "MainScreenWords.h"
#include "OnStage.h"
#include "screens/ElementName.h"
#include "screens/main/frmAbout.h"
#include "screens/main/frmWait.h"
#include "screens/market/frmDraft.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/player/frmCoach.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/player/frmProspect.h"
#include "screens/roster/frmRoster.h"
#include "screens/team/frmTicket.h"

#include <memory>

// Every word of every screen as it is made, before anything is filled in; those of the lines screens stand in a test of
// their own.
namespace dravik {
namespace {

using ::testing::UnorderedElementsAreArray;

using DesignWordsTest = OnStage;

// The elements of an array of labels or boxes that say nothing yet.
void AddElements(std::vector<DesignWords>& expected, const char* name, int first, int last)
{
    for (int index = first; index <= last; ++index)
        expected.push_back({ElementName(name, index).toStdString(), ""});
}

// What stands beside ratings that are held against somebody who is pinned.
void AddPins(std::vector<DesignWords>& expected)
{
    AddElements(expected, "lblGhost", 1, 16);
    expected.push_back({"lblPinned", ""});
    expected.push_back({"cmdPin", "Pin", "Pin him to hold others against him"});
    expected.push_back({"cmdLetGo", "\u00D7", "Let all go who are pinned"});
}

TEST_F(DesignWordsTest, OfTheMainScreen)
{
    const auto screen = std::make_unique<frmMain>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(MainScreenWords("", "")));
}

TEST_F(DesignWordsTest, OfTheTeamScreen)
{
    std::vector<DesignWords> expected = {
        {"frmTeam", ""},
        {"lblTitle", ""},
        {"lblDivision", ""},
        {"lblConference", ""},
        {"grpTeam", "Team"},
        {"CmdRoster", "&Roster"},
        {"cmdLines", "&Lines"},
        {"cmdFarmLines", "&Farm Lines"},
        {"cmdTicketArena", "&Tickets && Arena"},
        {"grpLinesFile", "Lines File"},
        {"lblLoadLineCaption", "Times Loaded", "", "lblLoadLine"},
        {"cmdSaveToFile", "&Save Lines"},
        {"cmdLoadFile", "L&oad Lines ..."},
        {"lblLoadLine", ""},
        {"lblSaveHint", ""},
        {"grpPro", "Pro Team"},
        {"txtTeamNameCaption", "Name", "", "txtTeamName"},
        {"txtTeamName", "", "Name"},
        {"txtCityCaption", "City", "", "txtCity"},
        {"txtCity", "", "City"},
        {"txtAbbreCaption", "Abbreviation", "", "txtAbbre"},
        {"txtAbbre", "", "Abbreviation"},
        {"txtGmCaption", "General Manager", "", "txtGm"},
        {"txtGm", "", "General Manager"},
        {"txtProMoraleCaption", "Morale", "", "txtProMorale"},
        {"txtProMorale", "", "Morale"},
        {"lblCoachCaption", "Coach", "", "lblCoach"},
        {"lblCoach", ""},
        {"cmdChangeCoach", "Change Coach"},
        {"cmdFirePro", "Fire Coach"},
        {"grpFarm", "Farm Team"},
        {"txtFarmTeamNameCaption", "Name", "", "txtFarmTeamName"},
        {"txtFarmTeamName", "", "Farm: Name"},
        {"txtFarmAbbreCaption", "Abbreviation", "", "txtFarmAbbre"},
        {"txtFarmAbbre", "", "Farm: Abbreviation"},
        {"txtFarmMoraleCaption", "Morale", "", "txtFarmMorale"},
        {"txtFarmMorale", "", "Farm: Morale"},
        {"lblFarmCoachCaption", "Coach", "", "lblFarmCoach"},
        {"lblFarmCoach", ""},
        {"cmdFarmChangeCoach", "Change Coach", "Farm: Change Coach"},
        {"cmdFireFarm", "Fire Coach", "Farm: Fire Coach"},
        {"grpContact", "Contact"},
        {"txtMessengerCaption", "&Messenger", "", "txtMessenger"},
        {"txtMessenger", "", "Messenger"},
        {"txtEmailCaption", "&E-mail", "", "txtEmail"},
        {"txtEmail", "", "E-mail"},
        {"grpFinance", "Finances"},
        {"lblFinanceCaption", "Bank Account", "", "lblFinance"},
        {"lblFinance", ""},
        {"lblProPayRollCaption", "Pro Payroll", "", "lblProPayRoll"},
        {"lblProPayRoll", ""},
        {"lblFarmPayRollCaption", "Farm Payroll", "", "lblFarmPayRoll"},
        {"lblFarmPayRoll", ""},
        {"cmdChangeFinance", "Change &Bank Account ..."},
        {"cmdPayrollBonus", "Payroll Bo&nus ..."},
        {"grpProjection", "Season Projection"},
        {"lblHGLeftCaption", "Home Games Left", "", "lblHGLeft"},
        {"lblHGLeft", ""},
        {"lblAverageAttendanceCaption", "Average Attendance", "", "lblAverageAttendance"},
        {"lblAverageAttendance", ""},
        {"lblAverageIncomeCaption", "Average Income", "", "lblAverageIncome"},
        {"lblAverageIncome", ""},
        {"lblEstimatedRevenueCaption", "Estimated Revenue", "", "lblEstimatedRevenue"},
        {"lblEstimatedRevenue", ""},
        {"lblGameLeftCaption", "Games Left", "", "lblGameLeft"},
        {"lblGameLeft", ""},
        {"lblExpensesPerGameCaption", "Expenses per Game", "", "lblExpensesPerGame"},
        {"lblExpensesPerGame", ""},
        {"lblEstimatedSeasonExpenseCaption", "Estimated Expenses", "", "lblEstimatedSeasonExpense"},
        {"lblEstimatedSeasonExpense", ""},
        {"lblEstimatedBankAccountCaption", "Estimated Bank Account", "", "lblEstimatedBankAccount"},
        {"lblEstimatedBankAccount", ""},
        {"cmdPassword", "Change &Password ..."},
        {"cmdProspect", "Prospects"},
        {"cmdCalendar", "&Calendar"},
        {"cmdGraphs", "&Graphs"},
        {"cmdExit", "E&xit"},
        {"cmdUndo", "\u21B6", "Nothing to undo"},
        {"cmdRedo", "\u21B7", "Nothing to redo"},
        {"lblSaved", ""},
        {"cmdShowInFolder", "Show &in Folder"},
        {"cmdCopyPath", "Cop&y Path"},
        {"cmdTakeLines", "Ta&ke Lines From ..."},
        {"mnuTakeBoth", "Pro &and Farm Lines ..."},
        {"mnuTakePro", "&Pro Lines ..."},
        {"mnuTakeFarm", "&Farm Lines ..."},
        {"mnuMovedOn", "Moved &On by the Days Played Since"},
        {"grpEvening", "This Evening"},
        {"lblChanges", ""},
        {"lstChanges", ""},
    };
    const std::pair<const char*, const char*> tasks[] = {{"Roster", "Roster"},        {"Lines", "Lines"},
                                                         {"FarmLines", "Farm Lines"}, {"Tickets", "Tickets & Arena"},
                                                         {"Offers", "Free Agents"},   {"Ranking", "Draft List"}};
    for (const auto& [name, caption] : tasks) {
        const std::string row = std::string("Evening") + name;
        expected.push_back({"lbl" + row + "Caption", caption});
        expected.push_back({"lbl" + row, ""});
        expected.push_back({"lbl" + row + "Saved", ""});
        expected.push_back({"cmd" + row, "Open"});
    }
    const auto screen = std::make_unique<frmTeam>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
}

TEST_F(DesignWordsTest, OfTheRoster)
{
    std::vector<DesignWords> expected = {
        {"frmRoster", ""},
        {"", "Show : "},
        {"lblTeamName", ""},
        {"lblComplete", ""},
        {"chkPosition(1)", "Center"},
        {"chkPosition(2)", "Left Wing"},
        {"chkPosition(3)", "Right Wing"},
        {"chkPosition(4)", "Defense"},
        {"chkPosition(5)", "Goalie"},
        {"cmdToScratchesFromPro", "To &Scratch -->"},
        {"cmdToPro", "<-- To &Pro"},
        {"cmdToFarm", "To &Farm -->"},
        {"cmdToScratchesFromFarm", "<-- To S&cratch"},
        {"lblPlayer(2)", "Pro Players"},
        {"lstPlayer(2)", "", "Pro Players"},
        {"lblPlayer(1)", "Scratch Players"},
        {"lstPlayer(1)", "", "Scratch Players"},
        {"lblPlayer(0)", "Farm Players"},
        {"lstPlayer(0)", "", "Farm Players"},
        {"", "Stats"},
        {"lblStatLabel(0)", "PO"},
        {"lblStatName", ""},
        {"lblStatHint", "Pick a player to see his ratings"},
        {"cmdCaptain", "Make Captai&n"},
        {"cmdAssistant", "Make Ass&istant"},
        {"cmdTradeAvailable", "&Trade Available"},
        {"chkProtected", "Pr&otected"},
        {"cmdRelease", "Release"},
        {"cmdSendToWaiver", "Send To Waiver"},
        {"chkNoApplyRerate", "Do Not Apply Rerate"},
        {"chkNoTrade", "No Trade"},
        {"lblProtectedTotal", ""},
        {"lblRelease", ""},
        {"lblPayroll", ""},
        {"", "Payroll"},
        {"cmdAutoRoster", "&Auto Made Roster"},
        {"cmdAutoRosterPartial", "Partial A&uto Made Roster"},
        {"cmdShare", "Share ..."},
        {"mnuShareRosterText", "Copy as Text"},
        {"mnuShareRosterForum", "Copy for Forum"},
        {"mnuShareRosterMarkdown", "Copy as Markdown"},
        {"mnuShareRosterPrint", "Print ..."},
        {"mnuShareRosterPreview", "Print Preview ..."},
        {"mnuShareRosterPdf", "Save as PDF ..."},
        {"mnuShareRosterHtml", "Save as HTML ..."},
        {"mnuShareSizeA4", "Paper: A4"},
        {"mnuShareSizeLetter", "Paper: Letter"},
        {"cmdExit", "E&xit"},
        {"cmdUndo", "\u21B6", "Nothing to undo"},
        {"cmdRedo", "\u21B7", "Nothing to redo"},
    };
    AddElements(expected, "lblStat", 0, 16);
    AddElements(expected, "lblStatLabel", 1, 16);
    AddPins(expected);
    const auto screen = std::make_unique<frmRoster>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
    for (const QCheckBox* filter : screen->chkPosition)
        EXPECT_TRUE(filter->isChecked()) << filter->text().toStdString();
}

TEST_F(DesignWordsTest, OfTheViewer)
{
    std::vector<DesignWords> expected = {
        {"frmEditPlayer", ""},
        {"lstPlayer", "", "Players"},
        {"", "Player"},
        {"", "Name : ", "", "txtName"},
        {"txtName", "", "Name"},
        {"", "Team : ", "", "txtTeam"},
        {"txtTeam", "", "Team"},
        {"", "Country :", "", "txtCountry"},
        {"txtCountry", "", "Country"},
        {"", "Age : ", "", "txtAge"},
        {"txtAge", "", "Age"},
        {"", "Weight :", "", "txtWeight"},
        {"txtWeight", "", "Weight"},
        {"", "Height :", "", "txtHeight"},
        {"txtHeight", "", "Height"},
        {"", "Position : "},
        {"optPosition(1)", "Center"},
        {"optPosition(2)", "Left Wing"},
        {"optPosition(3)", "Right Wing"},
        {"optPosition(4)", "Defense"},
        {"optGoaler", "Goalie"},
        {"chkRookie", "Rookie"},
        {"", "Stats"},
        {"", "Condition"},
        {"", "Condition :", "", "txtCondition"},
        {"txtCondition", "", "Condition"},
        {"", "Injury :", "", "txtInjury"},
        {"txtInjury", "", "Injury"},
        {"", "Suspension :", "", "txtSuspension"},
        {"txtSuspension", "", "Suspension"},
        {"", "Contract"},
        {"", "Contract :", "", "txtContract"},
        {"txtContract", "", "Contract"},
        {"", "Salary :", "", "txtSalary"},
        {"txtSalary", "", "Salary"},
        {"chkNoTrade", "No Trade"},
        {"chkNoApplyRerate", "Do Not Apply Rerate"},
        {"chkEdit", "Allow Edition"},
        {"cmdSearch", "Search Player"},
        {"cmdNewPlayer", "New Player"},
        {"cmdNewGoaler", "New Goalie"},
        {"cmdErase", "Erase"},
        {"cmdExit", "E&xit"},
    };
    AddElements(expected, "lblStatLabel", 1, 16);
    AddPins(expected);
    AddElements(expected, "txtStats", 1, 16);
    const auto screen = std::make_unique<frmEditPlayer>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
}

TEST_F(DesignWordsTest, OfTheTickets)
{
    const std::vector<DesignWords> expected = {
        {"frmTicket", ""},
        {"lblTitle", ""},
        {"", "Arena"},
        {"", "Arena Name:"},
        {"txtArena", "", "Arena Name"},
        {"", "Level Capacity"},
        {"", "Level Ticket Price"},
        {"", "Level 1 :"},
        {"txtArenaCapacity(1)", "", "Level 1 : Level Capacity"},
        {"txtTicket(1)", "", "Level 1 : Level Ticket Price"},
        {"", "Level 2 :"},
        {"txtArenaCapacity(2)", "", "Level 2 : Level Capacity"},
        {"txtTicket(2)", "", "Level 2 : Level Ticket Price"},
        {"", "Level 3 :"},
        {"txtArenaCapacity(3)", "", "Level 3 : Level Capacity"},
        {"txtTicket(3)", "", "Level 3 : Level Ticket Price"},
        {"", "Level 4 :"},
        {"txtArenaCapacity(4)", "", "Level 4 : Level Capacity"},
        {"txtTicket(4)", "", "Level 4 : Level Ticket Price"},
        {"", "Luxury Box :"},
        {"txtArenaCapacity(5)", "", "Luxury Box : Level Capacity"},
        {"txtTicket(5)", "", "Luxury Box : Level Ticket Price"},
        {"", "Total Capacity :"},
        {"lblArenaCapacityTotal", ""},
        {"cmdExit", "E&xit"},
        {"cmdUndo", "\u21B6", "Nothing to undo"},
        {"cmdRedo", "\u21B7", "Nothing to redo"},
    };
    const auto screen = std::make_unique<frmTicket>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
}

TEST_F(DesignWordsTest, OfTheOffers)
{
    std::vector<DesignWords> expected = {
        {"frmFreeAgentClient", ""},
        {"lblTeam", ""},
        {"lblInfo", ""},
        {"lblPlayer", "&Players", "", "lstPlayers"},
        {"chkShowPlayerWithOffer", "Show players who has received an &offer only"},
        {"lstPlayers", "", "Players"},
        {"Stats", "Stats"},
        {"lblStatLabel(0)", "PO"},
        {"lblStatName", ""},
        {"lblStatHint", "Pick a player to see his ratings"},
        {"lblAge", "Age"},
        {"lblSalary", "Present salary"},
        {"lblStatus", "Status : "},
        {"txtAge", "", "Age"},
        {"txtSalary", "", "Present salary"},
        {"grpOffer", "Offer"},
        {"lblOffer", "Sa&lary:", "", "txtOffer"},
        {"txtOffer", "", "Salary:"},
        {"lblDuration", "&Duration:", "", "txtDuration"},
        {"txtDuration", "", "Duration:"},
        {"lblBonus", "&Bonus:", "", "txtBonus"},
        {"txtBonus", "", "Bonus:"},
        {"lblComment", "&Comments: (Max 1000 Characters)", "", "txtComment"},
        {"txtComment", "", "Comments: (Max 1000 Characters)"},
        {"lblMaxOffer", ""},
        {"lblOffersMade", ""},
        {"lblOffersCost", ""},
        {"cmdSearch", "Sea&rch Player"},
        {"cmdFindNext", "Find Next"},
        {"cmdLoad", "Load Off&ers ..."},
        {"cmdBringBack", "Bring Bac&k Offers"},
        {"cmdWhatIf", "&What If"},
        {"cmdSaveToFile", "Save to &File"},
        {"cmdExit", "E&xit"},
        {"cmdUndo", "\u21B6", "Nothing to undo"},
        {"cmdRedo", "\u21B7", "Nothing to redo"},
        {"lblSaved", ""},
        {"cmdShowInFolder", "Show &in Folder"},
        {"cmdCopyPath", "Cop&y Path"},
    };
    AddElements(expected, "txtStats", 0, 16);
    AddElements(expected, "lblStatLabel", 1, 16);
    AddPins(expected);
    const auto screen = std::make_unique<frmFreeAgentClient>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
    for (int row = 1; row <= 16; ++row) {
        EXPECT_EQ(screen->txtStats[row]->objectName().toStdString(), "txtStats(" + std::to_string(row) + ")");
        EXPECT_EQ(screen->lblStatLabel[row]->objectName().toStdString(), "lblStatLabel(" + std::to_string(row) + ")");
    }
}

TEST_F(DesignWordsTest, OfTheDraftList)
{
    const std::vector<DesignWords> expected = {
        {"frmDraft", ""},
        {"lblShow", "Show : "},
        {"lblTeam", "Draft List For : "},
        {"chkPosition(1)", "C"},
        {"chkPosition(2)", "LW"},
        {"chkPosition(3)", "RW"},
        {"chkPosition(4)", "DF"},
        {"chkPosition(5)", "G"},
        {"cmdChoose", "-->", "Add to the draft list"},
        {"cmdRemove", "<--", "Take off the draft list"},
        {"cmdUp", "&UP"},
        {"cmdDown", "&Down"},
        {"lblPlayers", "Players"},
        {"lstPlayers", "", "Players"},
        {"lblTotal", "0 Players List"},
        {"lstDraftList", "", "Draft List"},
        {"cmdSearch", "Search &Player"},
        {"cmdFindNext", "Find Next"},
        {"cmdLoad", "&Load List ..."},
        {"cmdBringBack", "Bring &Back List"},
        {"cmdSaveToFile", "&Save to File"},
        {"cmdExit", "E&xit"},
        {"cmdUndo", "\u21B6", "Nothing to undo"},
        {"cmdRedo", "\u21B7", "Nothing to redo"},
        {"lblSaved", ""},
        {"cmdShowInFolder", "Show &in Folder"},
        {"cmdCopyPath", "Cop&y Path"},
    };
    const auto screen = std::make_unique<frmDraft>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
    EXPECT_EQ(screen->cmdChoose->toolTip(), "Add to the draft list");
    EXPECT_EQ(screen->cmdRemove->toolTip(), "Take off the draft list");
}

TEST_F(DesignWordsTest, OfTheAboutScreen)
{
    const std::vector<DesignWords> expected = {
        {"frmAbout", ""},
        {"lblTitle", "Dravik Hockey Simulator Client"},
        {"lblVersion", ""},
        {"lblThank", ""},
        {"lblWebSite", "https://www.example.org/"},
        {"lblThirdParty", "What others wrote, and its licences"},
        {"cmdExit", "E&xit"},
    };
    const auto screen = std::make_unique<frmAbout>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
}

TEST_F(DesignWordsTest, OfTheCoachScreen)
{
    const std::vector<DesignWords> expected = {
        {"frmCoach", "Coach"},
    };
    const auto screen = std::make_unique<frmCoach>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
}

TEST_F(DesignWordsTest, OfTheProspectScreen)
{
    const std::vector<DesignWords> expected = {
        {"frmProspect", "Prospect"},
    };
    const auto screen = std::make_unique<frmProspect>(TheStage); // too large for a stack
    EXPECT_THAT(DesignWordsOf(*screen), UnorderedElementsAreArray(expected));
}

TEST_F(DesignWordsTest, OfTheWaitScreen)
{
    const std::vector<DesignWords> expected = {{"frmWait", "Dravik Hockey Simulator"},
                                               {"lblWait", "Please Wait ....."}};
    const frmWait wait(nullptr);
    EXPECT_THAT(DesignWordsOf(wait), UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace dravik
