#include "files/LinesFile.h"

#include "files/Magics.h"
#include "files/ReplacedFile.h"
#include "files/SlotFile.h"
#include "files/TeamFilePath.h"
#include "machine/Paths.h"

#include <memory>

namespace dravik {

namespace {

constexpr std::int64_t RecordCount = 4 + PlayerChangeTable::last + GoalieChangeTable::last + 1;
constexpr std::int64_t FileLength = SlotFileLength(RecordCount, MagicLength(LinesFileEnd));

// The records of a file that are in it whole. It is read to its end before anything is taken over, so that a file that
// cannot be read changes nothing.
struct Content {
    bool HeadFits = false; // a lines file of this league and of CurrentTeam
    bool HasTeam = false;
    dravik::Team Team;
    long long PlayerCount = 0;
    PlayerChangeTable Players;
    long long GoalieCount = 0;
    GoalieChangeTable Goalies;
    bool EndFits = false;
};

template <class Changes>
long long ReadChanges(SlotReader& slots, Changes& changes)
{
    for (long long i = 1; i <= Changes::last; ++i)
        if (!slots.Read(changes[i]))
            return i - 1;
    return Changes::last;
}

void ReadContent(SlotReader& slots, Content& content, const Tables& league, int team)
{
    content.HeadFits = ReadTeamFileHead(slots, LinesFileStart, league, team);
    if (!content.HeadFits)
        return;
    content.HasTeam = slots.Read(content.Team);
    content.PlayerCount = ReadChanges(slots, content.Players);
    content.GoalieCount = ReadChanges(slots, content.Goalies);
    content.EndFits = slots.ReadMagic(LinesFileEnd);
}

template <class Changes, class People>
void TakeOver(const Changes& read, long long count, int team, Changes& changes, People& people)
{
    for (long long i = 1; i <= count; ++i) {
        changes[i] = read[i];
        auto& person = people[i];
        if (person.Team != team)
            continue;
        if (read[i].Status != person.Status && read[i].Status < 3)
            person.Status = read[i].Status;
        person.TradeAvailable = read[i].TradeAvailable;
        person.Protected = read[i].Protected;
    }
}

template <class Changes, class People>
void RefreshStatus(Changes& changes, const People& people)
{
    for (long long i = 1; i <= Changes::last; ++i)
        changes[i].Status = people[i].Status;
}

} // namespace

std::string LinesFilePath(const Tables& league, Disk& disk, int team)
{
    return TeamFilePath(disk, league.Teams[team].Name.Trimmed(), ".dvl");
}

bool WriteLinesFile(Tables& league, const FileAccess& access, int team, const std::string& target)
{
    const Team& record = league.Teams[team];
    DeleteIfExists(access.Disk, access.WorkFile);
    ReplacedFile old(access, target);
    RefreshStatus(league.RosterChanges, league.Players);
    RefreshStatus(league.RosterChangesGoalie, league.Goalies);
    const auto write = [&](SlotWriter& slots) {
        slots.WriteMagic(LinesFileStart);
        slots.Write(league.LeagueData.LeagueCode);
        slots.Write(Int16(team));
        slots.Write(record);
        for (const RosterChange& change : league.RosterChanges)
            slots.Write(change);
        for (const RosterChange& change : league.RosterChangesGoalie)
            slots.Write(change);
        slots.WriteMagic(LinesFileEnd);
    };
    if (!WriteSlotFile(SlotFilesOf(access), target, FileLength, write, SlotLength, access.WorkFile))
        return false;
    old.Replaced();
    return true;
}

TeamFileRead ReadTeamOfLinesFile(const Tables& league, const FileAccess& access, int team, const std::string& path,
                                 Team& record)
{
    const auto content = std::make_unique<Content>();
    const auto takeBack = [&] { *content = {}; };
    const auto read = [&](SlotReader& slots) {
        ReadContent(slots, *content, league, team);
        return content->EndFits;
    };
    const TeamFileRead outcome = ReadTeamFile(access, path, SlotLength, read, takeBack);
    if (outcome == TeamFileRead::Loaded)
        record = content->Team;
    return outcome;
}

TeamFileRead ReadLinesFile(Tables& league, const FileAccess& access, int team, const std::string& path)
{
    DeleteIfExists(access.Disk, access.WorkFile);
    if (!FileExist(access.Disk, path))
        return TeamFileRead::Refused;
    const auto content = std::make_unique<Content>();
    const auto read = [&](SlotReader& slots) { ReadContent(slots, *content, league, team); };
    const auto takeBack = [&] { *content = {}; };
    if (ReadSlotFile(SlotFilesOf(access), ExistingPath(access.Disk, path), read, SlotLength, takeBack) ==
        SlotFileRead::NotDecompressed)
        return TeamFileRead::NotDecompressed;
    if (!content->HeadFits)
        return TeamFileRead::Refused;
    if (content->HasTeam)
        league.Teams[team] = content->Team;
    TakeOver(content->Players, content->PlayerCount, team, league.RosterChanges, league.Players);
    TakeOver(content->Goalies, content->GoalieCount, team, league.RosterChangesGoalie, league.Goalies);
    return content->EndFits ? TeamFileRead::Loaded : TeamFileRead::Refused;
}

} // namespace dravik
