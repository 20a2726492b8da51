#include "machine/Paths.h"

#include "league/Failure.h"
#include "session/Session.h"
#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class PathsTest : public SmallLeague {
protected:
    const std::string Source = Machine.InFolder("source");

    [[nodiscard]] std::size_t FilesLeft() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()));
    }
};

TEST_F(PathsTest, FileExistFindsAnEntryWhateverItsCase)
{
    WriteWhole(Machine.InFolder("New.DVS"), {1});
    EXPECT_TRUE(FileExist(Machine, Machine.InFolder("New.DVS")));
    EXPECT_TRUE(FileExist(Machine, Machine.InFolder("new.dvs")));
    EXPECT_FALSE(FileExist(Machine, Machine.InFolder("New.dv")));
    EXPECT_FALSE(FileExist(Machine, Machine.InFolder("Ne*.dvs")));
    EXPECT_FALSE(FileExist(Machine, ""));
    EXPECT_FALSE(FileExist(Machine, Machine.Folder() + PathSeparator));
    EXPECT_EQ(ExistingPath(Machine, Machine.InFolder("new.dvs")), Machine.InFolder("New.DVS"));
    EXPECT_EQ(ExistingPath(Machine, Machine.InFolder("gone.dvs")), Machine.InFolder("gone.dvs"));
}

TEST_F(PathsTest, AFailureOfTheLookCountsAsNoFileAndShowsNothing)
{
    WriteWhole(Source, {1});
    Machine.FailAllFrom(1, failure::PermissionDenied);
    EXPECT_FALSE(FileExist(Machine, Source));
    EXPECT_EQ(ExistingPath(Machine, Source), Source);
    DeleteIfExists(Machine, Source);
    Machine.FailNoMore();
    EXPECT_FALSE(FileExist(Machine, Machine.InFolder("no folder") + PathSeparator + "file"));
    EXPECT_TRUE(FileExist(Machine, Source));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PathsTest, GetFileNameOfABareFileNameGivesItUnchanged)
{
    for (const char* name : {"League.dvs", "League", ".dvs", " a b ", "\xC9t\xE9.dvs", "C:League.dvs"})
        EXPECT_EQ(GetFileName(name), name);
}

TEST_F(PathsTest, GetFileNameIsWhatStandsBehindTheLastSeparator)
{
    const std::string s(1, PathSeparator);
    EXPECT_EQ(GetFileName(""), "");
    EXPECT_EQ(GetFileName(s + "home" + s + "League.dvs"), "League.dvs");
    EXPECT_EQ(GetFileName("folder" + s), "");
    EXPECT_EQ(GetFileName(s), "");
}

TEST_F(PathsTest, DeleteIfExistsDeletesTheEntryItFinds)
{
    WriteWhole(Machine.InFolder("Work.dvt"), {1});
    DeleteIfExists(Machine, Machine.InFolder("Work.dvt"));
    EXPECT_EQ(FilesLeft(), 0U);
    DeleteIfExists(Machine, Machine.InFolder("Work.dvt"));
    EXPECT_THAT(Machine.FileOperations(), ElementsAre("find", "delete", "find"));
}

// The file system is the one to say whether both names mean one file.
TEST_F(PathsTest, AFileOfAnotherCaseIsDeletedOnlyWhereItIsTheSameFile)
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

TEST_F(PathsTest, AFileSystemThatKnowsOneCaseDeletesTheFileUnderAnyName)
{
    OneCase machine;
    UseMachine(machine);
    WriteWhole(machine.InFolder("Work.dvt"), {1});
    DeleteIfExists(dravik::Machine(), machine.InFolder("work.DVT"));
    EXPECT_FALSE(std::filesystem::exists(machine.InFolder("Work.dvt")));
    UseMachine(Machine);
}

TEST_F(PathsTest, AFileOfAnotherCaseThatCannotBeDeletedIsThrown)
{
    WriteWhole(Machine.InFolder("Work.dvt"), {1});
    Machine.FailFileOperation(2, failure::PermissionDenied);
    EXPECT_THROW(DeleteIfExists(Machine, Machine.InFolder("work.DVT")), Failure);
}

TEST_F(PathsTest, DeleteIfExistsThrowsWhatCannotBeDeleted)
{
    WriteWhole(Source, {1});
    Machine.FailFileOperation(2, failure::PermissionDenied);
    EXPECT_THROW(DeleteIfExists(Machine, Source), Failure);
}

} // namespace
} // namespace dravik
