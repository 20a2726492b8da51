#include "files/SlotFile.h"

#include "files/ZlibWrapper.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace dravik {

namespace {

constexpr std::array<unsigned char, 4096> Zeros{};

std::vector<unsigned char> MagicRecord(std::string_view text)
{
    const Int16 length(static_cast<long long>(text.size()));
    std::vector<unsigned char> record(MagicLength(text));
    std::memcpy(record.data(), &length, sizeof length);
    std::copy(text.begin(), text.end(), record.begin() + sizeof length);
    return record;
}

} // namespace

bool SlotReader::ReadMagic(std::string_view text)
{
    const auto wanted = MagicRecord(text);
    std::vector<unsigned char> found(wanted.size());
    return ReadBytes(found.data(), found.size()) && found == wanted;
}

bool SlotReader::IsAtEnd()
{
    Skip();
    return !Refill();
}

bool SlotReader::ReadBytes(unsigned char* to, std::size_t size)
{
    Skip();
    std::size_t missing = size;
    while (missing > 0 && Refill()) {
        const std::size_t count = std::min(missing, piece.size());
        std::memcpy(to, piece.data(), count);
        piece = piece.subspan(count);
        to += count;
        missing -= count;
    }
    std::memset(to, 0, missing);
    behind = slotLength - size;
    return missing == 0;
}

// Whether there is a byte left to read.
bool SlotReader::Refill()
{
    if (piece.empty())
        piece = source.Next();
    return !piece.empty();
}

void SlotReader::Skip()
{
    while (behind > 0 && Refill()) {
        const std::size_t count = std::min(behind, piece.size());
        piece = piece.subspan(count);
        behind -= count;
    }
}

void SlotWriter::WriteMagic(std::string_view text) { WriteBytes(MagicRecord(text)); }

void SlotWriter::WriteBytes(Bytes record)
{
    while (behind > 0) {
        const std::size_t count = std::min(behind, Zeros.size());
        sink.Write(Bytes(Zeros).first(count));
        behind -= count;
    }
    sink.Write(record);
    behind = slotLength - record.size();
}

SlotFileRead ReadSlotFile(const SlotFiles& files, const std::string& path, const std::function<void(SlotReader&)>& read,
                          std::size_t slot, const std::function<void()>& takeBack)
{
    const auto readFrom = [&](ByteSource& bytes) {
        SlotReader slots(bytes, slot);
        read(slots);
    };
    if (files.Plain) {
        FileSource file(files.Disk, path);
        try {
            readFrom(file);
        } catch (...) {
            takeBack();
            throw;
        }
        return SlotFileRead::Whole;
    }
    bool whole = false;
    const bool done = Decompressing(files.Says, [&] {
        FileSource file(files.Disk, path);
        whole = ReadWrapper(file, readFrom, takeBack);
    });
    return !done ? SlotFileRead::NotDecompressed : whole ? SlotFileRead::Whole : SlotFileRead::Damaged;
}

bool WriteSlotFile(const SlotFiles& files, const std::string& target, std::int64_t length,
                   const std::function<void(SlotWriter&)>& write, std::size_t slot, const std::string& work)
{
    const auto writeTo = [&](ByteSink& bytes) {
        SlotWriter slots(bytes, slot);
        write(slots);
    };
    if (files.Plain) {
        WholeFile file(files.Disk, target, work);
        writeTo(file);
        file.Commit();
        return true;
    }
    return Compressing(files.Says, [&] {
        WholeFile file(files.Disk, target, work);
        DeflateStream bytes(file, length);
        writeTo(bytes);
        bytes.Finish();
        file.Commit();
    });
}

} // namespace dravik
