#include "files/DraftFile.h"

#include "support/ClientFileBytes.h"
#include "support/LeagueImage.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

constexpr std::size_t Slot = 12;

class DraftFileTest : public SmallLeague {
protected:
    DraftFileTest()
    {
        TeamMaker(5);
        Teams[5].Name = "New York";
        Path = Machine.InFolder("NewYork.dvd");
        Ranking[0] = 7;
        Ranking[1] = 10001;
        Ranking[2] = 20300;
    }

    void Plain() { Machine.Settings["SkipZIPClient"] = "YES"; }

    // What the file has to hold, put together by hand.
    [[nodiscard]] ByteVector Expected(int team) const
    {
        ByteVector bytes(1005 * Slot);
        const auto put = [&](std::size_t record, std::string_view text) {
            std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>((record - 1) * Slot));
        };
        const auto word = [](long long value) {
            return std::string{static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
        };
        put(1, word(10) + "DRVKFDFV1S");
        put(2, LeagueData.LeagueCode.Raw());
        put(3, word(team));
        for (long long rank = 0; rank <= 1000; ++rank)
            put(static_cast<std::size_t>(rank + 4), word(Ranking[rank]));
        put(1005, word(10) + "DRVKFDFV1E");
        return bytes;
    }

    std::string Path;
    DraftRanking Ranking;
};

TEST_F(DraftFileTest, ThePathIsTheTeamsNameWithoutSpaces)
{
    EXPECT_EQ(DraftFilePath(5), Path);
    Teams[6].Name = "A/B";
    EXPECT_THROW((void)DraftFilePath(6), Failure);
    EXPECT_THROW((void)DraftFilePath(0), Failure);
    EXPECT_THROW((void)DraftFilePath(101), Failure);
}

TEST_F(DraftFileTest, ThePlainFileIs1005SlotsOf12Bytes)
{
    Plain();
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    const ByteVector file = ReadWhole(Path);
    EXPECT_EQ(file.size(), 12060U);
    EXPECT_TRUE(file == Expected(5));
    EXPECT_EQ(std::string(file.begin(), file.begin() + 12), std::string("\x0A\0DRVKFDFV1S", 12));
    EXPECT_EQ(std::string(file.begin() + 12, file.begin() + 24), std::string("SMALL\0\0\0\0\0\0\0", 12));
    EXPECT_EQ(std::string(file.begin() + 24, file.begin() + 36), "\x05" + std::string(11, '\0'));
    EXPECT_EQ(std::string(file.begin() + 36, file.begin() + 48), "\x07" + std::string(11, '\0'));
    EXPECT_EQ(std::string(file.begin() + 48, file.begin() + 50), "\x11\x27"); // 10001
    EXPECT_EQ(std::string(file.begin() + 60, file.begin() + 62), "\x4C\x4F"); // 20300
    EXPECT_EQ(std::string(file.end() - 12, file.end()), std::string("\x0A\0DRVKFDFV1E", 12));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftFileTest, TheWrappedFileIsThatOfCompress2)
{
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    EXPECT_TRUE(ReadWhole(Path) == Wrapped(Expected(5)));
}

TEST_F(DraftFileTest, AFullRankingFillsEverySlotAndAnEmptyOneNone)
{
    Plain();
    for (long long rank = 0; rank <= 1000; ++rank)
        Ranking[rank] = rank + 1;
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    EXPECT_TRUE(ReadWhole(Path) == Expected(5));
    Ranking = {};
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    EXPECT_TRUE(ReadWhole(Path) == Expected(5));
}

TEST_F(DraftFileTest, TheLeagueCodeIsWrittenAsItStands)
{
    Plain();
    LeagueData.LeagueCode = Text<5>(); // five zero bytes
    EXPECT_TRUE(WriteDraftFile(100, Ranking, Path));
    EXPECT_TRUE(ReadWhole(Path) == Expected(100));
}

TEST_F(DraftFileTest, TheSettingIsTrimmedAndUpperCased)
{
    Machine.Settings["SkipZIPClient"] = " yes ";
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    EXPECT_EQ(fs::file_size(Path), 12060U);
}

TEST_F(DraftFileTest, SavingTwiceReplacesTheFileAndLeavesNothingElse)
{
    WriteWhole(TempFile, {1});
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    Ranking[0] = 8;
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    EXPECT_TRUE(Unwrapped(ReadWhole(Path)) == Expected(5));
    EXPECT_EQ(std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()), 1);
}

TEST_F(DraftFileTest, TheOldFileStaysUntilTheNewOneIsWholeAndTakesItsPlace)
{
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    const auto done = static_cast<std::ptrdiff_t>(Machine.FileOperations().size());
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    const auto& all = Machine.FileOperations();
    EXPECT_THAT(std::vector(all.begin() + done, all.end()),
                ElementsAre("find", "create", "write", "flush", "close", "rename"));
}

TEST_F(DraftFileTest, AFailedCompressionIsToldAndLeavesNoFile)
{
    for (const std::size_t operation : {2U, 3U, 4U, 5U, 6U}) { // create, write, flush, close, rename
        WriteWhole(Path, {'o', 'l', 'd'});
        Machine.FailFileOperation(operation, failure::DiskFull);
        EXPECT_FALSE(WriteDraftFile(5, Ranking, Path)) << operation;
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "61 - Disk full in Zlib Compress!"}));
        EXPECT_TRUE(fs::is_empty(Machine.Folder())) << operation;
    }
}

TEST_F(DraftFileTest, AFailureOfAPlainFileIsThrownAndLeavesNoFile)
{
    Plain();
    for (const std::size_t operation : {2U, 3U, 4U, 5U, 6U}) {
        WriteWhole(Path, {'o', 'l', 'd'});
        Machine.FailFileOperation(operation, failure::DiskFull);
        EXPECT_THROW((void)WriteDraftFile(5, Ranking, Path), Failure) << operation;
        EXPECT_TRUE(fs::is_empty(Machine.Folder())) << operation;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftFileTest, AnOldFileThatCanNeitherBeReplacedNorDeletedIsToldOnceAndStays)
{
    WriteWhole(Path, {'o', 'l', 'd'});
    Machine.FailAllFrom(6, failure::PermissionDenied); // from the renaming on
    EXPECT_FALSE(WriteDraftFile(5, Ranking, Path));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "70 - Permission denied in Zlib Compress!"}));
    EXPECT_EQ(fs::file_size(Path), 3U);
}

TEST_F(DraftFileTest, SavingChangesNoLeagueData)
{
    const ByteVector before[] = {ImageOf(LeagueData), ImageOf(Teams), FiveTables()};
    EXPECT_TRUE(WriteDraftFile(5, Ranking, Path));
    EXPECT_TRUE(ImageOf(LeagueData) == before[0]);
    EXPECT_TRUE(ImageOf(Teams) == before[1]);
    EXPECT_TRUE(FiveTables() == before[2]);
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
