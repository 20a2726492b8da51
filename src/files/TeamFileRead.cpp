#include "files/TeamFileRead.h"

#include "machine/Paths.h"

namespace dravik {

bool ReadTeamFileHead(SlotReader& slots, std::string_view start, const Tables& league, int team)
{
    if (!slots.ReadMagic(start))
        return false;
    decltype(League::LeagueCode) code;
    Int16 number;
    return slots.Read(code) && code.Raw() == league.LeagueData.LeagueCode.Raw() && slots.Read(number) && number == team;
}

TeamFileRead ReadTeamFile(const FileAccess& access, const std::string& path, std::size_t slot,
                          const std::function<bool(SlotReader&)>& read, const std::function<void()>& takeBack)
{
    DeleteIfExists(access.Disk, access.WorkFile);
    if (!FileExist(access.Disk, path))
        return TeamFileRead::Refused;
    bool fits = false;
    const auto readAll = [&](SlotReader& slots) { fits = read(slots) && slots.IsAtEnd(); };
    const auto outcome = ReadSlotFile(SlotFilesOf(access), ExistingPath(access.Disk, path), readAll, slot, takeBack);
    if (outcome == SlotFileRead::NotDecompressed)
        return TeamFileRead::NotDecompressed;
    if (fits && outcome == SlotFileRead::Whole)
        return TeamFileRead::Loaded;
    takeBack();
    return TeamFileRead::Refused;
}

} // namespace dravik
