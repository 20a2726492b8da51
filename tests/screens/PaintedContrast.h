#pragma once

#include "screens/platform/Palettes.h"

#include <algorithm>
#include <optional>
#include <QFont>
#include <QImage>
#include <QRect>
#include <vector>

namespace dravik {

// The contrast of the words that are painted within `area` of a picture, measured on its pixels; none where nothing is
// painted. The ground of each row of pixels is the one right of the area, so a ground may be shaded from top to bottom; the
// words' colour is the one that stands out most from its row. What counts is the row on which that colour stands out least.
// The words are to be painted with sharp edges (SharpFont), or none of their pixels may have their colour.
inline std::optional<double> PaintedContrast(const QImage& picture, const QRect& area)
{
    const QRect within = area.intersected(picture.rect().adjusted(0, 0, -1, 0));
    std::vector<QColor> grounds;
    double most = 1;
    QColor words;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        const QColor ground = picture.pixelColor(within.right() + 1, y);
        bool isWritten = false;
        for (int x = within.left(); x <= within.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel == ground)
                continue;
            isWritten = true;
            if (const double contrast = Contrast(pixel, ground); contrast > most) {
                most = contrast;
                words = pixel;
            }
        }
        if (isWritten)
            grounds.push_back(ground);
    }
    constexpr double seen = 1.05;
    if (most < seen)
        return std::nullopt;
    for (const QColor& ground : grounds)
        most = std::min(most, Contrast(words, ground));
    return most;
}

// The font of the tests without soft edges.
inline QFont SharpFont()
{
    QFont font("DejaVu Sans", 10);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

// Palettes that a desktop might hand to the toolkit, each with placeholder words of its own that this program must not
// take: a dark one, a light one with little contrast, and one of the strongest contrast.
inline std::vector<QPalette> DesktopPalettes()
{
    struct Row {
        const char *Window, *Base, *AlternateBase, *Button, *Text, *Placeholder, *Highlight, *HighlightedText;
    };
    std::vector<QPalette> palettes;
    for (const Row& row :
         {Row{"#31363b", "#232629", "#31363b", "#3b4045", "#eff0f1", "#000000", "#3daee9", "#eff0f1"},
          Row{"#f3ecd9", "#fbf5e4", "#eee7d3", "#e8e0cc", "#4a5458", "#d8cfb8", "#2d7fb8", "#ffffff"},
          Row{"#000000", "#000000", "#101010", "#000000", "#ffffff", "#202020", "#ffe100", "#000000"}}) {
        QPalette palette{QColor(row.Button), QColor(row.Window)};
        palette.setColor(QPalette::Base, row.Base);
        palette.setColor(QPalette::AlternateBase, row.AlternateBase);
        palette.setColor(QPalette::PlaceholderText, row.Placeholder);
        palette.setColor(QPalette::Highlight, row.Highlight);
        palette.setColor(QPalette::HighlightedText, row.HighlightedText);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, row.Text);
        palettes.push_back(palette);
    }
    return palettes;
}

} // namespace dravik
