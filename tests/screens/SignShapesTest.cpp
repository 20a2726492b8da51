#include "screens/panels/SignShapes.h"
#include "PaintedContrast.h"
#include "screens/panels/Shades.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <set>

// How the signs of people look: each shape for itself, at every scale and in every palette.
namespace dravik {
namespace {

constexpr double Readable = 4.5;
constexpr int LineHeight = 16;

bool HasShape(Sign kind) { return kind != Sign::InSlots && kind != Sign::NotUsed; }

std::vector<Sign> Shapes()
{
    std::vector<Sign> kinds;
    for (const SignRow& row : SignTable)
        if (HasShape(row.Kind))
            kinds.push_back(row.Kind);
    return kinds;
}

// A shape in black on white, without any colour, as large as in a list at `scale`.
QImage InBlack(Sign kind, double scale)
{
    QImage image(QSize(LineHeight, LineHeight) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintShape(painter, kind, QRectF(1, 1, LineHeight - 2, LineHeight - 2), Qt::black, Qt::white);
    return image;
}

// How many of the pixels of one picture are clearly other ones in the other.
int Differing(const QImage& a, const QImage& b)
{
    constexpr int clearly = 128;
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) >= clearly ? 1 : 0;
    return count;
}

class SignScales : public ::testing::TestWithParam<double> {};

TEST_P(SignScales, NoTwoShapesAreAlikeWithoutTheirColours)
{
    const std::vector<Sign> kinds = Shapes();
    const double scale = GetParam();
    for (std::size_t a = 0; a < kinds.size(); ++a)
        for (std::size_t b = a + 1; b < kinds.size(); ++b) {
            // The warning sign is drawn in colours of its own.
            if (kinds[a] == Sign::MayNotPlay)
                continue;
            EXPECT_GE(Differing(InBlack(kinds[a], scale), InBlack(kinds[b], scale)), 12 * scale * scale)
                << SignTable[static_cast<std::size_t>(kinds[a])].Words << ", "
                << SignTable[static_cast<std::size_t>(kinds[b])].Words;
        }
}

TEST_P(SignScales, EveryShapeStandsOutAndKeepsWithinItsArea)
{
    const double scale = GetParam();
    for (const Sign kind : Shapes()) {
        const QImage image = InBlack(kind, scale);
        EXPECT_GE(Differing(image, InBlack(Sign::InSlots, scale)), 20 * scale * scale);
        for (int i = 0; i < image.width(); ++i)
            for (const QPoint edge :
                 {QPoint(i, 0), QPoint(0, i), QPoint(i, image.height() - 1), QPoint(image.width() - 1, i)})
                EXPECT_EQ(image.pixelColor(edge), QColor(Qt::white)) << i;
    }
}

// Points in the sixteenths of a shape's side: in the midst of each of its strokes, and in what it leaves open.
struct Strokes {
    Sign Kind;
    std::vector<QPointF> Drawn;
    std::vector<QPointF> Open;
};

const std::vector<Strokes>& AllStrokes()
{
    static const std::vector<Strokes> all{
        {Sign::UsedTwice, {{2.5, 8}, {13.5, 8}, {8, 14}}, {{8, 3.8}, {8, 12}}},
        {Sign::Injured, {{3, 3}, {13, 13}, {5, 11}}, {{8, 6}, {8, 10}, {6, 8}, {10, 8}}},
        {Sign::Suspended, {{2, 8}, {14, 8}, {8, 2}, {8, 14}, {6, 6}, {10, 10}}, {{10.5, 5.5}, {5.5, 10.5}}},
        {Sign::OnWaivers, {{2.5, 8}, {5, 2.5}, {5, 13.5}, {9, 8}, {12.5, 6.5}, {12.5, 9.5}}, {{9, 5}, {9, 11}}},
        {Sign::NoContract,
         {{6, 1}, {2.5, 10}, {13.5, 10}, {8, 15}, {11.5, 3}, {6.7, 7.45}, {9.3, 7.45}, {6.7, 10.35}, {9.3, 10.35}},
         {{4.5, 3.5}, {8, 13}}},
        {Sign::OutOfPosition, {{3, 8}, {8, 2.5}, {13, 8}, {8, 13.5}}, {{8, 6}, {8, 11.3}}},
        {Sign::Captain, {{8, 10}, {8, 5}, {2.5, 8}, {13.5, 8}}, {{5, 5}, {11, 5}}},
        {Sign::Assistant, {{8, 13}, {1.75, 9}, {14.25, 9}, {6.5, 5.75}, {9.5, 5.75}}, {{8, 10}, {5, 5}}},
        {Sign::NeedsWaivers, {{8, 5}, {6, 8.3}, {10, 8.3}, {5, 14}, {11, 14}}, {{4, 4}, {5, 11.5}}},
        {Sign::NoTrade, {{5, 6}, {11, 6}, {8, 2}, {4.5, 11}, {11.5, 11}}, {{8, 11}, {8, 5}}},
        {Sign::Rookie, {{8, 12}, {4.5, 5.5}, {14.6, 2.7}}, {{11.5, 5.5}, {4, 12}}},
        {Sign::Pinned, {{8, 4}, {5, 9}, {11, 9}, {8, 13}}, {{3, 4}, {13, 4}, {5, 13}}},
    };
    return all;
}

TEST(SignStrokes, EachStandsWhereItBelongs)
{
    constexpr double scale = 8;
    constexpr double unit = (LineHeight - 2) * scale / 16;
    for (const Strokes& strokes : AllStrokes()) {
        const QImage image = InBlack(strokes.Kind, scale);
        const auto shade = [&](const QPointF& point) {
            return qGray(image.pixel((QPointF(scale, scale) + point * unit).toPoint()));
        };
        const std::string_view words = SignTable[static_cast<std::size_t>(strokes.Kind)].Words;
        for (const QPointF& point : strokes.Drawn)
            EXPECT_LT(shade(point), 64) << words << " at " << point.x() << ", " << point.y();
        for (const QPointF& point : strokes.Open)
            EXPECT_GT(shade(point), 192) << words << " at " << point.x() << ", " << point.y();
    }
}

TEST(SignStrokes, AreKnownOfEveryShapeThatIsNoWarning)
{
    std::vector<Sign> kinds;
    for (const Strokes& strokes : AllStrokes())
        kinds.push_back(strokes.Kind);
    kinds.insert(kinds.begin(), Sign::MayNotPlay);
    EXPECT_EQ(kinds, Shapes());
}

INSTANTIATE_TEST_SUITE_P(All, SignScales, ::testing::Values(1.0, 1.5, 2.0));

// Every ground that a sign stands on under a palette, with the words on it.
std::vector<std::pair<QColor, QColor>> GroundsOf(const QPalette& palette)
{
    const QColor chosen = palette.color(QPalette::HighlightedText);
    return {{palette.color(QPalette::Base), palette.color(QPalette::Text)},
            {palette.color(QPalette::AlternateBase), palette.color(QPalette::Text)},
            {palette.color(QPalette::Window), palette.color(QPalette::WindowText)},
            {ChosenGround(palette.color(QPalette::Highlight), chosen), chosen}};
}

TEST(SignColours, EveryShapeAndFigureCanBeReadOnEveryGroundUnderEveryPalette)
{
    std::vector<QPalette> palettes = DesktopPalettes();
    palettes.push_back(LightPalette());
    palettes.push_back(DarkPalette());
    for (const QPalette& palette : palettes)
        for (const auto& [ground, front] : GroundsOf(palette))
            for (const SignRow& row : SignTable) {
                EXPECT_GE(Contrast(InkOf(row.Kind, front, ground), ground), Readable)
                    << row.Words << " on " << ground.name().toStdString();
                QImage image(40, LineHeight + 4, QImage::Format_RGB32);
                image.fill(ground);
                QPainter painter(&image);
                painter.setFont(SharpFont());
                PaintSign(painter, {row.Kind, 8}, QRect(0, 0, 38, LineHeight + 4), front, ground, true);
                painter.end();
                const auto contrast = PaintedContrast(image, image.rect().adjusted(0, 0, -1, 0));
                ASSERT_TRUE(contrast.has_value()) << row.Words;
                EXPECT_GE(*contrast, Readable) << row.Words << " on " << ground.name().toStdString();
            }
}

TEST(SignFigures, AreTheNumbersAndTheSlotsHeld)
{
    EXPECT_EQ(FigureOf({Sign::Injured, 87}), "87");
    EXPECT_EQ(FigureOf({Sign::Suspended, 2}), "2");
    EXPECT_EQ(FigureOf({Sign::InSlots, 7}), QString(QChar(0x00D7)) + "7");
    EXPECT_EQ(FigureOf({Sign::NotUsed}), "not used");
    EXPECT_EQ(FigureOf({Sign::NotUsed}, true), QString(QChar(0x2013)));
    EXPECT_EQ(FigureOf({Sign::Captain}), "");
}

} // namespace
} // namespace dravik
