#pragma once

#include <functional>
#include <optional>
#include <QList>
#include <QStringList>
#include <QWidget>

namespace dravik {

// What a plot shows: for each category one bar a series, side by side.
struct PlotSeries {
    QString Name;
    QList<std::optional<double>> Values; // a bar that is none is left out
};
struct PlotMark {
    QString Name;
    double At;
};
struct PlotData {
    QString Caption; // what it shows, for a screen reader
    QStringList Categories;
    QList<PlotSeries> Series;
    std::optional<PlotMark> Mark;          // a line across, and its name
    bool BeginsAtZero = true;              // else a little below the least
    std::function<QString(double)> Worded; // a figure as it is told
};

// Bars over categories, with a scale at the left, a legend above and perhaps a mark across. Series differ in their pattern as
// well as in their shade; everything is painted from the palette at hand. A screen reader hears the caption and all figures, the
// mouse those of the category under it.
class Plot : public QWidget {
public:
    // How many series can be told from each other.
    static constexpr int MostSeries = 5;

    explicit Plot(QWidget* parent = nullptr);

    void Show(const PlotData& data);
    [[nodiscard]] const PlotData& Shown() const { return shown; }
    // "Day 3: your lines 71, their skaters 69"; a dash for what is left out.
    [[nodiscard]] QString WordsOf(int category) const;
    // Where a bar stands, empty where it is left out; and the height of a figure on the scale.
    [[nodiscard]] QRectF BarOf(int series, int category) const;
    [[nodiscard]] double HeightOf(double value) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF Ground() const;
    [[nodiscard]] int LegendHeight() const;
    [[nodiscard]] double CategoryWidth() const;
    // The room of the scale at the left, and how many lines the words below the categories take.
    [[nodiscard]] int ScaleWidth() const;
    [[nodiscard]] int LinesBelow() const;
    // What stands in the legend one behind the other, each with its place; the mark comes last.
    struct LegendEntry {
        QPoint At;
        int Series; // that of the mark is behind the last
        QString Name;
    };
    [[nodiscard]] QList<LegendEntry> Legend() const;
    void PaintScale(QPainter& painter) const;
    void PaintBars(QPainter& painter) const;
    void PaintCategories(QPainter& painter) const;
    void PaintLegend(QPainter& painter) const;
    void PaintBar(QPainter& painter, const QRectF& bar, int series) const;
    void FindScale();

    PlotData shown;
    double from = 0; // where the scale begins,
    double to = 1;   // where it ends,
    double step = 1; // and from line to line
};

} // namespace dravik
