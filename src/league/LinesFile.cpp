#include "league/LinesFile.h"

#include "league/ClientVariable.h"
#include "league/OldFile.h"
#include "league/OutsideCode.h"
#include "league/SlotFile.h"

#include <memory>

namespace dravik {

namespace {

constexpr std::string_view StartMagic = "DRVK Lineups Files Version 1.01 - Start";
constexpr std::string_view EndMagic = "DRVK Lineups Files Version 1.01 - End";
constexpr std::int64_t RecordCount = 4 + PlayerChangeTable::last + GoalieChangeTable::last + 1;
constexpr std::int64_t FileLength = SlotFileLength(RecordCount, MagicLength(EndMagic));

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

bool ReadHead(SlotReader& slots)
{
    if (!slots.ReadMagic(StartMagic))
        return false;
    decltype(League::LeagueCode) code;
    Int16 team;
    return slots.Read(code) && code.Raw() == LeagueData.LeagueCode.Raw() && slots.Read(team) && team == CurrentTeam;
}

void ReadContent(SlotReader& slots, Content& content)
{
    content.HeadFits = ReadHead(slots);
    if (!content.HeadFits)
        return;
    content.HasTeam = slots.Read(content.Team);
    content.PlayerCount = ReadChanges(slots, content.Players);
    content.GoalieCount = ReadChanges(slots, content.Goalies);
    content.EndFits = slots.ReadMagic(EndMagic);
}

template <class Changes, class People>
void TakeOver(const Changes& read, long long count, Changes& changes, People& people)
{
    for (long long i = 1; i <= count; ++i) {
        changes[i] = read[i];
        auto& person = people[i];
        if (person.Team != CurrentTeam)
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

std::string LinesFilePath(int team) { return TeamFilePath(Teams[team].Name.Trimmed(), ".dvl"); }

bool WriteLinesFile(int team, const std::string& target)
{
    const Team& record = Teams[team];
    DeleteIfExists(TempFile);
    OldFile old(target);
    RefreshStatus(RosterChanges, Players);
    RefreshStatus(RosterChangesGoalie, Goalies);
    const auto write = [&](SlotWriter& slots) {
        slots.WriteMagic(StartMagic);
        slots.Write(LeagueData.LeagueCode);
        slots.Write(Int16(team));
        slots.Write(record);
        for (const RosterChange& change : RosterChanges)
            slots.Write(change);
        for (const RosterChange& change : RosterChangesGoalie)
            slots.Write(change);
        slots.WriteMagic(EndMagic);
    };
    if (!WriteSlotFile(target, FileLength, write, SlotLength, TempFile))
        return false;
    old.Replaced();
    return true;
}

LinesFileRead ReadLinesFile(const std::string& path)
{
    DeleteIfExists(TempFile);
    if (!FileExist(path))
        return LinesFileRead::Refused;
    const auto content = std::make_unique<Content>();
    const auto read = [&](SlotReader& slots) { ReadContent(slots, *content); };
    const auto takeBack = [&] { *content = {}; };
    if (ReadSlotFile(ExistingPath(path), read, SlotLength, takeBack) == SlotFileRead::NotDecompressed)
        return LinesFileRead::NotDecompressed;
    if (!content->HeadFits)
        return LinesFileRead::Refused;
    if (content->HasTeam)
        Teams[CurrentTeam] = content->Team;
    TakeOver(content->Players, content->PlayerCount, RosterChanges, Players);
    TakeOver(content->Goalies, content->GoalieCount, RosterChangesGoalie, Goalies);
    return content->EndFits ? LinesFileRead::Loaded : LinesFileRead::Refused;
}

} // namespace dravik
