#include "session/Session.h"

#include "league/Failure.h"
#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "session/PinnedPeople.h"

#include <cstring>

namespace dravik {

Tables OpenLeague;

Int16 CurrentTeam;
std::string WindowTitle;
std::string TempFile;
std::string CallerScreen;
Int16 PlayerStatCount;
Int16 GoalieStatCount;
bool Modified = false;
Int16 SelectedPlayer;
bool SelectedIsGoalie = false;
bool ListEventGuard = false;
Int16 ViewerReturnMode;

namespace {
Platform* TheMachine = nullptr;
}

int OwnNumber() { return static_cast<int>(CurrentTeam); }
Team& OwnTeam() { return Teams[CurrentTeam]; }

PersonId SelectedPerson() { return {.IsGoalie = SelectedIsGoalie, .Slot = static_cast<int>(SelectedPlayer)}; }

void SelectPerson(PersonId who)
{
    SelectedIsGoalie = who.IsGoalie;
    SelectedPlayer = who.Slot;
}

void ResetClientVariables()
{
    std::memset(static_cast<void*>(&OpenLeague), 0, sizeof OpenLeague);
    CurrentTeam = 0;
    WindowTitle.clear();
    TempFile.clear();
    CallerScreen.clear();
    PlayerStatCount = 0;
    GoalieStatCount = 0;
    Modified = false;
    SelectedPlayer = 0;
    SelectedIsGoalie = false;
    ListEventGuard = false;
    ViewerReturnMode = 0;
    EmptyOpenMarket();
    OpenPins().LetGoOfAll();
    BeginHistory();
}

Platform& Machine()
{
    if (TheMachine == nullptr)
        Fail(failure::InvalidCall);
    return *TheMachine;
}

void UseMachine(Platform& platform) { TheMachine = &platform; }

Work OpenWork() { return {OpenLeague, Machine(), Machine(), Modified}; }

FileAccess OpenFiles() { return {Machine(), Machine(), Machine(), TempFile, KeepEarlier}; }

} // namespace dravik
