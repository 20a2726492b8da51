#pragma once

#include "DesignWords.h"

namespace dravik {

// Every word of the main screen before a league is open; its title, and what it says of the chosen team, come with the start.
inline std::vector<DesignWords> MainScreenWords(const std::string& title, const std::string& chosen)
{
    return {
        {"frmMain", title},
        {"mnuFile", "&File"},
        {"mnuOpen", "&Open ..."},
        {"mnuExit", "E&xit"},
        {"mnuTeam", "&Team"},
        {"mnuViewTeam", "&View Team"},
        {"mnuSetRoster", "Set &Roster"},
        {"mnuSetLines", "Set &Lines"},
        {"mnuSetFarmLines", "Set &Farm Lines"},
        {"mnuFreeAgents", "Free &Agents"},
        {"mnuDraft", "&Draft List"},
        {"mnuHelp", "&Help"},
        {"mnuAbout", "&About"},
        {"mnuOutputRatingCSV", "Output Ratings CSV"},
        {"lblTitle", "Dravik Hockey Simulator Client"},
        {"lblDate", "Client File Date : "},
        {"lblConference(1)", "No League File Load!"},
        {"lblDivision(1)", "Division Name"},
        {"lstDivision(1)", ""},
        {"lblDivision(2)", "Division Name"},
        {"lstDivision(2)", ""},
        {"lblDivision(3)", "Division Name"},
        {"lstDivision(3)", ""},
        {"lblConference(2)", "Conference Name"},
        {"lblDivision(4)", "Division Name"},
        {"lstDivision(4)", ""},
        {"lblDivision(5)", "Division Name"},
        {"lstDivision(5)", ""},
        {"lblDivision(6)", "Division Name"},
        {"lstDivision(6)", ""},
        {"cmdOpen", "Open ..."},
        {"lblChosen", chosen},
        {"lblChosenPlace", ""},
        {"lblSaved", ""},
        {"cmdViewTeam", "View Team"},
        {"cmdSetRoster", "Set Roster"},
        {"cmdSetLines", "Set Lines"},
        {"cmdSetFarmLines", "Set Farm Lines"},
        {"cmdFreeAgents", "Free Agents"},
        {"cmdDraft", "Draft List"},
        {"lblSettingsSetAside", ""},
        {"lblSettingsUnwritten", ""},
        {"lblDamaged", ""},
        {"lblUnsavedWork", ""},
        {"cmdBringBack", "Bring Back"},
        {"cmdForget", "Forget"},
        {"lblJournalUnwritten", ""},
    };
}

} // namespace dravik
