#pragma once

#include <string>
#include <string_view>

namespace dravik::sample {

// `text`, UTF-8 as it stands in these sources, in the single-byte code page of the files (Windows-1252). Fails with 5
// on a character that the code page does not have.
std::string SingleByte(std::string_view text);

} // namespace dravik::sample
