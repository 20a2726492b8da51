#include "screens/panels/VerdictSigns.h"

#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr double Unit = 16; // the side of the square that a sign is drawn in

QRectF SquareIn(const QRectF& area)
{
    const double side = std::min(area.width(), area.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(area.center());
    return square;
}

} // namespace

void PaintTick(QPainter& painter, const QRectF& area, const QColor& colour)
{
    const QRectF square = SquareIn(area);
    const double unit = square.width() / Unit;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 2 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {square.topLeft() + QPointF(3, 8.5) * unit, square.topLeft() + QPointF(6.5, 12) * unit,
                            square.topLeft() + QPointF(13, 4) * unit};
    painter.drawPolyline(tick, 3);
    painter.restore();
}

void PaintCount(QPainter& painter, const QRectF& area, int count, const QFont& font, const QColor& background)
{
    constexpr int most = 99;
    constexpr double digitPart = 0.72; // of the disc's height
    const QRectF square = SquareIn(area);
    const QColor disc = Alarming(background);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QFont digits = HeadingFont(font);
    digits.setPixelSize(std::max(1, static_cast<int>(square.height() * digitPart)));
    const QString text = count > most ? QString::number(most) + '+' : QString::number(count);
    // A disc for one digit, as much wider as more digits want.
    const double wanted = QFontMetricsF(digits).horizontalAdvance(text) + square.height() / 2;
    QRectF plate = square;
    plate.setLeft(plate.right() - std::max(square.width(), wanted));
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawRoundedRect(plate, square.height() / 2, square.height() / 2);
    painter.setFont(digits);
    painter.setPen(Contrast(disc, Qt::white) > Contrast(disc, Qt::black) ? Qt::white : Qt::black);
    painter.drawText(plate, Qt::AlignCenter, text);
    painter.restore();
}

} // namespace dravik
