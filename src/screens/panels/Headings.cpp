#include "screens/panels/Headings.h"

#include <algorithm>
#include <QPainter>
#include <QStyleOptionHeader>

namespace dravik {

Headings::Headings(int left, int right, QWidget* parent) :
    QHeaderView(Qt::Horizontal, parent), leftRoom(left), rightRoom(right)
{
}

// The style draws the ground alone: its own margin is not that of the cells.
void Headings::initStyleOptionForIndex(QStyleOptionHeader* option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    option->text.clear();
}

void Headings::paintSection(QPainter* painter, const QRect& area, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, area, column);
    painter->restore();
    const QString words = model()->headerData(column, Qt::Horizontal).toString();
    const QVariant side = model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
    const bool isAtRight = Qt::Alignment(side.toInt()).testFlag(Qt::AlignRight);
    const QRect room = isAtRight ? area.adjusted(0, 0, -rightRoom, 0) : area.adjusted(leftRoom, 0, 0, 0);
    painter->save();
    painter->setFont(font());
    painter->setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter->drawText(room, (isAtRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter | Qt::TextSingleLine,
                      fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
    painter->restore();
}

QSize Headings::sectionSizeFromContents(int column) const
{
    QSize size = QHeaderView::sectionSizeFromContents(column);
    const QString words = model()->headerData(column, Qt::Horizontal).toString();
    size.setWidth(std::max(size.width(), fontMetrics().horizontalAdvance(words) + leftRoom + rightRoom));
    return size;
}

} // namespace dravik
