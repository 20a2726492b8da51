#pragma once

#include "files/TeamFileRead.h"
#include "league/Tables.h"

#include <string>

namespace dravik {

// The ranking of a draft, best first: ids of skaters, of goalies (+ 10000) and of prospects (+ 20000), without gaps; 0
// behind the last.
using DraftRanking = Row<Int16, 0, 1000>;

// Where the draft file of `team` (1..100) is saved: the program's folder, the team's name without spaces, ".dvd". Fails
// with 75 when the name holds a character that no file name may hold.
std::string DraftFilePath(const Tables& league, Disk& disk, int team);

// Writes `ranking` as the draft file of `team` to `target`, plain or compressed as the settings say. A work file left
// behind is deleted first; the new file is the work file until it is whole, so both have to be on one disk, and then takes
// the place of what stands at `target` in one step. After a failure the old one is deleted. False after a failed
// compression, which is told; any other failure is thrown.
bool WriteDraftFile(const Tables& league, const FileAccess& access, int team, const DraftRanking& ranking,
                    const std::string& target);

// Reads the draft file `path` of `team` (1..100), plain or compressed as the settings say, into `ranking`. It has to be as
// WriteDraftFile writes one: of this league and this team, with 1001 ranks without gaps and ids that somebody can have. One that
// is not is refused whole. Failures are thrown; `ranking` is empty unless it was loaded.
TeamFileRead ReadDraftFile(const Tables& league, const FileAccess& access, int team, const std::string& path,
                           DraftRanking& ranking);

} // namespace dravik
