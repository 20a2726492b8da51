#include "screens/panels/Labels.h"

#include "screens/panels/Shades.h"

#include <algorithm>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace dravik {

void MutedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QPalette shaded = palette();
    shaded.setColor(QPalette::WindowText, MutedText(palette()));
    int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | MnemonicFlags(*this);
    if (wordWrap())
        flags |= Qt::TextWordWrap;
    style()->drawItemText(&painter, contentsRect(), flags, shaded, true, text(), QPalette::WindowText);
}

WarningSign::WarningSign(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName("Warning");
}

QSize WarningSign::sizeHint() const
{
    const int side = fontMetrics().height();
    return {side, side};
}

void WarningSign::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PaintWarningSign(painter, rect(), palette().color(QPalette::Window));
}

void PaintWarningSign(QPainter& painter, const QRectF& area, const QColor& background)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(area.width(), area.height());
    painter.translate(area.center() - QPointF(side / 2, side / 2));
    painter.scale(side / 16, side / 16);
    QPainterPath triangle;
    triangle.moveTo(8, 1.5);
    triangle.lineTo(15, 14);
    triangle.lineTo(1, 14);
    triangle.closeSubpath();
    painter.setPen(QPen(Alarming(background), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Alarming(background));
    painter.drawPath(triangle);
    painter.setPen(QPen(background, 1.7, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 5.6), QPointF(8, 9.4));
    painter.drawPoint(QPointF(8, 12));
    painter.restore();
}

QLabel* MakeTitle(QWidget* parent)
{
    auto* label = new ElidedLabel(parent);
    label->setFont(TitleFont(label->font()));
    return label;
}

QLabel* MakeHeading(const QString& text, QWidget* parent)
{
    auto* label = new ElidedLabel(text, parent);
    label->setFont(HeadingFont(label->font()));
    return label;
}

} // namespace dravik
