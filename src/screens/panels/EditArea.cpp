#include "screens/panels/EditArea.h"

#include <cmath>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>
#include <utility>

namespace dravik {

EditArea::EditArea(QWidget* parent) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

void EditArea::SetLines(int lines)
{
    const int margins = static_cast<int>(std::ceil(2 * document()->documentMargin())) + 2 * frameWidth();
    setMinimumHeight(lines * fontMetrics().lineSpacing() + margins);
}

void EditArea::focusInEvent(QFocusEvent* event)
{
    const bool isNew = !OwesAction(); // a text that is still being typed is left as it is
    QPlainTextEdit::focusInEvent(event);
    FocusCame();
    if (!isNew)
        return;
    // A press on a chosen text would begin to drag it.
    selectsAtRelease = event->reason() == Qt::MouseFocusReason;
    if (!selectsAtRelease)
        selectAll();
}

// The press that brought the focus has placed the cursor.
void EditArea::mouseReleaseEvent(QMouseEvent* event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    if (std::exchange(selectsAtRelease, false) && event->button() == Qt::LeftButton && !textCursor().hasSelection())
        selectAll();
}

void EditArea::Focus()
{
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

void EditArea::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    FocusWent(event->reason());
    if (OwesAction())
        return;
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
}

void EditArea::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void EditArea::insertFromMimeData(const QMimeData* source)
{
    static const QRegularExpression breaks("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]");
    insertPlainText(source->text().replace(breaks, " "));
}

} // namespace dravik
