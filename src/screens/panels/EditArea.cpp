#include "screens/panels/EditArea.h"

#include <cmath>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>

namespace dravik {

EditArea::EditArea(QWidget* parent) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

void EditArea::SetLines(int lines)
{
    const int margins = static_cast<int>(std::ceil(2 * document()->documentMargin())) + 2 * frameWidth();
    setMinimumHeight(lines * fontMetrics().lineSpacing() + margins);
}

void EditArea::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    FocusCame();
}

void EditArea::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    FocusWent(event->reason());
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
