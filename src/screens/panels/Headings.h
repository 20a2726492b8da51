#pragma once

#include <QHeaderView>

namespace dravik {

// The headings of a table whose cells keep room of their own at their sides: each heading stands where the words of its cells do,
// `left` pixels from the left edge of its column, or `right` pixels from the right one, and is elided where it has no room.
class Headings : public QHeaderView {
public:
    Headings(int left, int right, QWidget* parent);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int column) const override;
    void paintSection(QPainter* painter, const QRect& area, int column) const override;
    [[nodiscard]] QSize sectionSizeFromContents(int column) const override;

private:
    int leftRoom, rightRoom;
};

} // namespace dravik
