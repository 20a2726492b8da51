#include "screens/panels/EditBox.h"

#include "screens/panels/ElidedLabel.h"
#include "screens/panels/Shades.h"
#include "screens/panels/WhyClosed.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QTextDocument>
#include <QToolTip>
#include <utility>

namespace dravik {

namespace {

// What the toolkit leaves free at the left and right of a line of text.
constexpr int TextMargin = 2;

} // namespace

EditBox::EditBox(QWidget* parent) : QLineEdit(parent) { ShadeDisabledText(); }

void EditBox::focusInEvent(QFocusEvent* event)
{
    const bool isNew = !OwesAction(); // a text that is still being typed is left as it is
    QLineEdit::focusInEvent(event);
    FocusCame();
    if (!isNew)
        return;
    selectAll();
    selectsAtRelease = event->reason() == Qt::MouseFocusReason;
}

// The press that brought the focus has placed the cursor.
void EditBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(selectsAtRelease, false) && event->button() == Qt::LeftButton && !hasSelectedText())
        selectAll();
}

void EditBox::Focus()
{
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

void EditBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    FocusWent(event->reason());
}

void EditBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShadeDisabledText();
    if (event->type() == QEvent::EnabledChange && readsAsLabel)
        setFrame(isEnabled());
}

QRect EditBox::TextArea() const
{
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &panel, this);
    return contents.marginsRemoved(textMargins()).adjusted(TextMargin, 0, -TextMargin, 0);
}

bool EditBox::IsCut() const { return fontMetrics().horizontalAdvance(displayText()) > TextArea().width(); }

void EditBox::paintEvent(QPaintEvent* event)
{
    if (hasFocus() || !IsCut()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
    const QRect area = TextArea();
    const QString shown = fontMetrics().elidedText(displayText(), Qt::ElideRight, area.width());
    const Qt::Alignment left = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    style()->drawItemText(&painter, area, static_cast<int>(left), palette(), isEnabled(), shown, QPalette::Text);
}

bool EditBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && IsCut()) {
        if (TellWhole(displayText(), event, this))
            return true;
        if (!ReasonOf(*this).isEmpty()) { // behind the text, which comes first
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                               Qt::convertFromPlainText(displayText()) + toolTip(), this, rect());
            return true;
        }
    }
    return QLineEdit::event(event);
}

void EditBox::ReadAsLabelWhenClosed()
{
    readsAsLabel = true;
    setFrame(isEnabled());
    ShadeDisabledText();
}

void EditBox::ShadeDisabledText()
{
    const QPalette& all = palette();
    const QColor text = all.color(QPalette::Active, QPalette::WindowText);
    const QColor base = readsAsLabel ? QColor(Qt::transparent) : all.color(QPalette::Disabled, QPalette::Base);
    const QColor shaded = readsAsLabel ? text : Muted(text, base);
    if (all.color(QPalette::Disabled, QPalette::Text) == shaded &&
        all.color(QPalette::Disabled, QPalette::Base) == base)
        return;
    QPalette own;
    own.setColor(QPalette::Disabled, QPalette::Text, shaded);
    if (readsAsLabel)
        own.setColor(QPalette::Disabled, QPalette::Base, base);
    setPalette(own);
}

} // namespace dravik
