#include "screens/player/frmEditPlayer.h"

#include "desk/PlayerPosition.h"
#include "machine/Reporting.h"
#include "rules/StatRows.h"
#include "screens/EventGuard.h"
#include "screens/PersonWords.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "screens/Stage.h"
#include "session/Session.h"

#include <QSignalBlocker>

// What the player viewer shows: its list, the record and the ratings.
namespace dravik {

namespace {

constexpr int FirstSlot = 1;

std::string NameAndPosition(const std::string& name, int position)
{
    return name + " (" + std::string(PositionName[position]) + ")";
}

QString Title(std::string_view ending) { return ToQString(std::string(ProgramTitle) + std::string(ending)); }

// Whether the record is that of the person to be shown, or everybody is.
template <class Person>
bool IsWanted(const Person& person)
{
    return person.InUse &&
           (SelectedPlayer == 0 || PersonIn<Person>(static_cast<int>(person.Number)) == SelectedPerson());
}

// Who is shown, where the position at hand is that of somebody.
PersonId PersonWith(long long position)
{
    return {.IsGoalie = position == position::Goalie, .Slot = static_cast<int>(SelectedPlayer)};
}

} // namespace

void frmEditPlayer::FormLoad()
{
    Reporting(Machine(), " in FormLoad FrmEditPlayer!", [this] {
        CentreOnScreen();
        SetTitle(Title(" - Edit Player"));
        RepairPositions(OpenWork());
        ListPeople();
        if (lstPlayer->count() > 0)
            Choose(0);
        if (lstPlayer->count() > 1)
            chkEdit->setChecked(true);
        else
            cmdSearch->setEnabled(false);
        SetTitle(Title(" - Show Player"));
    });
    CloseEditor();
}

void frmEditPlayer::ListPeople()
{
    const bool isEverybody = SelectedPlayer == 0;
    const auto add = [this, isEverybody](const auto& person) {
        const int position = PositionOf(person);
        AddEntry(person.Name.Trimmed(), static_cast<int>(person.Number), position);
        if (isEverybody)
            return;
        MakeCurrent(lstPlayer->count() - 1);
        playerPosition = position;
        for (QPushButton* command : {cmdNewPlayer, cmdNewGoaler, cmdErase})
            command->hide();
    };
    for (int slot = FirstSlot; slot <= PlayerTable::last; ++slot)
        if (IsWanted(Players[slot]))
            add(Players[slot]);
    for (int slot = FirstSlot; slot <= GoalieTable::last; ++slot)
        if (IsWanted(Goalies[slot]))
            add(Goalies[slot]);
    FitList();
}

void frmEditPlayer::AddEntry(const std::string& name, int id, int position)
{
    const QSignalBlocker quiet(lstPlayer);
    lstPlayer->Add(ToQString(NameAndPosition(name, position)), EntryNumber(id, position));
}

void frmEditPlayer::RewriteEntry()
{
    QListWidgetItem* item = lstPlayer->item(listPosition);
    const auto person = ShownPerson();
    if (item == nullptr || !person)
        return;
    item->setText(ToQString(NameAndPosition(TextOf(OpenLeague, *person, TextField::Name), playerPosition)));
    item->setData(entry::NumberRole, EntryNumber(person->Slot, playerPosition));
}

void frmEditPlayer::MakeCurrent(int entry)
{
    const QSignalBlocker quiet(lstPlayer);
    lstPlayer->setCurrentRow(entry);
}

void frmEditPlayer::Choose(int entry)
{
    MakeCurrent(entry);
    lstPlayer_Click();
}

bool frmEditPlayer::IsPersonShown() const
{
    return playerPosition >= position::Center && playerPosition <= position::Goalie;
}

std::optional<PersonId> frmEditPlayer::ShownPerson() const
{
    if (!IsPersonShown()) {
        Machine().ShowIntegrityFailure();
        return std::nullopt;
    }
    return PersonWith(playerPosition);
}

void frmEditPlayer::lstPlayer_Click()
{
    Reporting(Machine(), " in LstPlayer_Click", [this] {
        const EventGuard guard;
        const QListWidgetItem* current = lstPlayer->currentItem();
        if (current != nullptr) {
            const int number = current->data(entry::NumberRole).toInt();
            SelectedPlayer = EntryId(number);
            playerPosition = EntryPosition(number);
            listPosition = lstPlayer->currentRow();
        }
        ratings->Hide();
        ShowPinned();
        if (current == nullptr)
            return;
        if (const auto person = ShownPerson())
            ShowRecord(*person);
    });
}

void frmEditPlayer::ShowRecord(PersonId person)
{
    optGoaler->setVisible(person.IsGoalie);
    for (QRadioButton* option : optPosition)
        option->setVisible(!person.IsGoalie);
    ClearPositions();
    ShowFields(person);
    txtTeam->setText(ToQString(EmployerOf(OpenLeague, person)));
    const std::optional<std::string> injury = InjuryOf(OpenLeague, person);
    txtInjury->setEnabled(injury.has_value());
    txtInjury->setText(ToQString(injury.value_or(std::string())));
    TickPosition(person.IsGoalie ? optGoaler : optPosition[Players[person.Slot].Position]);
    OnPerson(OpenLeague, person, [this](const auto& record) {
        chkRookie->setChecked(static_cast<bool>(record.Rookie));
        chkNoTrade->setChecked(static_cast<bool>(record.NoTrade));
        chkNoApplyRerate->setChecked(static_cast<bool>(record.NoApplyRerate));
    });
    for (QCheckBox* flag : {chkNoTrade, chkNoApplyRerate})
        flag->setVisible(Owner.ShowsFlagsOf(person));
    ShowRatings(person);
    ShowPinned();
}

void frmEditPlayer::ClearPositions()
{
    positionEventsOn = false;
    positions->setExclusive(false);
    for (QAbstractButton* option : positions->buttons())
        option->setChecked(false);
    positions->setExclusive(true);
    positionEventsOn = true;
}

void frmEditPlayer::TickPosition(QRadioButton* option)
{
    positionEventsOn = false;
    option->setChecked(true);
    positionEventsOn = true;
}

void frmEditPlayer::ShowRatings(PersonId person)
{
    const StatRows rows = StatRowsOf(person);
    int row = 0;
    for (const StatRow& rating : rows.Ratings)
        SetRow(++row, rating);
    if (rows.OverallRow)
        SetRow(++row, *rows.OverallRow);
}

void frmEditPlayer::SetRow(int row, const StatRow& shown)
{
    txtStats[row]->setText(QString::number(shown.Value));
    ShowRow(row, shown.Label, shown.Value);
}

void frmEditPlayer::ShowRow(int row, std::string_view label, int rating)
{
    txtStats[row]->setAccessibleName(ToQString(label));
    ratings->Show(row, ToQString(label), rating);
}

// While a record is made, and where nobody is shown, nobody is held against anybody.
void frmEditPlayer::ShowPinned()
{
    const bool isMade = newPlayerMode || newGoalieMode;
    const auto who = IsPersonShown() && !isMade && lstPlayer->currentItem() != nullptr
                         ? std::optional(PersonWith(playerPosition))
                         : std::nullopt;
    cmdPin->SetPerson(who);
    const auto pinned = who ? PinnedAgainst(*who) : std::nullopt;
    lblPinned->Tell(pinned ? pinned->Name : QString());
    ratings->ShowGhosts(pinned ? NumbersOf(pinned->Rows) : std::vector<int>());
}

// Shows the overall anew after a rating has changed.
void frmEditPlayer::ShowOverall()
{
    const StatRows rows = StatRowsOf(PersonWith(playerPosition));
    if (rows.OverallRow)
        SetRow(static_cast<int>(rows.Ratings.size()) + 1, *rows.OverallRow);
}

void frmEditPlayer::FormUnload() { Owner.ViewerClosed(isChanged); }

void frmEditPlayer::cmdExit_Click() { Unload(); }

} // namespace dravik
