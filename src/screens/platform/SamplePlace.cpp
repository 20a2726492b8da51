#include "screens/platform/SamplePlace.h"

#include "screens/platform/CodePage.h"
#include "screens/platform/JournalPlace.h"

#include <QDir>
#include <QFile>

namespace dravik {

std::string SamplePlace()
{
    const std::filesystem::path journals = JournalPlace();
    if (journals.empty())
        return {};
    const std::filesystem::path file = journals.parent_path() / "SampleLeague.dvs";
#ifdef _WIN32
    return PathToProgram(QDir::toNativeSeparators(QString::fromStdWString(file.wstring())));
#else
    return PathToProgram(QFile::decodeName(file.c_str()));
#endif
}

} // namespace dravik
