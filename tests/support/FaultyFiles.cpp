#include "support/FaultyFiles.h"

#include "league/Failure.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string_view>
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace dravik {

namespace fs = std::filesystem;

namespace {

constexpr FileFault Faults[] = {
    {"NoAccess", failure::PathAccess, "Path/File access error"},
    {"NoPermission", failure::PermissionDenied, "Permission denied"},
    {"FullDisk", failure::DiskFull, "Disk full"},
    {"FullDiskInTheMidstOfAWrite", failure::DiskFull, "Disk full", true},
    {"Gone", failure::FileNotFound, "File not found"},
#ifndef _WIN32 // where no process can be copied, to be killed
    {"Killed", failure::DiskFull, "Disk full", true, true},
#endif
};

} // namespace

void PrintTo(const FileFault& fault, std::ostream* out) { *out << fault.Name; }

std::span<const FileFault> FileFaults() { return Faults; }

std::size_t PlaceOf(const FileFault& fault)
{
    const auto* found = std::find_if(std::begin(Faults), std::end(Faults), [&](const FileFault& other) {
        return std::string_view(other.Name) == fault.Name;
    });
    return static_cast<std::size_t>(found - std::begin(Faults));
}

bool IsAtTheEdge(std::size_t n, std::size_t operations)
{
    constexpr std::size_t head = 8;
    constexpr std::size_t tail = 4;
    return n <= head || n + tail > operations;
}

bool Befalls(const FileFault& fault, std::size_t n, std::size_t operations)
{
    return IsAtTheEdge(n, operations) || n % std::size(Faults) == PlaceOf(fault);
}

FaultyFiles::FaultyFiles()
{
    TeamMaker(5).DressesFullRoster().FarmsFullRoster();
    Prospects[1].Name = "A Prospect";
    Coaches[1].Name = "A Coach";
    Coaches[1].InUse = true;
    LeagueData.FileDate = 45000;
    LeagueData.OffersLeft = 10;
    CurrentTeam = 5;
}

FaultyFiles::Outcome FaultyFiles::Run(const Work& work)
{
    Outcome outcome;
    Machine.ClearSeenBoxes();
    try {
        outcome.Done = work();
    } catch (const Failure& failed) {
        outcome.Thrown = failed.Number;
    }
    outcome.Boxes = Machine.TakeBoxes();
    return outcome;
}

FaultyFiles::Outcome FaultyFiles::RunWith(const FileFault& fault, std::size_t n, const Work& work)
{
    return fault.Kills ? RunAndKill(fault, n, work) : RunInProcess(fault, n, work);
}

FaultyFiles::Outcome FaultyFiles::RunInProcess(const FileFault& fault, std::size_t n, const Work& work)
{
    Machine.TearsWrites = fault.Tears;
    Machine.FailFileOperation(n, fault.Number);
    Outcome outcome = Run(work);
    Machine.FailNoMore();
    Machine.TearsWrites = false;
    return outcome;
}

FaultyFiles::Outcome FaultyFiles::RunAndKill([[maybe_unused]] const FileFault& fault, [[maybe_unused]] std::size_t n,
                                             [[maybe_unused]] const Work& work)
{
    Outcome outcome;
#ifndef _WIN32
    constexpr int killed = 99;
    const pid_t child = fork();
    if (child == 0) {
        Machine.AtFault = [] { _exit(killed); };
        try {
            (void)RunInProcess(fault, n, work);
        } catch (...) { // NOLINT: the copy of the test ends here; it must not go on to use its parent's folder
        }
        _exit(0);
    }
    int result = 0;
    outcome.Killed =
        child > 0 && waitpid(child, &result, 0) == child && WIFEXITED(result) != 0 && WEXITSTATUS(result) == killed;
    EXPECT_TRUE(outcome.Killed) << n;
#endif
    return outcome;
}

FaultyFiles::Operations FaultyFiles::OperationsOf(const Work& work)
{
    const auto before = static_cast<std::ptrdiff_t>(Machine.FileOperations().size());
    const Outcome outcome = Run(work);
    EXPECT_TRUE(outcome.Done);
    EXPECT_TRUE(outcome.Boxes.empty());
    return {Machine.FileOperations().begin() + before, Machine.FileOperations().end()};
}

FaultyFiles::Snapshot FaultyFiles::Disk() const
{
    Snapshot files;
    for (const std::string& name : FileNames())
        files[name] = ReadWhole(Machine.InFolder(name));
    return files;
}

void FaultyFiles::SetDisk(const Snapshot& files) const
{
    for (const std::string& name : FileNames())
        fs::remove(Machine.InFolder(name));
    for (const auto& [name, bytes] : files)
        WriteWhole(Machine.InFolder(name), bytes);
}

std::vector<std::string> FaultyFiles::FileNames() const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Machine.Folder()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

ByteVector FaultyFiles::Tables()
{
    ByteVector all = FiveTables();
    for (const ByteVector& bytes :
         {ImageOf(LeagueData), ImageOf(Coaches), ImageOf(RosterChanges), ImageOf(RosterChangesGoalie)})
        all.insert(all.end(), bytes.begin(), bytes.end());
    return all;
}

} // namespace dravik
