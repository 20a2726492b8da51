#pragma once

#include "screens/panels/EntryList.h"

#include <string>

namespace dravik {

// Asks with `prompt` under the title "Player Search" for a name or a part of one, and returns the row of the first entry of
// `list` whose text contains the answer, whatever its case. An empty answer, a cancelled one among them, is contained in
// the first entry. When no entry fits, an information box says so and the row is -1.
int SearchPlayer(const EntryList& list, const std::string& prompt = "Complete or Part of the Player Name?");

} // namespace dravik
