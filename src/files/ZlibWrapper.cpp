#include "files/ZlibWrapper.h"

#include "files/FastInflate.h"
#include "league/Arithmetic.h"
#include "league/Failure.h"
#include "league/Field.h"

#include <algorithm>
#include <cstring>

namespace dravik {

namespace {

constexpr int Level = 9;
constexpr std::size_t InflateWindow = 1 << 17;

// How much deflate may read ahead depends on how its input is cut. Cut at multiples of its own window it reads as if it
// had everything at once, and so makes the same bytes.
constexpr std::size_t DeflateWindow = 1 << 16;
constexpr std::size_t DeflateOutput = 1 << 14;

// The one-call function is given the length of the whole file for a stream that is 4 bytes shorter, so this much of its
// zeroed buffer is input too.
constexpr unsigned char Tail[4] = {};

unsigned char* Writable(const unsigned char* input)
{
    return const_cast<unsigned char*>(input); // NOLINT: zlib takes its input as writable and only reads it
}

} // namespace

std::int64_t WrapperBound(std::int32_t length)
{
    const double exact = length;
    return RoundTo<std::int64_t>(exact * 0.01 + exact + 12);
}

bool ReadWrapper(RewindableSource& wrapper, const std::function<void(ByteSource&)>& read,
                 const std::function<void()>& takeBack)
{
    try {
        if (HasFastInflater()) {
            if (ReadFast(wrapper, read))
                return true;
            takeBack();
            wrapper.Rewind();
        }
        InflateStream bytes(wrapper);
        read(bytes);
        return bytes.EndsWell();
    } catch (...) {
        takeBack();
        throw;
    }
}

InflateStream::Inflater::Inflater()
{
    if (inflateInit(&Stream) != Z_OK)
        Fail(failure::OutOfMemory);
}

InflateStream::Inflater::~Inflater() { inflateEnd(&Stream); }

InflateStream::InflateStream(ByteSource& wrapper) : source(wrapper), bound(WrapperBound(ReadLength()))
{
    if (bound < 1)
        Fail(failure::OutOfRange);
    window.resize(InflateWindow);
}

// The bytes that a short file lacks read as zeros.
std::int32_t InflateStream::ReadLength()
{
    Int32 length;
    auto* to = reinterpret_cast<unsigned char*>(&length);
    for (std::size_t i = 0; i < sizeof length; ++i) {
        if (input.empty())
            input = source.Next();
        if (input.empty())
            break;
        to[i] = input.front();
        input = input.subspan(1);
    }
    return static_cast<std::int32_t>(length);
}

Bytes InflateStream::Next()
{
    z_stream& stream = inflater.Stream;
    const auto room = static_cast<uInt>(std::min<std::int64_t>(bound - produced, InflateWindow));
    stream.next_out = window.data();
    stream.avail_out = room;
    while (result == Z_OK && stream.avail_out > 0) {
        if (stream.avail_in == 0)
            Refill();
        result = inflate(&stream, Z_NO_FLUSH);
    }
    const std::size_t count = room - stream.avail_out;
    produced += static_cast<std::int64_t>(count);
    if (produced == 0)
        Fail(failure::OutOfRange);
    return Bytes(window).first(count);
}

bool InflateStream::EndsWell()
{
    const std::int64_t most = produced + static_cast<std::int64_t>(MostBehindRecords);
    bound = most;
    try {
        while (result == Z_OK && produced < most)
            Next();
    } catch (const std::exception&) {
        return false;
    }
    return result == Z_OK || result == Z_STREAM_END;
}

void InflateStream::Refill()
{
    if (input.empty() && !sourceEnded)
        input = source.Next();
    if (input.empty() && !sourceEnded) {
        sourceEnded = true;
        input = Tail;
    }
    inflater.Stream.next_in = Writable(input.data());
    inflater.Stream.avail_in = static_cast<uInt>(input.size());
    input = {};
}

DeflateStream::Deflater::Deflater()
{
    if (deflateInit(&Stream, Level) != Z_OK)
        Fail(failure::OutOfMemory);
}

DeflateStream::Deflater::~Deflater() { deflateEnd(&Stream); }

DeflateStream::DeflateStream(ByteSink& target, std::int64_t length) : sink(target), left(length)
{
    if (length < 1)
        Fail(failure::OutOfRange);
    const Int32 field(length);
    sink.Write({reinterpret_cast<const unsigned char*>(&field), sizeof field});
    input.reserve(DeflateWindow);
    output.resize(DeflateOutput);
}

void DeflateStream::Write(Bytes bytes)
{
    left -= static_cast<std::int64_t>(bytes.size());
    while (!bytes.empty()) {
        if (input.size() == DeflateWindow)
            Deflate(Z_NO_FLUSH);
        const Bytes piece = bytes.first(std::min(bytes.size(), DeflateWindow - input.size()));
        input.insert(input.end(), piece.begin(), piece.end());
        bytes = bytes.subspan(piece.size());
    }
}

void DeflateStream::Finish()
{
    if (left != 0)
        Fail(failure::InvalidCall);
    Deflate(Z_FINISH);
}

void DeflateStream::Deflate(int flush)
{
    z_stream& stream = deflater.Stream;
    stream.next_in = input.data();
    stream.avail_in = static_cast<uInt>(input.size());
    do {
        stream.next_out = output.data();
        stream.avail_out = static_cast<uInt>(output.size());
        deflate(&stream, flush);
        sink.Write(Bytes(output).first(output.size() - stream.avail_out));
    } while (stream.avail_out == 0);
    input.clear();
}

} // namespace dravik
