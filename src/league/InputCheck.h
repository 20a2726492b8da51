#pragma once

#include "league/Platform.h"
#include "league/Tables.h"

#include <string_view>

namespace dravik {

// What a text box may hold.
enum class InputMode { Numbers = 0, Letters = 1, NumbersAndLetters = 2 };

// Whether `text` may be taken from a text box. `required` (letters modes only; numbers always are) asks for at least one
// proper character. A refusal is told in a warning box unless `silent`, which makes the result True whatever the text.
bool CheckInput(Voice& says, std::string_view text, InputMode mode, bool required, bool silent = false);

// Asks for the password of `team` (1..100) and says whether the user may go on. A team without a password is open. A
// wrong one is told in a warning box; every call asks again.
bool CheckPassword(const Tables& league, Platform& machine, int team);

} // namespace dravik
