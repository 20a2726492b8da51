#include "screens/panels/EditBox.h"

#include "screens/panels/Shades.h"

#include <QFocusEvent>

namespace dravik {

EditBox::EditBox(QWidget* parent) : QLineEdit(parent) { ShadeDisabledText(); }

bool EditBox::Settle()
{
    if (!owesAction || acting)
        return true;
    owesAction = false;
    acting = true;
    emit LostFocus();
    acting = false;
    return !owesAction;
}

void EditBox::TakeFocusBack()
{
    setFocus(Qt::OtherFocusReason);
    owesAction = true;
}

void EditBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (!acting)
        owesAction = true;
}

void EditBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason)
        Settle();
}

void EditBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShadeDisabledText();
    if (event->type() == QEvent::EnabledChange && readsAsLabel)
        setFrame(isEnabled());
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
