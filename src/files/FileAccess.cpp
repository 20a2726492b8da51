#include "files/FileAccess.h"

#include "league/LetterCase.h"
#include "league/Trimming.h"

namespace dravik {

SlotFiles SlotFilesOf(const FileAccess& access)
{
    return {.Disk = access.Disk, .Says = access.Says, .Plain = SkipZIPClient(access.Settings)};
}

bool SkipZIPClient(Settings& settings)
{
    return UpperCase(WithoutOuterBlanks(settings.GetSetting("Settings", "SkipZIPClient", "No"))) == "YES";
}

} // namespace dravik
