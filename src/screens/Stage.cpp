#include "screens/Stage.h"

#include "league/Failure.h"
#include "screens/lines/frmFarmLine.h"
#include "screens/lines/frmLine.h"
#include "screens/Looks.h"
#include "screens/main/frmAbout.h"
#include "screens/main/frmCompare.h"
#include "screens/main/frmMain.h"
#include "screens/main/GuideWindow.h"
#include "screens/market/frmDraft.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/player/frmCoach.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/player/frmProspect.h"
#include "screens/roster/frmRoster.h"
#include "screens/squad/frmSquad.h"
#include "screens/team/frmTeam.h"
#include "screens/team/frmTicket.h"
#include "session/Session.h"

#include <algorithm>
#include <iterator>
#include <QApplication>
#include <utility>

namespace dravik {

namespace {

// Who comes back when a screen closes.
enum class Behind { Main, Team, Office, Caller, Viewer };

template <class T>
std::unique_ptr<Screen> Make(Stage& stage)
{
    return std::make_unique<T>(stage);
}

struct Role {
    Window Opens;
    std::string_view Name; // where something was done
    Behind Back;
    bool HidesOpener;
    std::unique_ptr<Screen> (*Create)(Stage&);
};

// All but the main window, which is there from the start.
// clang-format off
constexpr Role Roles[] = {
    {Window::Team,       "Team",        Behind::Main,   true,  Make<frmTeam>},
    {Window::Roster,     "Roster",      Behind::Caller, true,  Make<frmRoster>},
    {Window::Line,       "Lines",       Behind::Caller, true,  Make<frmLine>},
    {Window::FarmLine,   "Farm Lines",  Behind::Caller, true,  Make<frmFarmLine>},
    {Window::FreeAgent,  "Free Agents", Behind::Office, true,  Make<frmFreeAgentClient>},
    {Window::Draft,      "Draft List",  Behind::Office, true,  Make<frmDraft>},
    {Window::Ticket,     "Tickets",     Behind::Team,   true,  Make<frmTicket>},
    {Window::EditPlayer, "Player",      Behind::Viewer, true,  Make<frmEditPlayer>},
    {Window::About,      "About",       Behind::Main,   false, Make<frmAbout>},
    {Window::Coach,      "Coach",       Behind::Main,   true,  Make<frmCoach>},
    {Window::Prospect,   "Prospects",   Behind::Main,   true,  Make<frmProspect>},
    {Window::Compare,    "Compare",     Behind::Main,   false, Make<frmCompare>},
};
// clang-format on

const Role* RoleOf(Window window)
{
    const auto* found =
        std::find_if(std::begin(Roles), std::end(Roles), [window](const Role& role) { return role.Opens == window; });
    return found == std::end(Roles) ? nullptr : found;
}

} // namespace

// Screens hide behind each other, so the last visible window that closes is no sign of the end.
Stage::Stage() { QApplication::setQuitOnLastWindowClosed(false); }

Stage::~Stage()
{
    for (const auto& screen : disposed)
        delete screen.data();
}

bool Stage::Start()
{
    auto made = std::make_unique<frmMain>(*this);
    frmMain& main = *made;
    screens[Window::Main] = std::move(made);
    Load(main);
    if (main.WantsToUnload()) {
        ended = true;
        screens.clear();
        return false;
    }
    Show(main);
    return true;
}

void Stage::Provide(Window window, Factory factory) { provided.insert_or_assign(window, std::move(factory)); }

void Stage::Open(Window window, Screen& opener)
{
    const Role* role = RoleOf(window);
    if (role == nullptr)
        Fail(failure::InvalidCall);
    const auto other = provided.find(window);
    const Factory create = other != provided.end() ? other->second : Factory(role->Create);
    if (const auto standing = screens.find(window); standing != screens.end()) {
        standing->second->hide();
        Dispose(std::move(standing->second));
    }
    Screen& screen = *(screens[window] = create(*this));
    Load(screen);
    if (screen.WantsToUnload()) {
        screen.close();
        return;
    }
    RunEvent("Form_Load", [&screen] { screen.FitToDisplay(); });
    Show(screen);
    if (role->HidesOpener)
        opener.hide();
}

void Stage::Close(Screen& screen) { screen.Unload(); }

Screen* Stage::Find(Window window) const
{
    const auto found = screens.find(window);
    return found == screens.end() ? nullptr : found->second.get();
}

std::string_view Stage::NameOf(const Screen& screen) const
{
    for (const auto& [window, standing] : screens)
        if (standing.get() == &screen)
            return window == Window::Main ? "Main" : RoleOf(window)->Name;
    return {};
}

void Stage::ShowAnew()
{
    const auto kept = Copy(OpenLeague);
    const bool wasModified = Modified;
    const bool messagesWereAllowed = std::exchange(Machine().MessagesAllowed, false);
    for (const auto& [window, screen] : screens) {
        RunEvent("ShowAnew", [&showing = *screen] { showing.ShowAnew(); });
        OpenLeague = *kept;
    }
    for (const auto& [window, screen] : screens)
        RunEvent("ShowAnew", [&showing = *screen] { ShowLooksAnew(showing); });
    Machine().MessagesAllowed = messagesWereAllowed;
    Modified = wasModified;
    ShowSquadAnew();
}

void Stage::PlaceTeam()
{
    if (frmMain* main = Main())
        main->PlaceTeam();
}

void Stage::EnableSaveToFile()
{
    if (frmTeam* team = Team())
        team->EnableSaveToFile();
}

void Stage::ShowGuide(const Screen& asking)
{
    if (guide == nullptr)
        guide = std::make_unique<GuideWindow>();
    guide->Open(asking);
}

// Whom the player viewer returns to, by `ViewerReturnMode`, unless the squad table showed it.
Window Stage::BehindViewer() const
{
    if (lookedFrom)
        return lookedFrom->At;
    switch (static_cast<int>(ViewerReturnMode)) {
    case return_mode::Roster:
        return Window::Roster;
    case return_mode::Offers:
        return Window::FreeAgent;
    case return_mode::Draft:
        return Window::Draft;
    case return_mode::Office:
        return Window::Team;
    default:
        return Window::Main;
    }
}

void Stage::ViewerClosed(bool changed)
{
    if (lookedFrom)
        SelectPerson(lookedFrom->Chosen);
    if (Screen* opener = Find(BehindViewer()))
        opener->ViewerClosed(changed);
}

void Stage::Closed(Screen& screen)
{
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&screen](const auto& entry) { return entry.second.get() == &screen; });
    if (found == screens.end())
        return;
    const Window closed = found->first;
    Dispose(std::move(found->second));
    screens.erase(found);
    if (ended)
        return;
    if (closed == Window::Main) {
        ended = true;
        for (const auto& [window, other] : screens)
            other->hide();
        if (squad != nullptr)
            squad->close(); // which has it keep its columns and its place
        squad.reset();
        if (guide != nullptr)
            guide->close(); // likewise
        guide.reset();
        QCoreApplication::exit(0);
        return;
    }
    ShowBehind(closed);
}

frmMain* Stage::Main() const { return dynamic_cast<frmMain*>(Find(Window::Main)); }

frmTeam* Stage::Team() const { return dynamic_cast<frmTeam*>(Find(Window::Team)); }

void Stage::Load(Screen& screen)
{
    const Screen* outer = std::exchange(loading, &screen);
    RunEvent("Form_Load", [&screen] { screen.FormLoad(); });
    loading = outer;
}

void Stage::Show(Screen& screen)
{
    screen.show();
    screen.raise();
    screen.activateWindow();
    RunEvent("Form_Activate", [&screen] { screen.FormActivate(); });
    screen.ShowHistory();
    ShowSquadAnew();
}

void Stage::ShowBehind(Window closed)
{
    switch (RoleOf(closed)->Back) {
    case Behind::Main:
        ShowReturningTo(Window::Main);
        break;
    case Behind::Team:
        ShowReturningTo(Window::Team);
        break;
    case Behind::Office: // the team's screen where it opened the closed one
        ShowReturningTo(Find(Window::Team) != nullptr ? Window::Team : Window::Main);
        break;
    case Behind::Caller:
        if (CallerScreen == caller_screen::Main)
            ShowReturningTo(Window::Main);
        else if (CallerScreen == caller_screen::Team)
            ShowReturningTo(Window::Team);
        else
            Machine().ShowIntegrityFailure();
        break;
    case Behind::Viewer:
        ShowReturningTo(BehindViewer());
        lookedFrom.reset();
        ShowSquadAnew();
        break;
    }
}

void Stage::ShowReturningTo(Window window)
{
    Screen* screen = Find(window);
    // The screen that should be there may have been closed meanwhile; the way home is always open.
    if (screen == nullptr)
        screen = Find(Window::Main);
    if (screen == nullptr)
        return;
    RunEvent("Form_Load", [screen] { screen->ReloadForm(); });
    if (!screen->WantsToUnload())
        Show(*screen);
}

void Stage::Dispose(std::unique_ptr<Screen> screen)
{
    disposed.erase(std::remove(disposed.begin(), disposed.end(), nullptr), disposed.end());
    screen->deleteLater();
    disposed.emplace_back(screen.release());
}

} // namespace dravik
