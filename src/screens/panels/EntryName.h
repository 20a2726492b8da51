#pragma once

#include <QStringView>

namespace dravik {

// How much of an entry's text, from its beginning on, is the name. What stands behind it are marks: position or office,
// "-RFA", stars (" (C) *", " (LW)-RFA").
qsizetype NameLength(QStringView entry);

} // namespace dravik
