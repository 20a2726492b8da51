#include "machine/Clock.h"
#include "machine/Platform.h"
#include "screens/platform/Application.h"
#include "screens/platform/DesktopLook.h"
#include "screens/platform/JournalPlace.h"
#include "screens/platform/QtPlatform.h"
#include "screens/Stage.h"
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

} // namespace

int main(int argc, char** argv)
{
    const dravik::Application application(argc, argv);
    IntroduceToDesktop();
    const auto look = dravik::UseLookOfDesktop();
    dravik::QtPlatform platform;
    dravik::UseMachine(platform);
    dravik::KeepJournals(dravik::JournalPlace(), dravik::LocalTime);
    dravik::Stage stage;
    return stage.Start() ? dravik::Application::exec() : 0;
}
