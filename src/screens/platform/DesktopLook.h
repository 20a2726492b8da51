#pragma once

#include "screens/platform/ColourScheme.h"

#include <QString>

#include <memory>

namespace dravik {

// Has the program look as the desktop does, from the start and as long as this lives. Where the desktop gives the toolkit a
// look of its own, that look stays unless the desktop says that its user wants the other kind of colours; where there is
// none, such as under a bare window manager, the program brings its own. A scheme that is told, or changes, is followed at
// once; where Fusion draws, it draws with the edges of FusionLook. A look that the user has chosen (ChosenLook) goes before it.
class DesktopLook {
public:
    // `hasLook`: whether the desktop gives one. Without a `scheme` the colours stay as they are given.
    DesktopLook(bool hasLook, std::unique_ptr<SchemeSource> scheme);
    DesktopLook(const DesktopLook&) = delete;
    DesktopLook& operator=(const DesktopLook&) = delete;
    ~DesktopLook();

    // Has the one that lives, if there is one, give the program the desktop's look once more.
    static void FollowAgain();

private:
    // Gives the program the look of the desktop, unless its user has chosen another for it.
    void Follow();
    // The look that the desktop gave the toolkit at first.
    void UseGivenLook();

    bool isGiven;
    QString givenStyle;
    bool isOurs = false; // the look at hand is the program's own
    std::unique_ptr<SchemeSource> source;
};

// The look of the desktop at hand, whose word of colours `scheme` brings. A style or a theme that the user has chosen for the
// toolkit stands, and the desktop is not asked.
std::unique_ptr<DesktopLook> UseLookOfDesktop(std::unique_ptr<SchemeSource> (*scheme)() = &DesktopScheme);

} // namespace dravik
