#include "desk/Contacts.h"
#include "desk/Morale.h"
#include "desk/TeamNames.h"
#include "machine/Reporting.h"
#include "screens/EventGuard.h"
#include "screens/panels/Crest.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "screens/Stage.h"
#include "screens/team/frmTeam.h"
#include "session/Session.h"

// What the title and the boxes of the team screen show, and what a box does when the focus leaves it.
namespace dravik {

void frmTeam::ShowName(const Team& team)
{
    SetTitle(ToQString(WindowTitle + " - ") + Shown(team.Name));
    lblTitle->setText(Shown(team.Name));
    findChild<CrestLabel*>()->update();
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

void frmTeam::TakeText(EditBox* box, const std::function<bool(const std::string&)>& take)
{
    if (ListEventGuard)
        return;
    Reporting(Machine(), " in " + FromQString(box->objectName()) + "_LostFocus!", [&] {
        bool taken = false;
        try {
            taken = take(FromQString(box->text()));
        } catch (...) {
            ShowBoxes(OwnTeam());
            throw;
        }
        if (taken) {
            ShowTexts(OwnTeam());
            return;
        }
        const EventGuard guard;
        box->TakeFocusBack();
    });
}

void frmTeam::TakeText(EditBox* box, bool (*take)(const Work&, int, const std::string&))
{
    TakeText(box, [take](const std::string& text) { return take(OpenWork(), OwnNumber(), text); });
}

void frmTeam::TakeMorale(EditBox* box, TypedNumber (*take)(const Work&, int, std::string_view))
{
    TakeText(box, [&](const std::string& text) {
        const TypedNumber typed = take(OpenWork(), OwnNumber(), text);
        if (typed.Shown)
            box->setText(Shown(*typed.Shown));
        return typed.Accepted;
    });
}

void frmTeam::TakeAddress(EditBox* box, const Text<40>& address, void (*take)(const Work&, int, std::string_view))
{
    take(OpenWork(), OwnNumber(), FromQString(box->text()));
    box->setText(Shown(address));
}

void frmTeam::txtTeamName_LostFocus()
{
    TakeText(txtTeamName, [this](const std::string& text) {
        if (!RenameTeam(OpenWork(), OwnNumber(), text))
            return false;
        ShowName(OwnTeam());
        Owner.PlaceTeam();
        return true;
    });
}

void frmTeam::txtFarmTeamName_LostFocus() { TakeText(txtFarmTeamName, RenameFarm); }

void frmTeam::txtAbbre_LostFocus() { TakeText(txtAbbre, AbbreviateTeam); }

void frmTeam::txtFarmAbbre_LostFocus() { TakeText(txtFarmAbbre, AbbreviateFarm); }

void frmTeam::txtCity_LostFocus() { TakeText(txtCity, NameCity); }

void frmTeam::txtGm_LostFocus() { TakeText(txtGm, NameGeneralManager); }

void frmTeam::txtProMorale_LostFocus() { TakeMorale(txtProMorale, SetMorale); }

void frmTeam::txtFarmMorale_LostFocus() { TakeMorale(txtFarmMorale, SetFarmMorale); }

void frmTeam::txtEmail_LostFocus() { TakeAddress(txtEmail, OwnTeam().Email, SetEmail); }

void frmTeam::txtMessenger_LostFocus() { TakeAddress(txtMessenger, OwnTeam().Messenger, SetMessenger); }

} // namespace dravik
