#include "desk/PlayerPosition.h"
#include "machine/InputCheck.h"
#include "machine/Reporting.h"
#include "screens/EventGuard.h"
#include "screens/platform/CodePage.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <utility>

// What the boxes of the record editor do when the focus leaves them.
namespace dravik {

namespace {

// " in txtAge!", and " in txtStats!" for every box of that row.
std::string Ending(const QString& control) { return " in " + FromQString(control.section('(', 0, 0)) + "!"; }

} // namespace

// The injury stands apart: it is shown as the condition allows.
void frmEditPlayer::ShowFields(PersonId person)
{
    const std::pair<EditBox*, TextField> texts[] = {{txtName, TextField::Name}, {txtCountry, TextField::Country}};
    for (const auto& [box, field] : texts)
        box->setText(ToQString(TextOf(OpenLeague, person, field)));
    const std::pair<EditBox*, NumberField> numbers[] = {
        {txtAge, NumberField::Age},
        {txtWeight, NumberField::Weight},
        {txtHeight, NumberField::Height},
        {txtContract, NumberField::Contract},
        {txtSalary, NumberField::Salary},
        {txtCondition, NumberField::Condition},
        {txtSuspension, NumberField::Suspension},
    };
    for (const auto& [box, field] : numbers)
        box->setText(Shown(NumberOf(OpenLeague, person, field)));
}

// What all boxes have in common: a text is judged, a new record keeps it for later, an empty one is restored, as one is
// that fails to be stored, and any other is taken.
void frmEditPlayer::LeaveBox(EditBox* box, InputMode mode, const std::function<void(PersonId)>& restore,
                             const std::function<void(const std::string&)>& take)
{
    if (ListEventGuard)
        return;
    Reporting(Machine(), Ending(box->objectName()), [&] {
        const std::string text = FromQString(box->text());
        if (!text.empty() && !CheckInput(Machine(), text, mode, false)) {
            const EventGuard guard;
            box->TakeFocusBack();
            return;
        }
        if (newPlayerMode || newGoalieMode)
            return;
        if (text.empty()) {
            if (const auto person = ShownPerson())
                restore(*person);
            return;
        }
        try {
            take(text);
        } catch (...) {
            if (IsPersonShown()) // no box beside the one that tells the failure
                restore(*ShownPerson());
            throw;
        }
    });
}

void frmEditPlayer::LeaveNumber(EditBox* box, NumberField field)
{
    const auto restore = [&](PersonId person) { box->setText(Shown(NumberOf(OpenLeague, person, field))); };
    LeaveBox(box, InputMode::Numbers, restore, [&](const std::string& text) {
        box->setText(Shown(LimitedNumber(LeagueData, field, text)));
        const auto person = ShownPerson();
        if (person && !SetNumber(OpenWork(), *person, field, text, [this](HealthTurn turn) { ShowTurn(turn); }))
            restore(*person);
    });
}

void frmEditPlayer::LeaveText(EditBox* box, TextField field, const std::function<void()>& follow)
{
    const auto restore = [&](PersonId person) { box->setText(ToQString(TextOf(OpenLeague, person, field))); };
    LeaveBox(box, ModeOf(field), restore, [&](const std::string& text) {
        box->setText(ToQString(CutText(field, text)));
        const auto person = ShownPerson();
        if (!person)
            return;
        SetText(OpenWork(), *person, field, text);
        restore(*person);
        follow();
    });
}

void frmEditPlayer::txtName_LostFocus()
{
    LeaveText(txtName, TextField::Name, [this] { RewriteEntry(); });
}

void frmEditPlayer::txtCountry_LostFocus() { LeaveText(txtCountry, TextField::Country); }
void frmEditPlayer::txtInjury_LostFocus() { LeaveText(txtInjury, TextField::Injury); }
void frmEditPlayer::txtAge_LostFocus() { LeaveNumber(txtAge, NumberField::Age); }
void frmEditPlayer::txtWeight_LostFocus() { LeaveNumber(txtWeight, NumberField::Weight); }
void frmEditPlayer::txtHeight_LostFocus() { LeaveNumber(txtHeight, NumberField::Height); }
void frmEditPlayer::txtContract_LostFocus() { LeaveNumber(txtContract, NumberField::Contract); }
void frmEditPlayer::txtSalary_LostFocus() { LeaveNumber(txtSalary, NumberField::Salary); }
void frmEditPlayer::txtCondition_LostFocus() { LeaveNumber(txtCondition, NumberField::Condition); }
void frmEditPlayer::txtSuspension_LostFocus() { LeaveNumber(txtSuspension, NumberField::Suspension); }

void frmEditPlayer::ShowTurn(HealthTurn turn)
{
    switch (turn) {
    case HealthTurn::Healed:
        txtInjury->setEnabled(false);
        txtInjury->clear();
        break;
    case HealthTurn::Injured:
        txtInjury->setEnabled(true);
        txtInjury->setFocus();
        isChanged = true;
        break;
    case HealthTurn::Suspended:
        isChanged = true;
        break;
    }
}

void frmEditPlayer::txtStats_LostFocus(int index)
{
    EditBox* box = txtStats[index];
    const auto restore = [&](PersonId person) { box->setText(Shown(RatingOf(OpenLeague, person, index))); };
    LeaveBox(box, InputMode::Numbers, restore, [&](const std::string& text) {
        const long long rating = TypedRating(text);
        box->setText(Shown(rating));
        const auto person = ShownPerson();
        if (!person)
            return;
        SetRating(OpenWork(), *person, index, text);
        ratings->SetRating(index, static_cast<int>(rating));
        ShowOverall();
    });
}

void frmEditPlayer::optPosition_Click(int index)
{
    Reporting(Machine(), " in optPosition!", [&] {
        if (!positionEventsOn || newPlayerMode || newGoalieMode)
            return;
        const auto person = ShownPerson();
        if (!person || person->IsGoalie)
            return;
        SetPosition(OpenWork(), person->Slot, index);
        playerPosition = index;
        RewriteEntry();
    });
}

void frmEditPlayer::CopyFlag(FlagField field, const QCheckBox* box)
{
    Reporting(Machine(), Ending(box->objectName()), [&] {
        if (newPlayerMode || newGoalieMode)
            return;
        if (const auto person = ShownPerson())
            SetFlag(OpenWork(), *person, field, box->isChecked());
    });
}

void frmEditPlayer::chkRookie_Click() { CopyFlag(FlagField::Rookie, chkRookie); }
void frmEditPlayer::chkNoTrade_Click() { CopyFlag(FlagField::NoTrade, chkNoTrade); }
void frmEditPlayer::chkNoApplyRerate_Click() { CopyFlag(FlagField::NoApplyRerate, chkNoApplyRerate); }

} // namespace dravik
