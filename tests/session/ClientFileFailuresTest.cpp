#include "OnClientFile.h"

#include "league/Failure.h"

#include <limits>

// Client files that cannot be opened, and what is left of the tables then.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ClientFileFailures : public OnClientFile {};

TEST_F(ClientFileFailures, AMissingFileEmptiesTheTablesAndSaysSo)
{
    ScrambleTables();
    WindowTitle = "as before";
    Machine.WaitShown = true;
    WriteWhole(TempFile, {1, 2, 3});
    Open(Machine.InFolder("Gone.dvs"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Cannot find last client league file!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false)) << "closed if it was open";
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_EQ(Machine.WaitCount, 0);
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_TRUE(LeagueDataIsUntouched());
    EXPECT_TRUE(CoachesAreUntouched()) << "coaches are not emptied";
    EXPECT_THAT(Window.Calls, IsEmpty());
    EXPECT_EQ(WindowTitle, "as before");
    EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
    EXPECT_TRUE(WorkFileIsThere()) << "nothing is cleaned up before the file is found";
}

TEST_F(ClientFileFailures, AWorkFileLeftBehindIsDeleted)
{
    WriteWhole(TempFile, {1, 2, 3});
    Open(SavePlain());
    EXPECT_FALSE(WorkFileIsThere());
    WriteWhole(TempFile, {1, 2, 3});
    WriteWhole(Machine.InFolder("Bad.dvs"), {1, 2, 3});
    Open(Machine.InFolder("Bad.dvs"));
    EXPECT_FALSE(WorkFileIsThere());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
}

TEST_F(ClientFileFailures, AWrongStartMagicLeavesLeagueDataUntouched)
{
    LeagueData.Name = "Another League";
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = ClientSlots();
    LeagueData.Name = "This League";
    // The length's two bytes, the first and last character, the version.
    for (const std::size_t at : {0U, 1U, 2U, 39U, 30U}) {
        ByteVector bad(slots.begin(), slots.begin() + 2 * client_file::Slot);
        bad[at] ^= 1U;
        WriteWhole(Machine.InFolder("League.dvs"), bad);
        ScrambleTables();
        Open(Machine.InFolder("League.dvs"));
        EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"})) << at;
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_TRUE(LeagueDataIsUntouched());
        EXPECT_TRUE(CoachesAreUntouched());
        EXPECT_FALSE(Machine.WaitShown);
        EXPECT_THAT(Window.Calls, IsEmpty());
        EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
    }
}

TEST_F(ClientFileFailures, AWrongEndMagicEmptiesTheTablesAgainAndKeepsLeagueDataAndCoaches)
{
    LeagueData.Name = "Another League";
    Coaches[500].Name = "Last Coach";
    PutSkater(1, 5, position::Center, status::Pro);
    ByteVector slots = ClientSlots();
    slots.back() ^= 1U;
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteSparse(Machine.InFolder("League.dvs"), slots);
    LeagueData.Name = "This League";
    Coaches[500] = {};
    WindowTitle = "as before";
    PlayerStatCount = 9;
    Open(Machine.InFolder("League.dvs"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_EQ(LeagueData.Name.Trimmed(), "Another League");
    EXPECT_EQ(Coaches[500].Name.Trimmed(), "Last Coach");
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_THAT(Window.Calls, IsEmpty());
    EXPECT_EQ(WindowTitle, "as before");
    EXPECT_EQ(PlayerStatCount, 9);
    EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
}

TEST_F(ClientFileFailures, AFileOfAnotherVersionIsAWrongMagic)
{
    ByteVector slots = ClientSlots();
    const std::string other = "DRVK Client Files Version 1.13 - Start";
    std::copy(other.begin(), other.end(), slots.begin() + 2);
    slots.resize(100000);
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteWhole(Machine.InFolder("League.dvs"), slots);
    Open(Machine.InFolder("League.dvs"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
}

TEST_F(ClientFileFailures, SkipZIPClientIsTrimmedAndItsCaseDoesNotMatter)
{
    const std::string path = SavePlain();
    for (const char* yes : {"YES", "yes", "  Yes "}) {
        Machine.Settings["SkipZIPClient"] = yes;
        Open(path);
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty()) << yes;
    }
    for (const char* no : {"", "No", "Y", "YES!", "-1", "True"}) {
        Machine.Settings["SkipZIPClient"] = no;
        Open(path);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}))
            << no;
    }
}

TEST_F(ClientFileFailures, APlainFileReadAsWrappedEndsInTheDecompressionMessage)
{
    const std::string path = SavePlain();
    Machine.Settings.clear();
    ScrambleTables();
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_TRUE(LeagueDataIsUntouched());
    EXPECT_TRUE(CoachesAreUntouched());
    EXPECT_TRUE(Machine.WaitShown) << "the wait screen stays up";
    EXPECT_THAT(Window.Calls, IsEmpty());
    EXPECT_THAT(FilesLeft(), ElementsAre("League.dvs"));
}

TEST_F(ClientFileFailures, AWrappedFileReadAsPlainEndsInTheMagicTest)
{
    const std::string path = SaveWrapped();
    Machine.Settings["SkipZIPClient"] = "YES";
    ScrambleTables();
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_TRUE(LeagueDataIsUntouched());
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_THAT(FilesLeft(), ElementsAre("League.dvs"));
}

TEST_F(ClientFileFailures, AFileThatCannotBeReadToItsEndChangesNothingOutsideTheEmptiedTables)
{
    ScrambleLeague(4);
    const ByteVector slots = ClientSlots();
    ResetClientVariables();
    TempFile = Machine.InFolder("ClientTemp.dvt");
    ScrambleTables();
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        const std::string path = Machine.InFolder("League.dvs");
        WriteWhole(path, plain ? slots : Wrapped(slots, 1));
        const auto reads = static_cast<std::size_t>(std::filesystem::file_size(path) / 65536);
        ASSERT_GT(reads, 10U);
        // Nobody may see a half league behind the box.
        Machine.OnEvent = [this](const std::string& event) {
            if (event == "box")
                ExpectNothingRead();
        };
        // Three operations find the file and one opens it. The last read comes when the coaches have long been read.
        for (const std::size_t read : {std::size_t{1}, std::size_t{2}, reads / 2, reads}) {
            Machine.CloseWait();
            Machine.FailFileOperation(4 + read, failure::PathAccess);
            Open(path);
            EXPECT_EQ(Machine.FileOperations().back(), "read");
            const std::string ending = plain ? " in OpenLeagueClient!" : " in Zlib Decompress!";
            EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "75 - Path/File access error" + ending}));
            EXPECT_TRUE(Machine.WaitShown) << "the wait screen stays up";
            ExpectNothingRead();
            EXPECT_THAT(Window.Calls, IsEmpty());
        }
    }
}

TEST_F(ClientFileFailures, AFileDateThatIsNoDateEndsInTheCommonFailureMessage)
{
    // The last one is the end of the year 9999 once it is rounded to the second.
    for (const double date :
         {1e300, -1e300, std::numeric_limits<double>::quiet_NaN(), 2958466.0, -657435.0, 2958465.999995}) {
        LeagueData.FileDate = date;
        Window.Calls.clear();
        Open(SavePlain());
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in OpenLeagueClient!"}));
        EXPECT_EQ(Window.Calls.back(), "date Client File Date : ") << "everything before the date is shown";
    }
    for (const double date : {2958465.0, 2958465.99999, -657434.0}) {
        LeagueData.FileDate = date;
        Open(SavePlain());
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    }
    LeagueData.FileDate = 2958465.99999;
    Open(SavePlain());
    EXPECT_EQ(Window.Calls.back(), "date Client File Date : December 31 9999 at 23:59");
}

TEST_F(ClientFileFailures, OpeningTheWorkFileItselfDeletesItFirst)
{
    const std::string path = SaveWrapped("ClientTemp.dvt");
    ASSERT_EQ(path, TempFile);
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in Zlib Decompress!"}));
    EXPECT_FALSE(WorkFileIsThere());
}

TEST_F(ClientFileFailures, OpeningAPlainWorkFileItselfDeletesItFirst)
{
    const std::string path = SavePlain("ClientTemp.dvt");
    ASSERT_EQ(path, TempFile);
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in OpenLeagueClient!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_FALSE(WorkFileIsThere());
    EXPECT_TRUE(FiveTablesAreEmpty());
}

} // namespace
} // namespace dravik
