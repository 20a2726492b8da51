#pragma once

#include "files/FileAccess.h"
#include "league/Field.h"
#include "league/PersonId.h"
#include "league/Positions.h"
#include "league/RatingNames.h"
#include "machine/Platform.h"
#include "machine/Work.h"

#include <string>
#include <string_view>

// What the windows remember while the program runs: the league that is open, by the names of its tables, the machine that it
// runs on, and what was chosen. Nothing below knows of it: there a league, a voice, a disk are passed to whoever needs them.
namespace dravik {

extern Tables OpenLeague;
inline constexpr League& LeagueData = OpenLeague.LeagueData;
inline constexpr TeamTable& Teams = OpenLeague.Teams;
inline constexpr PlayerTable& Players = OpenLeague.Players;
inline constexpr GoalieTable& Goalies = OpenLeague.Goalies;
inline constexpr CoachTable& Coaches = OpenLeague.Coaches;
inline constexpr ProspectTable& Prospects = OpenLeague.Prospects;
inline constexpr ScheduleTable& GameSchedule = OpenLeague.GameSchedule;
inline constexpr PlayerChangeTable& RosterChanges = OpenLeague.RosterChanges;
inline constexpr GoalieChangeTable& RosterChangesGoalie = OpenLeague.RosterChangesGoalie;

extern Int16 CurrentTeam;        // chosen in the main window, 1..100; 0 = none yet
extern std::string WindowTitle;  // the program's title, " - " and the open file's name behind it
extern std::string TempFile;     // full path of the work file: what is being written
extern std::string CallerScreen; // where the roster and lines screens return to: one of the names below
extern Int16 PlayerStatCount;    // rating captions shown for a skater: 15, or 7 groups
extern Int16 GoalieStatCount;    // rating captions shown for a goalie: 13, or 7 groups
extern bool Modified;            // set by whatever edits; nothing reads it
extern Int16 SelectedPlayer;     // the person chosen on the open screen
extern bool SelectedIsGoalie;    // and whether he is a goalie
extern bool ListEventGuard;      // holds back list and box events while a screen fills itself
extern Int16 ViewerReturnMode;   // tells a dependent screen who opened it: one of the numbers below

namespace caller_screen {
inline constexpr std::string_view Main = "Main";
inline constexpr std::string_view Team = "Team";
} // namespace caller_screen

// Whom the record of a player returns to, and whose coach is looked for.
namespace return_mode {
inline constexpr int Roster = 2;
inline constexpr int Offers = 3;
inline constexpr int Draft = 4;
inline constexpr int Office = 5;
inline constexpr int ProTeam = 2;
inline constexpr int FarmTeam = 3;
} // namespace return_mode

// The chosen team: its number as the floors below take it, and its record; a number out of range fails with 9.
int OwnNumber();
Team& OwnTeam();

// The chosen person in one, and the choice of another one. A slot beyond 16 bits fails with 6.
PersonId SelectedPerson();
void SelectPerson(PersonId who);

// Puts all tables and variables into the state of a program that has just started: zeroed, no league, no team.
void ResetClientVariables();

// The machine that the program runs on. `UseMachine` is called once at start-up, and by tests; the object must outlive
// its use. Without one `Machine` fails with 5.
Platform& Machine();
void UseMachine(Platform& platform);

// The open league as work at hand, and what its files are read and written with.
Work OpenWork();
FileAccess OpenFiles();

} // namespace dravik
