#include "machine/GrowingFile.h"

#include "league/Failure.h"
#include "support/RealFaults.h"
#include "support/ScriptedPlatform.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace dravik {
namespace {

namespace fs = std::filesystem;

class GrowingFileTest : public ::testing::Test {
protected:
    static std::string Content(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static int NumberOfFailure(const fs::path& path, std::uintmax_t keep = GrowingFile::New)
    {
        try {
            GrowingFile file(path, keep);
        } catch (const Failure& failed) {
            return failed.Number;
        }
        return 0;
    }

    ScriptedPlatform Machine;
    fs::path Path = fs::path(Machine.Folder()) / "deep" / "down" / "file";
};

TEST_F(GrowingFileTest, WhatIsAppendedIsThereAtOnce)
{
    GrowingFile file(Path);
    EXPECT_TRUE(file.Append("one"));
    EXPECT_EQ(Content(Path), "one");
    EXPECT_TRUE(file.Append(std::string("\0two", 4)));
    EXPECT_EQ(Content(Path), std::string("one\0two", 7));
}

TEST_F(GrowingFileTest, AFileThatIsThereIsNeverTouchedByANewOne)
{
    {
        GrowingFile file(Path);
        EXPECT_TRUE(file.Append("one"));
    }
    EXPECT_EQ(NumberOfFailure(Path), failure::PathAccess);
    EXPECT_EQ(Content(Path), "one");
}

TEST_F(GrowingFileTest, GoesOnBehindWhatIsKept)
{
    {
        GrowingFile file(Path);
        EXPECT_TRUE(file.Append("one, torn"));
    }
    GrowingFile file(Path, 3);
    EXPECT_EQ(Content(Path), "one");
    EXPECT_TRUE(file.Append(" two"));
    EXPECT_EQ(Content(Path), "one two");
}

TEST_F(GrowingFileTest, WithoutAPlaceForItThereIsNone)
{
    std::ofstream(Machine.InFolder("file")) << "no folder";
    EXPECT_EQ(NumberOfFailure(fs::path(Machine.InFolder("file")) / "journal"), failure::PathAccess);
    EXPECT_EQ(NumberOfFailure(fs::path(Machine.InFolder("missing")), 3), failure::PathAccess);
    EXPECT_EQ(NumberOfFailure(fs::path(Machine.Folder())), failure::PathAccess);
}

#ifndef _WIN32
TEST_F(GrowingFileTest, OnAFullDiskNothingMoreIsTakenAndNoHalfStays)
{
    GrowingFile file(Path);
    EXPECT_TRUE(file.Append("one"));
    {
        const SmallDisk full(5);
        EXPECT_FALSE(file.Append(" two"));
    }
    EXPECT_EQ(Content(Path), "one");
    EXPECT_FALSE(file.Append(" three"));
    EXPECT_EQ(Content(Path), "one");
}

TEST_F(GrowingFileTest, InAFolderThatMayNotBeWrittenToThereIsNone)
{
    const ReadOnly folder(Machine.Folder());
    EXPECT_EQ(NumberOfFailure(Path), failure::PathAccess);
}
#endif

} // namespace
} // namespace dravik
