#include "league/ClientVariable.h"

#include <cstring>
#include <type_traits>

namespace dravik {

League LeagueData;
TeamTable Teams;
PlayerTable Players;
GoalieTable Goalies;
CoachTable Coaches;
ProspectTable Prospects;
ScheduleTable GameSchedule;
PlayerChangeTable RosterChanges;
GoalieChangeTable RosterChangesGoalie;

Int16 CurrentTeam;
std::string WindowTitle;
std::string TempFile;
std::string CallerScreen;
Int16 PlayerStatCount;
Int16 GoalieStatCount;
Int16 MsgResult;
bool Modified = false;
Int16 SelectedPlayer;
bool SelectedIsGoalie = false;
bool ListEventGuard = false;
Int16 RosterFixed;
bool MessagesAllowed = false;
Int16 ViewerReturnMode;

namespace {

template <long long Count>
constexpr Row<std::string_view, 1, Count> Captions(const std::string_view (&all)[Count])
{
    Row<std::string_view, 1, Count> captions;
    for (long long i = 1; i <= Count; ++i)
        captions[i] = all[i - 1];
    return captions;
}

// In place: a temporary of a whole table would not fit on every stack.
template <class Table>
void Zero(Table& table)
{
    static_assert(std::is_trivially_copyable_v<Table>);
    std::memset(static_cast<void*>(&table), 0, sizeof table);
}

} // namespace

constexpr Row<std::string_view, 1, 16> SkaterStatName =
    Captions<16>({"CK", "FG", "DI", "SK", "ST", "DU", "PH", "FO", "PA", "SC", "DF", "EX", "LD", "MO", "PO", "OV"});
constexpr Row<std::string_view, 1, 8> SkaterGroupName = Captions<8>({"IT", "PY", "PC", "SC", "DF", "ME", "PO", "OV"});
constexpr Row<std::string_view, 1, 14> GoalieStatName =
    Captions<14>({"SK", "DU", "ST", "SZ", "AG", "RB", "SC", "HS", "RT", "EX", "LD", "MO", "PO", "OV"});
constexpr Row<std::string_view, 1, 8> GoalieGroupName = Captions<8>({"PH", "RD", "SC", "HS", "RT", "ME", "PO", "OV"});

void EmptyLeagueTables()
{
    Zero(Prospects);
    Zero(Players);
    Zero(Goalies);
    Zero(Teams);
    Zero(GameSchedule);
}

void MarkRosterChangesUntouched()
{
    for (auto& change : RosterChanges)
        change.Status = RosterChange::Untouched;
    for (auto& change : RosterChangesGoalie)
        change.Status = RosterChange::Untouched;
}

void ResetClientVariables()
{
    EmptyLeagueTables();
    LeagueData = {};
    Zero(Coaches);
    Zero(RosterChanges);
    Zero(RosterChangesGoalie);
    CurrentTeam = 0;
    WindowTitle.clear();
    TempFile.clear();
    CallerScreen.clear();
    PlayerStatCount = 0;
    GoalieStatCount = 0;
    MsgResult = 0;
    Modified = false;
    SelectedPlayer = 0;
    SelectedIsGoalie = false;
    ListEventGuard = false;
    RosterFixed = 0;
    MessagesAllowed = false;
    ViewerReturnMode = 0;
}

} // namespace dravik
