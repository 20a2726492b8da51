// Takes any bytes out of a wrapper, and puts them into one, in pieces of any length: what comes out is what the one-call
// functions of zlib make of it.

#include "fuzz/Target.h"
#include "league/Arithmetic.h"
#include "league/Failure.h"
#include "league/ZlibWrapper.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>
#include <zlib.h>

namespace dravik::fuzz {

namespace {

using ByteVector = std::vector<std::uint8_t>;

// The input in pieces whose lengths follow from their number.
class Pieces final : public ByteSource {
public:
    Pieces(Input all, std::size_t longest) : bytes(all), most(longest) {}

    Bytes Next() override
    {
        const std::size_t count = std::min(bytes.size(), 1 + number++ * 7 % most);
        const Bytes piece = bytes.first(count);
        bytes = bytes.subspan(count);
        return piece;
    }

private:
    Input bytes;
    std::size_t most;
    std::size_t number = 0;
};

class Collector final : public ByteSink {
public:
    void Write(Bytes bytes) override { All.insert(All.end(), bytes.begin(), bytes.end()); }

    ByteVector All;
};

// What comes out of the wrapper; nothing when it fails.
std::optional<ByteVector> Inflated(Input wrapper, std::size_t longest, std::size_t most)
{
    ByteVector all;
    try {
        Pieces pieces(wrapper, longest);
        InflateStream stream(pieces);
        for (Bytes piece = stream.Next(); !piece.empty(); piece = stream.Next()) {
            all.insert(all.end(), piece.begin(), piece.end());
            Require(all.size() <= most);
        }
        Require(stream.Next().empty());
    } catch (const Failure& failed) {
        Require(failed.Number == failure::OutOfRange);
        return std::nullopt;
    }
    return all;
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
}

} // namespace

void RunTarget(Input input)
{
    if (input.empty())
        return;
    const std::size_t longest = 1 + input[0] / 2 * 13U;
    if (input[0] % 2 == 0)
        CheckOut(input.subspan(1), longest);
    else
        CheckIn(input.subspan(1), longest);
}

} // namespace dravik::fuzz
