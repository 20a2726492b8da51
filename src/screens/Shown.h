#pragma once

#include "league/Field.h"
#include "screens/platform/CodePage.h"

#include <cstddef>
#include <QString>

namespace dravik {

// A text of a record as a label or a box shows it, without its outer blanks.
template <std::size_t N>
QString Shown(const Text<N>& text)
{
    return ToQString(text.Trimmed());
}

// A whole number as a box shows it: digits alone, without grouping, so that it reads back as it stands.
inline QString Shown(long long number) { return QString::number(number); }

} // namespace dravik
