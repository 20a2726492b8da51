#include "league/Tables.h"

#include <cstring>

namespace dravik {

namespace {

// In place: a temporary of a whole table would not fit on every stack.
template <class Table>
void Zero(Table& table)
{
    static_assert(std::is_trivially_copyable_v<Table>);
    std::memset(static_cast<void*>(&table), 0, sizeof table);
}

} // namespace

std::unique_ptr<Tables> MakeTables() { return std::make_unique<Tables>(); }

std::unique_ptr<Tables> Copy(const Tables& league) { return std::make_unique<Tables>(league); }

void MarkRosterChangesUntouched(Tables& league)
{
    for (auto& change : league.RosterChanges)
        change.Status = RosterChange::Untouched;
    for (auto& change : league.RosterChangesGoalie)
        change.Status = RosterChange::Untouched;
}

void EmptyLeagueTables(Tables& league)
{
    Zero(league.Prospects);
    Zero(league.Players);
    Zero(league.Goalies);
    Zero(league.Teams);
    Zero(league.GameSchedule);
}

} // namespace dravik
