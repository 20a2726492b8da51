#include "screens/platform/ChosenLook.h"

#include "screens/platform/DesktopLook.h"
#include "screens/platform/Palettes.h"

#include <QApplication>

namespace dravik {

namespace {

LookChoice Chosen = LookChoice::Desktop;

} // namespace

void ChooseLook(LookChoice look)
{
    Chosen = look;
    switch (look) {
    case LookChoice::Light:
        UseLightLook();
        break;
    case LookChoice::Dark:
        UseDarkLook();
        break;
    case LookChoice::Desktop:
        DesktopLook::FollowAgain();
        break;
    }
}

LookChoice ChosenLook() { return Chosen; }

void ChooseTextSize(int percent)
{
    static const double usual = QApplication::font().pointSizeF();
    constexpr double whole = 100;
    QFont font = QApplication::font();
    font.setPointSizeF(usual * percent / whole);
    if (font != QApplication::font())
        QApplication::setFont(font);
}

} // namespace dravik
