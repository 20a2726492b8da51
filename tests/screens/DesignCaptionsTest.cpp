#include "Captions.h"
#include "OnStage.h"
#include "screens/frmAbout.h"
#include "screens/frmCoach.h"
#include "screens/frmEditPlayer.h"
#include "screens/frmProspect.h"
#include "screens/frmTicket.h"
#include "screens/frmWait.h"

namespace dravik {
namespace {

using ::testing::UnorderedElementsAreArray;

// Screens as they are made, before anything is filled in.
class DesignCaptions : public OnStage {
protected:
    template <class T>
    std::vector<Caption> CaptionsOfNew()
    {
        const T screen(TheStage);
        return CaptionsOf(screen);
    }
};

TEST_F(DesignCaptions, OfTheMainScreen)
{
    const Caption captions[] = {
        {"lblTitle", "Dravik Hockey Simulator Client"},
        {"lblDate", "Client File Date : "},
        {"lblConference(1)", "No League File Load!"},
        {"lblConference(2)", "Conference Name"},
        {"lblDivision(1)", "Division Name"},
        {"lblDivision(2)", "Division Name"},
        {"lblDivision(3)", "Division Name"},
        {"lblDivision(4)", "Division Name"},
        {"lblDivision(5)", "Division Name"},
        {"lblDivision(6)", "Division Name"},
        {"cmdOpen", "Open ..."},
        {"cmdViewTeam", "View Team"},
        {"cmdSetRoster", "Set Roster"},
        {"cmdSetLines", "Set Lines"},
        {"cmdSetFarmLines", "Set Farm Lines"},
        {"cmdFreeAgents", "Free Agents"},
        {"cmdDraft", "Draft List"},
        {"mnuFile", "&File"},
        {"mnuOpen", "&Open ..."},
        {"mnuExit", "E&xit"},
        {"mnuTeam", "&Team"},
        {"mnuViewTeam", "&View Team"},
        {"mnuSetRoster", "Set &Roster"},
        {"mnuSetLines", "Set &Lines"},
        {"mnuSetFarmLines", "Set &Farm Lines"},
        {"mnuFreeAgents", "&Free Agents"},
        {"mnuDraft", "&Draft List"},
        {"mnuHelp", "&Help"},
        {"mnuAbout", "&About"},
        {"mnuOutputRatingCSV", "Output Ratings CSV"},
    };
    EXPECT_THAT(CaptionsOfNew<frmMain>(), UnorderedElementsAreArray(captions));
}

TEST_F(DesignCaptions, OfTheTeamScreen)
{
    const Caption captions[] = {
        {"grpTeam", "Team"},
        {"CmdRoster", "&Roster"},
        {"cmdLines", "&Lines"},
        {"cmdFarmLines", "&Farm Lines"},
        {"cmdTicketArena", "&Tickets && Arena"},
        {"grpLinesFile", "Lines File"},
        {"cmdSaveToFile", "&Save Lines"},
        {"cmdLoadFile", "L&oad Lines ..."},
        {"lblLoadLineCaption", "Times Loaded"},
        {"grpPro", "Pro Team"},
        {"txtTeamNameCaption", "Name"},
        {"txtCityCaption", "City"},
        {"txtAbbreCaption", "Abbreviation"},
        {"txtGmCaption", "General Manager"},
        {"txtProMoraleCaption", "Morale"},
        {"lblCoachCaption", "Coach"},
        {"cmdChangeCoach", "Change Coach"},
        {"cmdFirePro", "Fire Coach"},
        {"grpFarm", "Farm Team"},
        {"txtFarmTeamNameCaption", "Name"},
        {"txtFarmAbbreCaption", "Abbreviation"},
        {"txtFarmMoraleCaption", "Morale"},
        {"lblFarmCoachCaption", "Coach"},
        {"cmdFarmChangeCoach", "Change Coach"},
        {"cmdFireFarm", "Fire Coach"},
        {"grpContact", "Contact"},
        {"txtMessengerCaption", "&Messenger"},
        {"txtEmailCaption", "&E-mail"},
        {"grpFinance", "Finances"},
        {"lblFinanceCaption", "Bank Account"},
        {"lblProPayRollCaption", "Pro Payroll"},
        {"lblFarmPayRollCaption", "Farm Payroll"},
        {"cmdChangeFinance", "Change &Bank Account ..."},
        {"cmdPayrollBonus", "Payroll Bo&nus ..."},
        {"grpProjection", "Season Projection"},
        {"lblHGLeftCaption", "Home Games Left"},
        {"lblAverageAttendanceCaption", "Average Attendance"},
        {"lblAverageIncomeCaption", "Average Income"},
        {"lblEstimatedRevenueCaption", "Estimated Revenue"},
        {"lblGameLeftCaption", "Games Left"},
        {"lblExpensesPerGameCaption", "Expenses per Game"},
        {"lblEstimatedSeasonExpenseCaption", "Estimated Expenses"},
        {"lblEstimatedBankAccountCaption", "Estimated Bank Account"},
        {"cmdPassword", "Change &Password ..."},
        {"cmdProspect", "Prospects"},
        {"cmdExit", "E&xit"},
    };
    EXPECT_THAT(CaptionsOfNew<frmTeam>(), UnorderedElementsAreArray(captions));
}

TEST_F(DesignCaptions, OfTheViewer)
{
    const Caption captions[] = {
        {"", "Player"},
        {"", "Name : "},
        {"", "Team : "},
        {"", "Country :"},
        {"", "Age : "},
        {"", "Weight :"},
        {"", "Height :"},
        {"", "Position : "},
        {"optPosition(1)", "Center"},
        {"optPosition(2)", "Left Wing"},
        {"optPosition(3)", "Right Wing"},
        {"optPosition(4)", "Defense"},
        {"optGoaler", "Goalie"},
        {"chkRookie", "Rookie"},
        {"", "Contract"},
        {"", "Contract :"},
        {"", "Salary :"},
        {"chkNoTrade", "No Trade"},
        {"chkNoApplyRerate", "Do Not Apply Rerate"},
        {"", "Condition"},
        {"", "Condition :"},
        {"", "Injury :"},
        {"", "Suspension :"},
        {"", "Stats"},
        {"chkEdit", "Allow Edition"},
        {"cmdSearch", "Search Player"},
        {"cmdNewPlayer", "New Player"},
        {"cmdNewGoaler", "New Goalie"},
        {"cmdErase", "Erase"},
        {"cmdExit", "E&xit"},
    };
    EXPECT_THAT(CaptionsOfNew<frmEditPlayer>(), UnorderedElementsAreArray(captions));
}

TEST_F(DesignCaptions, OfTheTicketScreen)
{
    const Caption captions[] = {
        {"", "Arena"},        {"", "Arena Name:"},      {"", "Level Capacity"}, {"", "Level Ticket Price"},
        {"", "Level 1 :"},    {"", "Level 2 :"},        {"", "Level 3 :"},      {"", "Level 4 :"},
        {"", "Luxury Box :"}, {"", "Total Capacity :"}, {"cmdExit", "E&xit"},
    };
    EXPECT_THAT(CaptionsOfNew<frmTicket>(), UnorderedElementsAreArray(captions));
}

TEST_F(DesignCaptions, OfTheAboutScreen)
{
    const Caption captions[] = {
        {"lblTitle", "Dravik Hockey Simulator Client"},
        {"lblWebSite", "https://www.example.org/"},
        {"cmdExit", "E&xit"},
    };
    EXPECT_THAT(CaptionsOfNew<frmAbout>(), UnorderedElementsAreArray(captions));
}

TEST_F(DesignCaptions, OfTheScreensWithoutControls)
{
    const Caption coach[] = {{"frmCoach", "Coach"}};
    EXPECT_THAT(CaptionsOfNew<frmCoach>(), UnorderedElementsAreArray(coach));
    const Caption prospect[] = {{"frmProspect", "Prospect"}};
    EXPECT_THAT(CaptionsOfNew<frmProspect>(), UnorderedElementsAreArray(prospect));
}

TEST_F(DesignCaptions, OfTheWaitScreen)
{
    const Caption captions[] = {{"frmWait", "Dravik Hockey Simulator"}, {"lblWait", "Please Wait ....."}};
    const frmWait wait(nullptr);
    EXPECT_THAT(CaptionsOf(wait), UnorderedElementsAreArray(captions));
}

} // namespace
} // namespace dravik
