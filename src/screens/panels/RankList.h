#pragma once

#include "screens/panels/EntryList.h"

namespace dravik {

// A list of entries in an order of the user's own, who drags an entry to its place. While he does, a line shows where it
// would go, and the list scrolls at its edges; Escape and a release outside the list leave everything as it is. The list
// moves nothing itself: it tells what was asked of it.
class RankList : public EntryList {
    Q_OBJECT
public:
    using EntryList::EntryList;

signals:
    // The entry of the row `from` was dropped where it is to have the row `to`, another one.
    void Dropped(int from, int to);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // How many entries stand above a point; -1 outside the list.
    [[nodiscard]] int EntriesAbove(const QPoint& point) const;
    void EndDrag();

    int pressedRow = -1;
    QPoint pressedPoint;
    bool dragging = false;
    int place = -1; // entries above the place where the dragged one would go
};

} // namespace dravik
