#pragma once

#include "desk/TakenIn.h"

#include <functional>

namespace dravik {

// Runs `load` behind the wait screen, which stays where the file could not be decompressed.
LoadedFile LoadBehindWait(const std::function<LoadedFile()>& load);

// Tells in boxes who was left out and what was changed, twenty lines in each; nothing where nothing was.
void TellLeftOut(const TakenIn& taken);

// Tells what became of a file, and who of it was left out. One that was not decompressed is told already.
void TellLoaded(const LoadedFile& loaded);

} // namespace dravik
