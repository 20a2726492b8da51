// Takes any bytes out of a wrapper, those of a wrapper written by a script among them, and puts them into one, in pieces of
// any length: what comes out is what the one-call functions of zlib make of it, by zlib's reader and by the one that tries the
// faster inflater first.

#include "files/ZlibWrapper.h"
#include "fuzz/DeflateScript.h"
#include "fuzz/Target.h"
#include "league/Arithmetic.h"
#include "league/Failure.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>
#include <zlib.h>

namespace dravik::fuzz {

namespace {

using ByteVector = std::vector<std::uint8_t>;

// The input in pieces whose lengths follow from their number.
class Pieces final : public RewindableSource {
public:
    Pieces(Input input, std::size_t longest) : all(input), bytes(input), most(longest) {}

    Bytes Next() override
    {
        const std::size_t count = std::min(bytes.size(), 1 + number++ * 7 % most);
        const Bytes piece = bytes.first(count);
        bytes = bytes.subspan(count);
        return piece;
    }
    void Rewind() override
    {
        bytes = all;
        number = 0;
    }

private:
    Input all;
    Input bytes;
    std::size_t most;
    std::size_t number = 0;
};

class Collector final : public ByteSink {
public:
    void Write(Bytes bytes) override { All.insert(All.end(), bytes.begin(), bytes.end()); }

    ByteVector All;
};

void TakeAll(ByteSource& stream, ByteVector& all, std::size_t most)
{
    all.clear();
    for (Bytes piece = stream.Next(); !piece.empty(); piece = stream.Next()) {
        all.insert(all.end(), piece.begin(), piece.end());
        Require(all.size() <= most);
    }
    Require(stream.Next().empty());
}

// What comes out of a wrapper and whether it ends well; nothing when it fails.
struct Outcome {
    ByteVector Came;
    bool Whole;

    bool operator==(const Outcome& other) const = default;
};

// `read` fills what came and tells whether the wrapper ends well.
template <class Read>
std::optional<Outcome> OutcomeOf(const Read& read)
{
    Outcome outcome{{}, false};
    try {
        outcome.Whole = read(outcome.Came);
    } catch (const Failure& failed) {
        Require(failed.Number == failure::OutOfRange);
        return std::nullopt;
    }
    return outcome;
}

std::optional<ByteVector> Inflated(Input wrapper, std::size_t longest, std::size_t most)
{
    const auto byZlib = OutcomeOf([&](ByteVector& came) {
        Pieces pieces(wrapper, longest);
        InflateStream stream(pieces);
        TakeAll(stream, came, most);
        return stream.EndsWell();
    });
    const auto byBoth = OutcomeOf([&](ByteVector& came) {
        Pieces pieces(wrapper, longest);
        return ReadWrapper(pieces, [&](ByteSource& stream) { TakeAll(stream, came, most); });
    });
    Require(byZlib == byBoth);
    return byZlib ? std::optional(byZlib->Came) : std::nullopt;
}

// The same by one call, as long as it needs no more than `most` bytes.
std::optional<ByteVector> Uncompressed(Input wrapper, std::size_t bound)
{
    ByteVector input(wrapper.size());
    if (wrapper.size() > 4)
        std::copy(wrapper.begin() + 4, wrapper.end(), input.begin());
    ByteVector output(bound);
    auto count = static_cast<uLongf>(bound);
    (void)uncompress(output.data(), &count, input.data(), static_cast<uLong>(input.size()));
    output.resize(count);
    return count == 0 ? std::nullopt : std::optional(output);
}

void CheckOut(Input wrapper, std::size_t longest)
{
    constexpr std::int64_t most = 1 << 20;
    std::uint32_t raw = 0;
    for (std::size_t i = std::min<std::size_t>(4, wrapper.size()); i-- > 0;)
        raw = raw << 8U | wrapper[i];
    const std::int64_t bound = WrapperBound(static_cast<std::int32_t>(raw));
    const auto ours = Inflated(wrapper, longest, bound < 1 ? 0 : static_cast<std::size_t>(bound));
    if (wrapper.empty() || bound < 1)
        Require(!ours);
    else if (bound <= most)
        Require(ours == Uncompressed(wrapper, static_cast<std::size_t>(bound)));
}

// The wrapper with the checksum that fits what its stream holds, so that a changed stream can be a good one.
ByteVector WithItsChecksum(Input wrapper)
{
    constexpr std::size_t head = 6;
    ByteVector mended(wrapper.begin(), wrapper.end());
    if (wrapper.size() <= head)
        return mended;
    ByteVector window(1 << 15);
    z_stream stream{};
    Require(inflateInit2(&stream, -MAX_WBITS) == Z_OK);
    stream.next_in = mended.data() + head;
    stream.avail_in = static_cast<uInt>(mended.size() - head);
    int result = Z_OK;
    uLong sum = adler32(0, nullptr, 0);
    while (result == Z_OK && stream.total_out < 1U << 21U) {
        stream.next_out = window.data();
        stream.avail_out = static_cast<uInt>(window.size());
        result = inflate(&stream, Z_NO_FLUSH);
        sum = adler32(sum, window.data(), static_cast<uInt>(window.size() - stream.avail_out));
    }
    const std::size_t end = head + stream.total_in;
    inflateEnd(&stream);
    if (result != Z_STREAM_END)
        return mended;
    mended.resize(std::max(mended.size(), end + 4));
    for (std::size_t i = 0; i < 4; ++i)
        mended[end + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
    return mended;
}

// The wrapper with some bits of its stream flipped, one at a time, which `choice` chooses. Flips that leave a stream nearly
// good are in the heads of its blocks.
void CheckFlipped(const ByteVector& wrapper, std::size_t longest, std::size_t choice)
{
    constexpr std::size_t head = 48;
    constexpr std::size_t flips = 8;
    const std::size_t bits = (wrapper.size() - head / 8) * 8;
    for (std::size_t i = 0; i < flips; ++i) {
        ByteVector flipped = wrapper;
        const std::size_t reach = i % 2 == 0 ? bits : std::min<std::size_t>(bits, 640);
        const std::size_t bit = head + (choice + i * 7919) % reach;
        flipped[bit / 8] ^= static_cast<std::uint8_t>(1U << bit % 8);
        CheckOut(flipped, longest);
    }
}

void CheckIn(Input content, std::size_t longest)
{
    if (content.empty())
        return;
    Collector wrapper;
    DeflateStream stream(wrapper, static_cast<std::int64_t>(content.size()));
    Pieces pieces(content, longest);
    for (Bytes piece = pieces.Next(); !piece.empty(); piece = pieces.Next())
        stream.Write(piece);
    stream.Finish();
    auto length = compressBound(static_cast<uLong>(content.size()));
    ByteVector wanted(4 + length);
    for (std::size_t i = 0; i < 4; ++i)
        wanted[i] = static_cast<std::uint8_t>(content.size() >> (8 * i));
    Require(compress2(wanted.data() + 4, &length, content.data(), static_cast<uLong>(content.size()), 9) == Z_OK);
    wanted.resize(4 + length);
    Require(wrapper.All == wanted);
    Require(Inflated(wrapper.All, longest, content.size() * 2 + 12) == ByteVector(content.begin(), content.end()));
    CheckFlipped(wrapper.All, longest, adler32(1, content.data(), static_cast<uInt>(content.size())));
}

} // namespace

void RunTarget(Input input)
{
    if (input.empty())
        return;
    const std::size_t longest = 1 + input[0] / 2 * 13U;
    const Input rest = input.subspan(1);
    switch (input[0] % 4) {
    case 0:
        CheckOut(rest, longest);
        CheckOut(WithItsChecksum(rest), longest);
        break;
    case 2:
        CheckOut(WriteDeflate(rest), longest);
        break;
    default:
        CheckIn(rest, longest);
        break;
    }
}

} // namespace dravik::fuzz
