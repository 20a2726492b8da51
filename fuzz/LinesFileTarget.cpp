// Reads a lines file of any bytes over a small league: nobody gets a status that does not exist, a refused head changes nothing,
// and nothing is left behind on the disk.

#include "files/LinesFile.h"
#include "fuzz/MemoryPlatform.h"
#include "fuzz/ReadFileTarget.h"
#include "fuzz/TableLeague.h"
#include "machine/Reporting.h"
#include "session/Session.h"

#include <cstring>

namespace dravik::fuzz {

namespace {

template <class Table>
bool StatusesAreKnown(const Table& people)
{
    for (const auto& person : people)
        if (person.Status > status::Pro)
            return false;
    return true;
}

} // namespace

void RunTarget(Input input)
{
    static MemoryPlatform machine;
    static const bool made = [] {
        UseMachine(machine);
        MakeTableLeague();
        return true;
    }();
    static const PlayerChangeTable changes = RosterChanges;
    static const GoalieChangeTable goalieChanges = RosterChangesGoalie;
    Require(made);
    ResetTableLeague();
    RosterChanges = changes;
    RosterChangesGoalie = goalieChanges;
    machine.BoxCount = 0;
    machine.UsePlainFiles(FilesArePlain());
    machine.Files = {{InFolder("Lines.dvl"), FileOf(input)}};
    CurrentTeam = 1;
    TempFile = InFolder("ClientTemp.dvt");
    const Team before = Teams[1];

    TeamFileRead result = TeamFileRead::Loaded;
    const bool ended = Reporting(Machine(), " in cmdLoadFile!",
                                 [&] { result = ReadLinesFile(OpenLeague, OpenFiles(), 1, InFolder("Lines.dvl")); });
    Require(machine.Files.size() == 1 && machine.Files.count(InFolder("Lines.dvl")) == 1);
    Require(ended && machine.BoxCount == (result == TeamFileRead::NotDecompressed ? 1 : 0));
    Require(StatusesAreKnown(Players) && StatusesAreKnown(Goalies));
    if (result == TeamFileRead::NotDecompressed)
        Require(std::memcmp(&before, &Teams[1], sizeof before) == 0);
}

} // namespace dravik::fuzz
