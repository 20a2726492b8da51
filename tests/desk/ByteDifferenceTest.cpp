#include "desk/ByteDifference.h"

#include "support/RandomLeague.h"

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What the runs of a difference say, byte by byte: table, offset, before, after.
using ByteTold = std::tuple<DeskTable, std::size_t, int, int>;
std::vector<ByteTold> Told(const ByteDifference& difference)
{
    std::vector<ByteTold> told;
    RunReader reader(difference.Stored());
    while (const auto run = reader.Next())
        for (std::size_t i = 0; i < run->Before.size(); ++i)
            told.emplace_back(run->Table, run->Offset + i, run->Before[i], run->After[i]);
    return told;
}

std::vector<unsigned char> Written(const ByteDifference& difference)
{
    return {difference.Stored().begin(), difference.Stored().end()};
}

// A difference by hand.
ByteDifference Made(DeskTable table, std::size_t offset, const std::vector<unsigned char>& before,
                    const std::vector<unsigned char>& after)
{
    DifferenceWriter writer;
    writer.Add(table, offset, before, after);
    return writer.Finish();
}

// Some tables of a desk as plain bytes, and another state of them. Few places are hit, and often side by side.
using Desk = std::map<DeskTable, std::vector<unsigned char>>;
Desk RollDesk(Dice& dice)
{
    Desk desk;
    for (const DeskTable table : {DeskTable::League, DeskTable::Teams, DeskTable::Offers, DeskTable::Ranking})
        for (std::size_t i = 0; i < 400; ++i)
            desk[table].push_back(static_cast<unsigned char>(dice.Roll(0, 2)));
    return desk;
}
Desk Changed(Dice& dice, Desk desk)
{
    for (auto& [table, bytes] : desk)
        for (long long runs = dice.Roll(0, 6); runs > 0; --runs) {
            const auto start = static_cast<std::size_t>(dice.Roll(0, 399));
            const auto length = static_cast<std::size_t>(dice.Chance(20) ? dice.Roll(1, 200) : dice.Roll(1, 4));
            for (std::size_t i = start; i < std::min<std::size_t>(start + length, 400); ++i)
                bytes[i] = static_cast<unsigned char>(dice.Roll(0, 2));
        }
    return desk;
}
Desk ChangedOften(Dice& dice, Desk desk)
{
    for (int times = 1; times <= 10; ++times)
        desk = Changed(dice, std::move(desk));
    return desk;
}
ByteDifference Between(const Desk& before, const Desk& after)
{
    DifferenceWriter writer;
    for (const auto& [table, bytes] : before)
        AddDifference(writer, table, bytes.data(), after.at(table).data(), bytes.size());
    return writer.Finish();
}
std::vector<ByteTold> NaivelyBetween(const Desk& before, const Desk& after)
{
    std::vector<ByteTold> told;
    for (const auto& [table, bytes] : before)
        for (std::size_t i = 0; i < bytes.size(); ++i)
            if (bytes[i] != after.at(table)[i])
                told.emplace_back(table, i, bytes[i], after.at(table)[i]);
    return told;
}

TEST(ByteDifferenceTest, EqualStatesDifferInNothing)
{
    Dice dice(1);
    const Desk desk = RollDesk(dice);
    EXPECT_TRUE(Between(desk, desk).IsEmpty());
    EXPECT_THAT(Written(Between(desk, desk)), IsEmpty());
}

TEST(ByteDifferenceTest, TheTablesOfALeagueAreThoseThatLieInItAndLeaveNothingOut)
{
    const auto league = MakeTables();
    const DeskContents desk{*league};
    const unsigned char* next = FirstByteOf(desk, DeskTable::League);
    EXPECT_EQ(static_cast<const void*>(next), league.get());
    for (const DeskTable table : LeagueTables) {
        EXPECT_EQ(FirstByteOf(desk, table), next) << static_cast<int>(table);
        next += SizeOf(table);
    }
    EXPECT_EQ(next, FirstByteOf(desk, DeskTable::League) + sizeof(Tables));
}

TEST(ByteDifferenceTest, TheTablesOfAMarketAreThereWithIt)
{
    const auto league = MakeTables();
    const auto market = MakeMarket();
    const DeskContents with{*league, market.get()};
    EXPECT_EQ(static_cast<void*>(FirstByteOf(with, DeskTable::Offers)), &market->Offers);
    EXPECT_EQ(static_cast<void*>(FirstByteOf(with, DeskTable::Ranking)), &market->Ranking);
    EXPECT_EQ(SizeOf(DeskTable::Offers) + SizeOf(DeskTable::Ranking), sizeof(Market));
    EXPECT_EQ(FirstByteOf({*league}, DeskTable::Offers), nullptr);
    EXPECT_EQ(FirstByteOf({*league}, DeskTable::Ranking), nullptr);
}

TEST(ByteDifferenceTest, NoTableHasAnotherNumber)
{
    const auto league = MakeTables();
    for (const int number : {0, 12, 255}) {
        EXPECT_EQ(SizeOf(static_cast<DeskTable>(number)), 0U);
        EXPECT_EQ(FirstByteOf({*league}, static_cast<DeskTable>(number)), nullptr);
    }
}

TEST(ByteDifferenceTest, IsWrittenAsItsFormSays)
{
    DifferenceWriter writer;
    writer.Add(DeskTable::Teams, 3, std::vector<unsigned char>{7, 7, 8}, std::vector<unsigned char>{9, 7, 10});
    writer.Add(DeskTable::Players, 20, std::vector<unsigned char>{1}, std::vector<unsigned char>{2});
    EXPECT_THAT(Written(writer.Finish()),
                ElementsAre(2, 0x31, 7, 9, 0x11, 8, 10, 0, // teams: behind three one differs, and behind one another
                            3, 0xF1, 5, 1, 2, 0));         // players: behind twenty, which is five more than fifteen
}

TEST(ByteDifferenceTest, NumbersOfFifteenAndMoreStandBehindTheFirstByte)
{
    const std::vector<unsigned char> before(15 + 128, 0);
    const std::vector<unsigned char> after(15 + 128, 1);
    const auto bytes = Written(Made(DeskTable::Offers, 15 + 3 * 128 + 4, before, after));
    EXPECT_THAT(std::vector<unsigned char>(bytes.begin(), bytes.begin() + 7),
                ElementsAre(10, 0xFF, 0x80 | 4, 3, 0x80, 1, 0));
    EXPECT_EQ(bytes.size(), 6 + 2 * before.size() + 1);
}

TEST(ByteDifferenceTest, RunsThatTouchAreOne)
{
    DifferenceWriter writer;
    writer.Add(DeskTable::Teams, 0, std::vector<unsigned char>{1}, std::vector<unsigned char>{2});
    writer.Add(DeskTable::Teams, 1, std::vector<unsigned char>{3}, std::vector<unsigned char>{4});
    EXPECT_THAT(Written(writer.Finish()), ElementsAre(2, 0x02, 1, 3, 2, 4, 0));
}

TEST(ByteDifferenceTest, RunsThatLieAlikeShareOneHead)
{
    const auto everyThird = [](std::size_t runs) {
        std::vector<unsigned char> after(3 * runs, 0);
        for (std::size_t run = 0; run < runs; ++run)
            after[3 * run + 2] = 7;
        return Written(Made(DeskTable::Players, 0, std::vector<unsigned char>(after.size(), 0), after));
    };
    EXPECT_THAT(everyThird(2), ElementsAre(3, 0x21, 0, 7, 0x21, 0, 7, 0));
    EXPECT_THAT(everyThird(3), ElementsAre(3, 0x21, 0, 7, 0x10, 2, 0, 7, 0, 7, 0));
    EXPECT_EQ(everyThird(10000).size(), 2 * 10000U + 6);
}

TEST(ByteDifferenceTest, RandomStatesDifferAsANaiveComparisonTells)
{
    for (unsigned seed = 1; seed <= 500; ++seed) {
        Dice dice(seed);
        const Desk before = RollDesk(dice);
        const Desk after = Changed(dice, before);
        ASSERT_EQ(Told(Between(before, after)), NaivelyBetween(before, after)) << seed;
    }
}

TEST(ByteDifferenceTest, OneAndThenAnotherIsTheDifferenceOfTheFirstStateToTheLast)
{
    int gone = 0;
    for (unsigned seed = 1; seed <= 500; ++seed) {
        Dice dice(seed);
        const Desk first = RollDesk(dice);
        const Desk second = Changed(dice, first);
        const Desk third = dice.Chance(10) ? first : Changed(dice, second);
        const ByteDifference both = Then(Between(first, second), Between(second, third));
        ASSERT_EQ(Written(both), Written(Between(first, third))) << seed;
        gone += both.IsEmpty() ? 1 : 0;
    }
    EXPECT_GT(gone, 10);
}

TEST(ByteDifferenceTest, ComesBackFromWhatWasStored)
{
    for (unsigned seed = 1; seed <= 200; ++seed) {
        Dice dice(seed);
        const Desk before = RollDesk(dice);
        const ByteDifference difference = Between(before, Changed(dice, before));
        const auto read = ByteDifference::FromStored(difference.Stored());
        ASSERT_TRUE(read.has_value()) << seed;
        ASSERT_EQ(Written(*read), Written(difference)) << seed;
    }
    EXPECT_TRUE(ByteDifference::FromStored({})->IsEmpty());
}

TEST(ByteDifferenceTest, ACutDifferenceIsNone)
{
    Dice dice(7);
    const Desk before = RollDesk(dice);
    const auto whole = Written(Between(before, ChangedOften(dice, before)));
    ASSERT_GT(whole.size(), 100U);
    // Behind a whole table a cut cannot be told; what is left is the difference of the tables before it.
    std::size_t readable = 0;
    for (std::size_t length = 1; length < whole.size(); ++length) {
        const auto read = ByteDifference::FromStored(Bytes(whole).first(length));
        readable += read ? 1 : 0;
        if (read) {
            ASSERT_EQ(Written(*read), std::vector<unsigned char>(whole.begin(), whole.begin() + length));
        }
    }
    EXPECT_LE(readable, 3U);
}

TEST(ByteDifferenceTest, AFlippedBitMakesNoDifferenceThatLeavesItsTables)
{
    Dice dice(8);
    const Desk before = RollDesk(dice);
    const auto whole = Written(Between(before, ChangedOften(dice, before)));
    int refused = 0;
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        auto flipped = whole;
        flipped[bit / 8] ^= static_cast<unsigned char>(1U << bit % 8);
        const auto read = ByteDifference::FromStored(flipped);
        refused += read ? 0 : 1;
        if (!read)
            continue;
        ASSERT_EQ(Written(*read), flipped) << bit;
        RunReader reader(read->Stored());
        while (const auto run = reader.Next())
            ASSERT_LE(run->Offset + run->Before.size(), SizeOf(run->Table)) << bit;
    }
    EXPECT_GT(refused, 100);
}

TEST(ByteDifferenceTest, WhatIsWrittenInAnyOtherFormIsNone)
{
    using Stored = std::vector<unsigned char>;
    const auto isRead = [](const Stored& stored) { return ByteDifference::FromStored(stored).has_value(); };
    EXPECT_TRUE(isRead({2, 0x01, 1, 2, 0}));
    EXPECT_FALSE(isRead({2, 0}));                         // a table without a run
    EXPECT_FALSE(isRead({0}));                            // no table
    EXPECT_FALSE(isRead({12, 0x01, 1, 2, 0}));            // a table that nobody has
    EXPECT_FALSE(isRead({2, 0x01, 1, 1, 0}));             // bytes that do not differ
    EXPECT_FALSE(isRead({2, 0x01, 1, 2, 0x01, 1, 2, 0})); // two runs that touch
    EXPECT_TRUE(isRead({2, 0x21, 1, 2, 0x10, 2, 1, 2, 1, 2, 0}));
    EXPECT_FALSE(isRead({2, 0x10, 2, 1, 2, 1, 2, 0}));                         // nothing before that is repeated
    EXPECT_FALSE(isRead({2, 0x21, 1, 2, 0x10, 1, 1, 2, 0}));                   // repeated once, which has another form
    EXPECT_FALSE(isRead({2, 0x21, 1, 2, 0x10, 0, 0}));                         // repeated never
    EXPECT_FALSE(isRead({2, 0x21, 1, 2, 0x21, 1, 2, 0x21, 1, 2, 0}));          // not repeated
    EXPECT_FALSE(isRead({2, 0x21, 1, 2, 0x10, 2, 1, 2, 1, 2, 0x21, 1, 2, 0})); // more than it says
    EXPECT_FALSE(isRead({2, 0x21, 1, 2, 0x10, 3, 1, 2, 1, 2, 0}));             // fewer
    EXPECT_FALSE(isRead({2, 0x20, 0x01, 1, 2, 0}));                            // a run without bytes
    EXPECT_FALSE(isRead({3, 0x01, 1, 2, 0, 2, 0x01, 1, 2, 0}));                // tables out of order
    EXPECT_FALSE(isRead({2, 0x01, 1, 2, 0, 2, 0x31, 1, 2, 0}));                // a table twice
    EXPECT_FALSE(isRead({2, 0xF1, 0x80, 0x00, 1, 2, 0}));                      // a number in more bytes than it needs
    EXPECT_FALSE(isRead({2, 0xF1, 0x80, 0x80, 0x80, 0x80, 0x80, 0, 1, 2, 0}));
    EXPECT_FALSE(isRead({11, 0xF1, 0xFF, 0x7F, 1, 2, 0})); // beyond the ranking
    EXPECT_FALSE(isRead({2, 0x0F, 0xFF, 0xFF, 0xFF, 0x7F, 1}));
}

TEST(ByteDifferenceTest, StandsOnTheDeskAtOneEndOfIt)
{
    const auto league = MakeTables();
    const auto market = MakeMarket();
    const DeskContents desk{*league, market.get()};
    DifferenceWriter writer;
    writer.Add(DeskTable::Players, 100, std::vector<unsigned char>{0, 0}, std::vector<unsigned char>{5, 6});
    writer.Add(DeskTable::Ranking, 2, std::vector<unsigned char>{0}, std::vector<unsigned char>{9});
    const ByteDifference difference = writer.Finish();
    EXPECT_TRUE(IsAt(desk, difference, DifferenceEnd::Before));
    EXPECT_FALSE(IsAt(desk, difference, DifferenceEnd::After));
    Put(desk, difference, DifferenceEnd::After);
    EXPECT_TRUE(IsAt(desk, difference, DifferenceEnd::After));
    EXPECT_EQ(FirstByteOf(desk, DeskTable::Players)[101], 6);
    EXPECT_EQ(market->Ranking[1], 9);
    market->Ranking[1] = 8;
    EXPECT_FALSE(IsAt(desk, difference, DifferenceEnd::After));
    market->Ranking[1] = 9;
    Put(desk, difference, DifferenceEnd::Before);
    EXPECT_TRUE(IsAt(desk, difference, DifferenceEnd::Before));
    EXPECT_FALSE(IsAt({*league}, difference, DifferenceEnd::Before)) << "without a market it is at neither end";
}

TEST(ByteDifferenceTest, ReversedIsTheWayBack)
{
    Dice dice(21);
    for (int turn = 0; turn < 200; ++turn) {
        const Desk desk = RollDesk(dice);
        const Desk other = ChangedOften(dice, desk);
        EXPECT_EQ(Written(Reversed(Between(desk, other))), Written(Between(other, desk)));
    }
}

TEST(ByteDifferenceTest, WithoutSomeBytesOfEveryRecordTheOthersAreLeft)
{
    Dice dice(22);
    for (int turn = 0; turn < 500; ++turn) {
        const Desk desk = RollDesk(dice);
        const ByteDifference difference = Between(desk, ChangedOften(dice, desk));
        const auto record = static_cast<std::size_t>(dice.Roll(1, 60));
        const auto first = static_cast<std::size_t>(dice.Roll(0, static_cast<long long>(record) - 1));
        const auto length = static_cast<std::size_t>(dice.Roll(0, static_cast<long long>(record - first)));
        std::vector<ByteTold> left = Told(difference);
        std::erase_if(left, [&](const ByteTold& told) {
            const std::size_t place = std::get<1>(told) % record;
            return std::get<0>(told) == DeskTable::Teams && place >= first && place < first + length;
        });
        EXPECT_EQ(
            Told(Without(difference, {.Table = DeskTable::Teams, .Record = record, .First = first, .Length = length})),
            left)
            << record << ' ' << first << ' ' << length;
    }
}

TEST(ByteDifferenceTest, WithinSomeTablesTheirBytesAreLeft)
{
    Dice dice(23);
    const Desk desk = RollDesk(dice);
    const ByteDifference difference = Between(desk, ChangedOften(dice, desk));
    std::vector<ByteTold> left = Told(difference);
    std::erase_if(left, [](const ByteTold& told) {
        return std::get<0>(told) < DeskTable::Teams || std::get<0>(told) > DeskTable::Offers;
    });
    EXPECT_FALSE(left.empty());
    EXPECT_EQ(Told(Within(difference, DeskTable::Teams, DeskTable::Offers)), left);
    EXPECT_TRUE(Within(difference, DeskTable::Players, DeskTable::Schedule).IsEmpty());
}

} // namespace
} // namespace dravik
