#include "screens/panels/Verdict.h"

#include "screens/panels/Accessible.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/panels/VerdictSigns.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QPainter>

namespace dravik {

VerdictLabel::VerdictLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void VerdictLabel::KeepRoomFor(const QStringList& all)
{
    room = all;
    updateGeometry();
}

void VerdictLabel::Tell(const QString& words, bool isGood)
{
    const bool isNews = words != text();
    good = isGood;
    setText(words);
    updateGeometry();
    update();
    if (isNews)
        Announce(*this, text());
}

QSize VerdictLabel::sizeHint() const
{
    const int side = fontMetrics().height();
    int widest = fontMetrics().horizontalAdvance(text());
    for (const QString& words : room)
        widest = std::max(widest, fontMetrics().horizontalAdvance(words));
    return {side + Gap + widest + 1, side};
}

void VerdictLabel::paintEvent(QPaintEvent* /*event*/)
{
    if (text().isEmpty())
        return;
    QPainter painter(this);
    const QColor background = palette().color(QPalette::Window);
    const QColor words = palette().color(QPalette::WindowText);
    const int side = fontMetrics().height();
    const QRect sign(0, (height() - side) / 2, side, side);
    if (good)
        PaintTick(painter, sign, palette().color(QPalette::Active, QPalette::Highlight));
    else
        PaintWarningSign(painter, sign, background);
    painter.setPen(good ? words : Alarming(background));
    painter.drawText(rect().adjusted(side + Gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     text());
}

} // namespace dravik
