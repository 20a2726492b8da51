#include "screens/panels/Labels.h"

#include "screens/panels/Shades.h"

#include <algorithm>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

// How a label shows the "&" in its text: as the letter that leads to its buddy, if it has one.
int MnemonicFlags(const QLabel& label)
{
    if (label.buddy() == nullptr)
        return 0;
    const bool isUnderlined = label.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &label) != 0;
    return Qt::TextShowMnemonic | (isUnderlined ? 0 : Qt::TextHideMnemonic);
}

} // namespace

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

bool ElidingLabel::IsCut() const
{
    return fontMetrics().size(Qt::TextSingleLine | MnemonicFlags(*this), text()).width() > contentsRect().width();
}

QSize ElidingLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().horizontalAdvance("WWWW...")), whole.height()};
}

bool ElidingLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !IsCut() || !toolTip().isEmpty())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Qt::convertFromPlainText(text()), this);
    return true;
}

void ElidingLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    const int mnemonic = MnemonicFlags(*this);
    const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    style()->drawItemText(&painter, area, flags | Qt::TextSingleLine | mnemonic, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, area.width(), mnemonic), foregroundRole());
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
    auto* label = new ElidingLabel(parent);
    label->setFont(TitleFont(label->font()));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* MakeHeading(const QString& text, QWidget* parent)
{
    auto* label = new ElidingLabel(text, parent);
    label->setFont(HeadingFont(label->font()));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace dravik
