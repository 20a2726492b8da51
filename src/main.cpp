#include "machine/Clock.h"
#include "machine/Platform.h"
#include "sample-league/ClientFileWriter.h"
#include "sample-league/SampleLeague.h"
#include "screens/main/SampleOffer.h"
#include "screens/platform/Application.h"
#include "screens/platform/DesktopLook.h"
#include "screens/platform/JournalPlace.h"
#include "screens/platform/QtPlatform.h"
#include "screens/platform/SamplePlace.h"
#include "screens/Stage.h"
#include "session/OpenChanges.h"
#include "session/OpenJournal.h"
#include "session/Session.h"

#include <QIcon>
#include <QTimer>

namespace {

// What task bars and window lists show. A desktop that knows the installed launcher takes the icon from there. The toolkit
// looks for its readers of pictures first, so this waits until the first window is there and nothing else is to be done.
void IntroduceToDesktop()
{
    dravik::Application::setDesktopFileName("org.example.DravikClient");
    QTimer::singleShot(0, qApp, [] {
        QIcon icon;
        for (const char* file : {":/icons/dravik-client-48.png", ":/icons/dravik-client-128.png"})
            icon.addFile(file);
        dravik::Application::setWindowIcon(icon);
    });
}

// The league that the tools make from a seed, for who has no client file yet.
void OfferSample()
{
    const std::string path = dravik::SamplePlace();
    if (path.empty())
        return;
    std::vector<std::pair<int, std::string>> passwords;
    for (const dravik::TeamPassword& team : dravik::SamplePasswords)
        passwords.emplace_back(team.Team, team.Password);
    dravik::OfferSampleLeague({.Path = path, .Passwords = passwords, .Make = [](const std::string& file) {
                                   dravik::MakeSampleLeague({});
                                   dravik::sample::WriteClientFile(file);
                               }});
}

} // namespace

int main(int argc, char** argv)
{
    const dravik::Application application(argc, argv);
    IntroduceToDesktop();
    const auto look = dravik::UseLookOfDesktop();
    dravik::QtPlatform platform;
    dravik::UseMachine(platform);
    dravik::KeepJournals(dravik::JournalPlace(), dravik::LocalTime);
    OfferSample();
    dravik::KeepDigests(dravik::DigestPlace());
    dravik::Stage stage;
    return stage.Start() ? dravik::Application::exec() : 0;
}
