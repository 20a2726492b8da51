#pragma once

#include <string>

namespace dravik {

// What the windows remember from one run to the next, in a section of the settings of their own beside the program's two fixed
// keys. Nothing of it is needed: settings that cannot be read remember nothing, and those that cannot be written forget.
std::string Remembered(const std::string& key) noexcept;
void Remember(const std::string& key, const std::string& value) noexcept;

} // namespace dravik
