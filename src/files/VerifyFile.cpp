#include "files/VerifyFile.h"

#include "files/Magics.h"
#include "files/RecordRanges.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <iterator>
#include <string_view>

namespace dravik {

namespace {

constexpr std::string_view JournalStart = "DRVKJNFV1S";

struct KindOfFile {
    SystemFile Kind;
    std::string_view Start;
    std::size_t Slot;
};
constexpr KindOfFile Kinds[] = {
    KindOfFile{SystemFile::Client, ClientFileStart, SlotLength},
    KindOfFile{SystemFile::Lines, LinesFileStart, SlotLength},
    KindOfFile{SystemFile::Offers, OffersFileStart, OffersSlotLength},
    KindOfFile{SystemFile::Draft, DraftFileStart, DraftSlotLength},
};

// The length of a file of `records` records of which the last takes `last` bytes: with its slot filled up or not.
bool IsLengthOf(long long length, long long records, std::size_t last, std::size_t slot)
{
    return length == SlotFileLength(records, last, slot) || length == records * static_cast<long long>(slot);
}

bool FitsLength(const KindOfFile& kind, long long length)
{
    constexpr long long clientRecords = 3 + ProspectTable::last + TeamTable::last + PlayerTable::last +
                                        GoalieTable::last + CoachTable::last + ScheduleTable::last;
    constexpr long long linesRecords = 5 + PlayerTable::last + GoalieTable::last;
    constexpr long long draftRecords = 1005;
    constexpr long long leastOffers = 4;
    constexpr long long mostOffers = 999;
    switch (kind.Kind) {
    case SystemFile::Client:
        return IsLengthOf(length, clientRecords, MagicLength(ClientFileEnd), kind.Slot);
    case SystemFile::Lines:
        return IsLengthOf(length, linesRecords, MagicLength(LinesFileEnd), kind.Slot);
    case SystemFile::Draft:
        return IsLengthOf(length, draftRecords, MagicLength(DraftFileEnd), kind.Slot);
    default: {
        const auto slot = static_cast<long long>(kind.Slot);
        return length % slot == 0 && length / slot >= leastOffers && length / slot <= mostOffers;
    }
    }
}

constexpr auto Unnumbered = [](const auto& record, long long /*slot*/, const TellOutOfRange& tell) {
    CheckRanges(record, tell);
};

// Reads the records of one file and notes what is wrong with them.
class Verifier {
public:
    Verifier(SlotReader& reader, VerifiedFile& into) : slots(reader), verified(into) {}

    void ReadClient()
    {
        Magic(ClientFileStart);
        League rules;
        if (Read(rules, "the league")) {
            verified.LeagueCode = rules.LeagueCode.Raw();
            CheckRanges(rules, TellOf("League"));
        }
        ReadTable<Prospect>(ProspectTable::last, "Prospect", [](const auto&...) {});
        const auto numbered = [](const auto& record, long long slot, const TellOutOfRange& tell) {
            CheckRanges(record, slot, tell);
        };
        ReadTable<Team>(TeamTable::last, "Team", numbered);
        ReadTable<Player>(PlayerTable::last, "Player", numbered);
        ReadTable<Goalie>(GoalieTable::last, "Goalie", numbered);
        ReadTable<Coach>(CoachTable::last, "Coach", numbered);
        ReadTable<ScheduleRow>(ScheduleTable::last, "ScheduleRow", Unnumbered);
        End(ClientFileEnd);
    }

    void ReadLines()
    {
        Head(LinesFileStart);
        Team team;
        if (Read(team, "the team"))
            CheckRanges(team, verified.Team, TellOf("Team " + std::to_string(verified.Team)));
        ReadTable<RosterChange>(PlayerTable::last, "RosterChange of skater", Unnumbered);
        ReadTable<RosterChange>(GoalieTable::last, "RosterChange of goalie", Unnumbered);
        End(LinesFileEnd);
    }

    void ReadOffers()
    {
        Head(OffersFileStart);
        long long last = 0;
        int count = 0;
        for (FreeAgentOffer offer; !slots.IsAtEnd();) {
            const std::string name = "FreeAgentOffer " + std::to_string(++count);
            if (!Read(offer, name))
                return;
            CheckRanges(offer, TellOf(name));
            if (offer.Id <= last)
                Note(name + ", Id: " + std::to_string(offer.Id) + " stands behind " + std::to_string(last));
            if (offer.Team != verified.Team)
                Note(name + ", Team: " + std::to_string(offer.Team) + " is not the team of the file");
            last = offer.Id;
        }
        constexpr int most = 996;
        if (count == 0 || count > most)
            Note("It holds " + std::to_string(count) + " offers, not from 1 to 996");
    }

    void ReadDraft()
    {
        Head(DraftFileStart);
        bool ended = false;
        constexpr int ranks = 1001;
        for (int rank = 1; rank <= ranks; ++rank) {
            Int16 id;
            const std::string name = "rank " + std::to_string(rank);
            if (!Read(id, name))
                return;
            if (id != 0 && !PlayerTable::Has(id) && !GoalieTable::Has(id - GoalieOffset) &&
                !ProspectTable::Has(id - ProspectOffset))
                Note(name + ": nobody has the number " + std::to_string(id));
            if (id != 0 && ended)
                Note(name + ": somebody stands behind an empty rank");
            ended = id == 0;
        }
        End(DraftFileEnd);
    }

private:
    void Note(const std::string& words)
    {
        ++verified.Count;
        if (verified.Findings.size() < MostFindings)
            verified.Findings.push_back(words);
    }
    TellOutOfRange TellOf(const std::string& record)
    {
        return [this, record](const std::string& words) { Note(record + ", " + words); };
    }

    void Magic(std::string_view text)
    {
        if (!slots.ReadMagic(text))
            Note("The start magic is wrong");
    }
    void End(std::string_view text)
    {
        if (isCut)
            return;
        if (!slots.ReadMagic(text))
            Note("The end magic is wrong");
        else if (!slots.IsAtEnd())
            Note("It goes on behind its end");
    }
    void Head(std::string_view start)
    {
        Magic(start);
        dravik::Text<5> code;
        Int16 team;
        if (!Read(code, "the league's code") || !Read(team, "the number of the team"))
            return;
        verified.LeagueCode = code.Raw();
        verified.Team = static_cast<int>(team);
        if (!TeamTable::Has(team))
            Note("The team's number: " + std::to_string(team) + " is not from 1 to 100");
    }

    template <class Record>
    bool Read(Record& record, const std::string& name)
    {
        if (isCut)
            return false;
        if (slots.Read(record))
            return true;
        isCut = true;
        Note("It ends in front of " + name);
        return false;
    }
    template <class Record, class Check>
    void ReadTable(long long last, const std::string& name, const Check& check)
    {
        // A record is named when something is wrong with it.
        long long slot = 0;
        const TellOutOfRange tell = [&](const std::string& words) {
            Note(name + " " + std::to_string(slot) + ", " + words);
        };
        Record record;
        for (slot = 1; slot <= last && !isCut; ++slot) {
            if (slots.Read(record)) {
                check(record, slot, tell);
                continue;
            }
            isCut = true;
            Note("It ends in front of " + name + " " + std::to_string(slot));
        }
    }

    SlotReader& slots;
    VerifiedFile& verified;
    bool isCut = false;
};

// The first bytes of what a file holds.
std::string FirstBytes(const SlotFiles& files, const std::string& path)
{
    std::array<char, 64> first{};
    const auto read = [&](SlotReader& slots) {
        first = {};
        slots.Read(first);
    };
    ReadSlotFile(files, path, read);
    return {first.data(), first.size()};
}

SystemFile KindIn(const SlotFiles& files, const std::string& path)
{
    const std::string first = FirstBytes(files, path);
    if (files.Plain && first.substr(2, JournalStart.size()) == JournalStart)
        return SystemFile::Journal;
    const auto* kind = std::find_if(std::begin(Kinds), std::end(Kinds), [&](const KindOfFile& one) {
        return first.substr(2, one.Start.size()) == one.Start;
    });
    return kind == std::end(Kinds) ? SystemFile::Unknown : kind->Kind;
}

long long LengthField(Disk& disk, const std::string& path)
{
    Int32 length{};
    std::array<unsigned char, sizeof length> bytes{};
    const auto file = disk.OpenFile(path);
    if (file->Read(bytes.data(), bytes.size()) == bytes.size())
        std::memcpy(&length, bytes.data(), sizeof length);
    return length;
}

} // namespace

bool IsPlainFile(Disk& disk, const std::string& path)
{
    constexpr std::string_view word = "DRVK";
    std::array<char, sizeof(Int16) + word.size()> head{};
    const auto file = disk.OpenFile(path);
    std::size_t length = 0;
    for (std::size_t came = 1; came > 0 && length < head.size(); length += came)
        came = file->Read(head.data() + length, head.size() - length);
    return std::string_view(head.data() + sizeof(Int16), word.size()) == word;
}

SystemFile SystemFileOf(Disk& disk, const std::string& path)
{
    MuteVoice mute;
    return KindIn({.Disk = disk, .Says = mute, .Plain = IsPlainFile(disk, path)}, path);
}

std::string_view NameOf(SystemFile kind)
{
    static constexpr std::string_view names[] = {
        "no file of the system", "client file", "lines file", "offer file", "draft file", "journal"};
    return names[static_cast<std::size_t>(kind)];
}

VerifiedFile VerifyFile(Disk& disk, const std::string& path)
{
    VerifiedFile verified;
    MuteVoice mute;
    verified.IsPlain = IsPlainFile(disk, path);
    const SlotFiles files{.Disk = disk, .Says = mute, .Plain = verified.IsPlain};
    const auto note = [&](const std::string& words) {
        ++verified.Count;
        verified.Findings.push_back(words);
    };
    verified.Kind = KindIn(files, path);
    if (verified.Kind == SystemFile::Journal)
        return verified;
    const auto* kind = std::find_if(std::begin(Kinds), std::end(Kinds),
                                    [&](const KindOfFile& one) { return one.Kind == verified.Kind; });
    if (kind == std::end(Kinds)) {
        note("It is no file of the system, or nothing of it is left");
        return verified;
    }
    const VerifiedFile before = verified;
    const auto read = [&](SlotReader& slots) {
        Verifier verifier(slots, verified);
        switch (kind->Kind) {
        case SystemFile::Client:
            return verifier.ReadClient();
        case SystemFile::Lines:
            return verifier.ReadLines();
        case SystemFile::Offers:
            return verifier.ReadOffers();
        default:
            return verifier.ReadDraft();
        }
    };
    const SlotFileRead outcome = ReadSlotFile(files, path, read, kind->Slot, [&] { verified = before; });
    if (outcome == SlotFileRead::Damaged)
        note("Its stream is damaged: it does not come to its end, or does not fit its checksum");
    else if (outcome == SlotFileRead::NotDecompressed)
        note("Its stream cannot be read");
    const long long length = verified.IsPlain ? disk.FileLength(path) : LengthField(disk, path);
    if (!FitsLength(*kind, length))
        note((verified.IsPlain ? "Its length" : "The length that its wrapper tells") + std::string(" is wrong: ") +
             std::to_string(length) + " bytes");
    return verified;
}

} // namespace dravik
