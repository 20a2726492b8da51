#pragma once

#include <QPainter>

namespace dravik {

// The signs of a verdict, drawn into the middle of `area`.

// A tick in `colour`: all is well.
void PaintTick(QPainter& painter, const QRectF& area, const QColor& colour);

// How many things are wrong: the number on a disc in the colour of what is wrong, as it fits `background`; beyond 99 its
// upper limit with a plus. `font` is that of the words beside it.
void PaintCount(QPainter& painter, const QRectF& area, int count, const QFont& font, const QColor& background);

// How wide that disc is in a square of that height, in pixels: from the right end of the square it reaches beyond the left one where it has
// more than one digit.
double CountWidth(double height, int count, const QFont& font);

} // namespace dravik
