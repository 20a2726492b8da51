#pragma once

#include <filesystem>

namespace dravik {

// The folder of the user's own data in which the program keeps its journals. It may not be there yet; empty where the desktop
// knows of no such place.
std::filesystem::path JournalPlace();

// The folder beside it for what is remembered of leagues, likewise.
std::filesystem::path DigestPlace();

} // namespace dravik
