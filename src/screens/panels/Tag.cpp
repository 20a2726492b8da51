#include "screens/panels/Tag.h"

#include "screens/panels/Shades.h"

#include <QPainter>

namespace dravik {

Tag::Tag(QWidget* parent, const char* name) : QLabel(parent)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Tag::PaintFrame(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = palette().color(QPalette::Active, QPalette::Window);
    const QColor words = palette().color(QPalette::Active, QPalette::WindowText);
    painter.setPen(Muted(words, ground));
    painter.setBrush(ground);
    constexpr double radius = 3;
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.setPen(words);
}

} // namespace dravik
