#pragma once

#include "machine/Platform.h"
#include "session/Session.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>
#include <zlib.h>
#ifdef DRAVIK_ISAL
#include <isa-l/igzip_lib.h>
#endif

// The bare work of opening a file: its stream is inflated through a small window, its checksum is verified, and nothing is kept.
namespace dravik {

inline constexpr std::size_t BareWindow = 1 << 16;

// Hands the stream of the file to `inflate` in pieces: `inflate(input, window)` uses some of the input, fills the window as
// far as it can, and returns how much of the input is left and whether the stream has ended well. Ends the process when the
// file does not hold a good stream.
template <class Inflate>
void ThrowAway(const std::string& path, const Inflate& inflate)
{
    std::vector<unsigned char> input(1 << 16);
    std::vector<unsigned char> window(BareWindow);
    const auto file = Machine().OpenFile(path);
    unsigned char length[4];
    file->Read(length, sizeof length);
    unsigned char* next = input.data();
    std::size_t left = 0;
    for (bool ended = false; !ended;) {
        if (left == 0) {
            next = input.data();
            left = file->Read(next, input.size());
            if (left == 0)
                std::abort();
        }
        const unsigned char* end = next + left;
        ended = inflate(next, left, window);
        next += (end - next) - static_cast<std::ptrdiff_t>(left);
        benchmark::DoNotOptimize(window.data());
    }
}

// By zlib.
inline void InflateByZlib(const std::string& path)
{
    z_stream stream{};
    inflateInit(&stream);
    ThrowAway(path, [&](unsigned char* next, std::size_t& left, std::vector<unsigned char>& window) {
        stream.next_in = next;
        stream.avail_in = static_cast<uInt>(left);
        int result = Z_OK;
        do {
            stream.next_out = window.data();
            stream.avail_out = static_cast<uInt>(window.size());
            result = inflate(&stream, Z_NO_FLUSH);
        } while (result == Z_OK && stream.avail_out == 0);
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
            std::abort();
        left = stream.avail_in;
        return result == Z_STREAM_END;
    });
    inflateEnd(&stream);
}

// By the inflater that the client tries first.
inline void InflateBare(const std::string& path)
{
#ifdef DRAVIK_ISAL
    const auto state = std::make_unique<inflate_state>();
    isal_inflate_init(state.get());
    state->crc_flag = ISAL_ZLIB;
    ThrowAway(path, [&](unsigned char* next, std::size_t& left, std::vector<unsigned char>& window) {
        state->next_in = next;
        state->avail_in = static_cast<std::uint32_t>(left);
        do {
            state->next_out = window.data();
            state->avail_out = static_cast<std::uint32_t>(window.size());
            if (isal_inflate(state.get()) != ISAL_DECOMP_OK)
                std::abort();
        } while (state->avail_out == 0);
        left = state->avail_in;
        return state->block_state == ISAL_BLOCK_FINISH;
    });
#else
    InflateByZlib(path);
#endif
}

// Whether that inflater has the paths on this processor that make it the faster one by far.
inline bool InflaterHasFastPaths()
{
#if defined(DRAVIK_ISAL) && defined(__x86_64__)
    return __builtin_cpu_supports("avx2");
#elif defined(DRAVIK_ISAL) && defined(__aarch64__)
    return true;
#else
    return false;
#endif
}

} // namespace dravik
