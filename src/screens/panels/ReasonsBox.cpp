#include "screens/panels/ReasonsBox.h"

#include "screens/panels/Shades.h"

#include <cmath>
#include <QEvent>
#include <QTextBlock>
#include <QTextLayout>

namespace dravik {

namespace {
constexpr int VisibleLines = 3;
constexpr int TextMargin = 3; // above the first line; below the last one there is no room for a part of the next
} // namespace

ReasonsBox::ReasonsBox(const QString& judged, QWidget* parent) : QPlainTextEdit(parent)
{
    setAccessibleName("What stands against " + judged);
    setPlaceholderText("Nothing stands against " + judged + ".");
    setReadOnly(true);
    setTabChangesFocus(true);
    document()->setDocumentMargin(TextMargin);
    FitLines();
    MutePlaceholder(*this);
}

void ReasonsBox::FitLines()
{
    const QTextBlock block = firstVisibleBlock();
    (void)blockBoundingRect(block); // which lays it out
    const double line = block.layout()->lineAt(0).height();
    setFixedHeight(static_cast<int>(std::ceil(line * VisibleLines)) + TextMargin + 2 * frameWidth());
}

void ReasonsBox::Tell(const QString& findings)
{
    if (toPlainText() != findings)
        setPlainText(findings);
}

void ReasonsBox::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        MutePlaceholder(*this);
    if (event->type() == QEvent::FontChange)
        FitLines();
}

} // namespace dravik
