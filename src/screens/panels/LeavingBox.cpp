#include "screens/panels/LeavingBox.h"

namespace dravik {

bool LeavingBox::Settle()
{
    if (!owesAction || acting)
        return true;
    owesAction = false;
    acting = true;
    Act();
    acting = false;
    return !owesAction;
}

void LeavingBox::TakeFocusBack()
{
    Focus();
    owesAction = true;
}

void LeavingBox::FocusCame()
{
    if (!acting)
        owesAction = true;
}

void LeavingBox::FocusWent(Qt::FocusReason reason)
{
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason)
        Settle();
}

} // namespace dravik
