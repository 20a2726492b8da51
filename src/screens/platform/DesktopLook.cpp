#include "screens/platform/DesktopLook.h"

#include "screens/platform/ChosenLook.h"
#include "screens/platform/FusionLook.h"
#include "screens/platform/Palettes.h"

#include <QApplication>
#include <QStyleFactory>

#include <utility>

namespace dravik {

namespace {

DesktopLook* Living = nullptr;

} // namespace

DesktopLook::DesktopLook(bool hasLook, std::unique_ptr<SchemeSource> scheme) :
    isGiven(hasLook), givenStyle(QApplication::style()->name()), source(std::move(scheme))
{
    if (isGiven && givenStyle.compare("fusion", Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new FusionLook);
    if (source != nullptr)
        QObject::connect(source.get(), &SchemeSource::Changed, source.get(), [this] { Follow(); });
    Living = this;
    Follow();
}

DesktopLook::~DesktopLook()
{
    if (Living == this)
        Living = nullptr;
}

// Without one, no desktop is followed; the program's own light look is that of a start without any word.
void DesktopLook::FollowAgain()
{
    if (Living == nullptr)
        UseLightLook();
    else {
        Living->isOurs = true;
        Living->Follow();
    }
}

void DesktopLook::Follow()
{
    if (ChosenLook() != LookChoice::Desktop)
        return;
    const ColourScheme told = source == nullptr ? ColourScheme::Untold : source->Scheme();
    if (isGiven) {
        UseGivenLook();
        const bool fits = IsDark(QApplication::palette()) == (told == ColourScheme::Dark);
        if (told == ColourScheme::Untold || fits)
            return;
    }
    isOurs = true;
    if (told == ColourScheme::Dark)
        UseDarkLook();
    else
        UseLightLook();
}

void DesktopLook::UseGivenLook()
{
    if (!std::exchange(isOurs, false))
        return;
    if (givenStyle.compare("fusion", Qt::CaseInsensitive) != 0)
        QApplication::setStyle(givenStyle);
    QApplication::setPalette(QPalette());
}

std::unique_ptr<DesktopLook> UseLookOfDesktop(std::unique_ptr<SchemeSource> (*scheme)())
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return std::make_unique<DesktopLook>(true, scheme());
#else
    const auto isSet = [](const char* name) { return !qEnvironmentVariableIsEmpty(name); };
    const bool isChosen = isSet("QT_QPA_PLATFORMTHEME") || isSet("QT_STYLE_OVERRIDE");
    return std::make_unique<DesktopLook>(isChosen || isSet("XDG_CURRENT_DESKTOP"), isChosen ? nullptr : scheme());
#endif
}

} // namespace dravik
