#pragma once

#include <optional>

namespace dravik {

// Notes in `RosterFixed` whether a roster judgement changed a status, if one ran.
void KeepRosterFixed(std::optional<bool> repaired);

} // namespace dravik
