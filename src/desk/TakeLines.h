#pragma once

#include "desk/TakenIn.h"
#include "machine/Work.h"
#include "rules/LineSlots.h"

#include <string>
#include <vector>

namespace dravik {

// Takes from the lines file `path` of `team` (1..100) the line-ups of `sides` alone: money, password, contacts, statuses and all
// else stay as they are. With `movedOn` the days that the team has played since the file was made have gone by: what was for
// the day behind them is day 1 now, and the last days stay. Whoever is in them and has left the team is told, and the judge of
// each day takes out whoever may not stand there; a day that is not complete then is told, too. A file that is no lines file of
// this league and this team, from its head to its end, changes nothing. Fails as the disk does.
LoadedFile TakeLines(const Work& work, const FileAccess& files, int team, const std::string& path,
                     const std::vector<Side>& sides, bool movedOn);

} // namespace dravik
