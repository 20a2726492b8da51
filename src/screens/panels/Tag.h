#pragma once

#include <QLabel>

class QPainter;

namespace dravik {

// A small framed tag in the colours of a window, with words of its own that no mark-up changes. It lies on its parent, takes no focus
// and lets the mouse through.
class Tag : public QLabel {
protected:
    // The tag is known to its parent as `name`.
    Tag(QWidget* parent, const char* name);

    // Paints ground and frame, and leaves the pen in the colour of the words.
    void PaintFrame(QPainter& painter) const;
};

} // namespace dravik
