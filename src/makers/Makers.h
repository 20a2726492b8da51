#pragma once

// The automatic makers. They change records in place and leave what they changed when they stop early. Teams are 1..100,
// days 1..10; a team out of range shows "Integrity Check Failed!" in a critical box and ends the run. What `verbose` shows
// is shown only while `MessagesAllowed` is set.
namespace dravik {

// Decides who is dressed, scratched and on the farm. Complete mode rebuilds the roster from the ratings; `partial`
// favours everybody on the pro side and sends nobody down. `verbose` shows shortages and success.
void AutoRoster(int team, bool verbose, bool partial);

// Fills one day of the pro lines from the dressed players, best first. `verbose` shows the success message.
void AutoLines(int team, bool verbose, int day);

// Keeps every usable slot of a pro day and refills the others from the worst dressed player upwards.
void AutoLinesPartial(int team, bool verbose, int day);

// Fills one day of the farm lines.
void AutoLinesFarm(int team, bool verbose, int day);

} // namespace dravik
