#pragma once

#include "screens/panels/Tag.h"

namespace dravik {

// The small tag at the foot of a list that says what was typed there, with a sign and words where no entry has it. It lies
// on the list and lets the mouse through. A screen reader is told of every new text.
class TypedTag : public Tag {
public:
    explicit TypedTag(QWidget* list);

    void Tell(const QString& typed, bool isFound);
    // Puts the tag at the right end of the foot of `area`, or right above `chosen` where it would cover that. Both are in the
    // pixels of the list. The beginning of what is too wide gives way.
    void PlaceIn(const QRect& area, const QRect& chosen);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // What stands beside what was typed, sign, words and edges, in pixels.
    [[nodiscard]] int WidthOfRest() const;

    QString letters;
    bool found = true;
};

} // namespace dravik
