#include "screens/panels/ReasonsBox.h"

namespace dravik {

namespace {
constexpr int VisibleLines = 3;
} // namespace

ReasonsBox::ReasonsBox(const QString& judged, QWidget* parent) : QPlainTextEdit(parent)
{
    setAccessibleName("What stands against " + judged);
    setPlaceholderText("Nothing stands against " + judged + ".");
    setReadOnly(true);
    setTabChangesFocus(true);
    setFixedHeight(fontMetrics().lineSpacing() * VisibleLines + static_cast<int>(2 * document()->documentMargin()) +
                   2 * frameWidth());
}

void ReasonsBox::Tell(const QString& findings)
{
    if (toPlainText() != findings)
        setPlainText(findings);
}

} // namespace dravik
