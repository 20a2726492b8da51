#include "sample-league/ClientFileWriter.h"

#include "files/SlotFile.h"
#include "session/Session.h"

namespace dravik::sample {

namespace {

// This side of the format is the simulator's. It spells the magics out again, so that the client's reader is never
// checked against itself.
constexpr std::string_view StartMagic = "DRVK Client Files Version 1.12 - Start";
constexpr std::string_view EndMagic = "DRVK Client Files Version 1.12 - End";

constexpr std::int64_t RecordCount = 2 + ProspectTable::last + TeamTable::last + PlayerTable::last + GoalieTable::last +
                                     CoachTable::last + ScheduleTable::last + 1;
static_assert(RecordCount == 16903);

template <class Table>
void WriteTable(SlotWriter& slots, const Table& table)
{
    // Slot 0 of a table that has one is not in the file.
    for (long long i = 1; i <= Table::last; ++i)
        slots.Write(table[i]);
}

} // namespace

bool WriteClientFile(const std::string& path)
{
    return WriteSlotFile(SlotFilesOf(OpenFiles()), path, SlotFileLength(RecordCount, MagicLength(EndMagic)),
                         [](SlotWriter& slots) {
                             slots.WriteMagic(StartMagic);
                             slots.Write(LeagueData);
                             WriteTable(slots, Prospects);
                             WriteTable(slots, Teams);
                             WriteTable(slots, Players);
                             WriteTable(slots, Goalies);
                             WriteTable(slots, Coaches);
                             WriteTable(slots, GameSchedule);
                             slots.WriteMagic(EndMagic);
                         });
}

} // namespace dravik::sample
