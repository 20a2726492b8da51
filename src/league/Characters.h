#pragma once

#include <optional>

// The code page of all texts, Windows-1252: which character each byte stands for. Each of the five bytes that it leaves undefined
// stands for the control character of its own number.
namespace dravik {

// The character of `byte`.
char32_t CharacterOf(char byte);

// The byte that stands for `character`; none where the code page does not have it.
std::optional<char> ByteOf(char32_t character);

} // namespace dravik
