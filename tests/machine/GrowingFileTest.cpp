#include "machine/GrowingFile.h"

#include "league/Failure.h"
#include "support/RealFaults.h"
#include "support/ScriptedPlatform.h"

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <mutex>
#include <thread>
#ifdef __linux__
#include <pthread.h>
#include <unistd.h>

// How many files were handed to the disk, and the number of the failure that this comes to; 0 for none.
static std::mutex flushGuard;
static std::condition_variable flushed;
static int flushes = 0;
static int flushesFailWith = 0;

// Takes the place of the system's call.
int fdatasync(int descriptor)
{
    const std::lock_guard lock(flushGuard);
    ++flushes;
    flushed.notify_all();
    if (flushesFailWith == 0)
        return ::fsync(descriptor);
    errno = flushesFailWith;
    return -1;
}
#endif

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
    EXPECT_TRUE(file.Append("3")) << "a single byte";
    EXPECT_EQ(Content(Path), std::string("one\0two3", 8));
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

TEST_F(GrowingFileTest, AFileThatCannotBeCutIsNoneAndStaysAsItWas)
{
    {
        GrowingFile file(Path);
        EXPECT_TRUE(file.Append("one"));
    }
    EXPECT_EQ(NumberOfFailure(Path, GrowingFile::New - 1), failure::PathAccess); // longer than any file
    EXPECT_EQ(Content(Path), "one");
}

#ifdef __GLIBC__ // where the room for threads to come can be set
// As long as it lives no thread can be made: each would want more room than there is.
class NoMoreThreads {
public:
    NoMoreThreads()
    {
        EXPECT_EQ(pthread_getattr_default_np(&before), 0);
        pthread_attr_t vast;
        EXPECT_EQ(pthread_attr_init(&vast), 0);
        EXPECT_EQ(pthread_attr_setstacksize(&vast, std::size_t{1} << 47U), 0);
        EXPECT_EQ(pthread_setattr_default_np(&vast), 0);
        EXPECT_EQ(pthread_attr_destroy(&vast), 0);
    }
    NoMoreThreads(const NoMoreThreads&) = delete;
    NoMoreThreads& operator=(const NoMoreThreads&) = delete;
    ~NoMoreThreads()
    {
        EXPECT_EQ(pthread_setattr_default_np(&before), 0);
        EXPECT_EQ(pthread_attr_destroy(&before), 0);
    }

private:
    pthread_attr_t before{};
};

TEST_F(GrowingFileTest, WithoutAThreadThereIsNoneAndNothingStaysOpen)
{
    const auto openFiles = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = openFiles();
    {
        const NoMoreThreads none;
        EXPECT_EQ(NumberOfFailure(Path), failure::PathAccess);
    }
    EXPECT_EQ(openFiles(), before);
    {
        GrowingFile file(Path, 0);
        EXPECT_TRUE(file.Append("one"));
        EXPECT_EQ(openFiles(), before + 1);
    }
    EXPECT_EQ(openFiles(), before);
}
#endif

#ifdef __linux__
class FlushedFileTest : public GrowingFileTest {
protected:
    FlushedFileTest() { Begin(0); }
    ~FlushedFileTest() override { Begin(0); }

    // From now on a flush fails with this number; 0 for none.
    static void Begin(int failing)
    {
        const std::lock_guard lock(flushGuard);
        flushes = 0;
        flushesFailWith = failing;
    }
    static int Flushes()
    {
        const std::lock_guard lock(flushGuard);
        return flushes;
    }
    // Waits until the file's own thread flushes it; a machine may have much else to do.
    static void WaitForFlush()
    {
        std::unique_lock lock(flushGuard);
        EXPECT_TRUE(flushed.wait_for(lock, std::chrono::seconds(30), [] { return flushes > 0; }));
    }
};

TEST_F(FlushedFileTest, WhatIsNotOnTheDiskGoesThereAtTheEndAllTogether)
{
    {
        GrowingFile file(Path);
        EXPECT_TRUE(file.Append("one"));
        EXPECT_TRUE(file.Append(" two"));
    }
    EXPECT_EQ(Flushes(), 1);
}

TEST_F(FlushedFileTest, AFileThatDoesNotGrowIsNotFlushed)
{
    {
        const GrowingFile file(Path);
    }
    EXPECT_EQ(Flushes(), 0);
}

TEST_F(FlushedFileTest, GoesToTheDiskByItselfAndTakesMoreBehindThat)
{
    GrowingFile file(Path);
    std::string all;
    // A folder on a network that cannot be synchronized is as good as one that can. What came of a flush is known when the next
    // one begins.
    for (const int failing : {0, EINVAL, ENOTSUP, 0}) {
        Begin(failing);
        ASSERT_TRUE(file.Append("some"));
        all += "some";
        WaitForFlush();
    }
    EXPECT_TRUE(file.Append("more"));
    EXPECT_EQ(Content(Path), all + "more");
}

TEST_F(FlushedFileTest, WhatComesWithinHalfASecondGoesToTheDiskTogether)
{
    constexpr auto together = std::chrono::milliseconds(500);
    for (;;) {
        Begin(0);
        fs::remove(Path);
        const auto begin = std::chrono::steady_clock::now();
        GrowingFile file(Path);
        EXPECT_TRUE(file.Append("one"));
        std::this_thread::sleep_until(begin + together / 2);
        EXPECT_TRUE(file.Append(" two"));
        const int early = Flushes();
        if (std::chrono::steady_clock::now() >= begin + together)
            continue; // the machine had something else to do, and the time is over
        EXPECT_EQ(early, 0);
        WaitForFlush();
        break;
    }
    EXPECT_EQ(Flushes(), 1);
}

TEST_F(FlushedFileTest, ADiskThatIsGoneTakesNothingMore)
{
    Begin(EIO);
    GrowingFile file(Path);
    EXPECT_TRUE(file.Append("one"));
    WaitForFlush();
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (file.Append("x") && std::chrono::steady_clock::now() < end)
        std::this_thread::yield(); // until the file's own thread knows
    EXPECT_FALSE(file.Append(" two"));
}
#endif

#ifdef __linux__
TEST_F(GrowingFileTest, TheFirstDescriptorOfAProcessIsAsGoodAsAny)
{
    const int input = ::dup(0); // a program may be started without standard input
    ASSERT_EQ(::close(0), 0);
    {
        GrowingFile file(Path);
        EXPECT_TRUE(file.Append("one"));
        EXPECT_EQ(fs::read_symlink("/proc/self/fd/0").filename(), Path.filename());
    }
    EXPECT_EQ(::dup2(input, 0), 0);
    EXPECT_EQ(::close(input), 0);
    EXPECT_EQ(Content(Path), "one");
}
#endif

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
