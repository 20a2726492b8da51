#pragma once

#include <QProxyStyle>

namespace dravik {

// The Fusion style, which draws the edges of check boxes and option buttons darker than the window: on a dark one they
// vanish. Here they are drawn between ground and words, with a contrast of 3 at least to what is inside and around them.
// A closed one is as much fainter as its words are. The buttons of boxes have words alone: the pictures that the toolkit
// would put before them say nothing more.
class FusionLook : public QProxyStyle {
public:
    FusionLook() : QProxyStyle("Fusion") {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;
};

} // namespace dravik
