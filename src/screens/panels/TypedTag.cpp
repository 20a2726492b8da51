#include "screens/panels/TypedTag.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"

#include <algorithm>
#include <QPainter>

namespace dravik {

namespace {

constexpr int Padding = 4;  // between the tag's edge and its words
constexpr int Distance = 4; // of the tag from the edges of the list
constexpr const char* NotFound = ": not found";

} // namespace

TypedTag::TypedTag(QWidget* list) : Tag(list, "lblTyped") { hide(); }

void TypedTag::Tell(const QString& typed, bool isFound)
{
    const bool isNews = isHidden() || typed != letters || isFound != found;
    letters = typed;
    found = isFound;
    setText(found ? letters : letters + NotFound);
    setAccessibleName("Typed: " + text());
    show();
    raise();
    update();
    if (isNews)
        Announce(*this, accessibleName());
}

int TypedTag::WidthOfRest() const
{
    const int sign = fontMetrics().height() + Padding;
    return 2 * Padding + 1 + (found ? 0 : sign + fontMetrics().horizontalAdvance(NotFound));
}

void TypedTag::PlaceIn(const QRect& area, const QRect& chosen)
{
    const int height = fontMetrics().height() + Padding;
    const int wanted = fontMetrics().horizontalAdvance(letters) + WidthOfRest();
    const int width = std::min(wanted, area.width() - 2 * Distance);
    QRect place(area.right() + 1 - Distance - width, area.bottom() + 1 - Distance - height, width, height);
    const QRect above(place.left(), chosen.top() - Distance - height, width, height);
    if (place.intersects(chosen) && area.contains(above))
        place = above;
    setGeometry(place);
}

void TypedTag::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintFrame(painter);

    QRect line = rect().adjusted(Padding, 0, -Padding, 0);
    if (!found) {
        const QColor ground = palette().color(QPalette::Active, QPalette::Window);
        const int side = fontMetrics().height();
        PaintWarningSign(painter, QRect(line.left(), (height() - side) / 2, side, side), ground);
        line.setLeft(line.left() + side + Padding);
        painter.setPen(Alarming(ground));
    }
    const QString typed = fontMetrics().elidedText(letters, Qt::ElideLeft, width() - WidthOfRest() + 1);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, found ? typed : typed + NotFound);
}

} // namespace dravik
