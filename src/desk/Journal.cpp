#include "desk/Journal.h"

#include <cstring>
#include <vector>

namespace dravik {

namespace {

constexpr std::string_view JournalMagic = "DRVKJNFV1S";

struct HeadRecord {
    Int16 MagicLength;
    Text<JournalMagic.size()> Magic;
    std::array<unsigned char, SealSize> Layout;
    Text<5> LeagueCode;
    JournalDigest Beginning;
    Float64 FileDate;
    Float64 Begun;
};
static_assert(sizeof(HeadRecord) == 57 && alignof(HeadRecord) == 1);

constexpr RecordBytes Passwords = {.Table = DeskTable::Teams,
                                   .Record = sizeof(Team),
                                   .First = offsetof(Team, Password),
                                   .Length = sizeof(Team::Password)};

void AddNumber(std::string& to, std::size_t number)
{
    const Int32 stored = static_cast<long long>(number);
    to.append(reinterpret_cast<const char*>(&stored), sizeof stored);
}

// A number for the tables and records as this program knows them: a step is bytes at places, and means nothing elsewhere.
Seal LayoutOfTables()
{
    std::string numbers;
    for (auto table = DeskTable::League; SizeOf(table) != 0;
         table = static_cast<DeskTable>(static_cast<unsigned char>(table) + 1))
        AddNumber(numbers, SizeOf(table));
    for (const std::size_t number : {Passwords.Record, Passwords.First, Passwords.Length})
        AddNumber(numbers, number);
    return SealOver(0, numbers);
}

} // namespace

// Each of its steps maps different numbers to different ones, so that no single byte can change unnoticed.
Seal SealOver(Seal before, std::string_view bytes)
{
    constexpr Seal start = 0xCBF29CE484222325U;
    constexpr Seal factor = 0x100000001B3U;
    Seal seal = start;
    const auto take = [&](unsigned char byte) { seal = (seal ^ byte) * factor; };
    for (const char byte : WriteSeal(before))
        take(static_cast<unsigned char>(byte));
    for (const char byte : bytes)
        take(static_cast<unsigned char>(byte));
    return seal;
}

std::unique_ptr<Tables> AsFreshlyOpened(const Tables& league)
{
    auto fresh = Copy(league);
    MarkRosterChangesUntouched(*fresh);
    return fresh;
}

std::string BytesOfBeginning(const Tables& fresh)
{
    std::string bytes(reinterpret_cast<const char*>(&fresh), sizeof fresh);
    const std::size_t teams = offsetof(Tables, Teams);
    for (std::size_t at = teams; at < teams + sizeof(TeamTable); at += Passwords.Record)
        bytes.replace(at + Passwords.First, Passwords.Length, Passwords.Length, '\0');
    return bytes;
}

ByteDifference WithoutPasswords(const ByteDifference& difference) { return Without(difference, Passwords); }

std::string WriteSeal(Seal seal)
{
    std::string bytes;
    for (std::size_t i = 0; i < SealSize; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(seal >> (8 * i)));
    return bytes;
}

Seal ReadSeal(std::string_view bytes)
{
    Seal seal = 0;
    for (std::size_t i = SealSize; i-- > 0;)
        seal = seal << 8U | static_cast<unsigned char>(bytes[i]);
    return seal;
}

std::size_t JournalHeadSize() { return sizeof(HeadRecord) + SealSize; }

std::string WriteJournalHead(const JournalHead& head)
{
    HeadRecord record{.MagicLength = JournalMagic.size(),
                      .Magic = JournalMagic,
                      .Layout = {},
                      .LeagueCode = head.LeagueCode,
                      .Beginning = head.Beginning,
                      .FileDate = head.FileDate,
                      .Begun = head.Begun};
    const std::string layout = WriteSeal(LayoutOfTables());
    std::memcpy(record.Layout.data(), layout.data(), SealSize);
    std::string bytes(reinterpret_cast<const char*>(&record), sizeof record);
    return bytes + WriteSeal(SealOver(0, bytes));
}

JournalHeadRead ReadJournalHead(std::string_view bytes)
{
    const auto refused = [](const char* why) { return JournalHeadRead{.Head = {}, .Refused = why}; };
    HeadRecord record;
    if (bytes.size() < sizeof record)
        return refused("It is no journal.");
    std::memcpy(&record, bytes.data(), sizeof record);
    if (record.MagicLength != static_cast<long long>(JournalMagic.size()) || record.Magic.Raw() != JournalMagic)
        return refused("It is no journal.");
    const Seal seal = SealOver(0, bytes.substr(0, sizeof record));
    if (bytes.size() < JournalHeadSize() || ReadSeal(bytes.substr(sizeof record)) != seal)
        return refused("Its beginning is damaged.");
    if (WriteSeal(LayoutOfTables()) != std::string_view(bytes).substr(offsetof(HeadRecord, Layout), SealSize))
        return refused("It was written by a program that keeps its tables in another way.");
    return {.Head = JournalHead{.LeagueCode = record.LeagueCode,
                                .Beginning = record.Beginning,
                                .FileDate = record.FileDate,
                                .Begun = record.Begun},
            .Sealed = seal,
            .Refused = {}};
}

} // namespace dravik
