#include "screens/panels/CompareCells.h"

#include "screens/panels/Crest.h"
#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr int SideMargin = 4;
constexpr int BarHeight = 2;
constexpr double BarPart = 0.7;     // how much of the accent is in a bar
constexpr double GroundPart = 0.12; // and of the text in its ground
constexpr int FullRating = 99;

} // namespace

void DrawRatingBar(QPainter& painter, const QRect& cell, int rating, const QColor& front, const QColor& back,
                   const QColor& accent)
{
    QRectF bar(cell.left() + SideMargin, cell.bottom() - BarHeight, cell.width() - 2 * SideMargin, BarHeight);
    painter.fillRect(bar, Mixed(back, front, GroundPart));
    bar.setWidth(bar.width() * std::clamp(rating, 0, FullRating) / FullRating);
    painter.fillRect(bar, Mixed(back, accent, BarPart));
}

void CompareDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QColor front = option.palette.color(QPalette::Active, QPalette::Text);
    const QColor back = option.palette.color(QPalette::Active, QPalette::Base);
    QRect words = option.rect.adjusted(SideMargin, 0, -SideMargin, -SideMargin);
    const QString text = index.data().toString();
    const QString difference = index.data(compare::DifferenceRole).toString();
    painter->save();
    if (const auto crest = index.data(entry::CrestRole).value<Crest>(); !crest.IsNone()) {
        const int side = CrestSide(option.fontMetrics);
        PaintCrest(*painter, QRect(words.left(), words.top() + (words.height() - side) / 2, side, side), crest);
        words.setLeft(words.left() + CrestRoom(option.fontMetrics));
    }
    painter->setFont(option.font);
    painter->setPen(front);
    painter->drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(text, Qt::ElideRight, words.width()));
    painter->setPen(Muted(front, back));
    painter->drawText(words, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, difference);
    if (const QVariant number = index.data(compare::NumberRole); number.isValid())
        DrawRatingBar(*painter, option.rect, number.toInt(), front, back,
                      option.palette.color(QPalette::Active, QPalette::Highlight));
    painter->restore();
}

} // namespace dravik
