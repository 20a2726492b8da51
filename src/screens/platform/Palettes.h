#pragma once

#include <QPalette>

namespace dravik {

// Two calm palettes, for tests, for pictures, and for desktops that have no theme of their own.
QPalette LightPalette();
QPalette DarkPalette();

// Gives the whole program the Fusion style and one of the palettes, so that it looks the same everywhere.
void UseLightLook();
void UseDarkLook();

// `a` and `b` mixed: all of `a` at 0, all of `b` at 1. Muted words are text mixed with its background.
QColor Mixed(const QColor& a, const QColor& b, double part);

// Whether words are lighter than their background.
bool IsDark(const QPalette& palette);

// How well two colours can be told apart, from 1 to 21. Words want at least 4.5.
double Contrast(const QColor& a, const QColor& b);

} // namespace dravik
