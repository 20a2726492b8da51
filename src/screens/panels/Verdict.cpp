#include "screens/panels/Verdict.h"

#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <algorithm>
#include <QAccessible>
#include <QPainter>

namespace dravik {

namespace {

// Has a screen reader say a label's text, wherever the focus is.
void Announce(QLabel& label)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent news(&label, label.text());
#else
    QAccessibleEvent news(&label, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&news);
}

} // namespace

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
        Announce(*this);
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
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor background = palette().color(QPalette::Window);
    const QColor words = palette().color(QPalette::WindowText);
    const int side = fontMetrics().height();
    const QRect sign(0, (height() - side) / 2, side, side);
    if (good) {
        const double unit = side / 16.0;
        painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), 2 * unit, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        const QPointF tick[] = {sign.topLeft() + QPointF(3, 8.5) * unit, sign.topLeft() + QPointF(6.5, 12) * unit,
                                sign.topLeft() + QPointF(13, 4) * unit};
        painter.drawPolyline(tick, 3);
    } else {
        PaintWarningSign(painter, sign, background);
    }
    painter.setPen(good ? words : Alarming(background));
    painter.drawText(rect().adjusted(side + Gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     text());
}

} // namespace dravik
