#pragma once

#include <QString>

#include <string>
#include <string_view>

// The edge between the texts of the core, which are bytes of the code page Windows-1252, and the desktop's Unicode.
namespace dravik {

// The characters of `bytes`. Each of the five bytes that the code page leaves undefined becomes the control character of
// its own number, so nothing is lost on the way back. An escaped character (see FromQStringLossless) becomes itself again, so a
// message with a path in it reads right.
QString ToQString(std::string_view bytes);

// `text` in the code page; a character that it does not have becomes "?".
std::string FromQString(const QString& text);

// `text` in the code page, with each character that it does not have escaped as the byte 0x1A and the hexadecimal number
// of the character in braces. ToQString gives back the same text, whatever characters it holds.
std::string FromQStringLossless(const QString& text);

// A path of the desktop as the program carries it, and back: lossless, whatever characters its folders are named with.
std::string PathToProgram(const QString& path);
QString PathToDesktop(std::string_view path);

} // namespace dravik
