#pragma once

#include "files/ByteStream.h"
#include "league/Team.h"
#include "machine/Voice.h"

#include <functional>
#include <string_view>
#include <type_traits>

// Slot files: one record a slot, each from its slot's first byte on. A magic record is a text with its length in 2 bytes
// before it.
namespace dravik {

// The slot length of the client file and the lines file: that of the longest record.
inline constexpr std::size_t SlotLength = sizeof(Team);

// The length of a magic record with `text`.
constexpr std::size_t MagicLength(std::string_view text) { return sizeof(Int16) + text.size(); }

// Reads slot after slot. What lies behind a record in its slot is passed over, and what lies behind the end of the file
// reads as zeros.
class SlotReader {
public:
    explicit SlotReader(ByteSource& bytes, std::size_t slot = SlotLength) : source(bytes), slotLength(slot) {}

    // Reads the next slot's record whole. False when the file ends before the record does.
    template <class Record>
    bool Read(Record& record)
    {
        static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);
        return ReadBytes(reinterpret_cast<unsigned char*>(&record), sizeof record);
    }

    // Whether the next slot holds exactly the magic record with `text`.
    bool ReadMagic(std::string_view text);

    // Whether the file has come to its end, but for what lies behind the last record in its slot.
    [[nodiscard]] bool IsAtEnd();

private:
    bool ReadBytes(unsigned char* to, std::size_t size);
    bool Refill();
    void Skip();

    ByteSource& source;
    std::size_t slotLength;
    std::size_t behind = 0; // bytes of the last slot still to be passed over
    Bytes piece;
};

// Writes slot after slot. The rest of a slot is zeros; the last slot ends with its record.
class SlotWriter {
public:
    explicit SlotWriter(ByteSink& bytes, std::size_t slot = SlotLength) : sink(bytes), slotLength(slot) {}

    template <class Record>
    void Write(const Record& record)
    {
        static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);
        WriteBytes({reinterpret_cast<const unsigned char*>(&record), sizeof record});
    }

    void WriteMagic(std::string_view text);

private:
    void WriteBytes(Bytes record);

    ByteSink& sink;
    std::size_t slotLength;
    std::size_t behind = 0; // zeros that the last slot still lacks
};

// The length of a slot file of `records` records (at least 1) of which the last takes `lastLength` bytes.
constexpr std::int64_t SlotFileLength(std::int64_t records, std::size_t lastLength, std::size_t slot = SlotLength)
{
    return (records - 1) * static_cast<std::int64_t>(slot) + static_cast<std::int64_t>(lastLength);
}

// What became of the reading of a slot file. `Damaged` is a wrapped one whose stream does not fit its own checksum, or does not
// come to its end: something came out of it, but not what went in.
enum class SlotFileRead { NotDecompressed, Damaged, Whole };

// Where files of the system are read and written, who tells of a wrapper that cannot be, and whether they are plain slot
// files instead of wrapped ones.
struct SlotFiles {
    dravik::Disk& Disk;
    Voice& Says;
    bool Plain = false;
};

// Opens the slot file `path` and has `read` read it; plain or through the wrapper. `read` may be
// called twice; `takeBack` is called after a reading that counts for nothing, and before anything is told of a failure.
// `NotDecompressed` when a wrapped file cannot be read or gives not a single byte, which is told with the ending of the
// decompression. Failures on a plain file, which is `Whole` whatever it holds, are thrown.
SlotFileRead ReadSlotFile(
    const SlotFiles& files, const std::string& path, const std::function<void(SlotReader&)>& read,
    std::size_t slot = SlotLength, const std::function<void()>& takeBack = [] {});

// Has `write` write a slot file of `length` bytes, which then appears as `target`, whole; plain or wrapped.
// False after a failure with a wrapped file, which is told with the ending of the compression;
// failures with a plain one are thrown. Either leaves `target` as it was. Until it is whole the file is called `work`, as
// in WholeFile.
bool WriteSlotFile(const SlotFiles& files, const std::string& target, std::int64_t length,
                   const std::function<void(SlotWriter&)>& write, std::size_t slot = SlotLength,
                   const std::string& work = {});

} // namespace dravik
