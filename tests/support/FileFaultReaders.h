#pragma once

#include "support/FaultyFiles.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

namespace dravik {

// Every file operation of a reader fails in every way, and the process is killed at every one of them. What is read stays as it
// is, with nothing beside it after the next reading.
class FileFaultReaders : public FaultyFiles, public ::testing::WithParamInterface<std::tuple<bool, FileFault>> {
public:
    static std::string Name(const ::testing::TestParamInfo<ParamType>& info)
    {
        const auto& [plain, fault] = info.param;
        return (plain ? "Plain" : "Wrapped") + std::string(fault.Name);
    }

protected:
    FileFaultReaders() { Machine.Settings["SkipZIPClient"] = Plain() ? "YES" : "No"; }

    static bool Plain() { return std::get<0>(GetParam()); }
    static const FileFault& Fault() { return std::get<1>(GetParam()); }

    // The file `name` of these slots.
    std::string Write(const std::string& name, const ByteVector& slots)
    {
        WriteSparse(Machine.InFolder(name), Plain() ? slots : Wrapped(slots, 1));
        return Machine.InFolder(name);
    }

    // Runs `read` over `path`, with the work file of a crash beside it, once for each operation that the fault befalls.
    // `check` looks at what came of it: the operation's name, and whether the work file has been dealt with by then.
    void EachFault(const std::string& path, const Operations& head, const Work& read,
                   const std::function<void(const Outcome&, const std::string& operation, std::size_t n)>& check)
    {
        const ByteVector file = ReadWhole(path);
        const std::string name = std::filesystem::path(path).filename().string();
        WriteWhole(TempFile, {'o', 'l', 'd'});
        const Operations operations = OperationsOf(read);
        ASSERT_GT(operations.size(), head.size() + 1) << "more than one read";
        ASSERT_EQ(Operations(operations.begin(), operations.begin() + static_cast<std::ptrdiff_t>(head.size())), head);
        ASSERT_EQ(static_cast<std::size_t>(std::count(operations.begin(), operations.end(), "read")),
                  operations.size() - head.size());
        if (Plain()) {
            ASSERT_EQ(operations.size() - head.size(), (file.size() + 65535) / 65536) << "read to its end";
        }
        for (std::size_t n = 1; n <= operations.size(); ++n) {
            if (!Befalls(Fault(), n, operations.size()))
                continue;
            SCOPED_TRACE(std::to_string(n) + " " + operations[n - 1]);
            WriteWhole(TempFile, {'o', 'l', 'd'});
            check(RunWith(Fault(), n, read), operations[n - 1], n);
            Machine.CloseWait();
            if (!IsAtTheEdge(n, operations.size()))
                continue;
            EXPECT_TRUE(Run(read).Done);
            EXPECT_THAT(FileNames(), ::testing::ElementsAre(name));
        }
        EXPECT_TRUE(ReadWhole(path) == file);
    }
};

// Every fault over a wrapped file and over a plain one.
inline auto EveryFileFault()
{
    return ::testing::Combine(::testing::Values(false, true),
                              ::testing::ValuesIn(FileFaults().begin(), FileFaults().end()));
}

} // namespace dravik
