#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Texts on the edge of the terminal, which is UTF-8; inside they are in the single-byte code page (Windows-1252).
namespace dravik::terminal {

// `text` of the code page in UTF-8. A byte that the code page does not define becomes the control character of its number.
std::string ToUtf8(std::string_view text);

// `text` of a terminal or a file in the code page. A character that the code page lacks fails with 5, and so do bytes that are no
// UTF-8.
std::string FromUtf8(std::string_view text);

// `text` without the mark that some programs put in front of UTF-8.
std::string_view WithoutByteOrderMark(std::string_view text);

// `text` in UTF-8, with a blank in the place of every control character, which a terminal would take for a command, but tabs and the
// ends of lines.
std::string WithoutControls(std::string_view text);

// `json`, a text of JSON, with its control characters beyond the first 32 escaped too.
std::string WithEscapedControls(std::string_view json);

// The path that a text of the terminal names, and the text that names a path: UTF-8 where the system has characters, the same bytes
// where it has bytes.
std::filesystem::path PathOf(const std::string& path);
std::string TextOf(const std::filesystem::path& path);

} // namespace dravik::terminal
