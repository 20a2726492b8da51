#pragma once

#include <string>

// The judges and money rules of the program. Teams are 1..100, days 1..10; a team out of range shows "Integrity Check
// Failed!" in a critical box and gives False or 0, unless a routine says otherwise. Unexpected failures are told in the
// common failure message; the routine then returns what it has so far. A text that a caller asks for is shown only while
// `MessagesAllowed` is set.
namespace dravik {

// The tags of the skater slots of a day that hold `player`, "L-1C, PP-1C, PS-2, ", in the order of `SkaterSlots`; the
// number of those slots; and the farm's twins of both. A team or day out of range fails with 9.
std::string PlayOnLineString(int team, int player, int day);
std::string PlayOnLineStringFarm(int team, int player, int day);
int PlayOnLineInteger(int team, int player, int day);
int PlayOnLineIntegerFarm(int team, int player, int day);

// The overall rating of a person, at most 99. `position` 1..4 takes a `Player` index, 5 a `Goalie` index; another position
// shows "Integrity Check Failed!" and gives 0. A sum that does not fit 16 bits gives 0 without a box.
int CalculateOverall(int position, int id);

// Payrolls, in the 32-bit float in which they are added up; callers round them. 0 after a failure.
float ProPayroll(int team);
float FarmPayroll(int team);
float CoachPayroll(int team);
// What one game of the season costs. A cost beyond 32 bits fails with 6, which is told and gives 0.
int ExpensePerGame(int team);

// Judges the roster of a team and repairs what may not stand where it stands, silent calls included; `RosterFixed` tells
// whether it moved somebody. True when the roster is complete. `withSalaryCap` judges the payroll too; `showMessage`
// shows the text in a warning box, which `LastRosterText` keeps whether shown or not.
bool CheckRoster(int team, bool log, bool withSalaryCap, bool showMessage);
const std::string& LastRosterText();

// True when the payroll stands within the cap. With `showMessage` what is wrong is shown in warning boxes.
bool CheckSalaryCap(int team, bool showMessage);

// True when sending the person down needs waivers. `id` is a `Player` index, or a `Goalie` index + 10000.
bool WaiverCheck(int id);

// Judges one day of the pro lines and takes illegal people out of them, silent calls included. True when complete and
// legal. With `showMessage` the text is shown in an information box. A slot that holds a number outside its table fails
// with 9.
bool CheckLine(int team, bool showMessage, int day, bool log);

// The same for the farm's lines: strict when the league requires farm rosters, otherwise judging only what stands in
// them; True at once in a league without farm teams.
bool CheckLineFarm(int team, bool showMessage, int day, bool log);

// The text of the CheckLine or CheckLineFarm that ran last, whether shown or not, with a line break behind each finding;
// "Lines are perfect!" when there was none. Empty when nothing was judged; a judgement that failed leaves what it had
// found by then.
const std::string& LastLinesText();

// True when every slot of the pro day is 0, goalies included.
bool CheckLineEmpty(int team, int day);

// Empties one day, pro or farm; the goalie-pull values and the reserved words stay. A team or day out of range shows
// "Integrity Check Failed!" and does nothing.
void WipesLines(int team, int day, bool pro);

// Takes a person (a goalie is his index + 10000) out of all ten days, pro and farm; a skater loses his captaincy too.
void WipePlayerFromTeamLines(int team, int id);

} // namespace dravik
