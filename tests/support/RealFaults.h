#pragma once

// Faults that the system itself makes, where the calls of POSIX can ask it to.
#ifndef _WIN32

#include "support/ClientFileBytes.h"
#include "support/ScriptedPlatform.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dravik {

// Takes the writing right of a folder away from the test, from the user who may do everything as well.
class ReadOnly {
public:
    explicit ReadOnly(const std::string& folder) : path(folder)
    {
        EXPECT_EQ(chmod(path.c_str(), 0555), 0);
        if (geteuid() == 0) {
            constexpr uid_t nobody = 65534;
            EXPECT_EQ(seteuid(nobody), 0);
            wasRoot = true;
        }
    }
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;
    ~ReadOnly()
    {
        EXPECT_EQ(wasRoot ? seteuid(0) : 0, 0);
        EXPECT_EQ(chmod(path.c_str(), 0755), 0);
    }

private:
    std::string path;
    bool wasRoot = false;
};

// Lets no file grow beyond `bytes`, as a full disk would.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
    {
        before = std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
        rlimit small = limit;
        small.rlim_cur = bytes;
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        (void)std::signal(SIGXFSZ, before);
    }

private:
    void (*before)(int) = nullptr;
    rlimit limit{};
};

// A file of these slots, in the machine's folder, that nobody may read. The settings say whether it is plain.
inline std::string Secret(ScriptedPlatform& machine, const std::string& name, bool plain, const ByteVector& slots)
{
    machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
    const std::string path = machine.InFolder(name);
    WriteSparse(path, plain ? slots : Wrapped(slots, 1));
    EXPECT_EQ(chmod(path.c_str(), 0), 0);
    return path;
}

} // namespace dravik

#endif
