// Every way in which a lines file can be bad: what came of it is taken over, and nobody else is touched.

#include "files/WrapFile.h"
#include "league/Failure.h"
#include "support/BadFiles.h"
#include "support/LeagueImage.h"
#include "support/PeakMemory.h"
#include "support/Routines.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <random>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class BadLinesFilesTest : public BadFiles {
protected:
    [[nodiscard]] std::set<std::string> FilesLeft() const
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(Machine.Folder()))
            names.insert(entry.path().filename().string());
        return names;
    }

    // The number of the failure that `work` ends in; 0 when it ends in none.
    static int NumberOf(const std::function<void()>& work)
    {
        try {
            work();
        } catch (const Failure& failed) {
            return failed.Number;
        }
        return 0;
    }

    // The tables that a lines file can change.
    static ByteVector LinesTables()
    {
        ByteVector all;
        for (const ByteVector& bytes :
             {ImageOf(Teams), ImageOf(Players), ImageOf(Goalies), ImageOf(RosterChanges), ImageOf(RosterChangesGoalie)})
            all.insert(all.end(), bytes.begin(), bytes.end());
        return all;
    }

    // Loads the lines file `file`, which gives the bytes `came` of the whole `slots`.
    void ExpectTakesOverWhatIsInIt(const ByteVector& file, const ByteVector& came, const ByteVector& slots)
    {
        SCOPED_TRACE(file.size());
        const bool nothing = came.empty() && Machine.Settings["SkipZIPClient"] != "YES";
        Teams[5].Cash = 77;
        RosterChanges[10000].Protected = true;
        RosterChangesGoalie[1000].Protected = true;
        const ByteVector before = LinesTables();
        WriteSparse(LinesPath, file);
        const TeamFileRead result = ReadLinesFile(LinesPath);
        EXPECT_EQ(result == TeamFileRead::NotDecompressed, nothing);
        EXPECT_EQ(Machine.TakeBoxes(), nothing ? std::vector{NotDecompressed} : std::vector<Box>{});
        // More can come than is in the file: the zeros behind a cut stream decode to something too.
        const bool whole = came.size() >= slots.size() &&
                           std::equal(slots.end() - 39, slots.end(), came.begin() + (slots.end() - slots.begin()) - 39);
        EXPECT_EQ(result == TeamFileRead::Loaded, whole);
        const auto has = [&](std::size_t record, std::size_t length) {
            return came.size() >= client_file::Offset(record) + length;
        };
        EXPECT_EQ(Teams[5].Cash, has(4, sizeof(Team)) ? 0 : 77);
        EXPECT_NE(static_cast<bool>(RosterChanges[10000].Protected), has(10004, sizeof(RosterChange)));
        EXPECT_NE(static_cast<bool>(RosterChangesGoalie[1000].Protected), has(11004, sizeof(RosterChange)));
        if (!has(4, sizeof(Team))) {
            EXPECT_TRUE(LinesTables() == before);
        }
    }
};

TEST_F(BadLinesFilesTest, ADirectoryIsNoLinesFile)
{
    fs::create_directory(LinesPath);
    const ByteVector before = LinesTables();
    EXPECT_EQ(ReadLinesFile(LinesPath), TeamFileRead::NotDecompressed);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Critical, "75 - Path/File access error in Zlib Decompress!"}));
    Machine.Settings["SkipZIPClient"] = "YES";
    EXPECT_EQ(NumberOf([&] { (void)ReadLinesFile(LinesPath); }), failure::PathAccess);
    EXPECT_THAT(Machine.Boxes(), IsEmpty()) << "the screen tells it";
    EXPECT_TRUE(LinesTables() == before);
}

TEST_F(BadLinesFilesTest, ADirectoryAtTheTargetOfASaveStays)
{
    fs::create_directory(LinesPath);
    const Box told{box::Critical, "75 - Path/File access error in Zlib Compress!"};
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        const int thrown = NumberOf([&] { EXPECT_FALSE(WriteLinesFile(5, LinesPath)); });
        EXPECT_EQ(thrown, plain ? failure::PathAccess : 0) << "the screen tells it";
        EXPECT_EQ(Machine.TakeBoxes(), plain ? std::vector<Box>{} : std::vector{told});
        EXPECT_TRUE(fs::is_directory(LinesPath));
        EXPECT_THAT(FilesLeft(), ElementsAre("Team5.dvl"));
    }
}

TEST_F(BadLinesFilesTest, EveryCutLinesFileTakesOverWhatIsInIt)
{
    const ByteVector slots = LinesSlots(5);
    const ByteVector wrapper = Wrapped(slots, 1);
    const std::size_t size = wrapper.size();
    std::vector<std::size_t> lengths = {0, 3, 4, 5, 6, 7, 20, 50, 70, 100, 150, 1000, 65536, size / 2};
    for (const std::size_t missing : {300U, 100U, 60U, 20U, 12U, 9U, 7U, 6U, 5U, 4U, 3U, 2U, 1U, 0U})
        lengths.push_back(size - missing);
    for (const std::size_t length : lengths)
        ExpectTakesOverWhatIsInIt(Cut(wrapper, length), Unwrapped(Cut(wrapper, length)), slots);
}

TEST_F(BadLinesFilesTest, EveryCutPlainLinesFileTakesOverWhatIsInIt)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = LinesSlots(5);
    std::vector<std::size_t> lengths = {0, 1, 2, 40, 41, slots.size() - 1, slots.size()};
    for (const std::size_t record : {2U, 3U, 4U, 5U, 6U, 10004U, 10005U, 11004U, 11005U})
        for (const std::size_t more : {0U, 1U, 2U, 4U, 5U})
            lengths.push_back(client_file::Offset(record) + more);
    lengths.push_back(client_file::Offset(5) - 1);
    for (const std::size_t length : lengths)
        ExpectTakesOverWhatIsInIt(Cut(slots, length), Cut(slots, length), slots);
}

TEST_F(BadLinesFilesTest, AFlippedLinesFileNeverTouchesPeopleOfOtherTeamsAndNeverSetsAStrangeStatus)
{
    const ByteVector wrapper = Wrapped(LinesSlots(5), 1);
    std::mt19937 random(2);
    for (int round = 0; round < 80; ++round) {
        ByteVector flipped = wrapper;
        const std::size_t reach = round < 30 ? 200 : wrapper.size() - 4;
        const std::size_t at = 4 + random() % reach;
        flipped[at] ^= static_cast<unsigned char>(1U << random() % 8);
        WriteWhole(LinesPath, flipped);
        const ByteVector skater = ImageOf(Players[50]);
        ASSERT_EQ(Players[50].Team, 6);
        const ByteVector team = ImageOf(Teams[6]);
        const TeamFileRead result = ReadLinesFile(LinesPath);
        const bool nothing = Unwrapped(flipped).empty();
        EXPECT_EQ(result == TeamFileRead::NotDecompressed, nothing) << at;
        EXPECT_EQ(Machine.TakeBoxes(), nothing ? std::vector{NotDecompressed} : std::vector<Box>{}) << at;
        EXPECT_TRUE(ImageOf(Players[50]) == skater) << at;
        EXPECT_TRUE(ImageOf(Teams[6]) == team) << at;
        EXPECT_TRUE(std::all_of(Players.begin(), Players.end(), [](const Player& p) { return p.Status <= 2; })) << at;
        EXPECT_TRUE(std::all_of(Goalies.begin(), Goalies.end(), [](const Goalie& g) { return g.Status <= 2; })) << at;
    }
}

TEST_F(BadLinesFilesTest, ADamagedLinesFileLoadsWithoutAWord)
{
    const ByteVector slots = LinesSlots(5);
    const ByteVector wrapper = Wrapped(slots, 1);
    for (const ByteVector& file : {WithWrongChecksum(wrapper), ByteVector(wrapper.begin(), wrapper.end() - 4)}) {
        WriteWhole(LinesPath, file);
        Teams[5].Cash = 77;
        EXPECT_EQ(ReadLinesFile(LinesPath), TeamFileRead::Loaded);
        EXPECT_EQ(Teams[5].Cash, 0);
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
    }
}

TEST_F(BadLinesFilesTest, AGoodLinesFileIsReadOnce)
{
    WriteWhole(LinesPath, Wrapped(LinesSlots(5), 9));
    EXPECT_EQ(ReadLinesFile(LinesPath), TeamFileRead::Loaded);
    const auto operations = Machine.FileOperations();
    EXPECT_EQ(std::count(operations.begin(), operations.end(), "open"), 1);
}

#ifdef __linux__

TEST_F(BadLinesFilesTest, MemoryStaysSmallWhateverAFileClaims)
{
    const std::string path = Machine.InFolder("Endless");
    WriteEndless(path);
    EXPECT_LT(PeakKiBOf([&] { EXPECT_EQ(ReadLinesFile(path), TeamFileRead::Refused); }), 8192);
    EXPECT_LT(PeakKiBOf([&] { EXPECT_TRUE(ZlibDecompress(Machine, Machine, path, Machine.InFolder("out"))); }), 8192);
    EXPECT_EQ(fs::file_size(Machine.InFolder("out")), 240000000U);
    EXPECT_LT(PeakKiBOf([&] { EXPECT_TRUE(WriteLinesFile(5, LinesPath)); }), 8192);
}

#endif

} // namespace
} // namespace dravik
