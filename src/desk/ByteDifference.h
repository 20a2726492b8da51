#pragma once

#include "desk/Market.h"
#include "files/ByteStream.h"
#include "league/Tables.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace dravik {

// What a manager's commands change: his league, and his market once he has one.
struct DeskContents {
    Tables& League;
    dravik::Market* Market = nullptr;
};

// The tables of both, by the numbers that they have in a stored difference.
enum class DeskTable : unsigned char {
    League = 1,
    Teams,
    Players,
    Goalies,
    Coaches,
    Prospects,
    Schedule,
    PlayerChanges,
    GoalieChanges,
    Offers,
    Ranking
};
inline constexpr DeskTable NoTable{};
// Those of the league, in the order in which they lie in it.
inline constexpr DeskTable LeagueTables[] = {DeskTable::League,   DeskTable::Teams,         DeskTable::Players,
                                             DeskTable::Goalies,  DeskTable::Coaches,       DeskTable::Prospects,
                                             DeskTable::Schedule, DeskTable::PlayerChanges, DeskTable::GoalieChanges};

// How many bytes a table has; 0 for a number that no table has.
std::size_t SizeOf(DeskTable table);
// The first byte of a table of the desk; null for a table of a market that is not there.
unsigned char* FirstByteOf(const DeskContents& desk, DeskTable table);

// Bytes of a table, one behind the other, each of which differs.
struct DifferingRun {
    DeskTable Table{};
    std::size_t Offset = 0; // from the first byte of the table
    Bytes Before;
    Bytes After;
};

// The bytes in which two states of a desk differ, and nothing else: as values, and in the one form in which they are kept and
// stored. In ascending order, for each table with a difference: the table's number, its runs, and a 0. A run is one byte whose
// upper half is how many equal bytes lie between it and the run before (0 to 14, or 15 for 15 and more) and whose lower half is
// its length (1 to 14, or 15 likewise); behind it what is beyond either 15, seven bits a byte, the lowest first, the eighth
// set when another byte follows; then the bytes before, and the bytes after. Where two or more runs follow that lie and are as
// long as the one before, they are a 16, how many they are, in sevens of bits too, and the bytes before and after of each.
// Without a difference it is empty.
class ByteDifference {
public:
    // The difference that was stored so; none when no difference is stored by these bytes.
    static std::optional<ByteDifference> FromStored(Bytes stored);

    [[nodiscard]] bool IsEmpty() const { return bytes.empty(); }
    [[nodiscard]] Bytes Stored() const { return bytes; }

private:
    friend class DifferenceWriter;
    std::vector<unsigned char> bytes;
};

// Gives the runs of a stored difference in their order. It ends at bytes that are none, and says so.
class RunReader {
public:
    explicit RunReader(Bytes stored) : rest(stored) {}

    // The next run, whose bytes are those of what is read; none behind the last.
    std::optional<DifferingRun> Next();
    // Whether it ended before the end.
    [[nodiscard]] bool IsBroken() const { return broken; }

private:
    std::optional<DifferingRun> Break();
    std::optional<unsigned char> Byte();
    std::optional<std::size_t> Number();
    std::optional<std::size_t> NumberBeyond(unsigned half);
    DifferingRun TakeRun();

    Bytes rest;
    DeskTable table = NoTable;
    DeskTable last = NoTable;
    std::size_t end = 0;     // of the run before, in its table
    std::size_t skipped = 0; // before that run
    std::size_t length = 0;  // of it; 0 in front of the first
    std::size_t repeats = 0; // runs like it that are still to come
    bool broken = false;
};

// Makes a difference of what it is given in ascending order of tables and offsets. Without room it fails with std::bad_alloc.
class DifferenceWriter {
public:
    // Takes whichever of these bytes differ; there are as many of one as of the other.
    void Add(DeskTable table, std::size_t offset, Bytes before, Bytes after);
    // The difference, in no more room than it needs.
    ByteDifference Finish();

private:
    void EndRun();
    void EndAlike();
    void EndTable();
    void PutHead();
    void PutNumber(std::size_t number);
    void PutBeyond(std::size_t number);

    std::vector<unsigned char> bytes;
    DeskTable table = NoTable;
    std::size_t end = 0;   // of the last run that was gathered
    std::size_t start = 0; // of the one that is being gathered
    std::vector<unsigned char> beforeRun;
    std::vector<unsigned char> afterRun;
    // Runs one behind the other that lie and are as long as each other, and are not written yet.
    std::size_t skipped = 0;
    std::size_t length = 0;
    std::size_t count = 0;
    std::vector<unsigned char> alike;
};

// Adds whatever differs between two states of the bytes of one table. Equal ones cost a comparison of memory.
void AddDifference(DifferenceWriter& to, DeskTable table, const unsigned char* before, const unsigned char* after,
                   std::size_t size);

// The difference that comes of one and then another: what both take back of each other is gone.
ByteDifference Then(const ByteDifference& first, const ByteDifference& second);

// The way back over a difference.
ByteDifference Reversed(const ByteDifference& difference);

// Bytes that come again in every record of a table.
struct RecordBytes {
    DeskTable Table{};
    std::size_t Record = 1; // how long a record is
    std::size_t First = 0;  // where in it they begin
    std::size_t Length = 0;
};
// What of a difference lies outside of them.
ByteDifference Without(const ByteDifference& difference, const RecordBytes& bytes);
// What of it lies in the tables from `first` to `last`.
ByteDifference Within(const ByteDifference& difference, DeskTable first, DeskTable last);

// The state of a desk before a difference, or the one behind it.
enum class DifferenceEnd { Before, After };

// Whether every byte of a difference stands on the desk as at that end of it.
bool IsAt(const DeskContents& desk, const ByteDifference& difference, DifferenceEnd which);
// Puts every byte of a difference onto the desk as at that end. What lies in a market that is not there is left out.
void Put(const DeskContents& desk, const ByteDifference& difference, DifferenceEnd which);

} // namespace dravik
