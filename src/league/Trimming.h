#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dravik {

// `text` without the characters of code 32 or below, wherever they stand.
std::string RemoveSpaces(std::string_view text);

// `text` without the blanks at both ends.
std::string WithoutOuterBlanks(std::string_view text);

// `text` without its last `count` characters; empty when it has no more than these. A character outside the code page,
// which stands in a path as the byte 0x1A and its number in braces, counts as one.
std::string WithoutLastCharacters(std::string_view text, std::size_t count);

} // namespace dravik
