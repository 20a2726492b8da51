#pragma once

#include <QKeySequence>
#include <QString>
#include <span>

namespace dravik {

// Whether the key works on the whole screen, or only where the focus or the pointer is.
enum class KeyScope { Screen, Control };

// One key, or press of the mouse, that the program knows beside what every control of the desktop does.
struct KeyRow {
    const char* Screens; // their names, a blank between; "*" for all
    KeyScope Scope;
    const char* Keys;  // as the toolkit writes them; several with " / " between
    const char* Where; // for those of a control
    const char* Does;
    QKeySequence::StandardKey Standard = QKeySequence::UnknownKey; // the desktop's own key for it, in place of `Keys`
};

// The keys of a row, " / " between them; none where the desktop has no key for it.
QString KeysOf(const KeyRow& row);

// All keys, in the order of the sheet.
std::span<const KeyRow> KeyTable();

// Whether a row is about the screen of that name.
bool IsOn(const KeyRow& row, const QString& screen);

} // namespace dravik
