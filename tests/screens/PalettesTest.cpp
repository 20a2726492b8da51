#include "screens/platform/Palettes.h"
#include "screens/platform/FusionLook.h"

#include <gtest/gtest.h>
#include <QCheckBox>
#include <QRadioButton>

namespace dravik {
namespace {

TEST(Palettes, ContrastGoesFromOneToTwentyOne)
{
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 0.001);
}

TEST(Palettes, MixedRunsFromOneColourToTheOther)
{
    EXPECT_EQ(Mixed(Qt::black, Qt::white, 0).rgb(), QColor(Qt::black).rgb());
    EXPECT_EQ(Mixed(Qt::black, Qt::white, 1).rgb(), QColor(Qt::white).rgb());
    EXPECT_EQ(Mixed(QColor(0, 100, 200), QColor(100, 200, 0), 0.5).rgb(), QColor(50, 150, 100).rgb());
}

TEST(Palettes, WordsAreReadableInBothPalettes)
{
    struct Pair {
        QPalette::ColorRole Word;
        QPalette::ColorRole Ground;
    };
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        for (const Pair pair :
             {Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
              Pair{QPalette::Text, QPalette::AlternateBase}, Pair{QPalette::ButtonText, QPalette::Button},
              Pair{QPalette::HighlightedText, QPalette::Highlight}, Pair{QPalette::Link, QPalette::Window},
              Pair{QPalette::PlaceholderText, QPalette::Base}, Pair{QPalette::ToolTipText, QPalette::ToolTipBase}})
            EXPECT_GE(Contrast(palette.color(pair.Word), palette.color(pair.Ground)), 4.5)
                << "word " << pair.Word << " on " << pair.Ground;
    }
}

TEST(Palettes, OneIsLightAndOneIsDark)
{
    EXPECT_GT(LightPalette().color(QPalette::Window).lightness(), 200);
    EXPECT_LT(DarkPalette().color(QPalette::Window).lightness(), 60);
}

// The colour of an unticked control's left edge, which stands out most between the window and the ground inside.
QColor EdgeOf(QAbstractButton& button, const QPalette& palette)
{
    FusionLook look;
    button.setStyle(&look);
    button.setPalette(palette);
    button.resize(button.sizeHint());
    const QImage picture = button.grab().toImage();
    const QColor window = palette.color(QPalette::Window);
    QColor edge = window;
    constexpr int withinTheBox = 6;
    for (int x = 0; x < withinTheBox; ++x)
        if (const QColor pixel = picture.pixelColor(x, picture.height() / 2);
            Contrast(pixel, window) > Contrast(edge, window))
            edge = pixel;
    button.setStyle(nullptr);
    return edge;
}

TEST(Palettes, EdgesOfUntickedBoxesAreSeenInBothPalettes)
{
    QCheckBox check("Rookie");
    QRadioButton option("Center");
    for (const QPalette& palette : {LightPalette(), DarkPalette()})
        for (QAbstractButton* button :
             {static_cast<QAbstractButton*>(&check), static_cast<QAbstractButton*>(&option)}) {
            button->setEnabled(true);
            const QColor edge = EdgeOf(*button, palette);
            EXPECT_GE(Contrast(edge, palette.color(QPalette::Window)), 3) << button->text().toStdString();
            EXPECT_GE(Contrast(edge, palette.color(QPalette::Base)), 3) << button->text().toStdString();
            button->setEnabled(false);
            EXPECT_LT(Contrast(EdgeOf(*button, palette), palette.color(QPalette::Window)),
                      Contrast(edge, palette.color(QPalette::Window)));
        }
}

} // namespace
} // namespace dravik
