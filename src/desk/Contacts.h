#pragma once

#include "machine/Work.h"

#include <string_view>

namespace dravik {

// Where the general manager of `team` (1..100) is reached. Any text is taken, cut to 40 characters, and told to the league's
// news.
void SetEmail(const Work& work, int team, std::string_view text);
void SetMessenger(const Work& work, int team, std::string_view text);

} // namespace dravik
