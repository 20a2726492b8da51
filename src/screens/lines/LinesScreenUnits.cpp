#include "screens/lines/LineSheet.h"
#include "screens/lines/LinesScreen.h"
#include "screens/lines/UnitWindow.h"
#include "session/Session.h"

#include <QApplication>

// Two lines or units side by side.
namespace dravik {

void LinesScreen::OfferComparison(const BoardHeading& heading)
{
    UnitWindow::Offer(heading, [this, heading] {
        RunEvent("CompareLines", [&] {
            if (HasLineDay(static_cast<int>(CurrentTeam), ShownDay()))
                UnitWindow::Of(this, Kind.Side, [this] { return ShownDay(); }).Compare(heading);
        });
    });
}

// A slot stands in one panel with the heading of its line.
void LinesScreen::CompareAtFocus()
{
    const bool isOnSheet = Sheet != nullptr && Sheet->isActiveWindow();
    const BoardParts& parts = isOnSheet ? Sheet->Parts : TabLine->Parts;
    const QWidget* focus = isOnSheet ? Sheet->focusWidget() : focusWidget();
    const BoardHeading* chosen = nullptr;
    for (const BoardHeading& heading : parts.Headings) {
        if (!heading.Label->isVisible())
            continue;
        const bool hasFocus = focus != nullptr && heading.Label->parentWidget()->isAncestorOf(focus);
        if (hasFocus || chosen == nullptr)
            chosen = &heading;
        if (hasFocus)
            break;
    }
    if (chosen == nullptr)
        chosen = &parts.Headings.front();
    chosen->Label->actions().constFirst()->trigger();
}

} // namespace dravik
