#pragma once

#include "screens/panels/Tag.h"

#include <QTimer>

namespace dravik {

// A small tag that says for some seconds above a command what it did, where no box comes and nothing else on the screen shows it. It lies
// on the screen, takes no focus and lets the mouse through; a screen reader is told of it. A screen has one at a time.
class PassingTag : public Tag {
public:
    // Says `words` above `command`, within its window. Of what is too long for that, the middle gives way.
    static void Say(QWidget& command, const QString& words);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    explicit PassingTag(QWidget* window);
    void PlaceAbove(const QWidget& command);

    QTimer end{this};
};

} // namespace dravik
