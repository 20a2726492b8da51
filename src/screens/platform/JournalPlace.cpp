#include "screens/platform/JournalPlace.h"

#include "machine/Message.h"
#include "screens/platform/CodePage.h"

#include <QFile>
#include <QStandardPaths>

namespace dravik {

namespace {

std::filesystem::path PlaceOf(const char* name)
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (data.isEmpty())
        return {};
    const QString folder = data + '/' + ToQString(ProgramTitle) + '/' + name;
#ifdef _WIN32
    return folder.toStdWString();
#else
    return QFile::encodeName(folder).toStdString();
#endif
}

} // namespace

std::filesystem::path JournalPlace() { return PlaceOf("journal"); }

std::filesystem::path DigestPlace() { return PlaceOf("leagues"); }

} // namespace dravik
