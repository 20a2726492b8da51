#include "PaintCommands.h"

#include <cmath>
#include <memory>
#include <QFont>
#include <QGradient>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QTextStream>

namespace dravik {

namespace {

// A coordinate, to hundredths of a pixel: what is behind them is the toolkit's arithmetic.
QString At(qreal value)
{
    constexpr qreal parts = 100;
    const qreal rounded = std::round(value * parts) / parts;
    return QString::number(rounded == 0 ? 0 : rounded);
}
QString At(const QPointF& point) { return At(point.x()) + ',' + At(point.y()); }
QString At(const QRectF& area) { return At(area.topLeft()) + ' ' + At(area.width()) + 'x' + At(area.height()); }
QString Of(const QColor& colour) { return colour.name(QColor::HexArgb); }

QString Of(const QBrush& brush)
{
    QString words = QString::number(brush.style()) + ' ' + Of(brush.color());
    if (const QGradient* gradient = brush.gradient())
        for (const QGradientStop& stop : gradient->stops())
            words += ' ' + At(stop.first) + ' ' + Of(stop.second);
    return words;
}
QString Of(const QPen& pen)
{
    return QString::number(pen.style()) + ' ' + At(pen.widthF()) + ' ' + QString::number(pen.capStyle()) + ' ' +
           QString::number(pen.joinStyle()) + ' ' + Of(pen.brush());
}

class CommandEngine : public QPaintEngine {
public:
    CommandEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override
    {
        const DirtyFlags changed = state.state();
        if ((changed & DirtyPen) != 0)
            Say("pen", Of(state.pen()));
        if ((changed & DirtyBrush) != 0)
            Say("brush", Of(state.brush()));
        if ((changed & DirtyBackground) != 0)
            Say("background", Of(state.backgroundBrush()));
        if ((changed & DirtyBackgroundMode) != 0)
            Say("background mode", QString::number(state.backgroundMode()));
        if ((changed & DirtyFont) != 0)
            Say("font", state.font().toString());
        if ((changed & DirtyTransform) != 0)
            Say("moved", At(QPointF(state.transform().dx(), state.transform().dy())) + ' ' +
                             At(QPointF(state.transform().m11(), state.transform().m22())) + ' ' +
                             At(QPointF(state.transform().m12(), state.transform().m21())));
        if ((changed & DirtyClipRegion) != 0)
            Say("clip", QString::number(state.clipOperation()) + ' ' + At(QRectF(state.clipRegion().boundingRect())));
        if ((changed & DirtyClipPath) != 0)
            Say("clip", QString::number(state.clipOperation()) + ' ' + At(state.clipPath().boundingRect()));
        if ((changed & DirtyClipEnabled) != 0)
            Say("clips", QString::number(static_cast<int>(state.isClipEnabled())));
        if ((changed & DirtyHints) != 0)
            Say("hints", QString::number(state.renderHints()));
        if ((changed & DirtyOpacity) != 0)
            Say("opacity", At(state.opacity()));
    }

    void drawPath(const QPainterPath& path) override
    {
        QString words;
        for (int place = 0; place < path.elementCount(); ++place)
            words += QString::number(path.elementAt(place).type) + ' ' + At(QPointF(path.elementAt(place))) + ' ';
        Say("path", words);
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        QString words = QString::number(mode);
        for (int place = 0; place < count; ++place)
            words += ' ' + At(points[place]);
        Say("polygon", words);
    }
    void drawPoints(const QPointF* points, int count) override
    {
        for (int place = 0; place < count; ++place)
            Say("point", At(points[place]));
    }
    void drawLines(const QLineF* lines, int count) override
    {
        for (int place = 0; place < count; ++place)
            Say("line", At(lines[place].p1()) + ' ' + At(lines[place].p2()));
    }
    void drawRects(const QRectF* areas, int count) override
    {
        for (int place = 0; place < count; ++place)
            Say("rectangle", At(areas[place]));
    }
    void drawEllipse(const QRectF& area) override { Say("ellipse", At(area)); }
    void drawPixmap(const QRectF& area, const QPixmap& /*picture*/, const QRectF& part) override
    {
        Say("picture", At(area) + ' ' + At(part));
    }
    void drawTiledPixmap(const QRectF& area, const QPixmap& /*picture*/, const QPointF& from) override
    {
        Say("pictures", At(area) + ' ' + At(from));
    }
    void drawImage(const QRectF& area, const QImage& /*picture*/, const QRectF& part,
                   Qt::ImageConversionFlags /*flags*/) override
    {
        Say("picture", At(area) + ' ' + At(part));
    }
    void drawTextItem(const QPointF& place, const QTextItem& words) override
    {
        Say("words", At(place) + ' ' + words.font().toString() + ' ' + At(words.width()) + ' ' + words.text());
    }

    QString Commands;

private:
    void Say(const char* what, const QString& how) { Commands += QString(what) + ' ' + how + '\n'; }
};

// A display of the toolkit's usual measures, on which nothing is to be seen.
class CommandDevice : public QPaintDevice {
public:
    explicit CommandDevice(const QSize& extent) : size(extent) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return engine.get(); }
    [[nodiscard]] const QString& Commands() const { return engine->Commands; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric what) const override
    {
        constexpr int dots = 96;
        constexpr double millimetres = 25.4;
        switch (what) {
        case PdmWidth:
            return size.width();
        case PdmHeight:
            return size.height();
        case PdmWidthMM:
            return static_cast<int>(size.width() * millimetres / dots);
        case PdmHeightMM:
            return static_cast<int>(size.height() * millimetres / dots);
        case PdmNumColors:
            return 1 << 24;
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dots;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(what);
        }
    }

private:
    QSize size;
    std::unique_ptr<CommandEngine> engine = std::make_unique<CommandEngine>();
};

} // namespace

QString PaintCommandsOf(QWidget& widget)
{
    CommandDevice device(widget.size());
    widget.render(&device, {}, {}, {});
    return device.Commands();
}

} // namespace dravik
