#pragma once

#include "machine/Work.h"

#include <optional>

// The automatic makers. They change records in place and leave what they changed when they stop early. Teams are 1..100,
// days 1..10; a team out of range shows "Integrity Check Failed!" in a critical box and ends the run. What `verbose` shows
// is shown only while reports are allowed.
namespace dravik {

// What became of a run.
struct Made {
    bool Done = false;         // it came to its end
    std::optional<int> Failed; // the number of the failure that ended it, which was told
    std::optional<bool>
        RosterRepaired; // whether the roster judgement of a maker of lines, the last one, moved somebody
};

// Decides who is dressed, scratched and on the farm. Complete mode rebuilds the roster from the ratings; `partial`
// favours everybody on the pro side and sends nobody down. `verbose` shows shortages and success.
Made AutoRoster(const Work& work, int team, bool verbose, bool partial);

// Fills one day of the pro lines from the dressed players, best first. `verbose` shows the success message.
Made AutoLines(const Work& work, int team, bool verbose, int day);

// Keeps every usable slot of a pro day and refills the others from the worst dressed player upwards.
Made AutoLinesPartial(const Work& work, int team, bool verbose, int day);

// Fills one day of the farm lines.
Made AutoLinesFarm(const Work& work, int team, bool verbose, int day);

} // namespace dravik
