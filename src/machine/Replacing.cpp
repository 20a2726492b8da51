#include "machine/Replacing.h"

#ifdef _WIN32
// Stands alone in this source, since it takes names such as CreateFile for macros of its own.
#include <windows.h>
#endif

namespace dravik {

std::error_code RenameReplacing(const std::filesystem::path& from, const std::filesystem::path& to)
{
    std::error_code error;
#ifdef _WIN32
    // The standard library of GCC 12 tells every failure but two as a broken device.
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) == 0)
        error.assign(static_cast<int>(GetLastError()), std::system_category());
#else
    std::filesystem::rename(from, to, error);
#endif
    return error;
}

} // namespace dravik
