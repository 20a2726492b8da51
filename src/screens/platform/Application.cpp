#include "screens/platform/Application.h"

#include "league/Message.h"
#include "league/Reporting.h"
#include "screens/platform/CodePage.h"

namespace dravik {

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(ToQString(ProgramTitle));
    setOrganizationName(ToQString(ProgramTitle));
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    bool handled = false;
    try {
        Reporting(" in Application!", [&] { handled = QApplication::notify(receiver, event); });
    } catch (...) {
        // Even the report found no memory; without it the program can still be used to save.
    }
    return handled;
}

} // namespace dravik
