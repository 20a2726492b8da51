#include "screens/Pins.h"
#include "Evening.h"
#include "screens/lines/LinesScreen.h"
#include "screens/lines/UnitWindow.h"
#include "screens/panels/PersonCards.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"

#include <QAction>
#include <QApplication>

// The looks at who is pinned, and at two lines side by side.
namespace dravik::tour {

void Evening::PinOnRoster()
{
    PickList* pro = Roster().lstPlayer[status::Pro];
    pro->setFocus();
    pro->setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    Roster().findChild<PersonCards*>()->PinAtFocus();
    const PersonId first = EntryPerson(*NumberOf(pro->item(0)));
    Require(IsPinned(first), "the first of the list is pinned");
    pro->setCurrentRow(3, QItemSelectionModel::ClearAndSelect);
    QApplication::processEvents();
    Require(PinnedAgainst(EntryPerson(*NumberOf(pro->item(3)))).has_value(), "another one is held against him");
    Photograph(Window::Roster, "roster-pinned");
    pro->setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    Roster().findChild<PersonCards*>()->PinAtFocus();
    pro->setCurrentRow(5, QItemSelectionModel::ClearAndSelect);
    Roster().findChild<PersonCards*>()->PinAtFocus();
    ShowPlayer(position::Center, "player-pinned");
}

void Evening::HoldOnLines(LinesScreen& screen)
{
    screen.lstPlayer->setFocus();
    screen.lstPlayer->setCurrentRow(1, QItemSelectionModel::ClearAndSelect);
    QApplication::processEvents();
    Photograph(Window::Line, "lines-pinned");
    auto* cards = screen.findChild<PersonCards*>();
    cards->ShowAtFocus();
    Photograph(Window::Line, "lines-pinned-card");
    cards->ShowAtFocus();
    screen.TabLine->Parts.Headings.front().Label->actions().constFirst()->trigger();
    UnitWindow* units = UnitWindow::On(screen);
    Require(units != nullptr, "two lines come up beside each other");
    constexpr QSize ofUnits(1220, 330);
    Require(camera.Photograph(*units, "lines-units", ofUnits), "pictures of two lines are written");
    units->close();
    LetGoOfPinned();
    NoComplaints("people and lines are held against each other");
}

} // namespace dravik::tour
