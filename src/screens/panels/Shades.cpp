#include "screens/panels/Shades.h"

#include "screens/platform/Palettes.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr double ReadableContrast = 4.5;

// The first mix of `back` and `front`, from `part` of the front upwards, that is readable on `background`.
QColor FirstReadable(const QColor& back, const QColor& front, double part, const QColor& background)
{
    constexpr double step = 0.02;
    QColor mixed = Mixed(back, front, part);
    while (part < 1 && Contrast(mixed, background) < ReadableContrast) {
        part = std::min(1.0, part + step);
        mixed = Mixed(back, front, part);
    }
    return mixed;
}

} // namespace

QColor Muted(const QColor& text, const QColor& background)
{
    constexpr double part = 0.62;
    return FirstReadable(background, text, part, background);
}

QColor MutedText(const QPalette& palette)
{
    return Muted(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
}

QColor Alarming(const QColor& background)
{
    const QColor red(0xC0, 0x39, 0x2B);
    const bool isDark = Contrast(background, Qt::white) > Contrast(background, Qt::black);
    return FirstReadable(red, isDark ? Qt::white : Qt::black, 0, background);
}

QFont TitleFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    return font;
}

QFont HeadingFont(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace dravik
