#pragma once

#include <QPalette>

namespace dravik {

// Two calm palettes, for tests, for pictures, and for desktops that have no theme of their own.
QPalette LightPalette();
QPalette DarkPalette();

// Gives the whole program the Fusion style and one of the palettes, so that it looks the same everywhere.
void UseLightLook();
void UseDarkLook();

// The light look for a desktop that has none of its own, such as a bare window manager. Everywhere else, and where the
// user has chosen a style, the program looks as the desktop does, with the edges of FusionLook where that is Fusion.
void UseLookOfDesktop();

// `a` and `b` mixed: all of `a` at 0, all of `b` at 1. Muted words are text mixed with its background.
QColor Mixed(const QColor& a, const QColor& b, double part);

// How well two colours can be told apart, from 1 to 21. Words want at least 4.5.
double Contrast(const QColor& a, const QColor& b);

} // namespace dravik
