#include "machine/Digest.h"

#include "support/FailingAllocation.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <array>
#include <numeric>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DigestTest : public ::testing::Test {
protected:
    DigestTest() { UseMachine(Machine); }

    ScriptedPlatform Machine;
};

TEST_F(DigestTest, TheDigestOfAHasACapitalCInItsFirstPairOnly)
{
    EXPECT_EQ(DigestStrToHexStr("a"), "0Cc175b9c0f1b6a831c399e269772661");
}

TEST_F(DigestTest, TheDigestOfTheEmptyTextShowsNoCapital)
{
    EXPECT_EQ(DigestStrToHexStr(""), "d41d8cd98f00b204e9800998ecf8427e");
}

TEST_F(DigestTest, TheDigestHashesTheBytesOfTheCodePageWithoutTheSpareElement)
{
    class Noting : public ScriptedPlatform {
    public:
        std::array<std::uint8_t, 16> Md5(std::string_view bytes) override
        {
            Seen = bytes;
            return {};
        }
        std::string Seen;
    } machine;
    UseMachine(machine);
    using namespace std::string_literals;
    EXPECT_EQ(DigestStrToHexStr("\xE9t\0\xFF"s), std::string(32, '0'));
    EXPECT_EQ(machine.Seen, "\xE9t\0\xFF"s);
}

TEST_F(DigestTest, TheArrayHasOneElementMoreThanTheTextAndItIs0)
{
    EXPECT_THAT(StringToArray(Machine, "A\xE9"), ElementsAre(0x41, 0xE9, 0));
    EXPECT_THAT(StringToArray(Machine, ""), ElementsAre(0));
}

TEST_F(DigestTest, EveryByteBelow16HasAnUpperCaseDigitAndEveryOtherALowerCasePair)
{
    std::array<std::uint8_t, 16> low{};
    std::iota(low.begin(), low.end(), std::uint8_t{0});
    EXPECT_EQ(DigestToString(Machine, low), "000102030405060708090A0B0C0D0E0F");
    EXPECT_EQ(DigestToString(Machine, {0x10, 0x1A, 0x1F, 0x9F, 0xA0, 0xAC, 0xAF, 0xBE, 0xCD, 0xDE, 0xEF, 0xF0, 0xFA,
                                       0xFC, 0xFE, 0xFF}),
              "101a1f9fa0acafbecddeeff0fafcfeff");
}

TEST_F(DigestTest, AFailingDigestIsToldAndLeavesTheEmptyText)
{
    class Refusing : public ScriptedPlatform {
    public:
        std::array<std::uint8_t, 16> Md5(std::string_view /*bytes*/) override { Fail(failure::PermissionDenied); }
    } machine;
    UseMachine(machine);
    EXPECT_EQ(DigestStrToHexStr("a"), "");
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{16, "70 - Permission denied in Digest Str To HexStr Function!"}));
}

TEST_F(DigestTest, AnArrayThatDoesNotFitMemoryIsToldAndEmpty)
{
    const FailingAllocation first(1);
    EXPECT_THAT(StringToArray(Machine, "a"), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "7 - Out of memory in String To Array Function!"}));
}

TEST_F(DigestTest, ADigestTextThatDoesNotFitMemoryIsToldAndEmpty)
{
    const FailingAllocation first(1);
    EXPECT_EQ(DigestToString(Machine, {}), "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "7 - Out of memory in Digest To String Function!"}));
}

TEST_F(DigestTest, ATextThatFindsNoArrayHasNoDigest)
{
    for (const char* text : {"a", ""}) {
        const FailingAllocation first(1);
        EXPECT_EQ(DigestStrToHexStr(text), "") << text;
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{16, "7 - Out of memory in String To Array Function!"},
                                Box{16, "9 - Subscript out of range in Digest Str To HexStr Function!"}))
            << text;
    }
}

TEST_F(DigestTest, WhicheverAllocationFailsTheTextIsEmptyAndTheFailureTold)
{
    std::set<std::string> told;
    for (std::size_t n = 1;; ++n) {
        std::string text;
        bool failed = false;
        {
            const FailingAllocation nth(n);
            text = DigestStrToHexStr("a");
            failed = FailingAllocation::Failed();
        }
        const std::vector<Box> boxes = Machine.TakeBoxes();
        if (!failed) {
            EXPECT_EQ(text, "0Cc175b9c0f1b6a831c399e269772661");
            EXPECT_THAT(boxes, IsEmpty());
            break;
        }
        EXPECT_EQ(text, "");
        ASSERT_FALSE(boxes.empty());
        told.insert(boxes.front().Text);
    }
    EXPECT_THAT(told, ElementsAre("7 - Out of memory in Digest Str To HexStr Function!",
                                  "7 - Out of memory in Digest To String Function!",
                                  "7 - Out of memory in String To Array Function!"));
}

} // namespace
} // namespace dravik
