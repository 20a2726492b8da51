#include "screens/platform/FusionLook.h"

#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QStyleOptionButton>

namespace dravik {

namespace {

constexpr double SeenContrast = 3.6; // a circle's edge is painted soft, and has a contrast of 3 left

// How much of the words is in the edge.
double EdgePart(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    constexpr double step = 0.02;
    double part = 0;
    for (QColor edge = base; part < 1 && std::min(Contrast(edge, base), Contrast(edge, window)) < SeenContrast;) {
        part += step;
        edge = Mixed(base, text, part);
    }
    return part;
}

} // namespace

void FusionLook::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button == nullptr || (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // Fusion darkens the window's colour to get the edge, of either kind by its own factor. The focus, whose colour would
    // take the place of the edge, is told by the frame around the words.
    const int darkened = element == PE_IndicatorCheckBox ? 127 : 150;
    QStyleOptionButton edged(*button);
    const QPalette& palette = button->palette;
    const QColor edge = Mixed(palette.color(QPalette::Base), palette.color(QPalette::WindowText), EdgePart(palette));
    edged.palette.setColor(palette.currentColorGroup(), QPalette::Window, edge.lighter(darkened));
    edged.state &= ~State_HasFocus;
    QProxyStyle::drawPrimitive(element, &edged, painter, widget);
}

int FusionLook::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace dravik
