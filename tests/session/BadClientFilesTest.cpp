// Every way in which a client file can be bad: each ends in its words, and leaves no half league and nothing beside the file.

#include "league/Failure.h"
#include "session/OpenLeagueClient.h"
#include "session/Session.h"
#include "support/BadFiles.h"
#include "support/LeagueImage.h"
#include "support/OpenedWindow.h"
#include "support/PeakMemory.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

const Box Integrity{box::Critical, "File Integrity is incorrect!"};

class BadClientFilesTest : public BadFiles {
protected:
    void Open()
    {
        Machine.ClearSeenBoxes();
        Machine.CloseWait();
        Machine.Settings.erase("LastLoadLeague");
        Window.Calls.clear();
        OpenLeagueClient(ClientPath, Window);
    }

    void OpenBytes(const ByteVector& file)
    {
        WriteWhole(ClientPath, file);
        Open();
    }

    // What an open leaves when it stops without having read anything.
    void ExpectNothingRead(const Box& box, const std::string& what)
    {
        EXPECT_THAT(Machine.Boxes(), ElementsAre(box)) << what;
        EXPECT_TRUE(FiveTablesAreEmpty()) << what;
        EXPECT_TRUE(ImageOf(LeagueData) == keptLeague) << what;
        EXPECT_TRUE(ImageOf(Coaches) == keptCoaches) << what;
        EXPECT_THAT(Window.Calls, IsEmpty()) << what;
        EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U) << what;
    }

    // Notes what must survive such an open, after making it differ from what the files of the test hold.
    void Keep()
    {
        LeagueData.Name = "As Before";
        Coaches[1].Name = "As Before";
        keptLeague = ImageOf(LeagueData);
        keptCoaches = ImageOf(Coaches);
    }

    // Opens the wrapper `file` and compares everything with a reading of it by hand.
    void ExpectAsByHand(const ByteVector& file, const std::string& what)
    {
        ByteVector slots = Unwrapped(file);
        const bool anything = !slots.empty();
        slots.resize(client_file::SlotCount * client_file::Slot);
        const auto holds = [&](std::size_t record, const std::string& bytes) {
            return std::memcmp(slots.data() + client_file::Offset(record), bytes.data(), bytes.size()) == 0;
        };
        const bool started = holds(1, std::string("\x26\0DRVK Client Files Version 1.12 - Start", 40));
        const bool ended = holds(16903, std::string("\x24\0DRVK Client Files Version 1.12 - End", 38));

        Keep();
        OpenBytes(file);
        if (!anything || !started) {
            ExpectNothingRead(anything ? Integrity : NotDecompressed, what);
            EXPECT_EQ(Machine.WaitShown, !anything) << what;
            return;
        }
        if (ended && Machine.Boxes().empty()) {
            EXPECT_EQ(Machine.Settings["LastLoadLeague"], ClientPath) << what;
            EXPECT_EQ(Window.Calls.size(), 7U) << what;
            EXPECT_EQ(std::memcmp(&Teams, slots.data() + client_file::Offset(303), 3470 * 100), 0) << what;
            EXPECT_EQ(std::memcmp(&Players[9999], slots.data() + client_file::Offset(10401), sizeof(Player)), 0)
                << what;
        } else if (ended) { // a date that a flipped bit made none
            EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in OpenLeagueClient!"})) << what;
            EXPECT_EQ(Players[0].Name.Trimmed(), "Unknown Player") << what;
        } else {
            EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity)) << what;
            EXPECT_TRUE(FiveTablesAreEmpty()) << what;
            EXPECT_EQ(std::memcmp(&LeagueData, slots.data() + client_file::Offset(2), sizeof LeagueData), 0) << what;
            EXPECT_EQ(std::memcmp(&Coaches[1], slots.data() + client_file::Offset(11403), sizeof(Coach)), 0) << what;
            EXPECT_THAT(Window.Calls, IsEmpty()) << what;
        }
        EXPECT_FALSE(Machine.WaitShown) << what;
    }

    OpenedWindow Window;

private:
    ByteVector keptLeague;
    ByteVector keptCoaches;
};

TEST_F(BadClientFilesTest, FilesWithoutAStreamEndInTheDecompressionMessage)
{
    Keep();
    const std::string files[] = {
        "",
        "a",
        "ab",
        "abc",
        "abcd",
        "abcde",
        std::string(100, '\0'),
        std::string(100000, '\xFF'),
        "no client file at all, but a text of some length",
    };
    for (const std::string& file : files) {
        OpenBytes(ByteVector(file.begin(), file.end()));
        ExpectNothingRead(NotDecompressed, "a file of " + std::to_string(file.size()));
        EXPECT_TRUE(Machine.WaitShown) << "the wait screen stays up";
    }
}

TEST_F(BadClientFilesTest, TheLengthFieldCanClaimWhatItWants)
{
    const ByteVector wrapper = Wrapped(ClientSlots(), 1);
    Keep();
    for (const std::int32_t length : {-2147483647 - 1, -1000000, -13, -12}) {
        OpenBytes(WithLength(wrapper, length));
        ExpectNothingRead(NotDecompressed, std::to_string(length));
    }
    for (const std::int32_t length : {-11, -1, 0, 1}) { // at most 13 bytes come
        OpenBytes(WithLength(wrapper, length));
        ExpectNothingRead(Integrity, std::to_string(length));
    }
    for (const std::int32_t length : {58069270, 58069280, 58649978, 2147483647}) {
        LeagueData.Name = "Before";
        OpenBytes(WithLength(wrapper, length));
        // 58069270 leaves room for 58649975 bytes and 58069280 for 58649985, of which the file takes 58649978.
        if (length == 58069270)
            EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity)) << length;
        else
            EXPECT_THAT(Machine.Boxes(), IsEmpty()) << length;
        EXPECT_EQ(LeagueData.Name.Trimmed(), "Small League") << length;
    }
}

TEST_F(BadClientFilesTest, EveryCutClientFileIsWholeOrEmpty)
{
    const ByteVector wrapper = Wrapped(ClientSlots(), 1);
    const std::size_t size = wrapper.size();
    ASSERT_GT(size, 131072U);
    for (const std::size_t length :
         {std::size_t{0},    std::size_t{4},     std::size_t{5},     std::size_t{6},     std::size_t{10},
          std::size_t{60},   std::size_t{100},   std::size_t{200},   std::size_t{300},   std::size_t{400},
          std::size_t{1000}, std::size_t{65535}, std::size_t{65536}, std::size_t{65537}, size / 2,
          size - 65536,      size - 100,         size - 20,          size - 10,          size - 6,
          size - 5,          size - 4,           size - 3,           size - 1,           size})
        ExpectAsByHand(Cut(wrapper, length), "cut to " + std::to_string(length) + " of " + std::to_string(size));
}

TEST_F(BadClientFilesTest, EveryFlippedClientFileIsWholeOrEmpty)
{
    const ByteVector wrapper = Wrapped(ClientSlots(), 1);
    std::mt19937 random(1);
    for (int round = 0; round < 60; ++round) {
        ByteVector flipped = wrapper;
        // The stream's head, the records of its first slots, and all of it.
        const std::size_t reach = round < 20 ? 64 : round < 40 ? 4000 : wrapper.size() - 4;
        const std::size_t at = 4 + random() % reach;
        flipped[at] ^= static_cast<unsigned char>(1U << random() % 8);
        ExpectAsByHand(flipped, "flipped byte " + std::to_string(at));
    }
}

TEST_F(BadClientFilesTest, APlainClientFileOpensOnlyWithBothMagics)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = ClientSlots();
    std::vector<std::size_t> lengths = {0, 1, 2, 39, 40, 41, 3470, 5000, 1000000, slots.size() - 3470};
    for (const std::size_t missing : {38U, 37U, 30U, 20U, 10U, 2U})
        lengths.push_back(slots.size() - missing);
    lengths.push_back(slots.size() - 1);
    // At the first and the last record of every table, and within them.
    for (const std::size_t record :
         {2U, 3U, 302U, 303U, 402U, 403U, 10402U, 10403U, 11402U, 11403U, 11902U, 11903U, 16902U, 16903U})
        for (const std::size_t more : {0U, 1U, 39U})
            if (record < 16903 || more < 38)
                lengths.push_back(client_file::Offset(record) + more);
    for (const std::size_t length : lengths) {
        WriteSparse(ClientPath, Cut(slots, length));
        Open();
        EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity)) << length;
        EXPECT_TRUE(FiveTablesAreEmpty()) << length;
        EXPECT_FALSE(Machine.WaitShown);
    }
    WriteSparse(ClientPath, slots);
    Open();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(BadClientFilesTest, EveryFlippedMagicIsRefused)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = ClientSlots();
    WriteSparse(ClientPath, slots);
    std::fstream file(ClientPath, std::ios::binary | std::ios::in | std::ios::out);
    const auto put = [&](std::size_t at, unsigned char byte) {
        file.seekp(static_cast<std::streamoff>(at));
        file.put(static_cast<char>(byte));
        file.flush();
    };
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < 40; ++i)
        places.push_back(i);
    for (std::size_t i = 0; i < 38; ++i)
        places.push_back(client_file::Offset(16903) + i);
    for (const std::size_t at : places) {
        put(at, slots[at] ^ 0x10U);
        Open();
        EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity)) << at;
        EXPECT_TRUE(FiveTablesAreEmpty()) << at;
        put(at, slots[at]);
    }
}

TEST_F(BadClientFilesTest, ADirectoryIsNoFile)
{
    fs::create_directory(ClientPath);
    Keep();
    Open();
    ExpectNothingRead({box::Critical, "75 - Path/File access error in Zlib Decompress!"}, "wrapped");
    EXPECT_TRUE(Machine.WaitShown);
    Machine.Settings["SkipZIPClient"] = "YES";
    Open();
    ExpectNothingRead({box::Critical, "75 - Path/File access error in OpenLeagueClient!"}, "plain");
    EXPECT_TRUE(Machine.WaitShown);
}

TEST_F(BadClientFilesTest, WithoutPermissionNothingIsRead)
{
    WriteWhole(ClientPath, {1});
    Keep();
    Machine.FailFileOperation(4, failure::PermissionDenied);
    Open();
    EXPECT_EQ(Machine.FileOperations().back(), "open");
    ExpectNothingRead({box::Critical, "70 - Permission denied in Zlib Decompress!"}, "wrapped");
    Machine.Settings["SkipZIPClient"] = "YES";
    Machine.FailFileOperation(4, failure::PermissionDenied);
    Open();
    ExpectNothingRead({box::Critical, "70 - Permission denied in OpenLeagueClient!"}, "plain");
    EXPECT_TRUE(Machine.WaitShown);
}

TEST_F(BadClientFilesTest, AWorkFileThatCannotBeDeletedStopsTheOpen)
{
    WriteWhole(ClientPath, Wrapped(ClientSlots(), 1));
    WriteWhole(TempFile, {1});
    Keep();
    Machine.FailFileOperation(3, failure::PermissionDenied);
    Open();
    EXPECT_EQ(Machine.FileOperations().back(), "delete");
    ExpectNothingRead({box::Critical, "70 - Permission denied in OpenLeagueClient!"}, "delete");
    EXPECT_FALSE(Machine.WaitShown) << "it was not up yet";
}

#ifdef __linux__

TEST_F(BadClientFilesTest, MemoryStaysSmallWhateverAFileClaims)
{
    WriteEndless(ClientPath);
    EXPECT_LT(PeakKiBOf([&] { Open(); }), 8192);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity));
    EXPECT_TRUE(FiveTablesAreEmpty());
}

#endif

} // namespace
} // namespace dravik
