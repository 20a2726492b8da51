#include "files/DraftFile.h"

#include "files/Magics.h"
#include "files/ReplacedFile.h"
#include "files/SlotFile.h"
#include "files/TeamFilePath.h"
#include "league/Positions.h"
#include "machine/Paths.h"

namespace dravik {

namespace {

constexpr std::int64_t RecordCount = 3 + (DraftRanking::last + 1) + 1;
constexpr std::int64_t FileLength = SlotFileLength(RecordCount, MagicLength(DraftFileEnd), DraftSlotLength);

static_assert(DraftSlotLength == 12 && RecordCount == 1005 && FileLength == 12060);

// Whether somebody can have a number.
bool IsAnId(long long id)
{
    return PlayerTable::Has(id) || GoalieTable::Has(id - GoalieOffset) || ProspectTable::Has(id - ProspectOffset);
}

// Takes all ranks. False at one that no draft file has: a number that nobody can have, or a person behind an empty rank.
bool ReadRanks(SlotReader& slots, DraftRanking& ranking)
{
    bool ended = false;
    for (Int16& id : ranking) {
        if (!slots.Read(id) || (id != 0 && (ended || !IsAnId(id))))
            return false;
        ended = id == 0;
    }
    return true;
}

} // namespace

std::string DraftFilePath(const Tables& league, Disk& disk, int team)
{
    return TeamFilePath(disk, league.Teams[team].Name.Trimmed(), ".dvd");
}

bool WriteDraftFile(const Tables& league, const FileAccess& access, int team, const DraftRanking& ranking,
                    const std::string& target)
{
    DeleteIfExists(access.Disk, access.WorkFile);
    ReplacedFile old(access, target);
    const auto write = [&](SlotWriter& slots) {
        slots.WriteMagic(DraftFileStart);
        slots.Write(league.LeagueData.LeagueCode);
        slots.Write(Int16(team));
        for (const Int16& id : ranking)
            slots.Write(id);
        slots.WriteMagic(DraftFileEnd);
    };
    if (!WriteSlotFile(SlotFilesOf(access), target, FileLength, write, DraftSlotLength, access.WorkFile))
        return false;
    old.Replaced();
    return true;
}

TeamFileRead ReadDraftFile(const Tables& league, const FileAccess& access, int team, const std::string& path,
                           DraftRanking& ranking)
{
    const auto takeBack = [&] { ranking = {}; };
    takeBack();
    const auto read = [&](SlotReader& slots) {
        return ReadTeamFileHead(slots, DraftFileStart, league, team) && ReadRanks(slots, ranking) &&
               slots.ReadMagic(DraftFileEnd);
    };
    return ReadTeamFile(access, path, DraftSlotLength, read, takeBack);
}

} // namespace dravik
