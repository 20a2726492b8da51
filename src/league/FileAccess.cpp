#include "league/FileAccess.h"

#include "league/OutsideCode.h"

namespace dravik {

SlotFiles SlotFilesOf(const FileAccess& access)
{
    return {.Disk = access.Disk, .Says = access.Says, .Plain = SkipZIPClient(access.Settings)};
}

} // namespace dravik
