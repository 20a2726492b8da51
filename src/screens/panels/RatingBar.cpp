#include "screens/panels/RatingBar.h"

#include "screens/panels/GhostWords.h"
#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QAccessible>
#include <QPainter>

namespace dravik {

namespace {

constexpr int FullRating = 99;
constexpr double BarPart = 0.62;    // how much of the highlight is in the bar
constexpr double GroundPart = 0.12; // how much of the text is in its ground
constexpr int GhostRim = 2;         // how far a ghost stands out above and below the bar

// How much of `whole` a rating fills, from the side at which one begins to read.
QRectF PartOf(const QRectF& whole, int rating, Qt::LayoutDirection direction)
{
    QRectF part = whole;
    part.setWidth(whole.width() * std::clamp(rating, 0, FullRating) / FullRating);
    if (direction == Qt::RightToLeft)
        part.moveRight(whole.right());
    return part;
}

} // namespace

int HeightOfRatingBar(const QFontMetrics& metrics) { return metrics.height() / 2 + 1; }

void PaintGhost(QPainter& painter, const QRectF& area, const QPalette& palette)
{
    const QColor back = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ink = Muted(text, Mixed(back, text, GroundPart));
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(ink, Qt::BDiagPattern));
    painter.drawRect(area);
    painter.setPen(ink);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    painter.restore();
}

RatingBar::RatingBar(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void RatingBar::SetValue(int rating)
{
    if (value == rating)
        return;
    value = rating;
    if (ghost)
        setToolTip(GhostWords(value, *ghost));
    update();
    QAccessibleValueChangeEvent changed(this, rating);
    QAccessible::updateAccessibility(&changed);
}

void RatingBar::SetGhost(std::optional<int> rating)
{
    if (ghost == rating)
        return;
    if (ghost.has_value() != rating.has_value())
        updateGeometry();
    ghost = rating;
    setToolTip(ghost ? GhostWords(value, *ghost) : QString());
    update();
    QAccessibleValueChangeEvent changed(this, value);
    QAccessible::updateAccessibility(&changed);
}

QString RatingBar::InWords() const { return ghost ? GhostWords(value, *ghost) : QString::number(value); }

double RatingBar::Full() const { return FullRating; }

QSize RatingBar::sizeHint() const
{
    const int letter = fontMetrics().height();
    return {(ghost ? 2 : 4) * letter, HeightOfRatingBar(fontMetrics())};
}

void RatingBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    // The palette of what stands in front, whether the panel is open or closed.
    const QColor back = palette().color(QPalette::Active, QPalette::Window);
    const QColor text = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    painter.fillRect(rect(), Mixed(back, text, GroundPart));
    QRectF bar = PartOf(rect(), value, layoutDirection());
    if (ghost) {
        PaintGhost(painter, PartOf(rect(), *ghost, layoutDirection()), palette());
        bar.adjust(0, GhostRim, 0, -GhostRim);
    }
    painter.fillRect(bar, Mixed(back, accent, BarPart));
}

} // namespace dravik
