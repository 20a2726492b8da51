#pragma once

#include "league/League.h"
#include "league/Person.h"
#include "league/Prospect.h"
#include "league/RosterChange.h"
#include "league/ScheduleRow.h"
#include "league/Team.h"

#include <string>
#include <string_view>

// The tables and variables of the whole program. They live as long as it runs; records refer to each other by index,
// and nothing keeps a pointer into them.
namespace dravik {

using TeamTable = Row<Team, 1, 100>;
using PlayerTable = Row<Player, 0, 10000>;
using GoalieTable = Row<Goalie, 0, 1000>;
using CoachTable = Row<Coach, 1, 500>;
using ProspectTable = Row<Prospect, 1, 300>;
using ScheduleTable = Row<ScheduleRow, 1, 5000>;
using PlayerChangeTable = Row<RosterChange, 1, 10000>;
using GoalieChangeTable = Row<RosterChange, 1, 1000>;

extern League LeagueData;
extern TeamTable Teams;
extern PlayerTable Players; // slot 0 is the placeholder that an empty line slot shows
extern GoalieTable Goalies; // slot 0 likewise
extern CoachTable Coaches;
extern ProspectTable Prospects;
extern ScheduleTable GameSchedule;
extern PlayerChangeTable RosterChanges;
extern GoalieChangeTable RosterChangesGoalie;

extern Int16 CurrentTeam;        // chosen in the main window, 1..100; 0 = none yet
extern std::string WindowTitle;  // the program's title, " - " and the open file's name behind it
extern std::string TempFile;     // full path of the work file: what is being written
extern std::string CallerScreen; // "Main" or "Team": where the roster and lines screens return to
extern Int16 PlayerStatCount;    // rating captions shown for a skater: 15, or 7 groups
extern Int16 GoalieStatCount;    // rating captions shown for a goalie: 13, or 7 groups
extern Int16 MsgResult;          // button that the last message box returned
extern bool Modified;            // set by whatever edits; nothing reads it
extern Int16 SelectedPlayer;     // the person chosen on the open screen
extern bool SelectedIsGoalie;    // and whether he is a goalie
extern bool ListEventGuard;      // holds back list and box events while a screen fills itself
extern Int16 RosterFixed;        // 1 after a roster judgement that changed a status
extern bool MessagesAllowed;     // set at start-up, never changed
extern Int16 ViewerReturnMode;   // tells a dependent screen who opened it

inline constexpr Row<std::string_view, 1, 5> PositionName = [] {
    Row<std::string_view, 1, 5> names;
    const std::string_view all[] = {"C", "LW", "RW", "D", "G"};
    for (int i = 1; i <= 5; ++i)
        names[i] = all[i - 1];
    return names;
}();

// Numbers of the positions. A goalie has no position field; 5 stands for it.
namespace position {
inline constexpr int Center = 1;
inline constexpr int LeftWing = 2;
inline constexpr int RightWing = 3;
inline constexpr int Defense = 4;
inline constexpr int Goalie = 5;
} // namespace position

// Where a person stands.
namespace status {
inline constexpr int Farm = 0;
inline constexpr int Scratch = 1;
inline constexpr int Pro = 2;
} // namespace status

// What one number carrying both kinds adds for a goalie, and for a prospect.
inline constexpr int GoalieOffset = 10000;
inline constexpr int ProspectOffset = 20000;

// Indices of the named ratings within `Stats`.
namespace skater {
inline constexpr int CK = 1, FG = 2, DI = 3, SK = 4, ST = 5, DU = 6, PH = 7, FO = 8, PA = 9, SC = 10, DF = 11, EX = 12,
                     LD = 13, MO = 14, PO = 15;
} // namespace skater
namespace goalie {
inline constexpr int SK = 1, DU = 2, ST = 3, SZ = 4, AG = 5, RB = 6, SC = 7, HS = 8, RT = 9, EX = 10, LD = 11, MO = 12,
                     PO = 13;
} // namespace goalie

// Captions of the ratings in the order of `Stats`, the overall behind them; the second table of each pair holds the
// captions of the group values, shown when the league hides the single ratings.
extern const Row<std::string_view, 1, 16> SkaterStatName;
extern const Row<std::string_view, 1, 8> SkaterGroupName;
extern const Row<std::string_view, 1, 14> GoalieStatName;
extern const Row<std::string_view, 1, 8> GoalieGroupName;

// Puts all tables and variables into the state of a program that has just started: zeroed, no league, no team.
void ResetClientVariables();

// Sets `Status` of every RosterChange to the value of a person whom nobody has touched.
void MarkRosterChangesUntouched();

// Zeroes the five tables that a load replaces. `LeagueData`, `Coaches` and the variables stay as they are.
void EmptyLeagueTables();

} // namespace dravik
