#pragma once

#include "league/Platform.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <string>
#include <vector>
#include <zlib.h>

namespace dravik {

// Inflates the stream of the file through a small window and keeps nothing. Without the checksum only the deflated data
// behind the stream's header of two bytes is read, as the client reads it.
inline void InflateAndThrowAway(const std::string& path, bool withChecksum = true)
{
    std::vector<unsigned char> input(1 << 16);
    std::vector<unsigned char> output(1 << 16);
    const auto file = Machine().OpenFile(path);
    unsigned char head[6]; // the length of what comes out, and the stream's header
    file->Read(head, withChecksum ? 4 : sizeof head);
    z_stream stream{};
    constexpr int deflatedData = -MAX_WBITS;
    inflateInit2(&stream, withChecksum ? MAX_WBITS : deflatedData);
    int result = Z_OK;
    while (result == Z_OK) {
        if (stream.avail_in == 0) {
            stream.next_in = input.data();
            stream.avail_in = static_cast<uInt>(file->Read(input.data(), input.size()));
        }
        stream.next_out = output.data();
        stream.avail_out = static_cast<uInt>(output.size());
        result = inflate(&stream, Z_NO_FLUSH);
        benchmark::DoNotOptimize(output.data());
    }
    inflateEnd(&stream);
    if (result != Z_STREAM_END)
        std::abort();
}

} // namespace dravik
