#include "screens/panels/LinkLabel.h"

#include "screens/panels/Shades.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace dravik {

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(parent)
{
    setText(text);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(true);
    painter.setFont(underlined);
    const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    QPalette shaded = palette();
    shaded.setColor(QPalette::Link, LinkText(palette()));
    style()->drawItemText(&painter, contentsRect(), flags, shaded, true, text(), QPalette::Link);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void LinkLabel::mousePressEvent(QMouseEvent* event) { event->setAccepted(event->button() == Qt::LeftButton); }

void LinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit Clicked();
    else
        QLabel::keyPressEvent(event);
}

} // namespace dravik
