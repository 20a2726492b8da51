#pragma once

#include <QPainter>
#include <QStyledItemDelegate>

namespace dravik {

// What a cell of a comparison tells besides its words: the rating over whose bar it stands, and its difference to the first one's
// ("+12"), in letters.
namespace compare {
inline constexpr int NumberRole = Qt::UserRole;
inline constexpr int DifferenceRole = Qt::UserRole + 1;
} // namespace compare

// Draws a thin bar from 0 to 99 at the foot of a cell, whose words are `front` on `back`.
void DrawRatingBar(QPainter& painter, const QRect& cell, int rating, const QColor& front, const QColor& back,
                   const QColor& accent);

// Draws a figure over its bar, behind it the difference in small muted letters, and a crest in front of the words that have one.
class CompareDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace dravik
