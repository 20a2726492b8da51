#pragma once

#include "files/ByteStream.h"
#include "machine/Reporting.h"

#include <functional>
#include <zlib.h>

// The compressed wrapper of the files: the uncompressed length in 4 bytes, little-endian, and one zlib stream of level 9.
// Both directions work in constant memory. Whatever their length field claims, they give the same bytes as the one-call
// functions of zlib do.
namespace dravik {

// Room for the other form of `length` bytes: length x 0.01 + length + 12 in 64-bit float, rounded to nearest, ties to
// even. It is negative for the lengths that some bad files claim.
std::int64_t WrapperBound(std::int32_t length);

// How many bytes behind those that were asked for are looked through for the end of a stream and its checksum.
inline constexpr std::size_t MostBehindRecords = 1 << 20;

// Has `read` read what comes out of `wrapper`: no more than the bound of its length field, and of a stream that does not
// decode what was decoded before the error. True when the stream is whole and its checksum right. Where a faster inflater is
// at hand `read` is given its bytes first; whenever that one does not come to a good end, the wrapper is read once more by
// zlib. `takeBack` is called after every reading that counts for nothing, also after one that fails; exceptions of any type must be
// let pass by `read`. Fails as InflateStream, `wrapper` and `read` do.
bool ReadWrapper(
    RewindableSource& wrapper, const std::function<void(ByteSource&)>& read,
    const std::function<void()>& takeBack = [] {});

// What comes out of a wrapper by zlib. No more than the bound of its length field comes, and a stream that does not decode simply
// ends with what was decoded before the error; nothing that comes out depends on the checksum. Fails with 9 when not a
// single byte comes, and as `wrapper` does.
class InflateStream final : public ByteSource {
public:
    // `wrapper` holds the whole wrapper, its length field first, and must outlive the stream.
    explicit InflateStream(ByteSource& wrapper);

    Bytes Next() override;
    // Reads on to the end of the stream, past the bound too, if it is not far away. False when the stream does not decode, when it
    // is cut, or when its checksum does not fit what came; true also when its end is too far away to know. Never fails: a
    // source that does so behind what was asked for is one that is cut.
    bool EndsWell();

private:
    struct Inflater {
        Inflater();
        Inflater(const Inflater&) = delete;
        Inflater& operator=(const Inflater&) = delete;
        ~Inflater();

        z_stream Stream{};
    };

    std::int32_t ReadLength();
    void Refill();

    ByteSource& source;
    Bytes input;
    bool sourceEnded = false;
    int result = Z_OK; // of the last step
    std::int64_t produced = 0;
    std::int64_t bound;
    Inflater inflater;
    std::vector<unsigned char> window;
};

// Makes a wrapper of the bytes written to it.
class DeflateStream final : public ByteSink {
public:
    // The wrapper goes to `target`, which must outlive the stream. `length` is how many bytes will be written: fails with
    // 9 when it is not above 0, with 6 when the length field cannot hold it.
    DeflateStream(ByteSink& target, std::int64_t length);

    void Write(Bytes bytes) override;
    // Ends the stream. Fails with 5 when not just as many bytes were written as told.
    void Finish();

private:
    struct Deflater {
        Deflater();
        Deflater(const Deflater&) = delete;
        Deflater& operator=(const Deflater&) = delete;
        ~Deflater();

        z_stream Stream{};
    };

    void Deflate(int flush);

    ByteSink& sink;
    std::int64_t left;
    Deflater deflater;
    std::vector<unsigned char> input;
    std::vector<unsigned char> output;
};

// Runs `body`, which writes or reads a wrapper. What goes wrong in it is told with the ending of the compression or the
// decompression. True when it came to its end.
template <class Body>
bool Compressing(Voice& says, Body&& body)
{
    return Reporting(says, " in Zlib Compress!", std::forward<Body>(body));
}
template <class Body>
bool Decompressing(Voice& says, Body&& body)
{
    return Reporting(says, " in Zlib Decompress!", std::forward<Body>(body));
}

} // namespace dravik
