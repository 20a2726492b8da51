#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPalette>
#include <QWidget>

// The few shades and fonts of the program's look. All of them are mixed from the palette at hand when something is painted,
// so they fit light and dark desktops alike and follow a change of the theme at once.
namespace dravik {

// The colour of secondary words: text faded into its background, yet with a contrast of 4.5 at least wherever the text
// itself has it, also where the style tints the background a little, as it does within a group.
QColor Muted(const QColor& text, const QColor& background);
QColor MutedText(const QPalette& palette);
// The same on a painted ground, whichever of its colours is closest to the text's.
QColor MutedOn(const QColor& text, const QImage& ground);

// The ground of a chosen entry: the palette's highlight, darkened or lightened where the words on it could not be read, so
// that `words` and what is muted beside them have that contrast too.
QColor ChosenGround(const QColor& highlight, const QColor& words);

// The palette's colour of links, mixed with its words where it could not be read on a window: a desktop that hands over dark
// grounds may leave the toolkit's own dark blue.
QColor LinkText(const QPalette& palette);

// Gives a widget's placeholder text the colour of secondary words, mixed from the palette at hand. To be called anew when the
// palette changes.
void MutePlaceholder(QWidget& widget);
// The same now and at every change of the palette.
void KeepPlaceholderMuted(QWidget& widget);

// Red for what is wrong, readable on `background`. It never stands without a sign.
QColor Alarming(const QColor& background);
// Amber for what is allowed and yet worth a look, likewise.
QColor Cautioning(const QColor& background);

// The font of a screen's one title, and of a heading, grown from the font at hand.
QFont TitleFont(QFont font);
QFont HeadingFont(QFont font);

// Distances of every screen.
inline constexpr int Margin = 14;
inline constexpr int Gap = 8;

} // namespace dravik
