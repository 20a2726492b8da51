#pragma once

#include "sample-league/ToolMachine.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace dravik::sample {

// Runs the tool with its arguments, without the program's name. What it has to say goes to `out`, complaints to `err`.
// Returns 0 when the file was written or help was asked for, 1 when the file could not be written, 2 when an argument
// is not understood. `machine` is the one in use.
int Run(ToolMachine& machine, const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

} // namespace dravik::sample
