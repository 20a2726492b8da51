#include "screens/platform/Palettes.h"

#include "screens/platform/FusionLook.h"

#include <QApplication>

#include <algorithm>
#include <cmath>

namespace dravik {

namespace {

struct Colours {
    QColor Window;
    QColor Base;
    QColor AlternateBase;
    QColor Button;
    QColor Text;
    QColor Highlight;
    QColor Link;
    QColor Light;
    QColor Dark;
};

// All roles of a palette from a few colours, the disabled ones included.
QPalette PaletteOf(const Colours& colours)
{
    QPalette palette;
    const auto muted = Mixed(colours.Text, colours.Window, 0.5);
    palette.setColor(QPalette::Window, colours.Window);
    palette.setColor(QPalette::WindowText, colours.Text);
    palette.setColor(QPalette::Base, colours.Base);
    palette.setColor(QPalette::AlternateBase, colours.AlternateBase);
    palette.setColor(QPalette::Text, colours.Text);
    palette.setColor(QPalette::PlaceholderText, Mixed(colours.Text, colours.Base, 0.4));
    palette.setColor(QPalette::Button, colours.Button);
    palette.setColor(QPalette::ButtonText, colours.Text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, colours.Base);
    palette.setColor(QPalette::ToolTipText, colours.Text);
    palette.setColor(QPalette::Highlight, colours.Highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colours.Link);
    palette.setColor(QPalette::LinkVisited, colours.Link);
    palette.setColor(QPalette::Light, colours.Light);
    palette.setColor(QPalette::Midlight, Mixed(colours.Light, colours.Button, 0.5));
    palette.setColor(QPalette::Mid, Mixed(colours.Button, colours.Dark, 0.4));
    palette.setColor(QPalette::Dark, colours.Dark);
    palette.setColor(QPalette::Shadow, Mixed(colours.Dark, Qt::black, 0.5));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, muted);
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.Window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, Mixed(colours.Window, colours.Text, 0.2));
    return palette;
}

void UseLook(const QPalette& palette)
{
    QApplication::setStyle(new FusionLook);
    QApplication::setPalette(palette);
}

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

QPalette LightPalette()
{
    return PaletteOf({.Window = "#efefef",
                      .Base = "#ffffff",
                      .AlternateBase = "#f6f6f6",
                      .Button = "#f4f4f4",
                      .Text = "#1a1b1e",
                      .Highlight = "#2573ab",
                      .Link = "#1f6396",
                      .Light = "#ffffff",
                      .Dark = "#9f9f9f"});
}

QPalette DarkPalette()
{
    return PaletteOf({.Window = "#26272b",
                      .Base = "#1c1d20",
                      .AlternateBase = "#232428",
                      .Button = "#3a3c41",
                      .Text = "#e6e7ea",
                      .Highlight = "#3a74bd",
                      .Link = "#86b4ec",
                      .Light = "#4a4d53",
                      .Dark = "#131416"});
}

void UseLightLook() { UseLook(LightPalette()); }

void UseDarkLook() { UseLook(DarkPalette()); }

QColor Mixed(const QColor& a, const QColor& b, double part)
{
    const auto mix = [part](float x, float y) { return static_cast<float>(x + (y - x) * part); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

bool IsDark(const QPalette& palette)
{
    return Luminance(palette.color(QPalette::WindowText)) > Luminance(palette.color(QPalette::Window));
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace dravik
