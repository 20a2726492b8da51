#include "screens/panels/GhostWords.h"

#include <cstdlib>

namespace dravik {

QString SignedText(long long difference)
{
    if (difference == 0)
        return "=";
    return difference > 0 ? '+' + QString::number(difference) : QChar(0x2212) + QString::number(-difference);
}

QString GhostFigure(int shown, int pinned) { return QString("%1 %2").arg(pinned).arg(SignedText(shown - pinned)); }

QString GhostWords(int shown, int pinned)
{
    const int difference = shown - pinned;
    const QString words = difference == 0
                              ? QString("the same")
                              : QString("%1 %2").arg(difference > 0 ? "plus" : "minus").arg(std::abs(difference));
    return QString("%1, pinned man %2, %3").arg(shown).arg(pinned).arg(words);
}

} // namespace dravik
