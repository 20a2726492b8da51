#pragma once

#include <QString>

namespace dravik {

// The object name of one control of an array: "lstPlayer(0)".
inline QString ElementName(const char* array, int index) { return QString("%1(%2)").arg(array).arg(index); }

} // namespace dravik
