// Bad bytes and cuts all over a slot file that is small enough for thousands of readings.

#include "files/SlotFile.h"
#include "session/Session.h"
#include "support/LeagueImage.h"
#include "support/SmallLeague.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <random>

namespace dravik {
namespace {

using ::testing::ElementsAre;

namespace fs = std::filesystem;

const Box NotDecompressed{box::Critical, "9 - Subscript out of range in Zlib Decompress!"};

class BadSlotFilesTest : public SmallLeague {
protected:
    BadSlotFilesTest()
    {
        TeamMaker(5).DressesFullRoster();
        TeamMaker(6).DressesFullRoster();
    }

    static ByteVector Cut(const ByteVector& bytes, std::size_t length)
    {
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)};
    }
};

TEST_F(BadSlotFilesTest, ThousandsOfFlipsOfASmallSlotFileReadAsByHand)
{
    const std::string path = Machine.InFolder("slots");
    const auto write = [](SlotWriter& slots) {
        slots.WriteMagic("Start");
        slots.Write(Teams[5]);
        slots.Write(Players[1]);
        slots.Write(Teams[6]);
        slots.WriteMagic("End");
    };
    ASSERT_TRUE(WriteSlotFile(SlotFilesOf(OpenFiles()), path, SlotFileLength(5, MagicLength("End")), write));
    const ByteVector wrapper = ReadWhole(path);
    std::mt19937 random(3);
    for (std::size_t round = 0; round < 4000; ++round) {
        ByteVector bad = wrapper;
        if (round < wrapper.size())
            bad.resize(round); // every cut
        else
            bad[4 + random() % (bad.size() - 4)] ^= static_cast<unsigned char>(1U << random() % 8);
        ByteVector came = Unwrapped(bad);
        const bool anything = !came.empty();
        came.resize(5 * SlotLength);

        WriteWhole(path, bad);
        Team first;
        Player player;
        Team second;
        const SlotFileRead read = ReadSlotFile(SlotFilesOf(OpenFiles()), path, [&](SlotReader& slots) {
            EXPECT_EQ(slots.ReadMagic("Start"), std::memcmp(came.data(), "\5\0Start", 7) == 0);
            slots.Read(first);
            slots.Read(player);
            slots.Read(second);
            EXPECT_EQ(slots.ReadMagic("End"), std::memcmp(came.data() + 4 * SlotLength, "\3\0End", 5) == 0);
        });
        ASSERT_EQ(read != SlotFileRead::NotDecompressed, anything) << round;
        EXPECT_EQ(Machine.TakeBoxes(), anything ? std::vector<Box>{} : std::vector{NotDecompressed}) << round;
        if (!anything)
            continue;
        EXPECT_EQ(std::memcmp(&first, came.data() + SlotLength, sizeof first), 0) << round;
        EXPECT_EQ(std::memcmp(&player, came.data() + 2 * SlotLength, sizeof player), 0) << round;
        EXPECT_EQ(std::memcmp(&second, came.data() + 3 * SlotLength, sizeof second), 0) << round;
    }
}

TEST_F(BadSlotFilesTest, EveryCutOfASmallPlainSlotFileReadsAsByHand)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const std::string path = Machine.InFolder("slots");
    Players[1].Salary = 123456;
    const auto write = [](SlotWriter& slots) {
        slots.WriteMagic("Start");
        slots.Write(Players[1]);
        slots.Write(Players[2]);
        slots.WriteMagic("End");
    };
    ASSERT_TRUE(WriteSlotFile(SlotFilesOf(OpenFiles()), path, SlotFileLength(4, MagicLength("End")), write));
    const ByteVector whole = ReadWhole(path);
    ASSERT_EQ(whole.size(), 3 * SlotLength + 5);
    for (std::size_t length = whole.size();; --length) {
        fs::resize_file(path, length);
        ByteVector came = Cut(whole, length);
        came.resize(whole.size());
        std::array<Player, 2> read;
        ASSERT_EQ(SlotFileRead::Whole, ReadSlotFile(SlotFilesOf(OpenFiles()), path, [&](SlotReader& slots) {
                      EXPECT_EQ(slots.ReadMagic("Start"), length >= 7);
                      for (std::size_t i = 0; i < read.size(); ++i)
                          EXPECT_EQ(slots.Read(read[i]), length >= (i + 1) * SlotLength + sizeof(Player)) << i;
                      EXPECT_EQ(slots.ReadMagic("End"), length == whole.size());
                  }));
        for (std::size_t i = 0; i < read.size(); ++i)
            ASSERT_EQ(std::memcmp(&read[i], came.data() + (i + 1) * SlotLength, sizeof(Player)), 0) << length;
        if (length == 0)
            break;
    }
}

} // namespace
} // namespace dravik
