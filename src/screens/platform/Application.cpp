#include "screens/platform/Application.h"

#include "screens/panels/Accessible.h"
#include "screens/platform/CodePage.h"
#include "session/Routines.h"

#include <algorithm>

namespace dravik {

Application::Application(int argc, char** argv) : ArgumentCount{std::min(argc, 1)}, QApplication(Count, argv)
{
    setApplicationName(ToQString(ProgramTitle));
    setOrganizationName(ToQString(ProgramTitle));
    DescribePanelsToScreenReaders();
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    bool handled = false;
    try {
        Reporting(" in Application!", [&] { handled = QApplication::notify(receiver, event); });
    } catch (...) {
        // Not even the report could be shown; without it the general manager can still save.
        return false;
    }
    return handled;
}

} // namespace dravik
