#include "screens/panels/EditBox.h"

#include "screens/panels/Shades.h"

#include <QFocusEvent>

namespace dravik {

EditBox::EditBox(QWidget* parent) : QLineEdit(parent) { ShadeDisabledText(); }

void EditBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    FocusCame();
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
