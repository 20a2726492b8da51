#include "desk/Erasure.h"
#include "machine/Reporting.h"
#include "screens/panels/NameSearch.h"
#include "screens/platform/CodePage.h"
#include "screens/player/frmEditPlayer.h"
#include "session/Session.h"

#include <QSignalBlocker>

// The commands of the record editor: search, new records and erasure.
namespace dravik {

void frmEditPlayer::LeaveNewPlayerMode()
{
    newPlayerMode = false;
    cmdNewPlayer->setText("New Player");
}

void frmEditPlayer::LeaveNewGoalieMode()
{
    newGoalieMode = false;
    cmdNewGoaler->setText("New Goalie");
}

void frmEditPlayer::cmdNewPlayer_Click()
{
    Reporting(Machine(), " in cmdNewPlayer!", [this] {
        if (newPlayerMode) {
            SaveRecord({false, freeSlot});
            return;
        }
        LeaveNewGoalieMode();
        const int slot = FreeSlotFor(OpenWork(), false);
        if (slot == 0)
            return;
        freeSlot = slot;
        newPlayerMode = true;
        BeginRecord({false, slot});
        cmdNewPlayer->setText("Save Player");
    });
}

void frmEditPlayer::cmdNewGoaler_Click()
{
    Reporting(Machine(), " in cmdNewGoaler!", [this] {
        if (newGoalieMode) {
            SaveRecord({true, freeSlot});
            return;
        }
        LeaveNewPlayerMode();
        const int slot = FreeSlotFor(OpenWork(), true);
        if (slot == 0)
            return;
        freeSlot = slot;
        newGoalieMode = true;
        BeginRecord({true, slot});
        cmdNewGoaler->setText("Save Goalie");
    });
}

void frmEditPlayer::BeginRecord(PersonId person)
{
    ClearBoxes();
    chkEdit->setChecked(true);
    chkEdit_Click();
    optGoaler->setVisible(person.IsGoalie);
    optGoaler->setEnabled(true);
    for (QRadioButton* option : optPosition) {
        option->setVisible(!person.IsGoalie);
        option->setEnabled(true);
    }
    // A new record needs every single rating, so all of them are there to be typed even where the league shows groups.
    ratings->Hide();
    ShowPinned();
    const auto offer = [this](const auto& labels) {
        for (int row = labels.first; row < labels.last; ++row) {
            ShowRow(row, labels[row], 0);
            txtStats[row]->setEnabled(true);
        }
    };
    if (person.IsGoalie)
        offer(GoalieStatName);
    else
        offer(SkaterStatName);
    txtCondition->setText("100");
    txtSuspension->setText("0");
    TickPosition(person.IsGoalie ? optGoaler : optPosition[position::Center]);
}

NewRecord frmEditPlayer::TypedRecord() const
{
    const auto typed = [](const EditBox* box) { return FromQString(box->text()); };
    NewRecord record{.Name = typed(txtName),
                     .Country = typed(txtCountry),
                     .Age = typed(txtAge),
                     .Weight = typed(txtWeight),
                     .Height = typed(txtHeight),
                     .Contract = typed(txtContract),
                     .Salary = typed(txtSalary),
                     .Condition = typed(txtCondition),
                     .Rookie = chkRookie->isChecked(),
                     .NoTrade = chkNoTrade->isChecked(),
                     .NoApplyRerate = chkNoApplyRerate->isChecked()};
    for (const EditBox* box : txtStats)
        record.Ratings.push_back(typed(box));
    for (int index = position::Center; index <= position::Defense; ++index)
        if (optPosition[index]->isChecked())
            record.Position = index;
    return record;
}

void frmEditPlayer::SaveRecord(PersonId person)
{
    const NewRecord record = TypedRecord();
    const bool isCreated = CreatePlayer(OpenWork(), person, record, [&] {
        AddEntry(TextOf(OpenLeague, person, TextField::Name), person.Slot,
                 person.IsGoalie ? position::Goalie : record.Position);
        FitList(); // a second entry makes it a list to choose from
        Choose(lstPlayer->count() - 1);
        (person.IsGoalie ? newGoalieMode : newPlayerMode) = false;
    });
    if (!isCreated)
        return;
    if (person.IsGoalie)
        LeaveNewGoalieMode();
    else
        LeaveNewPlayerMode();
}

void frmEditPlayer::ClearBoxes()
{
    for (EditBox* box : {txtName, txtCountry, txtAge, txtWeight, txtHeight, txtContract, txtSalary, txtCondition,
                         txtSuspension, txtInjury, txtTeam})
        box->clear();
    for (EditBox* box : txtStats)
        box->clear();
}

void frmEditPlayer::cmdSearch_Click()
{
    Reporting(Machine(), " in cmdSearch!", [this] {
        const int found = SearchPlayer(*lstPlayer, "Complete or Part of the Player's Name?");
        if (found >= 0)
            Choose(found);
    });
}

void frmEditPlayer::cmdErase_Click()
{
    Reporting(Machine(), " in cmdErase!", [this] {
        if (lstPlayer->currentItem() == nullptr)
            return;
        const auto person = ShownPerson();
        if (!person || !ErasePerson(OpenWork(), *person, playerPosition))
            return;
        const QSignalBlocker quiet(lstPlayer);
        delete lstPlayer->takeItem(lstPlayer->currentRow());
        lstPlayer->Unchoose();
        listPosition = -1; // whoever moved up in the list is not the one on show
        cmdErase->setEnabled(false);
    });
}

} // namespace dravik
