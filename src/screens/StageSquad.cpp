#include "screens/panels/EntryList.h"
#include "screens/panels/PickList.h"
#include "screens/panels/SlotLabel.h"
#include "screens/RosterEntry.h"
#include "screens/Screen.h"
#include "screens/squad/frmSquad.h"
#include "screens/Stage.h"
#include "session/Session.h"

#include <algorithm>
#include <iterator>
#include <QApplication>
#include <QKeyEvent>

// What the squad table does on the screen in front of which it stands.
namespace dravik {

namespace {

// How the lists of a screen number their people.
enum class Numbers { OfEntries, Common };

// A screen whose lists have people to pick.
struct PeopleRow {
    Window At;
    Numbers By;
    bool HasSlots;
    std::string_view Caption; // of the command that picks
};

constexpr std::string_view InList = "P&ick in the List";
constexpr std::string_view OnLines = "Put on the L&ines";

constexpr PeopleRow People[] = {
    {Window::Roster, Numbers::OfEntries, false, InList},   {Window::Line, Numbers::OfEntries, true, OnLines},
    {Window::FarmLine, Numbers::OfEntries, true, OnLines}, {Window::FreeAgent, Numbers::Common, false, InList},
    {Window::Draft, Numbers::Common, false, InList},
};

// The screens that open behind a team's password.
constexpr Window Proving[] = {Window::Team,      Window::Roster, Window::Line,  Window::FarmLine,
                              Window::FreeAgent, Window::Draft,  Window::Ticket};

const PeopleRow* RowOf(std::optional<Window> window)
{
    const auto* found =
        std::find_if(std::begin(People), std::end(People), [window](const PeopleRow& row) { return row.At == window; });
    return found == std::end(People) ? nullptr : found;
}

// The number of somebody's entry in such lists; none for whom they cannot have.
std::optional<int> NumberIn(const PeopleRow& row, int commonId)
{
    if (row.By == Numbers::Common)
        return commonId;
    const PersonId who = PersonOf(commonId);
    if (commonId > ProspectOffset || !who.HasSlot())
        return std::nullopt;
    return EntryNumber(who.Slot, OnPerson(OpenLeague, who, [](const auto& person) { return PositionOf(person); }));
}

// Somebody's entry in the lists of a screen, with its list.
struct Listed {
    EntryList* In = nullptr;
    int Row = 0;
};

std::optional<Listed> EntryOf(const Screen& screen, int number)
{
    const QList<EntryList*> lists = screen.findChildren<EntryList*>();
    for (EntryList* list : lists)
        for (int row = 0; list->isVisibleTo(&screen) && list->isEnabled() && row < list->count(); ++row)
            if (NumberOf(list->item(row)) == number)
                return Listed{list, row};
    return std::nullopt;
}

} // namespace

void Stage::ShowSquad(const Screen& asking)
{
    if (squad == nullptr)
        squad = std::make_unique<frmSquad>(*this);
    // In front of the table nothing may stand that lets nobody else through.
    if (Screen* about = Find(Window::About); about == &asking)
        Close(*about);
    const auto front = InFront();
    squad->Follow(front ? Find(*front) : nullptr);
    squad->Open(front ? Find(*front)->frameGeometry() : QRect());
}

void Stage::BackFromSquad()
{
    if (const auto front = InFront()) {
        Screen* screen = Find(*front);
        screen->raise();
        screen->activateWindow();
    }
}

void Stage::ShowSquadAnew()
{
    if (squad == nullptr)
        return;
    const auto front = InFront();
    squad->Follow(front ? Find(*front) : nullptr);
    squad->ShowAnew();
}

std::optional<Window> Stage::InFront() const
{
    for (const auto& [window, screen] : screens)
        if (window != Window::About && screen->isVisible())
            return window;
    return std::nullopt;
}

int Stage::ProvedTeam() const
{
    const bool isProved =
        std::any_of(std::begin(Proving), std::end(Proving), [this](Window window) { return Find(window) != nullptr; });
    return isProved && TeamTable::Has(CurrentTeam) ? OwnNumber() : 0;
}

std::string_view Stage::PickCaption() const
{
    const PeopleRow* row = RowOf(InFront());
    return row == nullptr ? std::string_view() : row->Caption;
}

bool Stage::Lists(int commonId) const
{
    const PeopleRow* row = RowOf(InFront());
    const auto number = row == nullptr ? std::nullopt : NumberIn(*row, commonId);
    return number && EntryOf(*Find(row->At), *number);
}

void Stage::Pick(int commonId)
{
    const PeopleRow* row = RowOf(InFront());
    const auto number = row == nullptr ? std::nullopt : NumberIn(*row, commonId);
    if (!number)
        return;
    Screen& screen = *Find(row->At);
    const auto listed = EntryOf(screen, *number);
    if (!listed)
        return;
    auto* slot = row->HasSlots ? qobject_cast<SlotLabel*>(screen.focusWidget()) : nullptr;
    screen.raise();
    screen.activateWindow();
    listed->In->setCurrentRow(listed->Row, QItemSelectionModel::ClearAndSelect);
    if (slot == nullptr) {
        listed->In->setFocus(Qt::OtherFocusReason);
        return;
    }
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(slot, &press);
}

bool Stage::ShowsFlagsOf(PersonId who) const
{
    return !lookedFrom || OnPerson(OpenLeague, who, [this](const auto& person) {
        return ProvedTeam() != 0 && person.Team == ProvedTeam();
    });
}

void Stage::ShowRecord(PersonId who)
{
    const auto front = InFront();
    if (!front || !who.HasSlot())
        return;
    if (!lookedFrom)
        lookedFrom = {*front == Window::EditPlayer ? BehindViewer() : *front, SelectedPerson()};
    SelectPerson(who);
    Open(Window::EditPlayer, *Find(*front));
}

} // namespace dravik
