#pragma once

#include <QString>
#include <string>

namespace dravik {

// What was typed of a name, as bytes of the code page for NameMatch: a letter that only the desktop knows comes without its
// accents.
std::string TypedName(const QString& typed);

} // namespace dravik
