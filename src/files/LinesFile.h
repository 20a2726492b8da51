#pragma once

#include "files/TeamFileRead.h"
#include "league/Tables.h"

#include <string>

namespace dravik {

// Where the lines file of `team` (1..100) is saved: the program's folder, the team's name without spaces, ".dvl".
// Fails with 75 when the name holds a character that no file name may hold.
std::string LinesFilePath(const Tables& league, Disk& disk, int team);

// Writes the lines file of `team` to `target`, plain or compressed as the settings say. `RosterChange.Status` of every
// person takes his `Status` first. A work file left behind is deleted first; the new file is the work file until it is
// whole, so both have to be on one disk, and then takes the place of what stands at `target` in one step. After a failure the
// old one is deleted. False after a failed compression, which is told; any other failure is thrown.
bool WriteLinesFile(Tables& league, const FileAccess& access, int team, const std::string& target);

// Reads the lines file `path`, found whatever the case of its name, over the record of `team` (1..100) and over its people.
// A wrong head leaves the tables untouched; after a wrong end, what is in the file stays taken over. A work file left
// behind is deleted first. Failures are thrown.
TeamFileRead ReadLinesFile(Tables& league, const FileAccess& access, int team, const std::string& path);

// Reads the record of `team` alone out of that file into `record`, and changes no table. A file that is none of this league and
// this team, or whose end is wrong, is refused.
TeamFileRead ReadTeamOfLinesFile(const Tables& league, const FileAccess& access, int team, const std::string& path,
                                 Team& record);

} // namespace dravik
