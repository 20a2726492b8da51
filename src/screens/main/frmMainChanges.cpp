#include "machine/Reporting.h"
#include "screens/main/frmMain.h"
#include "screens/panels/ChangeList.h"
#include "screens/panels/PersonCards.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "session/OpenChanges.h"
#include "session/OtherLeague.h"
#include "session/Session.h"

// What the main screen tells of two client files: what the open one changed, and another one beside it.
namespace dravik {

namespace {

constexpr int MostChangesShown = 6;

} // namespace

// Here no password is proved: of anybody's people the card tells what everybody may know.
QWidget* frmMain::MakeChanges()
{
    changes = new ChangeList("Changes", MostChangesShown, this);
    (new PersonCards(this))->Serve(changes->List(), [](int entry) -> std::optional<CardWords> {
        const auto told = ChangesToldTo(static_cast<int>(CurrentTeam), false);
        if (entry < 0 || static_cast<std::size_t>(entry) >= told.size() || !told[static_cast<std::size_t>(entry)].Who)
            return std::nullopt;
        const PersonId who = *told[static_cast<std::size_t>(entry)].Who;
        return CardOf(who, SignsOf(OpenLeague, who, 0));
    });
    return changes;
}

void frmMain::ShowChanges()
{
    const int team = static_cast<int>(CurrentTeam);
    const ChangesSince& since = OpenChanges();
    changes->Tell(since.FileDate ? "Since the file of " + ToQString(Machine().LongDate(*since.FileDate)) : QString(),
                  EntriesOf(OpenLeague, ChangesToldTo(team, false), team));
}

void frmMain::mnuCompare_Click()
{
    ReportingUnlessCancelled(Machine(), " in mnuCompare!", [this] {
        const std::string path = Machine().OpenFileDialog(Machine().ProgramFolder(),
                                                          "DRVK Client File (*.dvs) |*.dvs|All Files (*.*) | *.*");
        if (OpenOtherLeague(path))
            Open(Window::Compare);
    });
}

} // namespace dravik
