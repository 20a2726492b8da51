#include "screens/panels/Plot.h"

#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace dravik {

namespace {

constexpr int LinesWanted = 5;
constexpr double BarsPart = 0.78; // of the width of a category
constexpr double WidestBar = 46;
constexpr double RoomBelow = 4; // of a scale under its least figure
constexpr double MarkWidth = 2;
constexpr int LegendGap = 18;

// How a series is told from the others: how much of the background is in its shade, and its pattern.
struct SeriesLook {
    double Faded;
    Qt::BrushStyle Pattern;
};
constexpr SeriesLook Looks[Plot::MostSeries] = {{0.0, Qt::NoBrush},
                                                {0.85, Qt::BDiagPattern},
                                                {0.6, Qt::DiagCrossPattern},
                                                {0.95, Qt::Dense5Pattern},
                                                {0.7, Qt::HorPattern}};

// 1, 2 or 5 times a power of ten, at least `least`.
double RoundStep(double least)
{
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= least)
            return factor * power;
    return 10 * power;
}

// Words parted at the blank that is nearest to their middle.
QStringList InTwo(const QString& words)
{
    qsizetype best = -1;
    const qsizetype middle = words.size() / 2;
    for (qsizetype at = words.indexOf(' '); at >= 0; at = words.indexOf(' ', at + 1))
        if (best < 0 || std::abs(at - middle) < std::abs(best - middle))
            best = at;
    return best < 0 ? QStringList{words} : QStringList{words.left(best), words.mid(best + 1)};
}

} // namespace

Plot::Plot(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    shown.Worded = [](double value) { return QString::number(value); };
}

void Plot::Show(const PlotData& data)
{
    shown = data;
    FindScale();
    setAccessibleName(shown.Caption);
    QStringList words;
    for (int category = 0; category < shown.Categories.size(); ++category)
        words << WordsOf(category);
    if (shown.Mark)
        words << shown.Mark->Name + ' ' + shown.Worded(shown.Mark->At);
    setAccessibleDescription(words.join("; "));
    update();
}

void Plot::FindScale()
{
    double least = std::numeric_limits<double>::max();
    double most = std::numeric_limits<double>::lowest();
    const auto see = [&](double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    };
    for (const PlotSeries& series : shown.Series)
        for (const auto& value : series.Values)
            if (value)
                see(*value);
    if (shown.Mark)
        see(shown.Mark->At);
    if (least > most)
        least = most = 0;
    if (shown.BeginsAtZero)
        see(0);
    else
        see(least - RoomBelow);
    step = RoundStep(std::max(1.0, (most - least) / LinesWanted));
    from = std::floor(least / step) * step;
    to = std::max(from + step, std::ceil(most / step) * step);
}

QString Plot::WordsOf(int category) const
{
    QStringList figures;
    for (const PlotSeries& series : shown.Series) {
        const auto value = series.Values.value(category);
        figures << series.Name + ' ' + (value ? shown.Worded(*value) : QString("-"));
    }
    return shown.Categories.value(category) + ": " + figures.join(", ");
}

int Plot::LegendHeight() const
{
    const QList<LegendEntry> entries = Legend();
    return entries.isEmpty() ? 0 : entries.last().At.y() + fontMetrics().height() + Gap;
}

// What has no room in a row goes to the next.
QList<Plot::LegendEntry> Plot::Legend() const
{
    QList<LegendEntry> entries;
    QPoint at(0, 0);
    const int swatch = fontMetrics().height();
    const auto add = [&](int series, const QString& name) {
        const int wide = swatch + Gap / 2 + fontMetrics().horizontalAdvance(name);
        if (at.x() > 0 && at.x() + wide > width())
            at = {0, at.y() + fontMetrics().height() + Gap / 2};
        entries << LegendEntry{at, series, name};
        at.rx() += wide + LegendGap;
    };
    for (int series = 0; series < shown.Series.size(); ++series)
        add(series, shown.Series[series].Name);
    if (shown.Mark)
        add(static_cast<int>(shown.Series.size()), shown.Mark->Name);
    return entries;
}

int Plot::ScaleWidth() const
{
    int scale = 0;
    for (double at = from; at <= to + step / 2; at += step)
        scale = std::max(scale, fontMetrics().horizontalAdvance(shown.Worded(at)));
    return scale + Gap;
}

QRectF Plot::Ground() const
{
    const int line = fontMetrics().height();
    return QRectF(rect()).adjusted(ScaleWidth(), LegendHeight() + line / 2.0, -1, -(LinesBelow() * line + Gap));
}

double Plot::CategoryWidth() const
{
    return (width() - 1 - ScaleWidth()) / static_cast<double>(std::max<qsizetype>(1, shown.Categories.size()));
}

int Plot::LinesBelow() const
{
    const double room = CategoryWidth();
    return std::any_of(shown.Categories.begin(), shown.Categories.end(),
                       [&](const QString& words) { return fontMetrics().horizontalAdvance(words) > room; })
               ? 2
               : 1;
}

double Plot::HeightOf(double value) const
{
    const QRectF ground = Ground();
    return ground.bottom() - ground.height() * (value - from) / (to - from);
}

QRectF Plot::BarOf(int series, int category) const
{
    const auto value = shown.Series[series].Values.value(category);
    if (!value)
        return {};
    const QRectF ground = Ground();
    const double all = CategoryWidth();
    const auto count = static_cast<double>(shown.Series.size());
    const double width = std::min(WidestBar, all * BarsPart / count);
    const double left = ground.left() + category * all + (all - width * count) / 2 + series * width;
    const double base = HeightOf(std::clamp(0.0, from, to));
    const double top = HeightOf(*value);
    return QRectF(QPointF(left, std::min(top, base)), QPointF(left + width, std::max(top, base)));
}

QSize Plot::sizeHint() const { return {56 * fontMetrics().averageCharWidth(), 18 * fontMetrics().height()}; }

QSize Plot::minimumSizeHint() const { return {36 * fontMetrics().averageCharWidth(), 10 * fontMetrics().height()}; }

bool Plot::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const double across = help->pos().x() - Ground().left();
    const int category = across < 0 ? -1 : static_cast<int>(across / CategoryWidth());
    QToolTip::showText(help->globalPos(),
                       category >= 0 && category < shown.Categories.size() ? WordsOf(category) : QString(), this);
    return true;
}

void Plot::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintScale(painter);
    PaintBars(painter);
    PaintCategories(painter);
    PaintLegend(painter);
}

void Plot::PaintScale(QPainter& painter) const
{
    const QRectF ground = Ground();
    const QColor back = palette().color(QPalette::Window);
    const QColor front = palette().color(QPalette::WindowText);
    for (double at = from; at <= to + step / 2; at += step) {
        const double height = std::round(HeightOf(at));
        painter.fillRect(QRectF(ground.left(), height, ground.width(), 1), Mixed(back, front, 0.18));
        painter.setPen(MutedText(palette()));
        painter.drawText(QRectF(0, height - fontMetrics().height(), ground.left() - Gap, 2.0 * fontMetrics().height()),
                         Qt::AlignRight | Qt::AlignVCenter, shown.Worded(at));
    }
}

void Plot::PaintBar(QPainter& painter, const QRectF& bar, int series) const
{
    const SeriesLook& look = Looks[series % MostSeries];
    const QColor back = palette().color(QPalette::Window);
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    const QColor front = palette().color(QPalette::WindowText);
    painter.fillRect(bar, Mixed(accent, back, look.Faded));
    if (look.Pattern != Qt::NoBrush)
        painter.fillRect(bar, QBrush(Mixed(front, back, 0.25), look.Pattern));
    painter.setPen(QPen(Mixed(front, back, 0.35), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));
}

void Plot::PaintBars(QPainter& painter) const
{
    const QRectF ground = Ground();
    for (int series = 0; series < shown.Series.size(); ++series)
        for (int category = 0; category < shown.Categories.size(); ++category)
            if (const QRectF bar = BarOf(series, category); bar.height() >= 1)
                PaintBar(painter, bar, series);
    if (shown.Mark)
        painter.fillRect(QRectF(ground.left(), HeightOf(shown.Mark->At) - MarkWidth / 2, ground.width(), MarkWidth),
                         palette().color(QPalette::WindowText));
}

void Plot::PaintCategories(QPainter& painter) const
{
    const QRectF ground = Ground();
    const int lines = LinesBelow();
    painter.setPen(palette().color(QPalette::WindowText));
    for (int category = 0; category < shown.Categories.size(); ++category) {
        QRectF place(ground.left() + category * CategoryWidth(), ground.bottom() + Gap / 2.0, CategoryWidth(),
                     fontMetrics().height());
        for (const QString& words :
             lines == 1 ? QStringList{shown.Categories[category]} : InTwo(shown.Categories[category])) {
            painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop,
                             fontMetrics().elidedText(words, Qt::ElideRight, static_cast<int>(place.width())));
            place.translate(0, place.height());
        }
    }
}

void Plot::PaintLegend(QPainter& painter) const
{
    const int side = fontMetrics().height();
    for (const LegendEntry& entry : Legend()) {
        const QRectF swatch(entry.At.x() + 1, entry.At.y() + 1, side - 2, side - 2);
        if (entry.Series < shown.Series.size())
            PaintBar(painter, swatch, entry.Series);
        else
            painter.fillRect(QRectF(swatch.left(), swatch.center().y() - MarkWidth / 2, swatch.width(), MarkWidth),
                             palette().color(QPalette::WindowText));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(entry.At.x() + side + Gap / 2, entry.At.y(), width(), side),
                         Qt::AlignLeft | Qt::AlignVCenter, entry.Name);
    }
}

} // namespace dravik
