#include "files/BlockHead.h"

#include "support/DeflateBits.h"
#include "support/SampleBytes.h"

#include <gtest/gtest.h>
#include <vector>

namespace dravik {
namespace {

BlockHead Look(const DeflateBits& bits) { return LookAtBlockHead(bits.Stream(), 0); }

// The head of a block with codes of its own. `lengths` are those of literals and distances, 0 to 15, each written for itself
// by a code of 4 bits; codes above that are left out.
DeflateBits OwnCodes(const std::vector<unsigned>& literals, const std::vector<unsigned>& distances)
{
    DeflateBits bits;
    bits.Put(1, 1).Put(2, 2);
    bits.Put(static_cast<unsigned>(literals.size()) - 257, 5).Put(static_cast<unsigned>(distances.size()) - 1, 5);
    bits.Put(15, 4);
    for (int i = 0; i < 19; ++i)
        bits.Put(i < 3 ? 0 : 4, 3); // 16, 17 and 18 come first
    for (const auto& lengths : {literals, distances})
        for (const unsigned length : lengths)
            for (unsigned bit = 4; bit-- > 0;)
                bits.Put(length >> bit & 1U, 1);
    return bits;
}

// 257 lengths of which the first and the last are as told.
std::vector<unsigned> Literals(unsigned first, unsigned last)
{
    std::vector<unsigned> lengths(257);
    lengths.front() = first;
    lengths.back() = last;
    return lengths;
}

TEST(BlockHeadTest, StoredBlocksAreUsualWhenBothLengthsAgree)
{
    DeflateBits agreeing;
    agreeing.Put(1, 3).Put(0, 5).Put(1000, 16).Put(0xFFFF - 1000, 16);
    EXPECT_EQ(Look(agreeing), BlockHead::Usual);
    DeflateBits other;
    other.Put(1, 3).Put(0, 5).Put(1000, 16).Put(1000, 16);
    EXPECT_EQ(Look(other), BlockHead::Odd);
}

TEST(BlockHeadTest, BlocksWithTheFixedCodesAreUsualAndTheFourthKindIsOdd)
{
    EXPECT_EQ(Look(DeflateBits().FixedBlock(true)), BlockHead::Usual);
    EXPECT_EQ(Look(DeflateBits().Put(1, 1).Put(3, 2)), BlockHead::Odd);
}

TEST(BlockHeadTest, OwnCodesAreUsualWhenTheyAreComplete)
{
    EXPECT_EQ(Look(OwnCodes(Literals(1, 1), {1, 1})), BlockHead::Usual);
    EXPECT_EQ(Look(OwnCodes(Literals(1, 2), {1, 1})), BlockHead::Odd) << "literals incomplete";
    EXPECT_EQ(Look(OwnCodes(Literals(1, 1), {1, 2})), BlockHead::Odd) << "distances incomplete";
    EXPECT_EQ(Look(OwnCodes(Literals(1, 1), {1})), BlockHead::Odd) << "one distance";
    EXPECT_EQ(Look(OwnCodes(Literals(1, 1), {0})), BlockHead::Odd) << "no distance";
    EXPECT_EQ(Look(OwnCodes(Literals(1, 1), {1, 1, 1})), BlockHead::Odd) << "distances with two meanings";
    std::vector<unsigned> three = Literals(1, 1);
    three[7] = 1;
    EXPECT_EQ(Look(OwnCodes(three, {1, 1})), BlockHead::Odd) << "literals with two meanings";
    std::vector<unsigned> endless = Literals(1, 0);
    endless[7] = 1;
    EXPECT_EQ(Look(OwnCodes(endless, {1, 1})), BlockHead::Odd) << "no end of the block";
}

TEST(BlockHeadTest, MoreSymbolsThanThereAreAreOdd)
{
    std::vector<unsigned> literals = Literals(1, 1);
    literals.resize(286);
    std::vector<unsigned> distances(30);
    distances[0] = distances[29] = 1;
    EXPECT_EQ(Look(OwnCodes(literals, distances)), BlockHead::Usual);
    distances.push_back(0);
    EXPECT_EQ(Look(OwnCodes(literals, distances)), BlockHead::Odd);
    distances.pop_back();
    literals.push_back(0);
    EXPECT_EQ(Look(OwnCodes(literals, distances)), BlockHead::Odd);
}

TEST(BlockHeadTest, RepeatsWithoutABeginningOrBeyondTheEndAreOdd)
{
    const auto withLengths = [](unsigned repeat) {
        DeflateBits bits;
        bits.Put(1, 1).Put(2, 2).Put(0, 5).Put(0, 5).Put(15, 4);
        // The order is 16, 17, 18, 0 and so on: two codes of one bit, that of length 0 before that of the repeat.
        for (unsigned i = 0; i < 19; ++i)
            bits.Put(i == 3 || i == repeat ? 1 : 0, 3);
        return bits;
    };
    EXPECT_EQ(Look(withLengths(0).Put(1, 1).Put(0, 2)), BlockHead::Odd) << "nothing before it";
    DeflateBits beyond = withLengths(2);
    for (int i = 0; i < 2; ++i)
        beyond.Put(1, 1).Put(127, 7);
    EXPECT_EQ(Look(beyond), BlockHead::Odd) << "276 of 258";
}

TEST(BlockHeadTest, EveryCutHeadIsCutAtEveryBit)
{
    const ByteVector wrapper = Wrapped(Sample(Kind::Text, 30000, 4));
    const Bytes stream = Bytes(wrapper).subspan(6);
    ASSERT_EQ(LookAtBlockHead(stream, 0), BlockHead::Usual);
    std::size_t size = 0;
    while (LookAtBlockHead(stream.first(size), 0) == BlockHead::Cut)
        ++size;
    EXPECT_GT(size, 20U);
    EXPECT_EQ(LookAtBlockHead(stream.first(size), 0), BlockHead::Usual);
    for (unsigned bit = 1; bit < 8; ++bit) {
        DeflateBits shifted;
        shifted.Put(0, bit);
        for (const unsigned char byte : stream.first(size))
            shifted.Put(byte, 8);
        EXPECT_EQ(LookAtBlockHead(shifted.Stream(), bit), BlockHead::Usual) << bit;
    }
}

} // namespace
} // namespace dravik
