#include "screens/platform/JournalPlace.h"

#include "machine/Message.h"
#include "screens/platform/CodePage.h"

#include <QFile>
#include <QStandardPaths>

namespace dravik {

std::filesystem::path JournalPlace()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (data.isEmpty())
        return {};
    const QString folder = data + '/' + ToQString(ProgramTitle) + "/journal";
#ifdef _WIN32
    return folder.toStdWString();
#else
    return QFile::encodeName(folder).toStdString();
#endif
}

} // namespace dravik
