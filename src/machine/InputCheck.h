#pragma once

#include "machine/Voice.h"

#include <string_view>

namespace dravik {

// What a text box may hold.
enum class InputMode { Numbers = 0, Letters = 1, NumbersAndLetters = 2 };

// Whether `text` may be taken from a text box. `required` (letters modes only; numbers always are) asks for at least one
// proper character. A refusal is told in a warning box unless `silent`, which makes the result True whatever the text.
bool CheckInput(Voice& says, std::string_view text, InputMode mode, bool required, bool silent = false);

} // namespace dravik
