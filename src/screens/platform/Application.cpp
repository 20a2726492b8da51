#include "screens/platform/Application.h"

#include "machine/Reporting.h"
#include "screens/panels/Accessible.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

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
        // Events come before there is a machine, too.
        if (const auto failed = FailureIn([&] { handled = QApplication::notify(receiver, event); }))
            ReportFailure(Machine(), *failed, " in Application!");
    } catch (...) {
        // Not even the report could be shown; without it the general manager can still save.
        return false;
    }
    return handled;
}

} // namespace dravik
