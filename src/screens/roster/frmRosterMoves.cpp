#include "desk/Captaincy.h"
#include "desk/PlayerFlags.h"
#include "desk/Release.h"
#include "desk/RosterMoves.h"
#include "machine/Reporting.h"
#include "makers/Makers.h"
#include "screens/panels/PersonDrag.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

#include <utility>

// The commands of the roster screen: the moves between the lists, waivers, release, captaincy, flags and automatic rosters.
namespace dravik {

std::function<void()> frmRoster::AsPersonStep(const QString& words, std::function<void()> change)
{
    const auto withName = [words] { return words + ": " + NameOf(SelectedPerson()); };
    return AsStep(withName, std::move(change));
}

std::function<void()> frmRoster::AsMove(const QString& words, status::Number from, std::function<void()> change)
{
    const auto withNames = [this, words, from] {
        const QList<QListWidgetItem*> chosen = lstPlayer[from]->selectedItems();
        return words + ": " +
               (chosen.size() == 1 ? chosen.front()->text() : QString::number(chosen.size()) + " players");
    };
    return AsStep(withNames, std::move(change));
}

void frmRoster::MoveEntry(status::Number from, status::Number to, int row)
{
    lstPlayer[to]->TakeFrom(*lstPlayer[from], row);
    ShowListTotals();
}

void frmRoster::MoveChosen(status::Number from, status::Number to, Permission (frmRoster::*mayMove)())
{
    PickList* list = lstPlayer[from];
    for (int row = 0; row < list->count(); ++row) {
        if (!list->IsChosen(row))
            continue;
        const Permission permission = (this->*mayMove)();
        if (permission == Permission::Ended)
            break;
        if (permission == Permission::Refused)
            continue;
        const int number = list->item(row)->data(entry::NumberRole).toInt();
        bool done = false;
        Change(from, to, EntryId(number), EntryPosition(number), done);
        if (done)
            MoveEntry(from, to, row--); // the next entry stands here now
    }
    list->setFocus(); // where the next choice is made, since the command may have closed
}

void frmRoster::MakeDrags()
{
    for (const status::Number from : {status::Farm, status::Scratch, status::Pro}) {
        QList<EntryList*> others;
        for (PickList* list : lstPlayer)
            if (list != lstPlayer[from])
                others << list;
        PersonDrag::ToLists(
            *lstPlayer[from], others, [this, from](EntryList&) { return lstPlayer[from]->ChosenCount() > 0; },
            [this, from](EntryList& target) {
                for (const status::Number to : {status::Farm, status::Scratch, status::Pro})
                    if (lstPlayer[to] == &target)
                        Drag(from, to);
            });
    }
}

void frmRoster::ToScratches(status::Number from)
{
    if (from == status::Pro)
        cmdToScratchesFromPro_Click();
    else
        cmdToScratchesFromFarm_Click();
}

void frmRoster::Drag(status::Number from, status::Number to)
{
    constexpr const char* names[] = {"To Farm", "To Scratch", "To Pro"};
    AsMove(names[to], from, [this, from, to] {
        const auto second = to == status::Farm ? &frmRoster::cmdToFarm_Click : &frmRoster::cmdToPro_Click;
        if (to == status::Scratch)
            ToScratches(from);
        else if (from == status::Scratch)
            (this->*second)();
        else
            MoveTwice(from, second);
    })();
}

void frmRoster::MoveTwice(status::Number from, void (frmRoster::*second)())
{
    QList<int> numbers;
    for (const QListWidgetItem* entry : lstPlayer[from]->selectedItems())
        numbers << entry->data(entry::NumberRole).toInt();
    ToScratches(from);
    PickList* scratches = lstPlayer[status::Scratch];
    bool isFirst = true;
    for (const int number : numbers) {
        const int row = scratches->RowOf(number);
        if (row < 0)
            continue; // he stayed where he was
        if (std::exchange(isFirst, false))
            scratches->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        else
            scratches->item(row)->setSelected(true);
    }
    if (!isFirst)
        (this->*second)();
}

// The overall of the person shown last decides for everybody chosen.
Permission frmRoster::MayGoToFarm() { return dravik::MayGoToFarm(OpenWork(), playerOverall); }

Permission frmRoster::MayLeaveFarm() { return dravik::MayLeaveFarm(OpenWork(), statusCount); }

void frmRoster::cmdToFarm_Click()
{
    Reporting(Machine(), " in cmdToFarm!",
              [this] { MoveChosen(status::Scratch, status::Farm, &frmRoster::MayGoToFarm); });
}

void frmRoster::cmdToPro_Click()
{
    // Without "!": the ending by which general managers know this command's failures.
    Reporting(Machine(), " in cmdToPro",
              [this] { MoveChosen(status::Scratch, status::Pro, &frmRoster::MayMoveFreely); });
}

void frmRoster::cmdToScratchesFromPro_Click()
{
    Reporting(Machine(), " in cmdToScratchesFromPro!",
              [this] { MoveChosen(status::Pro, status::Scratch, &frmRoster::MayMoveFreely); });
}

void frmRoster::cmdToScratchesFromFarm_Click()
{
    Reporting(Machine(), " in cmdToScratchesFromFarm!",
              [this] { MoveChosen(status::Farm, status::Scratch, &frmRoster::MayLeaveFarm); });
}

void frmRoster::cmdSendToWaiver_Click()
{
    Reporting(Machine(), " in cmdSendToWaiver!", [this] {
        SendToWaivers(OpenWork(), OwnNumber(), SelectedPerson(), [this] { return ScratchSelected(); });
    });
    DrawSignsAnew();
}

// Of what changes a sign, only moves and whole lists draw the entries by themselves.
void frmRoster::DrawSignsAnew()
{
    for (PickList* list : lstPlayer)
        list->viewport()->update();
}

bool frmRoster::ScratchSelected()
{
    const PersonId who = SelectedPerson();
    const int position = OnPerson(OpenLeague, who, [](const auto& person) { return PositionOf(person); });
    bool done = false;
    Change(status::Pro, status::Scratch, who.Slot, position, done);
    if (!done)
        return false;
    const int row = lstPlayer[status::Pro]->RowOf(EntryNumber(who.Slot, position));
    if (row >= 0)
        MoveEntry(status::Pro, status::Scratch, row);
    return true;
}

void frmRoster::cmdRelease_Click()
{
    Reporting(Machine(), " in cmdRelease!", [this] {
        if (ReleasePerson(OpenWork(), OwnNumber(), SelectedPerson()))
            ShowPlayer(false);
        Modified = true;
    });
}

void frmRoster::cmdCaptain_Click()
{
    Reporting(Machine(), " in cmdCaptain!", [this] {
        if (!MakeCaptain(OpenWork(), OwnNumber(), SelectedPerson()))
            return;
        ShowPlayer(false);
        Modified = true;
    });
}

void frmRoster::cmdAssistant_Click()
{
    Reporting(Machine(), " in cmdAssistant!", [this] {
        if (!MakeAssistant(OpenWork(), OwnNumber(), SelectedPerson()))
            return;
        ShowPlayer(false);
        Modified = true;
    });
}

QListWidgetItem* frmRoster::CurrentEntry()
{
    for (const PickList* list : lstPlayer)
        if (list->currentItem() != nullptr)
            return list->currentItem();
    return nullptr;
}

void frmRoster::cmdTradeAvailable_Click()
{
    Reporting(Machine(), " in cmdTradeAvailable!", [this] {
        const PersonId who = SelectedPerson();
        if (TakeBarredOffMarket(OpenWork(), who))
            cmdTradeAvailable->setEnabled(false);
        const bool isAvailable = IsTradeAvailable(OpenLeague, who);
        QListWidgetItem* current = CurrentEntry();
        if (current != nullptr) {
            // Here the star follows whatever stands there without a blank; a list made anew sets it apart from a mark.
            const std::string name =
                OnPerson(OpenLeague, who, [](const auto& person) { return person.Name.Trimmed(); });
            const std::string mark = OfficeMark(OwnTeam(), who);
            current->setText(isAvailable ? ToQString(name + mark) : current->text() + "*");
        }
        SetTradeAvailable(OpenWork(), who, !isAvailable);
    });
}

void frmRoster::chkProtected_Click()
{
    if (ListEventGuard)
        return;
    Reporting(Machine(), " in chkProtected!", [this] {
        SetProtected(OpenWork(), OwnNumber(), SelectedPerson(), chkProtected->isChecked());
        lblProtectedTotal->setText(" Total Protected Players: " + QString::number(OwnTeam().ProtectedCount));
    });
}

void frmRoster::chkNoApplyRerate_Click()
{
    if (ListEventGuard)
        return;
    SetNoApplyRerate(OpenWork(), SelectedPerson(), chkNoApplyRerate->isChecked());
}

void frmRoster::chkNoTrade_Click()
{
    if (ListEventGuard)
        return;
    const bool noTrade = chkNoTrade->isChecked();
    if (noTrade && IsTradeAvailable(OpenLeague, SelectedPerson()))
        cmdTradeAvailable_Click();
    SetNoTrade(OpenWork(), SelectedPerson(), noTrade);
    DrawSignsAnew();
    cmdTradeAvailable->setEnabled(!noTrade);
}

void frmRoster::cmdAutoRoster_Click()
{
    Reporting(Machine(), " in cmdAutoRoster!", [this] {
        AutoRoster(OpenWork(), OwnNumber(), true, false);
        ShowPlayer(false);
    });
}

void frmRoster::cmdAutoRosterPartial_Click()
{
    Reporting(Machine(), " in cmdAutoRosterPartial!", [this] {
        AutoRoster(OpenWork(), OwnNumber(), true, true);
        ShowPlayer(false);
    });
}

} // namespace dravik
