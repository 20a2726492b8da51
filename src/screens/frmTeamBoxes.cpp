#include "screens/frmTeam.h"

#include "league/Arithmetic.h"
#include "league/Platform.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "screens/Stage.h"
#include "session/Routines.h"

#include <cmath>

// What the title and the boxes of the team screen show, and what a box does when the focus leaves it.
namespace dravik {

namespace {

Team& OwnTeam() { return Teams[CurrentTeam]; }

int OwnNumber() { return static_cast<int>(CurrentTeam); }

// `CheckInput` refuses an empty name before this sees it.
bool TakeName(const std::string& text, const std::string& warning, const std::function<void()>& store)
{
    if (text.empty()) {
        ShowBox(warning, box::Warning);
        return false;
    }
    store();
    return true;
}

bool TakeAbbreviation(const std::string& text, Text<3>& field)
{
    constexpr std::size_t length = 3;
    if (text.size() != length) {
        ShowBox("Abbreviation must be 3 characters long!", box::Warning);
        return false;
    }
    field = text;
    return true;
}

bool TakeMorale(EditBox* box, Int16& field)
{
    if (std::nearbyint(LeadingNumber(FromQString(box->text()))) < 1)
        box->setText("1");
    field = RoundToInt16(LeadingNumber(FromQString(box->text())));
    return true;
}

} // namespace

void frmTeam::ShowName(const Team& team)
{
    SetTitle(ToQString(WindowTitle + " - ") + Shown(team.Name));
    lblTitle->setText(Shown(team.Name));
}

void frmTeam::ShowBoxes(const Team& team)
{
    ShowTexts(team);
    txtProMorale->setText(Shown(team.ProMorale));
    txtFarmMorale->setText(Shown(team.Farm.FarmMorale));
}

void frmTeam::ShowTexts(const Team& team)
{
    txtTeamName->setText(Shown(team.Name));
    txtAbbre->setText(Shown(team.Abbre));
    txtCity->setText(Shown(team.City));
    txtGm->setText(Shown(team.Gm));
    txtFarmTeamName->setText(Shown(team.Farm.Name));
    txtFarmAbbre->setText(Shown(team.Farm.Abbre));
    txtMessenger->setText(Shown(team.Messenger));
    txtEmail->setText(Shown(team.Email));
}

void frmTeam::TakeText(EditBox* box, InputMode mode, bool required, const std::function<bool(const std::string&)>& rule)
{
    if (ListEventGuard)
        return;
    Reporting(" in " + FromQString(box->objectName()) + "_LostFocus!", [&] {
        const std::string text = FromQString(box->text());
        const bool accepted = CheckInput(text, mode, required);
        bool taken = false;
        try {
            taken = accepted && rule(text);
        } catch (...) {
            ShowBoxes(OwnTeam());
            throw;
        }
        if (accepted)
            Modified = true;
        if (taken) {
            ShowTexts(OwnTeam());
            return;
        }
        ListEventGuard = true;
        box->TakeFocusBack();
        ListEventGuard = false;
    });
}

void frmTeam::txtTeamName_LostFocus()
{
    TakeText(txtTeamName, InputMode::NumbersAndLetters, true, [this](const std::string& text) {
        return TakeName(text, "Team Name must be at least one character!", [&] {
            Team& team = OwnTeam();
            TeamNews(OwnNumber(), "Team Name Change : " + team.Name.Trimmed() + " changed name to " + text);
            team.Name = text;
            ShowName(team);
            Owner.PlaceTeam();
        });
    });
}

void frmTeam::txtFarmTeamName_LostFocus()
{
    TakeText(txtFarmTeamName, InputMode::NumbersAndLetters, true, [](const std::string& text) {
        return TakeName(text, "Farm Team Name must be at least one character!", [&] {
            FarmTeam& farm = OwnTeam().Farm;
            TeamNews(OwnNumber(), "Team Name Change : " + farm.Name.Trimmed() + " changed name to " + text);
            farm.Name = text;
        });
    });
}

void frmTeam::txtAbbre_LostFocus()
{
    TakeText(txtAbbre, InputMode::Letters, true,
             [](const std::string& text) { return TakeAbbreviation(text, OwnTeam().Abbre); });
}

void frmTeam::txtFarmAbbre_LostFocus()
{
    TakeText(txtFarmAbbre, InputMode::Letters, true,
             [](const std::string& text) { return TakeAbbreviation(text, OwnTeam().Farm.Abbre); });
}

void frmTeam::txtCity_LostFocus()
{
    TakeText(txtCity, InputMode::NumbersAndLetters, false, [](const std::string& text) {
        OwnTeam().City = text;
        return true;
    });
}

void frmTeam::txtGm_LostFocus()
{
    TakeText(txtGm, InputMode::Letters, false, [](const std::string& text) {
        Team& team = OwnTeam();
        const std::string change = "General Manager Change : " + team.Name.Trimmed();
        if (!RemoveSpaces(team.Gm.Raw()).empty())
            TeamNews(OwnNumber(), change + " fired general manager " + team.Gm.Trimmed());
        if (!RemoveSpaces(text).empty())
            TeamNews(OwnNumber(), change + " hired general manager " + text);
        team.Gm = text;
        return true;
    });
}

void frmTeam::txtProMorale_LostFocus()
{
    TakeText(txtProMorale, InputMode::Numbers, false,
             [this](const std::string&) { return TakeMorale(txtProMorale, OwnTeam().ProMorale); });
}

void frmTeam::txtFarmMorale_LostFocus()
{
    TakeText(txtFarmMorale, InputMode::Numbers, false,
             [this](const std::string&) { return TakeMorale(txtFarmMorale, OwnTeam().Farm.FarmMorale); });
}

void frmTeam::TakeAddress(EditBox* box, Text<40>& field, std::string_view news)
{
    field = FromQString(box->text());
    box->setText(Shown(field));
    LeagueNews(OwnTeam().Name.Trimmed() + std::string(news) + field.Trimmed() + ".");
    Modified = true;
}

void frmTeam::txtEmail_LostFocus() { TakeAddress(txtEmail, OwnTeam().Email, " Email Address was change to "); }

void frmTeam::txtMessenger_LostFocus()
{
    TakeAddress(txtMessenger, OwnTeam().Messenger, " Messenger Address was change to ");
}

} // namespace dravik
