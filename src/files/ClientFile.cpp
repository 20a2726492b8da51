#include "files/ClientFile.h"

#include "files/Magics.h"

namespace dravik {

namespace {

template <class Table>
void ReadTable(SlotReader& slots, Table& table)
{
    // Slot 0 of a table that has one is not in the file.
    for (long long i = 1; i <= Table::last; ++i)
        slots.Read(table[i]);
}

// Whether both magics are right. After a wrong start magic nothing is read.
bool ReadSlots(SlotReader& slots, Tables& league)
{
    if (!slots.ReadMagic(ClientFileStart))
        return false;
    slots.Read(league.LeagueData);
    ReadTable(slots, league.Prospects);
    ReadTable(slots, league.Teams);
    ReadTable(slots, league.Players);
    ReadTable(slots, league.Goalies);
    ReadTable(slots, league.Coaches);
    ReadTable(slots, league.GameSchedule);
    return slots.ReadMagic(ClientFileEnd);
}

} // namespace

ClientFileRead ReadClientFile(Tables& league, const SlotFiles& files, const std::string& path)
{
    const League rules = league.LeagueData;
    const CoachTable coaches = league.Coaches;
    const auto takeBack = [&] {
        league.LeagueData = rules;
        league.Coaches = coaches;
        EmptyLeagueTables(league);
    };
    ClientFileRead outcome;
    const auto read = [&](SlotReader& slots) { outcome.Whole = ReadSlots(slots, league); };
    outcome.File = ReadSlotFile(files, path, read, SlotLength, takeBack);
    return outcome;
}

} // namespace dravik
