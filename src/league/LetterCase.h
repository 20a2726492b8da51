#pragma once

#include <string>

namespace dravik {

// `text` with its letters a to z, and no others, in upper case.
std::string UpperCase(std::string text);

} // namespace dravik
