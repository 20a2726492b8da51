#include "screens/panels/TypedName.h"

#include "screens/platform/CodePage.h"

namespace dravik {

std::string TypedName(const QString& typed)
{
    QString plain;
    for (const QChar letter : typed.normalized(QString::NormalizationForm_D))
        if (!letter.isMark())
            plain += letter;
    return FromQString(plain);
}

} // namespace dravik
