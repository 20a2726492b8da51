#pragma once

#include <QString>

// What is said of a figure that is held against another one.
namespace dravik {

// A difference with its sign: "+12", "-5" with the sign of subtraction, "=" for none.
QString SignedText(long long difference);

// What stands beside a rating that is held against the pinned one's: his number and how much it is above or below that, "71 +4".
QString GhostFigure(int shown, int pinned);
// The same in words: "75, pinned man 71, plus 4"; "minus 4", "the same".
QString GhostWords(int shown, int pinned);

} // namespace dravik
