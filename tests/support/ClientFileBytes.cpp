#include "support/ClientFileBytes.h"

#include "session/Session.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <zlib.h>

namespace dravik {

namespace {

// Some disks take their time over a file that is emptied and written anew, and none over a new one.
std::ofstream NewFile(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    return std::ofstream(path, std::ios::binary);
}

// What was written may be refused as late as the file is closed, by a disk that is full.
void CloseWhole(std::ofstream& file, const std::string& path)
{
    file.close();
    if (!file)
        throw std::runtime_error("cannot write " + path);
}

class Slots {
public:
    explicit Slots(std::size_t count) : bytes(count * client_file::Slot) {}

    template <class Record>
    void Put(const Record& record)
    {
        std::memcpy(bytes.data() + client_file::Offset(next++), &record, sizeof record);
        end = client_file::Offset(next - 1) + sizeof record;
    }

    template <class Table>
    void PutTable(const Table& table)
    {
        for (long long i = 1; i <= Table::last; ++i)
            Put(table[i]);
    }

    void PutMagic(const std::string& text)
    {
        unsigned char* to = bytes.data() + client_file::Offset(next++);
        to[0] = static_cast<unsigned char>(text.size());
        std::copy(text.begin(), text.end(), to + 2);
        end = client_file::Offset(next - 1) + 2 + text.size();
    }

    ByteVector Take()
    {
        bytes.resize(end);
        return std::move(bytes);
    }

private:
    ByteVector bytes;
    std::size_t next = 1;
    std::size_t end = 0;
};

bool AllZero(const unsigned char* at, std::size_t size)
{
    return size == 0 || (at[0] == 0 && std::memcmp(at, at + 1, size - 1) == 0);
}

} // namespace

ByteVector ClientSlots()
{
    Slots slots(client_file::SlotCount);
    slots.PutMagic("DRVK Client Files Version 1.12 - Start");
    slots.Put(LeagueData);
    slots.PutTable(Prospects);
    slots.PutTable(Teams);
    slots.PutTable(Players);
    slots.PutTable(Goalies);
    slots.PutTable(Coaches);
    slots.PutTable(GameSchedule);
    slots.PutMagic("DRVK Client Files Version 1.12 - End");
    return slots.Take();
}

ByteVector LinesSlots(int team)
{
    Slots slots(11005);
    slots.PutMagic("DRVK Lineups Files Version 1.01 - Start");
    slots.Put(LeagueData.LeagueCode);
    slots.Put(Int16(team));
    slots.Put(Teams[team]);
    slots.PutTable(RosterChanges);
    slots.PutTable(RosterChangesGoalie);
    slots.PutMagic("DRVK Lineups Files Version 1.01 - End");
    return slots.Take();
}

ByteVector Wrapped(const ByteVector& slots, int level)
{
    auto length = compressBound(static_cast<uLong>(slots.size()));
    ByteVector wrapper(4 + length);
    for (std::size_t i = 0; i < 4; ++i)
        wrapper[i] = static_cast<unsigned char>(slots.size() >> (8 * i));
    if (compress2(wrapper.data() + 4, &length, slots.data(), static_cast<uLong>(slots.size()), level) != Z_OK)
        throw std::runtime_error("compress2");
    wrapper.resize(4 + length);
    return wrapper;
}

ByteVector Unwrapped(const ByteVector& wrapper)
{
    std::uint32_t raw = 0;
    for (std::size_t i = std::min<std::size_t>(4, wrapper.size()); i-- > 0;)
        raw = raw << 8U | wrapper[i];
    const auto length = static_cast<double>(static_cast<std::int32_t>(raw));
    const double bound = std::nearbyint(length * 0.01 + length + 12);
    if (wrapper.empty() || bound < 1)
        return {};
    ByteVector input(wrapper.size());
    if (wrapper.size() > 4)
        std::copy(wrapper.begin() + 4, wrapper.end(), input.begin());
    ByteVector output(static_cast<std::size_t>(bound));
    auto count = static_cast<uLong>(output.size());
    (void)uncompress(output.data(), &count, input.data(), static_cast<uLong>(input.size()));
    output.resize(count);
    return output;
}

ByteVector ReadWhole(const std::string& path)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    ByteVector bytes(static_cast<std::size_t>(file.tellg()));
    file.seekg(0);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!file)
        throw std::runtime_error("cannot read all of " + path);
    return bytes;
}

void WriteWhole(const std::string& path, const ByteVector& bytes)
{
    std::ofstream file = NewFile(path);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    CloseWhole(file, path);
}

void WriteSparse(const std::string& path, const ByteVector& bytes)
{
    constexpr std::size_t block = 4096;
    std::ofstream file = NewFile(path);
    for (std::size_t at = 0; at < bytes.size(); at += block) {
        const std::size_t size = std::min(block, bytes.size() - at);
        // The last block is always written, so that the file gets its length.
        if (size == block && at + size < bytes.size() && AllZero(bytes.data() + at, size))
            continue;
        file.seekp(static_cast<std::streamoff>(at));
        file.write(reinterpret_cast<const char*>(bytes.data()) + at, static_cast<std::streamsize>(size));
    }
    CloseWhole(file, path);
}

} // namespace dravik
