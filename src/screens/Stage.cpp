#include "screens/Stage.h"

#include "league/Failure.h"
#include "screens/lines/frmFarmLine.h"
#include "screens/lines/frmLine.h"
#include "screens/main/frmAbout.h"
#include "screens/main/frmMain.h"
#include "screens/market/frmDraft.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/player/frmCoach.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/player/frmProspect.h"
#include "screens/roster/frmRoster.h"
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
enum class Behind { Main, Team, Caller, Viewer };

template <class T>
std::unique_ptr<Screen> Make(Stage& stage)
{
    return std::make_unique<T>(stage);
}

struct Role {
    std::string_view Name;
    Behind Back;
    bool HidesOpener;
    std::unique_ptr<Screen> (*Create)(Stage&);
};

constexpr std::string_view MainName = "Main";
constexpr std::string_view TeamName = "Team";
constexpr std::string_view RosterName = "Roster";

// clang-format off
constexpr Role Roles[] = {
    {"Team",       Behind::Main,   true,  Make<frmTeam>},
    {"Roster",     Behind::Caller, true,  Make<frmRoster>},
    {"Line",       Behind::Caller, true,  Make<frmLine>},
    {"FarmLine",   Behind::Caller, true,  Make<frmFarmLine>},
    {"FreeAgent",  Behind::Main,   true,  Make<frmFreeAgentClient>},
    {"Draft",      Behind::Main,   true,  Make<frmDraft>},
    {"Ticket",     Behind::Team,   true,  Make<frmTicket>},
    {"EditPlayer", Behind::Viewer, true,  Make<frmEditPlayer>},
    {"About",      Behind::Main,   false, Make<frmAbout>},
    {"Coach",      Behind::Main,   true,  Make<frmCoach>},
    {"Prospect",   Behind::Main,   true,  Make<frmProspect>},
};
// clang-format on

const Role* RoleOf(std::string_view name)
{
    const auto* found =
        std::find_if(std::begin(Roles), std::end(Roles), [name](const Role& role) { return role.Name == name; });
    return found == std::end(Roles) ? nullptr : found;
}

// Whom the player viewer returns to, by `ViewerReturnMode`.
std::string_view ViewerOpener()
{
    switch (static_cast<int>(ViewerReturnMode)) {
    case return_mode::Roster:
        return RosterName;
    case return_mode::Offers:
        return "FreeAgent";
    case return_mode::Draft:
        return "Draft";
    default:
        return MainName;
    }
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
    screens[MainName] = std::move(made);
    Load(main);
    if (main.WantsToUnload()) {
        ended = true;
        screens.clear();
        return false;
    }
    Show(main);
    return true;
}

void Stage::Provide(std::string_view name, Factory factory)
{
    provided.insert_or_assign(std::string(name), std::move(factory));
}

void Stage::Open(std::string_view name, Screen& opener)
{
    const Role* role = RoleOf(name);
    if (role == nullptr)
        Fail(failure::InvalidCall);
    const auto other = provided.find(name);
    const Factory create = other != provided.end() ? other->second : Factory(role->Create);
    if (const auto standing = screens.find(role->Name); standing != screens.end()) {
        standing->second->hide();
        Dispose(std::move(standing->second));
    }
    Screen& screen = *(screens[role->Name] = create(*this));
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

Screen* Stage::Find(std::string_view name) const
{
    const auto found = screens.find(name);
    return found == screens.end() ? nullptr : found->second.get();
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

void Stage::ViewerClosed(bool changed)
{
    if (Screen* opener = Find(ViewerOpener()))
        opener->ViewerClosed(changed);
}

void Stage::Closed(Screen& screen)
{
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&screen](const auto& entry) { return entry.second.get() == &screen; });
    if (found == screens.end())
        return;
    const std::string_view name = found->first;
    Dispose(std::move(found->second));
    screens.erase(found);
    if (ended)
        return;
    if (name == MainName) {
        ended = true;
        for (const auto& [otherName, other] : screens)
            other->hide();
        QCoreApplication::exit(0);
        return;
    }
    ShowBehind(name);
}

frmMain* Stage::Main() const { return dynamic_cast<frmMain*>(Find(MainName)); }

frmTeam* Stage::Team() const { return dynamic_cast<frmTeam*>(Find(TeamName)); }

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
}

void Stage::ShowBehind(std::string_view name)
{
    switch (RoleOf(name)->Back) {
    case Behind::Main:
        ShowReturningTo(MainName);
        break;
    case Behind::Team:
        ShowReturningTo(TeamName);
        break;
    case Behind::Caller:
        if (CallerScreen == MainName || CallerScreen == TeamName)
            ShowReturningTo(CallerScreen);
        else
            Machine().ShowIntegrityFailure();
        break;
    case Behind::Viewer:
        ShowReturningTo(ViewerOpener());
        break;
    }
}

void Stage::ShowReturningTo(std::string_view name)
{
    Screen* screen = Find(name);
    // The screen that should be there may have been closed meanwhile; the way home is always open.
    if (screen == nullptr)
        screen = Find(MainName);
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
