#pragma once

#include <QString>
#include <QWidget>

namespace dravik {

// What a widget paints, without its children, as the commands that reach a paint device: shapes, words and where they stand,
// with pens, brushes, fonts and clips, a line each. It is the same on every processor, as pixels need not be. Of pictures it has the
// size alone.
QString PaintCommandsOf(QWidget& widget);

} // namespace dravik
