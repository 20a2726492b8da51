#include "screens/Looks.h"

#include "desk/Password.h"
#include "screens/panels/LookWindow.h"
#include "screens/Screen.h"
#include "screens/Stage.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"
#include "session/Session.h"

namespace dravik {

namespace {

LookWindow* MakeLook(Look look, Stage& stage, Screen& screen, const RunsStep& asStep)
{
    if (look == Look::Graphs)
        return new GraphsWindow(&screen);
    auto* calendar = new CalendarWindow(&screen, asStep);
    QObject::connect(calendar, &CalendarWindow::Changed, &screen, [&stage] { stage.ShowAnew(); });
    return calendar;
}

const char* NameOf(Look look) { return look == Look::Graphs ? GraphsWindow::Name : CalendarWindow::Name; }

} // namespace

void OpenLook(Look look, Stage& stage, Screen& screen, const RunsStep& asStep)
{
    auto* window = screen.findChild<LookWindow*>(NameOf(look), Qt::FindDirectChildrenOnly);
    if (window != nullptr && window->isVisible()) {
        window->close();
        return;
    }
    if (!TeamTable::Has(CurrentTeam)) {
        Machine().ShowBox("No Team is Selected!", box::Information);
        return;
    }
    const bool isProved = &screen != stage.Find(Window::Main);
    if (!isProved && !CheckPassword(OpenLeague, Machine(), OwnNumber()))
        return;
    if (window == nullptr)
        window = MakeLook(look, stage, screen, asStep);
    if (!isProved)
        window->setWindowModality(Qt::WindowModal);
    window->Open();
}

void ShowLooksAnew(const Screen& screen)
{
    for (LookWindow* look : screen.findChildren<LookWindow*>(QString(), Qt::FindDirectChildrenOnly))
        if (look->isVisible())
            look->ShowAnew();
}

} // namespace dravik
