#include "files/ZlibWrapper.h"

#include "support/BytePieces.h"
#include "support/SampleBytes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace dravik {
namespace {

// Runs `read`, which may fail with 9 only, and then has left nothing in `out`.
template <class Read>
void ReadInto(ByteVector& out, const Read& read)
{
    try {
        read();
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, failure::OutOfRange);
        EXPECT_TRUE(out.empty());
    }
}

void TakeAll(ByteSource& source, ByteVector& out)
{
    out.clear();
    for (Bytes piece = source.Next(); !piece.empty(); piece = source.Next())
        out.insert(out.end(), piece.begin(), piece.end());
    EXPECT_TRUE(source.Next().empty()) << "the end is the answer from then on";
}

// What comes out of a wrapper by zlib's reader, and by the reader that tries the faster inflater first.
ByteVector Inflated(const ByteVector& wrapper, std::size_t pieceLength = 1 << 16)
{
    Pieces pieces(wrapper, pieceLength);
    ByteVector byZlib;
    ReadInto(byZlib, [&] {
        InflateStream stream(pieces);
        TakeAll(stream, byZlib);
    });
    pieces.Rewind();
    ByteVector byBoth;
    ReadInto(byBoth, [&] { ReadWrapper(pieces, [&](ByteSource& bytes) { TakeAll(bytes, byBoth); }); });
    EXPECT_TRUE(byBoth == byZlib);
    return byZlib;
}

ByteVector Deflated(const ByteVector& bytes, std::size_t pieceLength)
{
    Collector out;
    DeflateStream stream(out, static_cast<std::int64_t>(bytes.size()));
    for (std::size_t at = 0; at < bytes.size(); at += pieceLength)
        stream.Write(Bytes(bytes).subspan(at, std::min(pieceLength, bytes.size() - at)));
    stream.Finish();
    return out.All;
}

ByteVector WithLength(ByteVector wrapper, std::int32_t length)
{
    for (std::size_t i = 0; i < 4; ++i)
        wrapper[i] = static_cast<unsigned char>(static_cast<std::uint32_t>(length) >> (8 * i));
    return wrapper;
}

TEST(ZlibWrapperTest, BoundIsRoundedToNearestWithHalvesToEven)
{
    EXPECT_EQ(WrapperBound(0), 12);
    EXPECT_EQ(WrapperBound(1), 13);
    EXPECT_EQ(WrapperBound(49), 61);   // 61.49
    EXPECT_EQ(WrapperBound(50), 62);   // 62.5
    EXPECT_EQ(WrapperBound(150), 164); // 163.5
    EXPECT_EQ(WrapperBound(51), 64);   // 63.51
    EXPECT_EQ(WrapperBound(58649978), 59236490);
    EXPECT_EQ(WrapperBound(2147483647), 2168958495);
    EXPECT_EQ(WrapperBound(-11), 1);
    EXPECT_EQ(WrapperBound(-12), 0);
    EXPECT_EQ(WrapperBound(-13), -1);
    EXPECT_EQ(WrapperBound(-2147483648), -2168958472);
}

TEST(ZlibWrapperTest, WrittenBytesAreThoseOfOneCallToCompress2)
{
    const std::size_t sizes[] = {1,     2,     3,      11,     100,    257,    258,     259,    4095,
                                 16383, 32505, 32506,  32768,  65273,  65274,  65535,   65536,  65537,
                                 98303, 98304, 131071, 131072, 131073, 196608, 1000003, 2500000};
    unsigned seed = 0;
    for (const Kind kind : {Kind::Zeros, Kind::Text, Kind::Random, Kind::Mixed, Kind::FarRepeats, Kind::RepeatAtReach})
        for (const std::size_t size : sizes) {
            const ByteVector bytes = Sample(kind, size, ++seed);
            const ByteVector expected = Wrapped(bytes);
            EXPECT_TRUE(Deflated(bytes, 1 << 16) == expected) << "kind " << static_cast<int>(kind) << " size " << size;
            if (size < 200000) {
                EXPECT_TRUE(Deflated(bytes, 3470) == expected) << "kind " << static_cast<int>(kind) << " size " << size;
            }
        }
}

TEST(ZlibWrapperTest, HowTheBytesCameDoesNotChangeWhatIsWritten)
{
    std::mt19937 random(7);
    for (unsigned round = 0; round < 60; ++round) {
        const ByteVector bytes =
            Sample(round % 2 == 0 ? Kind::Mixed : Kind::RepeatAtReach, 1 + random() % 300000, round);
        EXPECT_TRUE(Deflated(bytes, 1 + random() % 200000) == Wrapped(bytes)) << "round " << round;
    }
}

TEST(ZlibWrapperTest, WhatWasWrittenComesBack)
{
    const ByteVector bytes = Sample(Kind::Mixed, 700001, 3);
    EXPECT_TRUE(Inflated(Deflated(bytes, 10000)) == bytes);
}

TEST(ZlibWrapperTest, WritingOtherThanTheToldLengthFailsWithNumber5)
{
    Collector out;
    const ByteVector bytes(10, 'x');
    for (const std::int64_t told : {9, 11}) {
        DeflateStream stream(out, told);
        stream.Write(bytes);
        EXPECT_THROW(
            try { stream.Finish(); } catch (const Failure& failed) {
                EXPECT_EQ(failed.Number, failure::InvalidCall);
                throw;
            },
            Failure);
    }
}

TEST(ZlibWrapperTest, LengthsThatTheFieldCannotHoldFail)
{
    const auto numberOf = [](std::int64_t length) {
        Collector out;
        try {
            const DeflateStream stream(out, length);
        } catch (const Failure& failed) {
            return failed.Number;
        }
        return 0;
    };
    EXPECT_EQ(numberOf(0), failure::OutOfRange);
    EXPECT_EQ(numberOf(-1), failure::OutOfRange);
    EXPECT_EQ(numberOf(2147483647), 0);
    EXPECT_EQ(numberOf(2147483648), failure::Overflow);
}

TEST(ZlibWrapperTest, TheLengthFieldOnlyBoundsWhatComes)
{
    const ByteVector bytes = Sample(Kind::Mixed, 400000, 5);
    const ByteVector wrapper = Wrapped(bytes);
    for (const std::int32_t length : {-11, -1, 0, 1, 100, 129765, 129766, 399999, 400001, 2000000}) {
        const auto bound = static_cast<std::size_t>(std::max<std::int64_t>(0, WrapperBound(length)));
        const ByteVector expected(bytes.begin(),
                                  bytes.begin() + static_cast<std::ptrdiff_t>(std::min(bound, bytes.size())));
        EXPECT_TRUE(Inflated(WithLength(wrapper, length)) == expected) << length;
        EXPECT_TRUE(Unwrapped(WithLength(wrapper, length)) == expected) << length;
    }
    EXPECT_TRUE(Inflated(WithLength(wrapper, 2147483647)) == bytes);
    EXPECT_TRUE(Inflated(WithLength(wrapper, -12)).empty());
    EXPECT_TRUE(Inflated(WithLength(wrapper, -2147483648)).empty());
}

TEST(ZlibWrapperTest, EveryCutGivesWhatUncompressGives)
{
    const ByteVector wrapper = Wrapped(Sample(Kind::Text, 3000, 9));
    for (std::size_t size = 0; size <= wrapper.size(); ++size) {
        const ByteVector cut(wrapper.begin(), wrapper.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_TRUE(Inflated(cut) == Unwrapped(cut)) << size;
        EXPECT_TRUE(Inflated(cut, 1) == Unwrapped(cut)) << size;
    }
}

TEST(ZlibWrapperTest, AStreamWithoutItsChecksumIsWhole)
{
    const ByteVector bytes = Sample(Kind::Text, 3000, 9);
    ByteVector wrapper = Wrapped(bytes);
    for (int missing = 1; missing <= 4; ++missing) {
        wrapper.pop_back();
        EXPECT_TRUE(Inflated(wrapper) == bytes) << missing;
    }
}

TEST(ZlibWrapperTest, AWrongChecksumIsNotReported)
{
    const ByteVector bytes = Sample(Kind::Text, 3000, 9);
    ByteVector wrapper = Wrapped(bytes);
    wrapper.back() ^= 1;
    EXPECT_TRUE(Inflated(wrapper) == bytes);
    EXPECT_TRUE(Unwrapped(wrapper) == bytes);
}

TEST(ZlibWrapperTest, EveryFlippedByteGivesWhatUncompressGives)
{
    const ByteVector wrapper = Wrapped(Sample(Kind::Mixed, 20000, 11));
    std::mt19937 random(12);
    for (int round = 0; round < 3000; ++round) {
        ByteVector flipped = wrapper;
        // The length field has its own test; a flipped one would only make the naive reading slow.
        const std::size_t at = round < 200 ? 4 + static_cast<std::size_t>(round) : 4 + random() % (flipped.size() - 4);
        flipped[at] ^= static_cast<unsigned char>(1U << random() % 8);
        EXPECT_TRUE(Inflated(flipped, 1 + random() % 5000) == Unwrapped(flipped)) << "byte " << at;
    }
}

TEST(ZlibWrapperTest, AnEndlessStreamEndsAtTheBound)
{
    const ByteVector wrapper = WithLength(Wrapped(ByteVector(10000000), 1), 300000);
    EXPECT_TRUE(Inflated(wrapper) == ByteVector(303012));
}

constexpr std::size_t Asked = 1 << 17; // no piece is longer

// Whether a stream with a wrong checksum counts as whole where its first piece alone is asked for and so many bytes follow.
bool IsWholeBefore(std::size_t behind)
{
    ByteVector wrapper = Wrapped(Sample(Kind::Random, Asked + behind, 21), 1);
    wrapper.back() ^= 1;
    Pieces pieces(wrapper, 65536);
    return ReadWrapper(pieces, [](ByteSource& bytes) { EXPECT_LE(bytes.Next().size(), Asked); });
}

TEST(ZlibWrapperTest, AChecksumIsLookedForWithinOneMebibyteBehindWhatIsAskedFor)
{
    constexpr std::size_t most = 1 << 20;
    EXPECT_FALSE(IsWholeBefore(0));
    EXPECT_FALSE(IsWholeBefore(most - Asked));
    EXPECT_TRUE(IsWholeBefore(most + 200000));
}

TEST(ZlibWrapperTest, BytesBehindTheStreamDoNoHarm)
{
    const ByteVector bytes = Sample(Kind::Text, 3000, 9);
    ByteVector wrapper = Wrapped(bytes);
    const ByteVector more = Sample(Kind::Random, 100000, 10);
    wrapper.insert(wrapper.end(), more.begin(), more.end());
    EXPECT_TRUE(Inflated(wrapper) == bytes);
}

TEST(ZlibWrapperTest, NothingIsReadAheadOfWhatIsAskedFor)
{
    const ByteVector wrapper = Wrapped(Sample(Kind::Random, 3000000, 13), 1);
    Pieces pieces(wrapper, 4096);
    InflateStream stream(pieces);
    (void)stream.Next();
    EXPECT_LT(pieces.HandedOut(), 300000U);
}

TEST(ZlibWrapperTest, ASourceWithoutAByteToDecodeFailsWithNumber9)
{
    for (const std::string& text :
         {std::string(), std::string("a"), std::string("abc"), std::string("abcd"), std::string("abcde"),
          std::string("no zlib stream at all"), std::string("\x10\0\0\0\x78\xDA", 6),
          std::string("\x10\0\0\0\x78\xDA\x03\0\0\0\0\x01", 12), // a stream of nothing
          std::string("\x10\0\0\0\x78\xBB\0\0\0\1abc", 13)}) {   // a stream that wants a dictionary
        Pieces pieces(ByteVector(text.begin(), text.end()), 100);
        int number = 0;
        try {
            InflateStream stream(pieces);
            (void)stream.Next();
        } catch (const Failure& failed) {
            number = failed.Number;
        }
        EXPECT_EQ(number, failure::OutOfRange) << testing::PrintToString(text);
    }
}

} // namespace
} // namespace dravik
