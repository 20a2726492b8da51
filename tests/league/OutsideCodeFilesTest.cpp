#include "league/Failure.h"
#include "session/Routines.h"
#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class OutsideCodeFilesTest : public SmallLeague {
protected:
    const std::string Source = Machine.InFolder("source");
    const std::string Target = Machine.InFolder("target");

    static ByteVector Noise(std::size_t size)
    {
        ByteVector bytes(size);
        std::uint32_t state = 1;
        for (auto& byte : bytes) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<unsigned char>(state >> (state >> 30U) * 8U);
        }
        return bytes;
    }

    [[nodiscard]] std::size_t FilesLeft() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()));
    }
};

TEST_F(OutsideCodeFilesTest, CompressingWritesTheLengthAndTheStreamOfCompress2)
{
    const ByteVector bytes = Noise(300000);
    WriteWhole(Source, bytes);
    EXPECT_TRUE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ReadWhole(Target) == Wrapped(bytes));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(FilesLeft(), 2U);
}

TEST_F(OutsideCodeFilesTest, DecompressingGivesTheSourceBack)
{
    const ByteVector bytes = Noise(300000);
    WriteWhole(Source, Wrapped(bytes));
    EXPECT_TRUE(ZlibDecompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ReadWhole(Target) == bytes);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(FilesLeft(), 2U);
}

TEST_F(OutsideCodeFilesTest, OneByteGoesThereAndBack)
{
    WriteWhole(Source, {42});
    EXPECT_TRUE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ZlibDecompress(Machine, Machine, Target, Source));
    EXPECT_TRUE(ReadWhole(Source) == ByteVector{42});
}

TEST_F(OutsideCodeFilesTest, ALongerFileAtTheTargetKeepsNoTail)
{
    WriteWhole(Source, {1, 2, 3});
    WriteWhole(Target, Noise(5000));
    EXPECT_TRUE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ReadWhole(Target) == Wrapped({1, 2, 3}));
}

TEST_F(OutsideCodeFilesTest, AnEmptySourceFailsToCompress)
{
    WriteWhole(Source, {});
    EXPECT_FALSE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Compress!"}));
    EXPECT_EQ(FilesLeft(), 1U);
}

TEST_F(OutsideCodeFilesTest, AMissingSourceFails)
{
    EXPECT_FALSE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_FALSE(ZlibDecompress(Machine, Machine, Source, Target));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in Zlib Compress!"},
                                             Box{box::Critical, "53 - File not found in Zlib Decompress!"}));
    EXPECT_EQ(FilesLeft(), 0U);
}

TEST_F(OutsideCodeFilesTest, ASourceThatIsNoStreamIsReportedOnlyWhenNothingComes)
{
    // Whatever decodes before the error is the result.
    const ByteVector bytes = Noise(100000);
    ByteVector broken = Wrapped(bytes);
    broken.resize(broken.size() / 2);
    WriteWhole(Source, broken);
    EXPECT_TRUE(ZlibDecompress(Machine, Machine, Source, Target));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    const ByteVector came = ReadWhole(Target);
    EXPECT_TRUE(came == Unwrapped(broken));
    EXPECT_GT(came.size(), 10000U);
    EXPECT_LT(came.size(), 90000U);

    for (const std::string text : {"", "abc", "abcd", "this is no stream"}) {
        fs::remove(Target);
        Machine.TakeBoxes();
        WriteWhole(Source, ByteVector(text.begin(), text.end()));
        EXPECT_FALSE(ZlibDecompress(Machine, Machine, Source, Target));
        EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}));
        EXPECT_EQ(FilesLeft(), 1U);
    }
}

TEST_F(OutsideCodeFilesTest, NoFailureLeavesAHalfWrittenTarget)
{
    const ByteVector bytes = Noise(700000);
    for (const bool compress : {true, false}) {
        WriteWhole(Source, compress ? bytes : Wrapped(bytes, 1));
        const std::string message =
            compress ? "61 - Disk full in Zlib Compress!" : "61 - Disk full in Zlib Decompress!";
        std::size_t operation = 1;
        for (;; ++operation) {
            ASSERT_LT(operation, 200U);
            Machine.TakeBoxes();
            Machine.FailFileOperation(operation, failure::DiskFull);
            if (compress ? ZlibCompress(Machine, Machine, Source, Target)
                         : ZlibDecompress(Machine, Machine, Source, Target))
                break;
            EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, message}));
            EXPECT_EQ(FilesLeft(), 1U) << operation;
        }
        EXPECT_GT(operation, 15U);
        Machine.FailNoMore();
        fs::remove(Target);
    }
}

TEST_F(OutsideCodeFilesTest, FileExistFindsAnEntryWhateverItsCase)
{
    WriteWhole(Machine.InFolder("New.DVS"), {1});
    EXPECT_TRUE(FileExist(Machine.InFolder("New.DVS")));
    EXPECT_TRUE(FileExist(Machine.InFolder("new.dvs")));
    EXPECT_FALSE(FileExist(Machine.InFolder("New.dv")));
    EXPECT_FALSE(FileExist(Machine.InFolder("Ne*.dvs")));
    EXPECT_FALSE(FileExist(""));
    EXPECT_FALSE(FileExist(Machine.Folder() + PathSeparator));
    EXPECT_EQ(ExistingPath(Machine, Machine.InFolder("new.dvs")), Machine.InFolder("New.DVS"));
    EXPECT_EQ(ExistingPath(Machine, Machine.InFolder("gone.dvs")), Machine.InFolder("gone.dvs"));
}

TEST_F(OutsideCodeFilesTest, AFailureOfTheLookCountsAsNoFileAndShowsNothing)
{
    WriteWhole(Source, {1});
    Machine.FailAllFrom(1, failure::PermissionDenied);
    EXPECT_FALSE(FileExist(Source));
    EXPECT_EQ(ExistingPath(Machine, Source), Source);
    DeleteIfExists(Machine, Source);
    Machine.FailNoMore();
    EXPECT_FALSE(FileExist(Machine.InFolder("no folder") + PathSeparator + "file"));
    EXPECT_TRUE(FileExist(Source));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OutsideCodeFilesTest, GetFileNameOfABareFileNameGivesItUnchanged)
{
    for (const char* name : {"League.dvs", "League", ".dvs", " a b ", "\xC9t\xE9.dvs", "C:League.dvs"})
        EXPECT_EQ(GetFileName(name), name);
}

TEST_F(OutsideCodeFilesTest, GetFileNameIsWhatStandsBehindTheLastSeparator)
{
    const std::string s(1, PathSeparator);
    EXPECT_EQ(GetFileName(""), "");
    EXPECT_EQ(GetFileName(s + "home" + s + "League.dvs"), "League.dvs");
    EXPECT_EQ(GetFileName("folder" + s), "");
    EXPECT_EQ(GetFileName(s), "");
}

TEST_F(OutsideCodeFilesTest, DeleteIfExistsDeletesTheEntryItFinds)
{
    WriteWhole(Machine.InFolder("Work.dvt"), {1});
    DeleteIfExists(Machine, Machine.InFolder("Work.dvt"));
    EXPECT_EQ(FilesLeft(), 0U);
    DeleteIfExists(Machine, Machine.InFolder("Work.dvt"));
    EXPECT_THAT(Machine.FileOperations(), ElementsAre("find", "delete", "find"));
}

// The file system is the one to say whether both names mean one file.
TEST_F(OutsideCodeFilesTest, AFileOfAnotherCaseIsDeletedOnlyWhereItIsTheSameFile)
{
    const std::string path = Machine.InFolder("Work.dvt");
    const std::string other = Machine.InFolder("work.DVT");
    WriteWhole(path, {1});
    const bool same = std::filesystem::exists(other);
    DeleteIfExists(Machine, other);
    EXPECT_EQ(std::filesystem::exists(path), !same);
    WriteWhole(path, {1});
    WriteWhole(other, {2});
    DeleteIfExists(Machine, other);
    EXPECT_FALSE(std::filesystem::exists(other));
    EXPECT_EQ(std::filesystem::exists(path), !same);
}

// A machine whose files have one name in every case of its letters.
class OneCase : public ScriptedPlatform {
public:
    void DeleteFile(const std::string& path) override
    {
        ScriptedPlatform::DeleteFile(Folder() + "/" + *FindEntry(path));
    }
};

TEST_F(OutsideCodeFilesTest, AFileSystemThatKnowsOneCaseDeletesTheFileUnderAnyName)
{
    OneCase machine;
    UseMachine(machine);
    WriteWhole(machine.InFolder("Work.dvt"), {1});
    DeleteIfExists(dravik::Machine(), machine.InFolder("work.DVT"));
    EXPECT_FALSE(std::filesystem::exists(machine.InFolder("Work.dvt")));
    UseMachine(Machine);
}

TEST_F(OutsideCodeFilesTest, AFileOfAnotherCaseThatCannotBeDeletedIsThrown)
{
    WriteWhole(Machine.InFolder("Work.dvt"), {1});
    Machine.FailFileOperation(2, failure::PermissionDenied);
    EXPECT_THROW(DeleteIfExists(Machine, Machine.InFolder("work.DVT")), Failure);
}

TEST_F(OutsideCodeFilesTest, DeleteIfExistsThrowsWhatCannotBeDeleted)
{
    WriteWhole(Source, {1});
    Machine.FailFileOperation(2, failure::PermissionDenied);
    EXPECT_THROW(DeleteIfExists(Machine, Source), Failure);
}

TEST_F(OutsideCodeFilesTest, TeamFilesLieInTheProgramsFolderUnderTheNameWithoutSpaces)
{
    EXPECT_EQ(TeamFilePath(Machine, " New  York ", ".dvl"), Machine.InFolder("NewYork.dvl"));
    EXPECT_EQ(TeamFilePath(Machine, "", ".dvd"), Machine.InFolder(".dvd"));
    EXPECT_EQ(TeamFilePath(Machine, "St. John's", ".dvf"), Machine.InFolder("St.John's.dvf"));
}

TEST_F(OutsideCodeFilesTest, ATeamNameThatNoFileNameMayHoldFails)
{
    for (const char* name : {"A/B", "A\\B", "..\\..\\up", "../../up", "C:up", "A*", "A?", "\"A\"", "<A", "A>", "A|B"}) {
        int number = 0;
        try {
            (void)TeamFilePath(Machine, name, ".dvl");
        } catch (const Failure& failed) {
            number = failed.Number;
        }
        EXPECT_EQ(number, failure::PathAccess) << name;
    }
}

int NumberOfPath(const std::string& name)
{
    try {
        (void)TeamFilePath(dravik::Machine(), name, ".dvl");
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

TEST_F(OutsideCodeFilesTest, ATeamNameThatASystemKeepsForADeviceFails)
{
    for (const char* name : {"con",    "CON",     "Con",     "prn",  "aux",      "nul",     "NUL",     "com1",
                             "COM5",   "com9",    "lpt1",    "Lpt4", "LPT9",     "com\xB9", "COM\xB2", "lpt\xB3",
                             "conin$", "CONOUT$", " c o n ", "nul.", "Aux.City", "com1.a.b"})
        EXPECT_EQ(NumberOfPath(name), failure::PathAccess) << name;
}

TEST_F(OutsideCodeFilesTest, ATeamNameThatOnlyResemblesADeviceIsAFileName)
{
    for (const char* name : {"Cons", "Acon", "con-", "com", "com0", "com10", "COMA", "lpt", "lpt0", "nuls", "auxcity",
                             "St.con", "conin", "conout", "comb", "prn1", "com\xB4"})
        EXPECT_EQ(NumberOfPath(name), 0) << name;
}

TEST_F(OutsideCodeFilesTest, SkipZIPClientIsNoUnlessToldOtherwise)
{
    EXPECT_FALSE(SkipZIPClient(Machine));
    Machine.Settings["SkipZIPClient"] = " yEs ";
    EXPECT_TRUE(SkipZIPClient(Machine));
    for (const char* no : {"", "   ", "NO", "YE S", "YES.", "1"}) {
        Machine.Settings["SkipZIPClient"] = no;
        EXPECT_FALSE(SkipZIPClient(Machine)) << no;
    }
}

TEST_F(OutsideCodeFilesTest, TheWaitScreenIsTheMachines)
{
    ShowWait();
    EXPECT_TRUE(Machine.WaitShown);
    CloseWait();
    EXPECT_FALSE(Machine.WaitShown);
}

} // namespace
} // namespace dravik
