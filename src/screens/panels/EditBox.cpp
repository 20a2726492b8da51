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
}

void EditBox::ShadeDisabledText()
{
    const QPalette& all = palette();
    const QColor shaded =
        Muted(all.color(QPalette::Active, QPalette::WindowText), all.color(QPalette::Disabled, QPalette::Base));
    if (all.color(QPalette::Disabled, QPalette::Text) == shaded)
        return;
    QPalette own;
    own.setColor(QPalette::Disabled, QPalette::Text, shaded);
    setPalette(own);
}

} // namespace dravik
