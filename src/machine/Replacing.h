#pragma once

#include <filesystem>
#include <system_error>

namespace dravik {

// Gives the file `from` the name `to` in one step, in which it takes the place of a file that has that name. Returns what
// the system says; nothing has changed then unless that is success. A file never leaves its disk.
std::error_code RenameReplacing(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace dravik
