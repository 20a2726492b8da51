#pragma once

#include "league/Tables.h"
#include "machine/Disk.h"

#include <string>

namespace dravik {

// Writes the ratings of everybody in the league into two comma-separated files in `folder`, replacing earlier ones: the
// skaters and goalies into PlayersRatings.csv, then the coaches into CoachesRatings.csv. Fields are never quoted, so a comma
// in a name parts it. Failures are thrown; a file that was being written then stays as far as it came.
void ExportRatings(const Tables& league, Disk& disk, const std::string& folder);

} // namespace dravik
