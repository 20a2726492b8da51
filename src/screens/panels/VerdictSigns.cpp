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

QString CountText(int count)
{
    constexpr int most = 99;
    return count > most ? QString::number(most) + '+' : QString::number(count);
}

QFont CountFont(double height, const QFont& font)
{
    constexpr double digitPart = 0.72; // of the disc's height
    QFont digits = HeadingFont(font);
    digits.setPixelSize(std::max(1, static_cast<int>(height * digitPart)));
    return digits;
}

} // namespace

// A disc for one digit, as much wider as more digits want.
double CountWidth(double height, int count, const QFont& font)
{
    return std::max(height, QFontMetricsF(CountFont(height, font)).horizontalAdvance(CountText(count)) + height / 2);
}

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
    const QRectF square = SquareIn(area);
    const QColor disc = Alarming(background);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF plate = square;
    plate.setLeft(plate.right() - CountWidth(square.height(), count, font));
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawRoundedRect(plate, square.height() / 2, square.height() / 2);
    painter.setFont(CountFont(square.height(), font));
    painter.setPen(Contrast(disc, Qt::white) > Contrast(disc, Qt::black) ? Qt::white : Qt::black);
    painter.drawText(plate, Qt::AlignCenter, CountText(count));
    painter.restore();
}

} // namespace dravik
