#include "screens/panels/RatingBar.h"

#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QAccessible>
#include <QPainter>

namespace dravik {

namespace {

constexpr int FullRating = 99;
constexpr double BarPart = 0.62;    // how much of the highlight is in the bar
constexpr double GroundPart = 0.12; // how much of the text is in its ground

} // namespace

RatingBar::RatingBar(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void RatingBar::SetValue(int rating)
{
    if (value == rating)
        return;
    value = rating;
    update();
    QAccessibleValueChangeEvent changed(this, rating);
    QAccessible::updateAccessibility(&changed);
}

double RatingBar::Full() const { return FullRating; }

QSize RatingBar::sizeHint() const
{
    const int letter = fontMetrics().height();
    return {4 * letter, letter / 2 + 1};
}

void RatingBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    // The palette of what stands in front, whether the panel is open or closed.
    const QColor back = palette().color(QPalette::Active, QPalette::Window);
    const QColor text = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    painter.fillRect(rect(), Mixed(back, text, GroundPart));
    QRectF bar(rect());
    bar.setWidth(bar.width() * std::clamp(value, 0, FullRating) / FullRating);
    if (layoutDirection() == Qt::RightToLeft)
        bar.moveRight(QRectF(rect()).right());
    painter.fillRect(bar, Mixed(back, accent, BarPart));
}

} // namespace dravik
