#include "machine/DiskFiles.h"

#include "support/RealFaults.h"
#include "support/SmallLeague.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#ifdef _WIN32
#include <cstdio>
#include <share.h>
#endif
#ifdef __linux__
#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

// The number of the failure that handing a file to the disk comes to; 0 for none.
static int synchronizingFailsWith = 0;

// Takes the place of the system's call.
int fsync(int descriptor)
{
    if (synchronizingFailsWith == 0)
        return static_cast<int>(::syscall(SYS_fsync, descriptor));
    errno = synchronizingFailsWith;
    return -1;
}
#endif

namespace dravik {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

int NumberThrownBy(auto&& action)
{
    try {
        action();
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

class DiskFilesTest : public ::testing::Test {
protected:
    std::string In(const std::string& name) const { return Disk.InFolder(name); }

    void Make(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(In(name), std::ios::binary) << bytes;
    }

    std::string Bytes(const std::string& name) const
    {
        std::ifstream file(In(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::set<std::string> Entries() const
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(Disk.Folder()))
            names.insert(entry.path().filename().string());
        return names;
    }

    // A disk with a folder of its own; its file operations are those of DiskFiles.
    ScriptedPlatform Disk;
};

TEST_F(DiskFilesTest, WhatIsWrittenReadsBackByteForByte)
{
    std::string all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    const auto writing = Disk.CreateFile(In("bytes"));
    writing->Write(all.data(), 100);
    writing->Write(all.data() + 100, all.size() - 100);
    writing->Flush();
    writing->Close();
    EXPECT_EQ(Bytes("bytes"), all);

    const auto reading = Disk.OpenFile(In("bytes"));
    std::array<char, 300> buffer{};
    EXPECT_EQ(reading->Read(buffer.data(), 10), 10U);
    EXPECT_EQ(reading->Read(buffer.data() + 10, 290), 246U);
    EXPECT_EQ(reading->Read(buffer.data(), 10), 0U);
    EXPECT_EQ(std::string(buffer.data(), 256), all);
}

TEST_F(DiskFilesTest, CreatingEmptiesWhatStoodThere)
{
    Make("old", "a longer text");
    Disk.CreateFile(In("old"))->Close();
    EXPECT_EQ(Bytes("old"), "");
}

TEST_F(DiskFilesTest, AFileThatIsNotClosedIsClosedWhenItIsDropped)
{
    Disk.CreateFile(In("dropped"))->Write("abc", 3);
    EXPECT_EQ(Bytes("dropped"), "abc");
}

TEST_F(DiskFilesTest, AnEmptyFileReadsAsNothing)
{
    Make("empty", "");
    char byte = 'x';
    EXPECT_EQ(Disk.OpenFile(In("empty"))->Read(&byte, 1), 0U);
    EXPECT_EQ(Disk.FileLength(In("empty")), 0);
}

TEST_F(DiskFilesTest, TheLengthOfAFileIsItsBytes)
{
    Make("some", std::string("a\r\n\0b", 5));
    EXPECT_EQ(Disk.FileLength(In("some")), 5);
}

TEST_F(DiskFilesTest, AMissingFileFailsWith53)
{
    EXPECT_EQ(NumberThrownBy([&] { Disk.OpenFile(In("missing")); }), 53);
    EXPECT_EQ(NumberThrownBy([&] { Disk.FileLength(In("missing")); }), 53);
    EXPECT_EQ(NumberThrownBy([&] { Disk.DeleteFile(In("missing")); }), 53);
    EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("missing"), In("new")); }), 53);
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(DiskFilesTest, AMissingFolderFailsWith76)
{
    Make("here", "x");
    const std::string nowhere = In("nowhere") + PathSeparator + "file";
    EXPECT_EQ(NumberThrownBy([&] { Disk.OpenFile(nowhere); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.CreateFile(nowhere); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.FileLength(nowhere); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.DeleteFile(nowhere); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(nowhere, In("new")); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("here"), nowhere); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.FindEntry(nowhere); }), 76);
    EXPECT_THAT(Entries(), UnorderedElementsAre("here"));
}

TEST_F(DiskFilesTest, AFileWhereAFolderIsWantedFailsWith76)
{
    Make("file", "x");
    const std::string within = In("file") + PathSeparator + "inner";
    EXPECT_EQ(NumberThrownBy([&] { Disk.OpenFile(within); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.CreateFile(within); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.FileLength(within); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.DeleteFile(within); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(within, In("new")); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("file"), within); }), 76);
    EXPECT_EQ(NumberThrownBy([&] { Disk.FindEntry(within); }), 76);
    EXPECT_THAT(Entries(), UnorderedElementsAre("file"));
}

TEST_F(DiskFilesTest, AFolderIsNoFile)
{
    fs::create_directory(In("folder"));
    Make("file", "x");
    char byte = 0;
    // One system opens a folder and refuses to read it, another does not open it; the number is the same.
    EXPECT_EQ(NumberThrownBy([&] { Disk.OpenFile(In("folder"))->Read(&byte, 1); }), 75);
    EXPECT_EQ(NumberThrownBy([&] { Disk.CreateFile(In("folder")); }), 75);
    EXPECT_EQ(NumberThrownBy([&] { Disk.FileLength(In("folder")); }), 75);
    EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("file"), In("folder")); }), 75);
    EXPECT_THAT(Entries(), UnorderedElementsAre("file", "folder"));
}

TEST_F(DiskFilesTest, DeletingAFileLeavesNoEntryAndSparesTheOthers)
{
    Make("a", "x");
    Make("b", "x");
    Disk.DeleteFile(In("a"));
    EXPECT_THAT(Entries(), UnorderedElementsAre("b"));
}

TEST_F(DiskFilesTest, AnEmptyFolderIsNotDeletedAsAFile)
{
    fs::create_directory(In("folder"));
    EXPECT_EQ(NumberThrownBy([&] { Disk.DeleteFile(In("folder")); }), 75);
    EXPECT_TRUE(fs::is_directory(In("folder")));
}

TEST_F(DiskFilesTest, RenamingReplacesWhatStandsThere)
{
    Make("from", "new");
    Make("to", "an older and longer text");
    Disk.RenameFile(In("from"), In("to"));
    EXPECT_EQ(Bytes("to"), "new");
    EXPECT_THAT(Entries(), UnorderedElementsAre("to"));
}

TEST_F(DiskFilesTest, ANameAloneIsLookedForInTheFolderThatTheProgramWorksIn)
{
    Make("League Of 2024.dvs", "x");
    const fs::path before = fs::current_path();
    fs::current_path(Disk.Folder());
    EXPECT_EQ(Disk.FindEntry("league of 2024.DVS"), "League Of 2024.dvs");
    EXPECT_EQ(Disk.FindEntry("league of 2025.DVS"), std::nullopt);
    fs::current_path(before);
}

TEST_F(DiskFilesTest, AnEntryIsFoundWhateverTheCaseOfItsName)
{
    Make("League Of 2024.dvs", "x");
    EXPECT_EQ(Disk.FindEntry(In("league of 2024.DVS")), "League Of 2024.dvs");
    EXPECT_EQ(Disk.FindEntry(In("League Of 2024.dvs")), "League Of 2024.dvs");
    EXPECT_EQ(Disk.FindEntry(In("League Of 2025.dvs")), std::nullopt);
    EXPECT_EQ(Disk.FindEntry(In("League Of 2024.dv")), std::nullopt);
    Make("AZ", "x");
    Make("@[", "x"); // which stand beside the letters
    EXPECT_EQ(Disk.FindEntry(In("az")), "AZ");
    EXPECT_EQ(Disk.FindEntry(In("`[")), std::nullopt);
    EXPECT_EQ(Disk.FindEntry(In("@{")), std::nullopt);
}

#ifdef __linux__ // other file systems keep one of such entries, and take no bytes that are no text

TEST_F(DiskFilesTest, OfEntriesThatDifferInCaseTheOneOfTheVeryNameComesFirst)
{
    Make("NAME", "x");
    Make("Name", "x");
    Make("name", "x");
    EXPECT_EQ(Disk.FindEntry(In("Name")), "Name");
    EXPECT_EQ(Disk.FindEntry(In("name")), "name");
    EXPECT_EQ(Disk.FindEntry(In("nAmE")), "NAME"); // then the first in the order of names
}

TEST_F(DiskFilesTest, AccentedLettersOfTheCodePageHaveTheirCaseToo)
{
    const std::pair<const char*, const char*> twins[] = {
        {"\xC9", "\xE9"}, {"\xC0", "\xE0"}, {"\xDE", "\xFE"}, {"\x8A", "\x9A"},
        {"\x8C", "\x9C"}, {"\x8E", "\x9E"}, {"\x9F", "\xFF"},
    };
    for (const auto& [upper, lower] : twins) {
        Make(upper, "x");
        EXPECT_EQ(Disk.FindEntry(In(lower)), upper);
    }
    Make("a\xDF", "x"); // the sharp s has none
    EXPECT_EQ(Disk.FindEntry(In("a\xFF")), std::nullopt);
    Make("\xD7", "x"); // nor has the sign of multiplication
    EXPECT_EQ(Disk.FindEntry(In("\xF7")), std::nullopt);
}

#endif

TEST_F(DiskFilesTest, AFolderIsAnEntryToo)
{
    fs::create_directory(In("Folder"));
    EXPECT_EQ(Disk.FindEntry(In("folder")), "Folder");
}

TEST_F(DiskFilesTest, APathWithoutANameHasNoEntry)
{
    EXPECT_EQ(Disk.FindEntry(Disk.Folder() + PathSeparator), std::nullopt);
    EXPECT_EQ(Disk.FindEntry(""), std::nullopt);
}

#ifndef _WIN32 // rights of a folder and a limit on file sizes are set through calls of POSIX

TEST_F(DiskFilesTest, AFolderThatMayNotBeWrittenFailsWith70AndStaysAsItWas)
{
    Make("file", "x");
    Make("other", "y");
    {
        const ReadOnly folder(Disk.Folder());
        EXPECT_EQ(NumberThrownBy([&] { Disk.CreateFile(In("new")); }), 70);
        EXPECT_EQ(NumberThrownBy([&] { Disk.DeleteFile(In("file")); }), 70);
        EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("file"), In("new")); }), 70);
    }
    EXPECT_THAT(Entries(), UnorderedElementsAre("file", "other"));
    EXPECT_EQ(Bytes("other"), "y");
}

TEST_F(DiskFilesTest, AFullDiskFailsWith61)
{
    const SmallDisk disk(1000);
    const std::string bytes(5000, 'q');
    EXPECT_EQ(NumberThrownBy([&] {
                  const auto file = Disk.CreateFile(In("big"));
                  file->Write(bytes.data(), bytes.size());
                  file->Close();
              }),
              61);
    EXPECT_EQ(NumberThrownBy([&] {
                  const auto file = Disk.CreateFile(In("big"));
                  file->Write(bytes.data(), 1001);
                  file->Flush();
              }),
              61);
}

#ifdef __linux__
TEST_F(DiskFilesTest, AFileThatDoesNotReachTheDiskFailsWhereThatCanBeToldAtAll)
{
    const auto flushed = [&](int failing) {
        const auto file = Disk.CreateFile(In("file"));
        file->Write("x", 1);
        synchronizingFailsWith = failing;
        const int number = NumberThrownBy([&] { file->Flush(); });
        synchronizingFailsWith = 0;
        file->Close();
        return number;
    };
    EXPECT_EQ(flushed(0), 0);
    EXPECT_EQ(flushed(EIO), failure::PathAccess);
    EXPECT_EQ(flushed(ENOSPC), 61);
    EXPECT_EQ(flushed(EINVAL), 0); // a pipe
    EXPECT_EQ(flushed(ENOTSUP), 0);
    EXPECT_EQ(Bytes("file"), "x");
}
#endif

#ifdef __linux__ // elsewhere only the folder tells how a name is written

TEST_F(DiskFilesTest, InAFolderThatMayNotBeListedAnEntryIsFoundByItsVeryNameAlone)
{
    fs::create_directory(In("closed"));
    const std::string file = In("closed") + PathSeparator + "file";
    std::ofstream(file) << "x";
    EXPECT_EQ(chmod(In("closed").c_str(), 0111), 0);
    {
        const ReadOnly folder(Disk.Folder());
        EXPECT_EQ(Disk.FindEntry(file), "file");
        EXPECT_EQ(NumberThrownBy([&] { Disk.FindEntry(In("closed") + PathSeparator + "FILE"); }), 70);
    }
    EXPECT_EQ(chmod(In("closed").c_str(), 0755), 0);
}

#endif

TEST_F(DiskFilesTest, AFileThatMayNotBeReadFailsWith70)
{
    Make("secret", "x");
    EXPECT_EQ(chmod(In("secret").c_str(), 0), 0);
    const ReadOnly folder(Disk.Folder());
    EXPECT_EQ(NumberThrownBy([&] { Disk.OpenFile(In("secret")); }), 70);
}

#else

// Keeps a file open so that nobody else may open, rename or delete it, as a program that looks for viruses does.
class HeldFile {
public:
    explicit HeldFile(const std::string& path) : stream(_fsopen(path.c_str(), "rb", _SH_DENYRW))
    {
        EXPECT_NE(stream, nullptr);
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { EXPECT_EQ(std::fclose(stream), 0); }

private:
    std::FILE* stream;
};

TEST_F(DiskFilesTest, AFileThatAnotherProgramHoldsFailsWith70AndStaysAsItWas)
{
    Make("held", "x");
    Make("other", "y");
    {
        const HeldFile held(In("held"));
        EXPECT_EQ(NumberThrownBy([&] { Disk.OpenFile(In("held")); }), 70);
        EXPECT_EQ(NumberThrownBy([&] { Disk.CreateFile(In("held")); }), 70);
        EXPECT_EQ(NumberThrownBy([&] { Disk.DeleteFile(In("held")); }), 70);
        EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("held"), In("new")); }), 70);
        EXPECT_EQ(NumberThrownBy([&] { Disk.RenameFile(In("other"), In("held")); }), 70);
    }
    EXPECT_THAT(Entries(), UnorderedElementsAre("held", "other"));
    EXPECT_EQ(Bytes("held"), "x");
    EXPECT_EQ(Bytes("other"), "y");
}

#endif

} // namespace
} // namespace dravik
