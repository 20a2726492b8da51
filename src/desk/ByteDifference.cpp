#include "desk/ByteDifference.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace dravik {

namespace {

// A table on the desk.
struct Place {
    std::size_t Size;
    unsigned char* (*First)(const DeskContents& desk);
};

template <class Table>
unsigned char* FirstByte(Table& table)
{
    return reinterpret_cast<unsigned char*>(&table);
}
template <class Table, Table Tables::*Part>
unsigned char* InLeague(const DeskContents& desk)
{
    return FirstByte(desk.League.*Part);
}
template <class Table, Table Market::*Part>
unsigned char* OnMarket(const DeskContents& desk)
{
    return desk.Market != nullptr ? FirstByte(desk.Market->*Part) : nullptr;
}

// By their numbers, from 1.
constexpr Place Places[] = {
    Place{sizeof(League), InLeague<League, &Tables::LeagueData>},
    Place{sizeof(TeamTable), InLeague<TeamTable, &Tables::Teams>},
    Place{sizeof(PlayerTable), InLeague<PlayerTable, &Tables::Players>},
    Place{sizeof(GoalieTable), InLeague<GoalieTable, &Tables::Goalies>},
    Place{sizeof(CoachTable), InLeague<CoachTable, &Tables::Coaches>},
    Place{sizeof(ProspectTable), InLeague<ProspectTable, &Tables::Prospects>},
    Place{sizeof(ScheduleTable), InLeague<ScheduleTable, &Tables::GameSchedule>},
    Place{sizeof(PlayerChangeTable), InLeague<PlayerChangeTable, &Tables::RosterChanges>},
    Place{sizeof(GoalieChangeTable), InLeague<GoalieChangeTable, &Tables::RosterChangesGoalie>},
    Place{sizeof(OfferTable), OnMarket<OfferTable, &Market::Offers>},
    Place{sizeof(DraftRanking), OnMarket<DraftRanking, &Market::Ranking>},
};

const Place* PlaceOf(DeskTable table)
{
    const auto number = static_cast<std::size_t>(table);
    return number >= 1 && number <= std::size(Places) ? &Places[number - 1] : nullptr;
}

constexpr unsigned Beyond = 15; // what half a byte says of a number that is this or more
constexpr unsigned SevenBits = 127;
constexpr unsigned char Repeat = 16; // a run of no length would have this head

bool IsEarlier(const DifferingRun& left, const DifferingRun& right)
{
    return left.Table != right.Table ? left.Table < right.Table : left.Offset < right.Offset;
}

void DropFront(std::optional<DifferingRun>& run, std::size_t count, RunReader& from)
{
    run->Offset += count;
    run->Before = run->Before.subspan(count);
    run->After = run->After.subspan(count);
    if (run->Before.empty())
        run = from.Next();
}

// How much of `run` lies in front of `other`, which begins behind its beginning.
std::size_t LengthBefore(const DifferingRun& run, const std::optional<DifferingRun>& other)
{
    const std::size_t length = run.Before.size();
    return other && other->Table == run.Table ? std::min(length, other->Offset - run.Offset) : length;
}

Bytes At(const DifferingRun& run, DifferenceEnd which)
{
    return which == DifferenceEnd::Before ? run.Before : run.After;
}

} // namespace

std::size_t SizeOf(DeskTable table)
{
    const Place* place = PlaceOf(table);
    return place != nullptr ? place->Size : 0;
}

unsigned char* FirstByteOf(const DeskContents& desk, DeskTable table)
{
    const Place* place = PlaceOf(table);
    return place != nullptr ? place->First(desk) : nullptr;
}

// ---- Reading -------------------------------------------------------------------------------------------------------

std::optional<ByteDifference> ByteDifference::FromStored(Bytes stored)
{
    RunReader reader(stored);
    DifferenceWriter writer;
    while (const auto run = reader.Next())
        writer.Add(run->Table, run->Offset, run->Before, run->After);
    // There is one form only: whatever else could be read is none.
    ByteDifference difference = writer.Finish();
    if (reader.IsBroken() ||
        !std::equal(stored.begin(), stored.end(), difference.bytes.begin(), difference.bytes.end()))
        return std::nullopt;
    return difference;
}

std::optional<DifferingRun> RunReader::Break()
{
    broken = true;
    rest = {};
    table = NoTable;
    return std::nullopt;
}

std::optional<unsigned char> RunReader::Byte()
{
    if (rest.empty())
        return std::nullopt;
    const unsigned char byte = rest.front();
    rest = rest.subspan(1);
    return byte;
}

std::optional<std::size_t> RunReader::Number()
{
    std::size_t number = 0;
    constexpr unsigned most = 28; // bits, which no table needs
    for (unsigned shift = 0; shift < most; shift += 7) {
        const auto byte = Byte();
        if (!byte)
            break;
        number |= static_cast<std::size_t>(*byte & SevenBits) << shift;
        if (*byte <= SevenBits)
            return number;
    }
    return std::nullopt;
}

std::optional<std::size_t> RunReader::NumberBeyond(unsigned half)
{
    if (half < Beyond)
        return half;
    const auto number = Number();
    return number ? std::optional(*number + Beyond) : std::nullopt;
}

// The run that lies and is as long as `skipped` and `length` say, for which there are bytes and a place in the table.
DifferingRun RunReader::TakeRun()
{
    const DifferingRun run{
        .Table = table, .Offset = end + skipped, .Before = rest.first(length), .After = rest.subspan(length, length)};
    rest = rest.subspan(2 * length);
    end = run.Offset + length;
    return run;
}

std::optional<DifferingRun> RunReader::Next()
{
    if (repeats > 0) {
        --repeats;
        return TakeRun();
    }
    for (;;) {
        const auto byte = Byte();
        if (!byte)
            return table == NoTable ? std::nullopt : Break();
        if (table == NoTable) {
            table = static_cast<DeskTable>(*byte);
            if (table <= last || SizeOf(table) == 0)
                return Break();
            last = table;
            end = 0;
            length = 0;
        } else if (*byte == 0) {
            table = NoTable;
        } else {
            std::size_t runs = 1;
            if (*byte == Repeat) {
                runs = Number().value_or(0);
            } else {
                skipped = NumberBeyond(*byte >> 4U).value_or(SizeOf(table));
                length = NumberBeyond(*byte & Beyond).value_or(0);
            }
            if (runs == 0 || length == 0 || runs > rest.size() / 2 / length ||
                runs > (SizeOf(table) - end) / (skipped + length))
                return Break();
            repeats = runs - 1;
            return TakeRun();
        }
    }
}

// ---- Writing -------------------------------------------------------------------------------------------------------

void DifferenceWriter::PutNumber(std::size_t number)
{
    for (; number > SevenBits; number >>= 7U)
        bytes.push_back(static_cast<unsigned char>((number & SevenBits) | (SevenBits + 1)));
    bytes.push_back(static_cast<unsigned char>(number));
}

void DifferenceWriter::PutBeyond(std::size_t number)
{
    if (number >= Beyond)
        PutNumber(number - Beyond);
}

void DifferenceWriter::PutHead()
{
    const auto half = [](std::size_t number) { return static_cast<unsigned>(std::min<std::size_t>(number, Beyond)); };
    bytes.push_back(static_cast<unsigned char>(half(skipped) << 4U | half(length)));
    PutBeyond(skipped);
    PutBeyond(length);
}

void DifferenceWriter::EndRun()
{
    if (beforeRun.empty())
        return;
    if (count == 0 || skipped != start - end || length != beforeRun.size()) {
        EndAlike();
        skipped = start - end;
        length = beforeRun.size();
    }
    ++count;
    alike.insert(alike.end(), beforeRun.begin(), beforeRun.end());
    alike.insert(alike.end(), afterRun.begin(), afterRun.end());
    end = start + length;
    beforeRun.clear();
    afterRun.clear();
}

void DifferenceWriter::EndAlike()
{
    if (count == 0)
        return;
    const auto second = alike.begin() + static_cast<std::ptrdiff_t>(2 * length);
    PutHead();
    bytes.insert(bytes.end(), alike.begin(), second);
    if (count == 2) {
        PutHead();
    } else if (count > 2) {
        bytes.push_back(Repeat);
        PutNumber(count - 1);
    }
    bytes.insert(bytes.end(), second, alike.end());
    count = 0;
    alike.clear();
}

void DifferenceWriter::EndTable()
{
    EndRun();
    EndAlike();
    if (table != NoTable)
        bytes.push_back(0);
    table = NoTable;
}

void DifferenceWriter::Add(DeskTable into, std::size_t offset, Bytes before, Bytes after)
{
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == after[i])
            continue;
        if (table != into) {
            EndTable();
            table = into;
            end = 0;
            bytes.push_back(static_cast<unsigned char>(into));
        }
        if (start + beforeRun.size() != offset + i)
            EndRun();
        if (beforeRun.empty())
            start = offset + i;
        beforeRun.push_back(before[i]);
        afterRun.push_back(after[i]);
    }
}

ByteDifference DifferenceWriter::Finish()
{
    EndTable();
    ByteDifference made;
    made.bytes.assign(bytes.begin(), bytes.end());
    bytes.clear();
    return made;
}

void AddDifference(DifferenceWriter& to, DeskTable table, const unsigned char* before, const unsigned char* after,
                   std::size_t size)
{
    constexpr std::size_t page = 4096;
    constexpr std::size_t line = 64;
    const auto isEqual = [&](std::size_t at, std::size_t length) {
        return std::memcmp(before + at, after + at, length) == 0;
    };
    for (std::size_t at = 0; at < size; at += page) {
        const std::size_t pageEnd = std::min(at + page, size);
        if (isEqual(at, pageEnd - at))
            continue;
        for (std::size_t part = at; part < pageEnd; part += line) {
            const std::size_t length = std::min(line, pageEnd - part);
            if (!isEqual(part, length))
                to.Add(table, part, {before + part, length}, {after + part, length});
        }
    }
}

// ---- What is made of differences -------------------------------------------------------------------------------------

ByteDifference Then(const ByteDifference& first, const ByteDifference& second)
{
    RunReader fromFirst(first.Stored());
    RunReader fromSecond(second.Stored());
    DifferenceWriter writer;
    auto one = fromFirst.Next();
    auto other = fromSecond.Next();
    const auto take = [&](std::optional<DifferingRun>& run, RunReader& from, std::size_t length) {
        writer.Add(run->Table, run->Offset, run->Before.first(length), run->After.first(length));
        DropFront(run, length, from);
    };
    while (one || other) {
        if (!other || (one && IsEarlier(*one, *other))) {
            take(one, fromFirst, LengthBefore(*one, other));
        } else if (!one || IsEarlier(*other, *one)) {
            take(other, fromSecond, LengthBefore(*other, one));
        } else {
            const std::size_t length = std::min(one->Before.size(), other->Before.size());
            writer.Add(one->Table, one->Offset, one->Before.first(length), other->After.first(length));
            DropFront(one, length, fromFirst);
            DropFront(other, length, fromSecond);
        }
    }
    return writer.Finish();
}

ByteDifference Reversed(const ByteDifference& difference)
{
    DifferenceWriter writer;
    RunReader reader(difference.Stored());
    while (const auto run = reader.Next())
        writer.Add(run->Table, run->Offset, run->After, run->Before);
    return writer.Finish();
}

ByteDifference Without(const ByteDifference& difference, const RecordBytes& bytes)
{
    DifferenceWriter writer;
    RunReader reader(difference.Stored());
    const std::size_t behind = bytes.First + bytes.Length;
    for (auto run = reader.Next(); run;) {
        const std::size_t inRecord = run->Offset % bytes.Record;
        const bool isElsewhere = run->Table != bytes.Table;
        const bool isInside = !isElsewhere && inRecord >= bytes.First && inRecord < behind;
        std::size_t length = run->Before.size();
        if (isInside)
            length = std::min(length, behind - inRecord);
        else if (!isElsewhere)
            length = std::min(length, (inRecord < bytes.First ? 0 : bytes.Record) + bytes.First - inRecord);
        if (!isInside)
            writer.Add(run->Table, run->Offset, run->Before.first(length), run->After.first(length));
        DropFront(run, length, reader);
    }
    return writer.Finish();
}

ByteDifference Within(const ByteDifference& difference, DeskTable first, DeskTable last)
{
    DifferenceWriter writer;
    RunReader reader(difference.Stored());
    while (const auto run = reader.Next())
        if (run->Table >= first && run->Table <= last)
            writer.Add(run->Table, run->Offset, run->Before, run->After);
    return writer.Finish();
}

bool IsAt(const DeskContents& desk, const ByteDifference& difference, DifferenceEnd which)
{
    RunReader reader(difference.Stored());
    while (const auto run = reader.Next()) {
        const unsigned char* table = FirstByteOf(desk, run->Table);
        const Bytes bytes = At(*run, which);
        if (table == nullptr || std::memcmp(table + run->Offset, bytes.data(), bytes.size()) != 0)
            return false;
    }
    return true;
}

void Put(const DeskContents& desk, const ByteDifference& difference, DifferenceEnd which)
{
    RunReader reader(difference.Stored());
    while (const auto run = reader.Next()) {
        const Bytes bytes = At(*run, which);
        if (unsigned char* table = FirstByteOf(desk, run->Table))
            std::copy(bytes.begin(), bytes.end(), table + run->Offset);
    }
}

} // namespace dravik
