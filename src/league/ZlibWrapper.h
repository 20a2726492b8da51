#pragma once

#include "league/ByteStream.h"
#include "league/Reporting.h"

#include <zlib.h>

// The compressed wrapper of the files: the uncompressed length in 4 bytes, little-endian, and one zlib stream of level 9.
// Both directions work in constant memory. Whatever their length field claims, they give the same bytes as the one-call
// functions of zlib do.
namespace dravik {

// Room for the other form of `length` bytes: length x 0.01 + length + 12 in 64-bit float, rounded to nearest, ties to
// even. It is negative for the lengths that some bad files claim.
std::int64_t WrapperBound(std::int32_t length);

// What comes out of a wrapper. No more than the bound of its length field comes, and a stream that does not decode simply
// ends with what was decoded before the error; nothing compares the length field or the checksum with what came out. Fails
// with 9 when not a single byte comes, and as `wrapper` does.
class InflateStream final : public ByteSource {
public:
    // `wrapper` holds the whole wrapper, its length field first, and must outlive the stream.
    explicit InflateStream(ByteSource& wrapper);

    Bytes Next() override;

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
    bool ended = false;
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
bool Compressing(Body&& body)
{
    return Reporting(" in Zlib Compress!", std::forward<Body>(body));
}
template <class Body>
bool Decompressing(Body&& body)
{
    return Reporting(" in Zlib Decompress!", std::forward<Body>(body));
}

} // namespace dravik
