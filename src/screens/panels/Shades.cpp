#include "screens/panels/Shades.h"

#include "screens/platform/Palettes.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr double ReadableContrast = 4.5;
constexpr double TintRoom = 1.07; // how much of the contrast a style's tint may take

// The first mix of `back` and `front`, from `part` of the front upwards, that is readable on `background`.
QColor FirstReadable(const QColor& back, const QColor& front, double part, const QColor& background)
{
    constexpr double step = 0.02;
    QColor mixed = Mixed(back, front, part);
    while (part < 1 && Contrast(mixed, background) < ReadableContrast * TintRoom) {
        part = std::min(1.0, part + step);
        mixed = Mixed(back, front, part);
    }
    return mixed;
}

// A colour of its own, lightened or darkened until it is readable.
QColor Coloured(const QColor& colour, const QColor& background)
{
    const bool isDark = Contrast(background, Qt::white) > Contrast(background, Qt::black);
    return FirstReadable(colour, isDark ? Qt::white : Qt::black, 0, background);
}

} // namespace

QColor Muted(const QColor& text, const QColor& background)
{
    constexpr double part = 0.62;
    return FirstReadable(background, text, part, background);
}

QColor MutedText(const QPalette& palette)
{
    return Muted(palette.color(QPalette::Active, QPalette::WindowText),
                 palette.color(QPalette::Active, QPalette::Window));
}

QColor MutedOn(const QColor& text, const QImage& ground)
{
    QColor closest = ground.pixelColor(0, 0);
    for (int y = 0; y < ground.height(); ++y)
        for (int x = 0; x < ground.width(); ++x)
            if (const QColor pixel = ground.pixelColor(x, y); Contrast(pixel, text) < Contrast(closest, text))
                closest = pixel;
    return Muted(text, closest);
}

QColor ChosenGround(const QColor& highlight, const QColor& words)
{
    const bool isLight = Contrast(words, Qt::black) > Contrast(words, Qt::white);
    return FirstReadable(highlight, isLight ? Qt::black : Qt::white, 0, words);
}

QColor LinkText(const QPalette& palette)
{
    return FirstReadable(palette.color(QPalette::Active, QPalette::Link),
                         palette.color(QPalette::Active, QPalette::WindowText), 0,
                         palette.color(QPalette::Active, QPalette::Window));
}

void MutePlaceholder(QWidget& widget)
{
    const QPalette& all = widget.palette();
    const QColor muted =
        Muted(all.color(QPalette::Active, QPalette::Text), all.color(QPalette::Active, QPalette::Base));
    if (all.color(QPalette::Active, QPalette::PlaceholderText) == muted)
        return;
    QPalette own;
    own.setColor(QPalette::PlaceholderText, muted);
    widget.setPalette(own);
}

void KeepPlaceholderMuted(QWidget& widget)
{
    class Keeper : public QObject {
    public:
        explicit Keeper(QWidget& kept) : QObject(&kept) {}
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::PaletteChange)
                MutePlaceholder(*static_cast<QWidget*>(watched));
            return false;
        }
    };
    MutePlaceholder(widget);
    widget.installEventFilter(new Keeper(widget));
}

QColor Alarming(const QColor& background) { return Coloured(QColor(0xC0, 0x39, 0x2B), background); }

QColor Cautioning(const QColor& background) { return Coloured(QColor(0xD9, 0x82, 0x00), background); }

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
