#pragma once

#include <QMessageBox>
#include <QPixmap>

namespace dravik {

// The sign of a message box, drawn sharp at any scale: `size` in the desktop's units, `ratio` pixels to each. Signs are
// told apart by their shape and character, not by colour alone. Null for a box without one.
QPixmap BoxIcon(QMessageBox::Icon icon, const QPalette& palette, int size, double ratio);

// Whether the desktop brings no signs of its own for all kinds, whatever its style: the toolkit's few pixels are then all
// there is.
bool NeedsOwnBoxIcons();

} // namespace dravik
