#include "screens/panels/SignShapes.h"

#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"

#include <algorithm>
#include <array>
#include <QPainterPath>

namespace dravik {

namespace {

constexpr double Unit = 16; // all shapes stand in a square of this side
constexpr double Stroke = 1.6;
constexpr int FigureGap = 2;

enum class Ink { Alarm, Caution, Quiet };

// What a shape is drawn with.
struct Pens {
    QPainter& Painter;
    QColor Ink;
    QColor Ground;

    void Outline(double width = Stroke) const
    {
        Painter.setPen(QPen(Ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        Painter.setBrush(Qt::NoBrush);
    }
    void Fill() const
    {
        Outline(1);
        Painter.setBrush(Ink);
    }
    // What is left open in a filled shape.
    void Cut(double width = Stroke) const
    {
        Painter.setPen(QPen(Ground, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        Painter.setBrush(Qt::NoBrush);
    }
};

void DrawWarning(const Pens& pens) { PaintWarningSign(pens.Painter, QRectF(0, 0, Unit, Unit), pens.Ground); }

// A disc with a two.
void DrawTwo(const Pens& pens)
{
    pens.Fill();
    pens.Painter.drawEllipse(QRectF(1, 1, 14, 14));
    QPainterPath two(QPointF(5.5, 6.2));
    two.cubicTo(5.5, 3, 10.6, 3, 10.6, 6.2);
    two.cubicTo(10.6, 8.4, 5.5, 9.4, 5.5, 12);
    two.lineTo(10.8, 12);
    pens.Cut();
    pens.Painter.drawPath(two);
}

// A first-aid box.
void DrawAidBox(const Pens& pens)
{
    pens.Fill();
    pens.Painter.drawRoundedRect(QRectF(1.5, 1.5, 13, 13), 3, 3);
    pens.Cut(2.2);
    pens.Painter.drawLine(QPointF(8, 4.8), QPointF(8, 11.2));
    pens.Painter.drawLine(QPointF(4.8, 8), QPointF(11.2, 8));
}

// A ring with a bar across.
void DrawBarredRing(const Pens& pens)
{
    pens.Outline(2);
    pens.Painter.drawEllipse(QRectF(2, 2, 12, 12));
    pens.Painter.drawLine(QPointF(4, 4), QPointF(12, 12));
}

// An arrow that leaves an open box.
void DrawLeaving(const Pens& pens)
{
    pens.Outline();
    const std::array box{QPointF(8, 2.5), QPointF(2.5, 2.5), QPointF(2.5, 13.5), QPointF(8, 13.5)};
    pens.Painter.drawPolyline(box.data(), static_cast<int>(box.size()));
    pens.Painter.drawLine(QPointF(6.5, 8), QPointF(14, 8));
    const std::array head{QPointF(11, 5), QPointF(14, 8), QPointF(11, 11)};
    pens.Painter.drawPolyline(head.data(), static_cast<int>(head.size()));
}

// A sheet that is crossed out.
void DrawCrossedSheet(const Pens& pens)
{
    pens.Outline(1.4);
    const std::array sheet{QPointF(2.5, 1),   QPointF(9.5, 1),  QPointF(13.5, 5),
                           QPointF(13.5, 15), QPointF(2.5, 15), QPointF(2.5, 1)};
    pens.Painter.drawPolyline(sheet.data(), static_cast<int>(sheet.size()));
    pens.Outline(2);
    pens.Painter.drawLine(QPointF(5.4, 6), QPointF(10.6, 11.8));
    pens.Painter.drawLine(QPointF(10.6, 6), QPointF(5.4, 11.8));
}

// A square on its corner, with a stroke and a dot.
void DrawDiamond(const Pens& pens)
{
    pens.Fill();
    const std::array diamond{QPointF(8, 0.8), QPointF(15.2, 8), QPointF(8, 15.2), QPointF(0.8, 8)};
    pens.Painter.drawPolygon(diamond.data(), static_cast<int>(diamond.size()));
    pens.Cut();
    pens.Painter.drawLine(QPointF(8, 4.8), QPointF(8, 8.6));
    pens.Painter.drawPoint(QPointF(8, 11.3));
}

QPainterPath Crown()
{
    QPainterPath crown(QPointF(2, 13));
    for (const QPointF& corner :
         {QPointF(1.5, 5), QPointF(5, 8.5), QPointF(8, 3), QPointF(11, 8.5), QPointF(14.5, 5), QPointF(14, 13)})
        crown.lineTo(corner);
    crown.closeSubpath();
    return crown;
}

void DrawCrown(const Pens& pens)
{
    pens.Fill();
    pens.Painter.drawPath(Crown());
}

void DrawOpenCrown(const Pens& pens)
{
    pens.Outline(1.4);
    pens.Painter.drawPath(Crown());
}

// An arrow down onto a line.
void DrawDown(const Pens& pens)
{
    pens.Outline(1.8);
    pens.Painter.drawLine(QPointF(8, 2), QPointF(8, 10));
    const std::array head{QPointF(4.5, 6.8), QPointF(8, 10.3), QPointF(11.5, 6.8)};
    pens.Painter.drawPolyline(head.data(), static_cast<int>(head.size()));
    pens.Painter.drawLine(QPointF(3, 14), QPointF(13, 14));
}

// A lock.
void DrawLock(const Pens& pens)
{
    pens.Outline(1.8);
    QPainterPath bow(QPointF(5, 8));
    bow.lineTo(5, 5);
    bow.cubicTo(5, 1, 11, 1, 11, 5);
    bow.lineTo(11, 8);
    pens.Painter.drawPath(bow);
    pens.Fill();
    pens.Painter.drawRoundedRect(QRectF(3, 7.5, 10, 7), 1.5, 1.5);
    pens.Cut();
    pens.Painter.drawLine(QPointF(8, 10.2), QPointF(8, 12));
}

// Two leaves of a sprout: one filled, one open.
void DrawSprout(const Pens& pens)
{
    pens.Outline(1.4);
    const auto leaf = [](double sign) {
        const auto at = [sign](double x, double y) { return QPointF(8 + sign * x, y); };
        QPainterPath path(at(0, 9));
        path.cubicTo(at(0, 4.5), at(3, 2.5), at(6.8, 2.5));
        path.cubicTo(at(6.8, 6.5), at(4.5, 9), at(0, 9));
        return path;
    };
    pens.Painter.drawPath(leaf(1));
    pens.Painter.drawLine(QPointF(8, 9), QPointF(8, 14.5));
    pens.Fill();
    pens.Painter.drawPath(leaf(-1));
}

// A drawing pin, upright: its head, its collar and its point.
void DrawPin(const Pens& pens)
{
    pens.Fill();
    pens.Painter.drawRoundedRect(QRectF(5, 1.2, 6, 6.2), 1, 1);
    const std::array collar{QPointF(2.6, 10), QPointF(5.6, 6.8), QPointF(10.4, 6.8), QPointF(13.4, 10)};
    pens.Painter.drawPolygon(collar.data(), static_cast<int>(collar.size()));
    pens.Outline(1.8);
    pens.Painter.drawLine(QPointF(8, 10), QPointF(8, 15));
}

struct Look {
    Sign Kind;
    Ink Colour;
    void (*Draw)(const Pens&); // none: words alone
};

constexpr std::array<Look, 15> Looks{{
    {Sign::MayNotPlay, Ink::Alarm, DrawWarning},
    {Sign::UsedTwice, Ink::Alarm, DrawTwo},
    {Sign::Injured, Ink::Alarm, DrawAidBox},
    {Sign::Suspended, Ink::Alarm, DrawBarredRing},
    {Sign::OnWaivers, Ink::Alarm, DrawLeaving},
    {Sign::NoContract, Ink::Alarm, DrawCrossedSheet},
    {Sign::OutOfPosition, Ink::Caution, DrawDiamond},
    {Sign::InSlots, Ink::Quiet, nullptr},
    {Sign::NotUsed, Ink::Quiet, nullptr},
    {Sign::Captain, Ink::Quiet, DrawCrown},
    {Sign::Assistant, Ink::Quiet, DrawOpenCrown},
    {Sign::NeedsWaivers, Ink::Quiet, DrawDown},
    {Sign::NoTrade, Ink::Quiet, DrawLock},
    {Sign::Rookie, Ink::Quiet, DrawSprout},
    {Sign::Pinned, Ink::Quiet, DrawPin},
}};
static_assert([] {
    for (std::size_t index = 0; index < Looks.size(); ++index)
        if (Looks[index].Kind != static_cast<Sign>(index))
            return false;
    return std::tuple_size_v<decltype(SignTable)> == Looks.size();
}());

const Look& LookOf(Sign kind) { return Looks[static_cast<std::size_t>(kind)]; }

// A shape is a little smaller than its line of text is high.
int SideOf(const QFontMetrics& metrics) { return metrics.height() - 2; }

} // namespace

QColor InkOf(Sign kind, const QColor& front, const QColor& ground)
{
    switch (LookOf(kind).Colour) {
    case Ink::Alarm:
        return Alarming(ground);
    case Ink::Caution:
        return Cautioning(ground);
    default:
        return Muted(front, ground);
    }
}

void PaintShape(QPainter& painter, Sign kind, const QRectF& area, const QColor& ink, const QColor& ground)
{
    const Look& look = LookOf(kind);
    if (look.Draw == nullptr)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(area.width(), area.height());
    painter.translate(area.center() - QPointF(side / 2, side / 2));
    painter.scale(side / Unit, side / Unit);
    look.Draw({painter, ink, ground});
    painter.restore();
}

QString FigureOf(const PersonSign& sign, bool isShort)
{
    switch (sign.Kind) {
    case Sign::Injured:
    case Sign::Suspended:
        return QString::number(sign.Number);
    case Sign::InSlots:
        return QChar(0x00D7) + QString::number(sign.Number);
    case Sign::NotUsed:
        return isShort ? QString(QChar(0x2013)) : QString("not used");
    default:
        return {};
    }
}

int WidthOf(const PersonSign& sign, const QFontMetrics& metrics, bool isShort)
{
    const QString figure = FigureOf(sign, isShort);
    if (LookOf(sign.Kind).Draw == nullptr) // a column of its own
        return std::max(metrics.horizontalAdvance(figure), metrics.horizontalAdvance(QChar(0x00D7) + QString("00")));
    return SideOf(metrics) + (figure.isEmpty() ? 0 : FigureGap + metrics.horizontalAdvance(figure));
}

void PaintSign(QPainter& painter, const PersonSign& sign, const QRect& area, const QColor& front, const QColor& ground,
               bool isShort)
{
    const QColor ink = InkOf(sign.Kind, front, ground);
    const int side = SideOf(painter.fontMetrics());
    PaintShape(painter, sign.Kind, QRectF(area.left(), area.top() + (area.height() - side) / 2.0, side, side), ink,
               ground);
    const QString figure = FigureOf(sign, isShort);
    if (figure.isEmpty())
        return;
    painter.setPen(ink);
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, figure);
}

} // namespace dravik
