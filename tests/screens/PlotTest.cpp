#include "screens/panels/Plot.h"

#include "screens/panels/FigureTable.h"
#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QImage>
#include <QTest>
#include <QToolTip>
#include <set>

namespace dravik {
namespace {

PlotData Data(QList<PlotSeries> series)
{
    return {.Caption = "Goals by line",
            .Categories = {"First", "Second"},
            .Series = std::move(series),
            .Mark = {},
            .Worded = [](double value) { return QString::number(value); }};
}

class PlotTest : public ::testing::Test {
protected:
    PlotTest() { Bars.resize(600, 400); }
    ~PlotTest() override { UseLightLook(); }

    void Show(const PlotData& data)
    {
        Bars.Show(data);
        Bars.show();
        QApplication::processEvents();
    }
    QImage Painted() { return Bars.grab().toImage(); }

    Plot Bars;
};

TEST_F(PlotTest, ABarIsAsHighAsItsFigure)
{
    Show(Data({{"Ours", {10, 40}}, {"Theirs", {std::nullopt, 20}}}));
    const double base = Bars.HeightOf(0);
    EXPECT_DOUBLE_EQ(Bars.BarOf(0, 0).bottom(), base);
    EXPECT_NEAR(Bars.BarOf(0, 1).height(), 4 * Bars.BarOf(0, 0).height(), 0.01);
    EXPECT_NEAR(Bars.BarOf(1, 1).height(), 2 * Bars.BarOf(0, 0).height(), 0.01);
    EXPECT_TRUE(Bars.BarOf(1, 0).isNull());
    EXPECT_GE(Bars.BarOf(1, 1).left(), Bars.BarOf(0, 1).right());
    EXPECT_TRUE(QRectF(Bars.rect()).contains(Bars.BarOf(0, 1)));
}

TEST_F(PlotTest, WordsThatFindNoRoomBelowTheirBarsStandInTwoLines)
{
    PlotData data = Data({{"Ours", {10, 40}}});
    data.Categories = {"thirty-six or more", "all of them"};
    Show(data);
    const int line = Bars.fontMetrics().height();
    const double oneLine = Bars.HeightOf(0);
    const auto isWritten = [&](double top) {
        const QImage picture = Painted();
        const QColor ground = picture.pixelColor(picture.width() - 2, static_cast<int>(top) + 1);
        for (int y = static_cast<int>(top); y < static_cast<int>(top) + line; ++y)
            for (int x = static_cast<int>(Bars.BarOf(0, 0).left()); x < picture.width() / 2; ++x)
                if (y < picture.height() && picture.pixelColor(x, y) != ground)
                    return true;
        return false;
    };
    EXPECT_TRUE(isWritten(oneLine + Gap));
    Bars.resize(Bars.fontMetrics().horizontalAdvance("thirty-six or more") * 2, 400);
    QApplication::processEvents();
    EXPECT_DOUBLE_EQ(Bars.HeightOf(0), oneLine - line);
    EXPECT_TRUE(isWritten(Bars.HeightOf(0) + Gap));
    EXPECT_TRUE(isWritten(Bars.HeightOf(0) + Gap + line)) << "the second line";
}

TEST_F(PlotTest, AScaleThatBeginsHigherHasRoomBelowTheLeast)
{
    PlotData data = Data({{"Ours", {70, 74}}});
    data.BeginsAtZero = false;
    Show(data);
    EXPECT_GT(Bars.BarOf(0, 0).height(), 10);
    EXPECT_GT(Bars.BarOf(0, 1).height(), Bars.BarOf(0, 0).height() * 1.2);
}

TEST_F(PlotTest, AMarkStandsOnTheScaleThoughEveryBarIsLower)
{
    PlotData data = Data({{"Ours", {10, 20}}});
    data.Mark = PlotMark{"Cap", 100};
    Show(data);
    EXPECT_LT(Bars.HeightOf(100), Bars.BarOf(0, 1).top());
    EXPECT_TRUE(Bars.accessibleDescription().endsWith("; Cap 100"));
}

TEST_F(PlotTest, FiguresAreToldToAScreenReaderAndUnderTheMouse)
{
    Show(Data({{"ours", {10, 40}}, {"theirs", {std::nullopt, 20}}}));
    EXPECT_EQ(Bars.accessibleName(), "Goals by line");
    EXPECT_EQ(Bars.accessibleDescription(), "First: ours 10, theirs -; Second: ours 40, theirs 20");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Bars)->role(), QAccessible::Chart);
    const QPoint spot = Bars.BarOf(0, 1).center().toPoint();
    QHelpEvent help(QEvent::ToolTip, spot, Bars.mapToGlobal(spot));
    QApplication::sendEvent(&Bars, &help);
    EXPECT_EQ(QToolTip::text(), "Second: ours 40, theirs 20");
    QToolTip::hideText();
}

TEST_F(PlotTest, ACategoryIsUnderTheMouseFromItsBeginningToItsEnd)
{
    Show(Data({{"ours", {10, 40}}}));
    const auto told = [this](double x) {
        const QPoint spot(qRound(x), Bars.height() / 2);
        QHelpEvent help(QEvent::ToolTip, spot, Bars.mapToGlobal(spot));
        QApplication::sendEvent(&Bars, &help);
        return QToolTip::text().toStdString();
    };
    const double width = Bars.BarOf(0, 1).center().x() - Bars.BarOf(0, 0).center().x();
    const double border = Bars.BarOf(0, 0).center().x() + width / 2;
    EXPECT_EQ(told(border - 3), "First: ours 10");
    EXPECT_EQ(told(border + 3), "Second: ours 40");
    EXPECT_EQ(told(border - width + 3), "First: ours 10");
    told(border - width - 3);
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); })) << "the scale stands there";
}

// Without colours, as a printer has them: no two series have the same shades in the same share and the same rows of one shade.
TEST_F(PlotTest, SeriesDifferWithoutColours)
{
    QList<PlotSeries> series;
    for (int number = 0; number < Plot::MostSeries; ++number)
        series << PlotSeries{QString("S%1").arg(number), {50, 50}};
    for (const bool dark : {false, true}) {
        dark ? UseDarkLook() : UseLightLook();
        Show(Data(series));
        const QImage picture = Painted().convertToFormat(QImage::Format_Grayscale8);
        std::set<std::vector<int>> seen;
        for (int number = 0; number < Plot::MostSeries; ++number) {
            const QRect inside = Bars.BarOf(number, 0).toRect().adjusted(3, 3, -3, -3);
            std::vector<int> shades(9); // in eight steps, and behind them the rows of one shade
            std::set<int> all;
            for (int y = inside.top(); y < inside.top() + 32; ++y) {
                std::set<int> row;
                for (int x = inside.left(); x < inside.left() + 24; ++x) {
                    row.insert(qGray(picture.pixel(x, y)));
                    ++shades[static_cast<std::size_t>(qGray(picture.pixel(x, y)) / 32)];
                }
                shades.back() += row.size() == 1 ? 1 : 0;
                all.merge(row);
            }
            // Only the first series is plain. The others' patterns are of a shade next to that of words.
            const QColor words = Bars.palette().color(QPalette::WindowText);
            const auto fromWords = [&words](int shade) { return Contrast(QColor(shade, shade, shade), words); };
            if (number > 0) {
                EXPECT_LT(std::min(fromWords(*all.begin()), fromWords(*all.rbegin())), 2.5)
                    << number << (dark ? " dark" : " light");
            }
        }
    }
}

TEST_F(PlotTest, NothingAtAllIsPaintedWithoutHarm)
{
    Show({.Caption = "Nothing", .Categories = {}, .Series = {}, .Mark = {}, .Worded = [](double value) {
              return QString::number(value);
          }});
    EXPECT_FALSE(Painted().isNull());
    Show(Data({{"Ours", {std::nullopt, std::nullopt}}}));
    EXPECT_TRUE(Bars.BarOf(0, 0).isNull());
    EXPECT_FALSE(Painted().isNull());
}

TEST_F(PlotTest, FiguresBelowZeroHangFromTheLine)
{
    Show(Data({{"Ours", {-10, 10}}}));
    EXPECT_DOUBLE_EQ(Bars.BarOf(0, 0).top(), Bars.HeightOf(0));
    EXPECT_DOUBLE_EQ(Bars.BarOf(0, 1).bottom(), Bars.HeightOf(0));
}

TEST(FigureTableTest, NumbersStandAtTheRightAndRowsGoAndComeBack)
{
    FigureTable table({{"Name", false}, {"Sum"}}, nullptr);
    table.Show({{"a", "1"}, {"b", "22"}});
    EXPECT_EQ(table.rowCount(), 2);
    EXPECT_TRUE(table.item(1, 1)->textAlignment() & Qt::AlignRight);
    EXPECT_FALSE(table.item(1, 0)->textAlignment() & Qt::AlignRight);
    table.Show({{"c", "3"}});
    EXPECT_EQ(table.rowCount(), 1);
    EXPECT_EQ(table.TextAt(0, 0), "c");
    EXPECT_EQ(table.TextAt(5, 0), "");
    EXPECT_EQ(table.editTriggers(), QAbstractItemView::NoEditTriggers);
}

// The first and the last column of a light picture in which there is something dark.
std::pair<int, int> InkOf(const QImage& picture)
{
    int first = -1;
    int last = -1;
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 0; y < picture.height(); ++y)
            if (qGray(picture.pixel(x, y)) < 120) {
                first = first < 0 ? x : first;
                last = x;
            }
    return {first, last};
}

TEST(FigureTableTest, HeadingsStandOverTheWordsOfTheirCells)
{
    FigureTable table({{"HEH", false}, {"HEH"}}, nullptr);
    table.Show({{"HEH", "HEH"}});
    table.clearSelection();
    table.setCurrentItem(nullptr);
    table.resize(300, 120);
    table.show();
    QApplication::processEvents();
    for (int column = 0; column < 2; ++column) {
        const int left = table.columnViewportPosition(column);
        // Without the line that parts the headings.
        const QRect head(left, 2, table.columnWidth(column) - 3, table.horizontalHeader()->height() - 5);
        const QRect cell(left, 0, table.columnWidth(column) - 3, table.rowHeight(0));
        const auto ofHead = InkOf(table.horizontalHeader()->viewport()->grab(head).toImage());
        const auto ofCell = InkOf(table.viewport()->grab(cell).toImage());
        ASSERT_GE(ofHead.first, 0);
        EXPECT_EQ(ofHead, ofCell) << column;
    }
}

} // namespace
} // namespace dravik
