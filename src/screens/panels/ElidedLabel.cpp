#include "screens/panels/ElidedLabel.h"

#include "screens/panels/Shades.h"

#include <algorithm>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QToolTip>

namespace dravik {

namespace {

constexpr const char* LeastText = "MMM..."; // what stays of any text

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent, Words shownWords) : QLabel(parent), words(shownWords)
{
    setTextFormat(Qt::PlainText);
}

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : ElidedLabel(parent) { setText(text); }

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    const QMargins margins = contentsMargins();
    const int least = fontMetrics().horizontalAdvance(LeastText) + margins.left() + margins.right();
    return {std::min(whole.width(), least), whole.height()};
}

bool ElidedLabel::IsCut() const
{
    return fontMetrics().size(Qt::TextSingleLine | MnemonicFlags(*this), text()).width() > contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    if (!IsCut() && words == Words::Plain) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QPalette shaded = palette();
    if (words == Words::Muted)
        shaded.setColor(QPalette::WindowText, MutedText(palette()));
    const QRect area = contentsRect();
    const int mnemonic = MnemonicFlags(*this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width(), mnemonic);
    const int place = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    style()->drawItemText(&painter, area, place | Qt::TextSingleLine | mnemonic, shaded, isEnabled(), shown,
                          QPalette::WindowText);
}

bool ElidedLabel::event(QEvent* event)
{
    return (event->type() == QEvent::ToolTip && IsCut() && TellWhole(text(), event, this)) || QLabel::event(event);
}

int MnemonicFlags(const QLabel& label)
{
    if (label.buddy() == nullptr)
        return 0;
    const bool isUnderlined = label.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &label) != 0;
    return Qt::TextShowMnemonic | (isUnderlined ? 0 : Qt::TextHideMnemonic);
}

// A name with a tag in it stays a name.
bool TellWhole(const QString& text, QEvent* event, QWidget* widget)
{
    if (event->type() != QEvent::ToolTip || !widget->toolTip().isEmpty())
        return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Qt::convertFromPlainText(text), widget,
                       widget->rect());
    return true;
}

} // namespace dravik
