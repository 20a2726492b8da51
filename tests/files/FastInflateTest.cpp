// The faster inflater is at work whenever a wrapper is well-formed, and never where zlib would see it otherwise.

#include "files/FastInflate.h"

#include "files/ZlibWrapper.h"
#include "support/BytePieces.h"
#include "support/DeflateBits.h"
#include "support/SampleBytes.h"

#include <gtest/gtest.h>
#include <random>
#include <zlib.h>

namespace dravik {
namespace {

struct Outcome {
    ByteVector Came;
    bool Whole = false;
    int Readings = 0;
};

Outcome Read(const ByteVector& wrapper, std::size_t pieceLength = 1 << 16)
{
    Outcome outcome;
    Pieces pieces(wrapper, pieceLength);
    const auto read = [&](ByteSource& bytes) {
        ++outcome.Readings;
        outcome.Came.clear();
        for (Bytes piece = bytes.Next(); !piece.empty(); piece = bytes.Next())
            outcome.Came.insert(outcome.Came.end(), piece.begin(), piece.end());
    };
    try {
        outcome.Whole = ReadWrapper(pieces, read);
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, failure::OutOfRange);
    }
    return outcome;
}

bool IsReadFast(const ByteVector& wrapper)
{
    Pieces pieces(wrapper, 1 << 16);
    return ReadFast(pieces, [](ByteSource& bytes) {
        while (!bytes.Next().empty()) {
        }
    });
}

bool UncompressIsContent(const ByteVector& wrapper)
{
    ByteVector output(1 << 16);
    auto count = static_cast<uLongf>(output.size());
    return uncompress(output.data(), &count, wrapper.data() + 4, static_cast<uLong>(wrapper.size() - 4)) == Z_OK;
}

TEST(FastInflateTest, AWellFormedWrapperIsReadOnce)
{
    unsigned seed = 0;
    for (const Kind kind : {Kind::Zeros, Kind::Text, Kind::Random, Kind::Mixed, Kind::FarRepeats, Kind::RepeatAtReach})
        for (const std::size_t size : {1, 2, 300, 32767, 32768, 65535, 65536, 65537, 131072, 200000, 1000003})
            for (const int level : {0, 1, 6, 9}) {
                const ByteVector bytes = Sample(kind, size, ++seed);
                const ByteVector wrapper = Wrapped(bytes, level);
                const Outcome outcome = Read(wrapper, 1 + seed * 977 % 70000);
                const auto what = [&] {
                    return testing::Message() << static_cast<int>(kind) << " " << size << " at " << level;
                };
                EXPECT_TRUE(outcome.Came == bytes) << what();
                EXPECT_TRUE(outcome.Whole) << what();
                EXPECT_EQ(outcome.Readings, 1) << what();
                EXPECT_EQ(IsReadFast(wrapper), HasFastInflater()) << what();
            }
}

TEST(FastInflateTest, PiecesOfOneByteAreAsGoodAsAny)
{
    const ByteVector bytes = Sample(Kind::Mixed, 300000, 5);
    const Outcome outcome = Read(Wrapped(bytes), 1);
    EXPECT_TRUE(outcome.Came == bytes);
    EXPECT_TRUE(outcome.Whole);
    EXPECT_EQ(outcome.Readings, 1);
}

TEST(FastInflateTest, AStreamThatDoesNotEndWellIsNotWhole)
{
    const ByteVector bytes = Sample(Kind::Mixed, 300000, 6);
    const ByteVector wrapper = Wrapped(bytes);
    for (std::size_t missing = 1; missing <= 4; ++missing) {
        const Outcome cut = Read({wrapper.begin(), wrapper.end() - static_cast<std::ptrdiff_t>(missing)});
        EXPECT_FALSE(cut.Whole) << missing;
        EXPECT_TRUE(cut.Came == bytes) << missing;
    }
    for (std::size_t back = 1; back <= 4; ++back) {
        ByteVector flipped = wrapper;
        flipped[flipped.size() - back] ^= 0x40U;
        const Outcome outcome = Read(flipped);
        EXPECT_FALSE(outcome.Whole) << back;
        EXPECT_TRUE(outcome.Came == bytes) << back;
        EXPECT_EQ(outcome.Readings, HasFastInflater() ? 2 : 1) << back;
    }
}

// What comes is handed on in windows; a stream may end with a window nearly full, full, or just begun.
TEST(FastInflateTest, AStreamCutAtTheEdgeOfAWindowEnds)
{
    constexpr std::size_t window = 1 << 16;
    const ByteVector bytes = Sample(Kind::Random, 200000, 7);
    const ByteVector wrapper = Wrapped(bytes, 0);
    std::size_t edges = 0;
    for (std::size_t length = window - 2; length <= window + 30; ++length) {
        const ByteVector cut(wrapper.begin(), wrapper.begin() + static_cast<std::ptrdiff_t>(length));
        const Outcome outcome = Read(cut);
        EXPECT_FALSE(outcome.Whole) << length;
        EXPECT_TRUE(outcome.Came == Unwrapped(cut)) << length;
        EXPECT_FALSE(IsReadFast(cut)) << length;
        if (outcome.Came.size() + 1 >= window && outcome.Came.size() <= window + 1)
            ++edges;
    }
    EXPECT_GE(edges, 3U);
}

// Another method, another reach and a dictionary are zlib's to judge, and so is a head that does not divide.
TEST(FastInflateTest, OnlyTheHeadsThatZlibWritesAreReadFast)
{
    ByteVector wrapper = Wrapped(Sample(Kind::Text, 50, 1));
    for (unsigned head = 0; head <= 0xFFFF; ++head) {
        if (head % 31 != 0 && head >> 8U != 0x78)
            continue; // refused for two reasons
        wrapper[4] = static_cast<unsigned char>(head >> 8U);
        wrapper[5] = static_cast<unsigned char>(head & 0xFFU);
        const bool isWritten = head == 0x7801 || head == 0x785E || head == 0x789C || head == 0x78DA;
        ASSERT_EQ(IsReadFast(wrapper), isWritten && HasFastInflater()) << head;
    }
}

TEST(FastInflateTest, ALengthFieldThatDoesNotFitLeavesAGoodStreamWhole)
{
    const ByteVector bytes = Sample(Kind::Mixed, 300000, 7);
    ByteVector wrapper = Wrapped(bytes);
    for (const unsigned claimed : {0U, 1U, 100000U, 299999U, 300001U, 1000000U, 2147483647U}) {
        for (std::size_t i = 0; i < 4; ++i)
            wrapper[i] = static_cast<unsigned char>(claimed >> (8 * i));
        const Outcome outcome = Read(wrapper);
        EXPECT_TRUE(outcome.Came == Unwrapped(wrapper)) << claimed;
        EXPECT_TRUE(outcome.Whole) << claimed;
    }
}

TEST(FastInflateTest, BytesBehindTheStreamLeaveItWhole)
{
    const ByteVector bytes = Sample(Kind::Text, 3000, 9);
    ByteVector wrapper = Wrapped(bytes);
    wrapper.insert(wrapper.end(), 100000, 'x');
    const Outcome outcome = Read(wrapper);
    EXPECT_TRUE(outcome.Came == bytes);
    EXPECT_TRUE(outcome.Whole);
    EXPECT_EQ(outcome.Readings, 1);
}

TEST(FastInflateTest, AReaderThatStopsInTheMidstIsToldOfTheEndNearby)
{
    const auto stopEarly = [](const ByteVector& wrapper) {
        Pieces pieces(wrapper, 1 << 16);
        return ReadWrapper(pieces, [](ByteSource& bytes) { (void)bytes.Next(); });
    };
    ByteVector near = Wrapped(Sample(Kind::Mixed, 900000, 10));
    EXPECT_TRUE(stopEarly(near));
    near.back() ^= 1U;
    EXPECT_FALSE(stopEarly(near));
    ByteVector far = Wrapped(Sample(Kind::Zeros, 3000000, 10));
    far.back() ^= 1U;
    EXPECT_TRUE(stopEarly(far)) << "nobody looks so far";
}

// Streams with codes of their own, small enough to flip every bit of their heads. Some of these flips leave codes incomplete
// that no symbol of the block needs: then everything comes out right, with its checksum, and zlib refuses it all the same.
TEST(FastInflateTest, EveryFlippedBitGivesWhatUncompressGives)
{
    std::mt19937 random(3);
    for (unsigned seed = 0; seed < 40; ++seed) {
        ByteVector bytes(200 + random() % 300);
        for (auto& byte : bytes)
            byte = static_cast<unsigned char>(random() % (2 + seed));
        const ByteVector wrapper = Wrapped(bytes);
        for (std::size_t bit = 8 * 4; bit < wrapper.size() * 8; ++bit) {
            ByteVector flipped = wrapper;
            flipped[bit / 8] ^= static_cast<unsigned char>(1U << bit % 8);
            const Outcome outcome = Read(flipped);
            const bool right = UncompressIsContent(flipped);
            ASSERT_TRUE(outcome.Came == Unwrapped(flipped)) << seed << " bit " << bit;
            ASSERT_EQ(outcome.Whole, right) << seed << " bit " << bit;
            ASSERT_TRUE(right || !IsReadFast(flipped)) << seed << " bit " << bit;
        }
    }
}

TEST(FastInflateTest, SymbolsThatMeanNothingEndTheStreamWhereZlibEndsIt)
{
    for (const std::size_t before : {0U, 1U, 60U, 5000U, 70000U, 140000U})
        for (const auto& [symbol, distance] : {std::pair{286U, 0U}, {287U, 0U}, {257U, 30U}, {257U, 31U}}) {
            DeflateBits bits;
            bits.FixedBlock(true);
            for (std::size_t i = 0; i < before; ++i)
                bits.FixedSymbol('a' + i % 3);
            bits.FixedSymbol(symbol).FixedDistance(distance);
            for (int i = 0; i < 300; ++i)
                bits.FixedSymbol('z');
            bits.FixedSymbol(DeflateBits::EndOfBlock);
            const ByteVector wrapper = bits.WrapperOf(ByteVector(before + 303));
            const Outcome outcome = Read(wrapper);
            EXPECT_EQ(outcome.Came.size(), before) << symbol << " " << distance;
            EXPECT_TRUE(outcome.Came == Unwrapped(wrapper)) << symbol << " " << distance;
            EXPECT_FALSE(outcome.Whole);
        }
}

TEST(FastInflateTest, ARepeatReachesBackAcrossBlocksAndWindows)
{
    constexpr unsigned longest = 285;
    constexpr unsigned farthest = 29;
    for (const std::size_t before : {32767U, 32768U, 40000U, 65535U, 65536U, 65600U, 98000U, 131072U}) {
        std::mt19937 random(static_cast<unsigned>(before));
        DeflateBits bits;
        ByteVector content;
        bits.FixedBlock(false);
        for (std::size_t i = 0; i < before; ++i) {
            content.push_back(static_cast<unsigned char>(random()));
            bits.FixedSymbol(content.back());
        }
        bits.FixedSymbol(DeflateBits::EndOfBlock).FixedBlock(true);
        constexpr std::size_t reach = 32768;
        bits.FixedSymbol(longest).FixedDistance(farthest).Put(8191, 13).FixedSymbol(DeflateBits::EndOfBlock);
        for (int i = 0; i < 258 && before >= reach; ++i)
            content.push_back(content[content.size() - reach]);
        const ByteVector wrapper = bits.WrapperOf(content);
        const Outcome outcome = Read(wrapper);
        EXPECT_TRUE(outcome.Came == content) << before;
        EXPECT_TRUE(outcome.Came == Unwrapped(wrapper)) << before;
        EXPECT_EQ(outcome.Whole, before >= reach) << before;
        EXPECT_EQ(IsReadFast(wrapper), HasFastInflater() && before >= reach) << before;
    }
}

TEST(FastInflateTest, AStreamOfEmptyBlocksIsLeftToZlib)
{
    DeflateBits bits;
    for (int i = 0; i < 2000; ++i)
        bits.FixedBlock(false).FixedSymbol(DeflateBits::EndOfBlock);
    bits.FixedBlock(true).FixedSymbol('a').FixedSymbol(DeflateBits::EndOfBlock);
    const ByteVector wrapper = bits.WrapperOf({'a'});
    EXPECT_FALSE(IsReadFast(wrapper));
    const Outcome outcome = Read(wrapper);
    EXPECT_TRUE(outcome.Came == ByteVector{'a'});
    EXPECT_TRUE(outcome.Whole);
}

// Gives its bytes in one piece, and fails when it is asked for more.
class Failing final : public RewindableSource {
public:
    explicit Failing(ByteVector all) : bytes(std::move(all)) {}
    Bytes Next() override
    {
        if (given)
            Fail(failure::PathAccess);
        given = true;
        return bytes;
    }
    void Rewind() override { given = false; }

private:
    ByteVector bytes;
    bool given = false;
};

TEST(FastInflateTest, FailuresOfTheSourceAreThrown)
{
    ByteVector cut = Wrapped(Sample(Kind::Random, 100000, 1));
    cut.resize(50000);
    Failing source(cut);
    EXPECT_THROW((void)ReadWrapper(source,
                                   [](ByteSource& bytes) {
                                       while (!bytes.Next().empty()) {
                                       }
                                   }),
                 Failure);
}

// What was wanted has come by then; that the rest cannot be read is no failure, but nobody vouches for it.
TEST(FastInflateTest, ASourceThatFailsBehindWhatWasReadIsNotWhole)
{
    ByteVector cut = Wrapped(Sample(Kind::Random, 400000, 1));
    cut.resize(200000);
    Failing source(cut);
    ByteVector came;
    EXPECT_FALSE(ReadWrapper(source, [&came](ByteSource& bytes) {
        const Bytes piece = bytes.Next();
        came.assign(piece.begin(), piece.end());
    }));
    const ByteVector whole = Sample(Kind::Random, 400000, 1);
    ASSERT_FALSE(came.empty());
    EXPECT_TRUE(std::equal(came.begin(), came.end(), whole.begin()));
}

} // namespace
} // namespace dravik
