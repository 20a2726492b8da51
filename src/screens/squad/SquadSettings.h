#pragma once

#include "screens/squad/SquadColumns.h"

#include <string>

namespace dravik {

// The columns of a table as they were left last (SquadTable::Arrangement), in the section of the settings that the program has
// beside the two fixed keys. Nothing where none were kept, or the settings cannot be read.
std::string ColumnsKept(SquadKind kind);
// Fails with a SettingsFailure where they cannot be written.
void KeepColumns(SquadKind kind, const std::string& arrangement);

} // namespace dravik
