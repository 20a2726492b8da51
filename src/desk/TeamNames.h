#pragma once

#include "machine/Work.h"

#include <string>

namespace dravik {

// What a team, its farm, their abbreviations, its city and its general manager are called. Each takes a text for `team`
// (1..100), which `CheckInput` judges first; a refusal is told in a warning box. True when the text was stored, cut to its
// field. A text that `CheckInput` accepts counts as an edit even where it is refused behind it.

// New names are told to the team's news, and hold at least one character.
bool RenameTeam(const Work& work, int team, const std::string& text);
bool RenameFarm(const Work& work, int team, const std::string& text);

// Exactly three characters.
bool AbbreviateTeam(const Work& work, int team, const std::string& text);
bool AbbreviateFarm(const Work& work, int team, const std::string& text);

bool NameCity(const Work& work, int team, const std::string& text);

// Tells the team's news who was fired, if there was anybody, and who was hired, if the text names anybody.
bool NameGeneralManager(const Work& work, int team, const std::string& text);

} // namespace dravik
