// Every file operation of every reader and writer fails once, in every way, and the process is killed at every one of
// them. What was there before stays or is replaced whole, the words are the known ones, and the next run of the same
// operation finds nothing in its way and leaves nothing beside its file.

#include "league/ClientFile.h"
#include "league/DraftFile.h"
#include "league/Failure.h"
#include "league/LinesFile.h"
#include "league/OffersFile.h"
#include "league/OutsideCode.h"
#include "league/RatingsExport.h"
#include "support/LeagueImage.h"
#include "support/OpenedWindow.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <span>
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace dravik {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

const ByteVector Old = {'o', 'l', 'd'};

// How a run ended: told in a box, thrown as a failure, or well.
struct Outcome {
    bool Done = false;
    int Thrown = 0;
    std::vector<Box> Boxes;
};

struct FaultKind {
    const char* Name;
    int Number;
    const char* Description;
    bool Tears;
};

const FaultKind Faults[] = {
    {"no access", failure::PathAccess, "Path/File access error", false},
    {"no permission", failure::PermissionDenied, "Permission denied", false},
    {"full disk", failure::DiskFull, "Disk full", false},
    {"full disk in the midst of a write", failure::DiskFull, "Disk full", true},
    {"gone", failure::FileNotFound, "File not found", false},
};

class FileFaultTest : public SmallLeague {
protected:
    using Snapshot = std::map<std::string, ByteVector>;

    FileFaultTest()
    {
        TeamMaker(5).DressesFullRoster().FarmsFullRoster();
        Prospects[1].Name = "A Prospect";
        Coaches[1].Name = "A Coach";
        Coaches[1].InUse = true;
        LeagueData.FileDate = 45000;
        CurrentTeam = 5;
    }

    // Runs `work`, which says whether it came to its end.
    Outcome Run(const std::function<bool()>& work)
    {
        Outcome outcome;
        Machine.TakeBoxes();
        try {
            outcome.Done = work();
        } catch (const Failure& failed) {
            outcome.Thrown = failed.Number;
        }
        outcome.Boxes = Machine.TakeBoxes();
        return outcome;
    }

    // The number of file operations of a run without a fault.
    std::size_t CountOperations(const std::function<bool()>& work)
    {
        const std::size_t before = Machine.FileOperations().size();
        const Outcome outcome = Run(work);
        EXPECT_TRUE(outcome.Done);
        return Machine.FileOperations().size() - before;
    }

    Outcome RunWithFault(const std::function<bool()>& work, std::size_t n, const FaultKind& fault)
    {
        Machine.TearsWrites = fault.Tears;
        Machine.FailFileOperation(n, fault.Number);
        Outcome outcome = Run(work);
        Machine.FailNoMore();
        Machine.TearsWrites = false;
        return outcome;
    }

#ifndef _WIN32 // where no process can be copied; a disk that goes away for good stands for it there
    // Runs `work` in a process of its own that ends without a farewell at operation n: nothing is closed, nothing cleaned
    // up. A write that was under way is on the disk by half.
    void RunAndKill(const std::function<bool()>& work, std::size_t n)
    {
        constexpr int killed = 99;
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            Machine.AtFault = [] { _exit(killed); };
            (void)RunWithFault(work, n, {"killed", failure::DiskFull, "", true});
            _exit(0);
        }
        int result = 0;
        ASSERT_EQ(waitpid(child, &result, 0), child);
        ASSERT_TRUE(WIFEXITED(result) && WEXITSTATUS(result) == killed) << n;
    }
#endif

    [[nodiscard]] Snapshot Disk() const
    {
        Snapshot files;
        for (const auto& entry : fs::directory_iterator(Machine.Folder()))
            files[entry.path().filename().string()] = ReadWhole(entry.path().string());
        return files;
    }

    // Brings the folder into the state `files`.
    void SetDisk(const Snapshot& files) const
    {
        for (const auto& entry : fs::directory_iterator(Machine.Folder()))
            fs::remove(entry.path());
        for (const auto& [name, bytes] : files)
            WriteWhole(Machine.InFolder(name), bytes);
    }

    // A box of the wrapper or a thrown failure, and nothing else.
    static void ExpectTold(const Outcome& outcome, const FaultKind& fault, const std::string& ending,
                           const std::string& what)
    {
        if (outcome.Thrown != 0) {
            EXPECT_EQ(outcome.Thrown, fault.Number) << what;
            EXPECT_THAT(outcome.Boxes, IsEmpty()) << what;
        } else {
            EXPECT_THAT(outcome.Boxes, ElementsAre(Box{box::Critical, std::to_string(fault.Number) + " - " +
                                                                          fault.Description + ending}))
                << what;
        }
    }

    // A writer over all its faults. `target` is what it writes; an older one stands there, and so do a work file and the
    // half file of an earlier crash.
    void ExpectWriterSurvives(const std::string& target, bool plain, const std::function<bool()>& work,
                              std::span<const FaultKind> faults = Faults)
    {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        const Snapshot before = {{target, Old}, {"ClientTemp.dvt", Old}, {target + ".part", Old}};
        SetDisk(before);
        const std::size_t operations = CountOperations(work);
        const Snapshot after = Disk();
        ASSERT_EQ(after.size(), 1U);
        ASSERT_GT(after.at(target).size(), 100U);
        ASSERT_GE(operations, 9U);

        const auto expectNextSucceeds = [&](const std::string& what) {
            const Outcome next = Run(work);
            EXPECT_TRUE(next.Done) << what;
            EXPECT_THAT(next.Boxes, IsEmpty()) << what;
            EXPECT_TRUE(Disk() == after) << what;
        };
        const auto expectNoHalfFile = [&](const std::string& what) {
            const Snapshot disk = Disk();
            if (disk.count(target) == 1) {
                EXPECT_TRUE(disk.at(target) == Old || disk.at(target) == after.at(target)) << what;
            }
        };
        for (std::size_t n = 1; n <= operations; ++n) {
            for (const FaultKind& fault : faults) {
                const std::string what = target + (plain ? " plain " : " wrapped ") + fault.Name + std::to_string(n);
                SetDisk(before);
                const Outcome outcome = RunWithFault(work, n, fault);
                expectNoHalfFile(what);
                if (outcome.Done) // a look for a file that failed is a file that is not there
                    EXPECT_THAT(outcome.Boxes, IsEmpty()) << what;
                else
                    ExpectTold(outcome, fault, " in Zlib Compress!", what);
                expectNextSucceeds(what);
            }
#ifndef _WIN32
            const std::string what = target + (plain ? " plain " : " wrapped ") + "killed at " + std::to_string(n);
            SetDisk(before);
            RunAndKill(work, n);
            expectNoHalfFile(what);
            expectNextSucceeds(what);
#endif
        }
    }

    // A reader over all its faults: the file stays as it is and nothing joins it. `check` looks at the tables.
    void ExpectReaderSurvives(const std::string& source, std::size_t most, const std::function<bool()>& work,
                              const std::function<void(const Outcome&, const FaultKind&, std::size_t n)>& check)
    {
        const Snapshot clean = Disk();
        ASSERT_EQ(clean.size(), 1U) << source;
        const std::size_t operations = CountOperations(work);
        ASSERT_GE(operations, 6U);
        Snapshot before = clean;
        before["ClientTemp.dvt"] = Old;
        for (std::size_t n = 1; n <= operations; ++n) {
            if (n > most && n + 3 <= operations)
                continue; // one read of hundreds is like the other
            for (const FaultKind& fault : Faults) {
                WriteWhole(TempFile, Old);
                check(RunWithFault(work, n, fault), fault, n);
                Machine.CloseWait();
                EXPECT_TRUE(Run(work).Done) << source << n;
                EXPECT_TRUE(Disk() == clean) << source << fault.Name << n;
            }
#ifndef _WIN32
            WriteWhole(TempFile, Old);
            RunAndKill(work, n);
            EXPECT_TRUE(Run(work).Done) << source << n;
            EXPECT_TRUE(Disk() == clean) << source << "killed at " << n;
#endif
        }
    }

    static ByteVector Tables()
    {
        ByteVector all = FiveTables();
        for (const ByteVector& bytes :
             {ImageOf(LeagueData), ImageOf(Coaches), ImageOf(RosterChanges), ImageOf(RosterChangesGoalie)})
            all.insert(all.end(), bytes.begin(), bytes.end());
        return all;
    }
};

TEST_F(FileFaultTest, TheLinesFileIsOldOrWholeOrNotThere)
{
    const auto save = [&] { return WriteLinesFile(5, LinesFilePath(5)); };
    // The longest of the files by far; the others meet the faults that are left out here.
    ExpectWriterSurvives("Team5.dvl", false, save, std::span(Faults).subspan(3, 1));
}

TEST_F(FileFaultTest, TheDraftFileIsOldOrWholeOrNotThere)
{
    DraftRanking ranking;
    ranking[0] = 20001;
    ranking[1] = 10001;
    const auto save = [&] { return WriteDraftFile(5, ranking, DraftFilePath(5)); };
    ExpectWriterSurvives("Team5.dvd", true, save);
    for (long long place = 0; place <= DraftRanking::last; ++place)
        ranking[place] = (place * 7919 + 1) % 10000;
    ExpectWriterSurvives("Team5.dvd", false, save);
}

TEST_F(FileFaultTest, TheOfferFileIsOldOrWholeOrNotThere)
{
    const auto offers = std::make_unique<OfferTable>();
    for (const int id : {1, 2, 10001}) {
        FreeAgentOffer& offer = (*offers)[id];
        offer.Id = id;
        offer.Duration = 2;
        offer.Salary = 5000000;
        offer.Comment = "Come and play";
    }
    LeagueData.OffersLeft = 10;
    const auto save = [&] { return WriteOffersFile(5, OffersFilePath(5), *offers).Outcome == OffersFileWrite::Saved; };
    ExpectWriterSurvives("Team5.dvf", false, save);
    ExpectWriterSurvives("Team5.dvf", true, save, std::span(Faults).subspan(3, 1));
}

TEST_F(FileFaultTest, ASaveChangesNoTable)
{
    const auto save = [&] { return WriteLinesFile(5, LinesFilePath(5)); };
    const std::size_t operations = CountOperations(save); // refreshes the status of everybody
    const ByteVector before = Tables();
    for (std::size_t n = 1; n <= operations; ++n) {
        (void)RunWithFault(save, n, Faults[0]);
        EXPECT_TRUE(Tables() == before) << n;
    }
}

// The exports are written in place: no other program waits for them.
TEST_F(FileFaultTest, AnExportThatFailedIsWholeAfterTheNext)
{
    const auto work = [&] {
        ExportRatings(Machine.Folder());
        return true;
    };
    const std::size_t operations = CountOperations(work);
    const Snapshot after = Disk();
    ASSERT_EQ(after.size(), 2U);
    const ByteVector tables = Tables();
    for (std::size_t n = 1; n <= operations; ++n)
        for (const FaultKind& fault : Faults) {
            const Outcome outcome = RunWithFault(work, n, fault);
            EXPECT_EQ(outcome.Thrown, fault.Number) << n;
            EXPECT_THAT(outcome.Boxes, IsEmpty()) << n;
            EXPECT_TRUE(Tables() == tables) << n;
            EXPECT_TRUE(Run(work).Done) << n;
            EXPECT_TRUE(Disk() == after) << fault.Name << n;
        }
}

TEST_F(FileFaultTest, ALoadOfLinesChangesEverythingOrNothing)
{
    const std::string path = Machine.InFolder("Team5.dvl");
    WriteWhole(path, Wrapped(LinesSlots(5), 1));
    Teams[5].Cash = 77;
    const ByteVector before = Tables();
    const auto load = [&] {
        const LinesFileRead read = ReadLinesFile(path);
        if (read == LinesFileRead::Loaded)
            Teams[5].Cash = 77;
        return read == LinesFileRead::Loaded;
    };
    ExpectReaderSurvives("lines", 12, load, [&](const Outcome& outcome, const FaultKind& fault, std::size_t n) {
        EXPECT_TRUE(Tables() == before) << fault.Name << n;
        const std::string& operation = *(Machine.FileOperations().end() - 1);
        if (outcome.Done)
            return;
        if (outcome.Thrown != 0) { // only the work file's deletion stands outside the wrapper
            EXPECT_EQ(outcome.Thrown, fault.Number);
            EXPECT_EQ(operation, "delete");
        } else if (!outcome.Boxes.empty()) {
            ExpectTold(outcome, fault, " in Zlib Decompress!", operation);
        } else {
            EXPECT_EQ(operation, "find") << "a file that cannot be looked for is refused without a word";
        }
    });
}

TEST_F(FileFaultTest, APlainLoadOfLinesChangesEverythingOrNothing)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const std::string path = Machine.InFolder("Team5.dvl");
    WriteSparse(path, LinesSlots(5));
    Teams[5].Cash = 77;
    const ByteVector before = Tables();
    const auto load = [&] {
        const LinesFileRead read = ReadLinesFile(path);
        if (read == LinesFileRead::Loaded)
            Teams[5].Cash = 77;
        return read == LinesFileRead::Loaded;
    };
    const std::size_t operations = CountOperations(load);
    ASSERT_GT(operations, 500U);
    for (const std::size_t n :
         {std::size_t{4}, std::size_t{5}, std::size_t{6}, operations / 2, operations - 1, operations})
        for (const FaultKind& fault : Faults) {
            const Outcome outcome = RunWithFault(load, n, fault);
            EXPECT_TRUE(outcome.Done || outcome.Thrown == fault.Number) << n;
            EXPECT_THAT(outcome.Boxes, IsEmpty()) << n;
            EXPECT_TRUE(Tables() == before) << fault.Name << n;
        }
}

TEST_F(FileFaultTest, AnOpenEndsInALeagueOrInNone)
{
    const std::string path = Machine.InFolder("League.dvs");
    std::mt19937 random(11);
    Scramble(GameSchedule, random); // the last table takes more than one read, when all the others have been filled
    WriteWhole(path, Wrapped(ClientSlots(), 1));
    ByteVector keptLeague;
    ByteVector keptCoaches;
    const auto open = [&] {
        OpenedWindow window;
        Machine.CloseWait();
        LeagueData.Name = "As Before";
        Coaches[1].Name = "As Before";
        keptLeague = ImageOf(LeagueData);
        keptCoaches = ImageOf(Coaches);
        OpenLeagueClient(path, window);
        return !window.Calls.empty();
    };
    ASSERT_TRUE(open());
    const ByteVector league = ImageOf(LeagueData);
    const ByteVector coaches = ImageOf(Coaches);
    const ByteVector five = FiveTables();
    ExpectReaderSurvives("client", 14, open, [&](const Outcome& outcome, const FaultKind& fault, std::size_t n) {
        EXPECT_EQ(outcome.Thrown, 0) << n;
        EXPECT_TRUE(ImageOf(LeagueData) == (outcome.Done ? league : keptLeague)) << fault.Name << n;
        EXPECT_TRUE(ImageOf(Coaches) == (outcome.Done ? coaches : keptCoaches)) << fault.Name << n;
        if (outcome.Done) {
            EXPECT_TRUE(FiveTables() == five) << fault.Name << n;
            EXPECT_THAT(outcome.Boxes, IsEmpty()) << n;
            return;
        }
        EXPECT_TRUE(FiveTablesAreEmpty()) << fault.Name << n;
        const std::string said = std::to_string(fault.Number) + " - " + fault.Description;
        EXPECT_THAT(outcome.Boxes, ElementsAre(AnyOf(Box{box::Critical, "Cannot find last client league file!"},
                                                     Box{box::Critical, said + " in OpenLeagueClient!"},
                                                     Box{box::Critical, said + " in Zlib Decompress!"})))
            << n;
        // Only a file that is not there closes the wait screen; before the reading it is not up yet.
        const std::string& operation = *(Machine.FileOperations().end() - 1);
        EXPECT_EQ(Machine.WaitShown, operation != "find" && operation != "delete") << operation << n;
    });
}

TEST_F(FileFaultTest, CompressingLeavesTheTargetAsItWasOrWhole)
{
    const std::string source = Machine.InFolder("Source");
    const std::string target = Machine.InFolder("Target");
    const std::string wrapped = Machine.InFolder("Wrapped");
    ByteVector bytes(500000);
    std::mt19937 random(7);
    for (auto& byte : bytes)
        byte = static_cast<unsigned char>(random() >> 8);
    const Snapshot start = {{"Source", bytes}, {"Wrapped", Wrapped(bytes, 1)}, {"Target", Old}};
    const struct {
        const char* Ending;
        std::function<bool()> Work;
    } both[] = {
        {" in Zlib Compress!", [&] { return ZlibCompress(source, target); }},
        {" in Zlib Decompress!", [&] { return ZlibDecompress(wrapped, target); }},
    };
    for (const auto& [ending, work] : both) {
        SetDisk(start);
        const std::size_t operations = CountOperations(work);
        const Snapshot after = Disk();
        ASSERT_EQ(after.size(), 3U);
        for (std::size_t n = 1; n <= operations; ++n) {
            for (const FaultKind& fault : Faults) {
                const std::string what = std::string(ending) + fault.Name + std::to_string(n);
                SetDisk(start);
                const Outcome outcome = RunWithFault(work, n, fault);
                EXPECT_FALSE(outcome.Done) << what;
                ExpectTold(outcome, fault, ending, what);
                EXPECT_TRUE(Disk() == start) << what;
            }
#ifndef _WIN32
            SetDisk(start);
            RunAndKill(work, n);
            Snapshot left = Disk();
            left.erase("Target.part"); // the next run writes over it
            EXPECT_TRUE(left == start) << ending << n;
            EXPECT_TRUE(work()) << ending << n;
            EXPECT_TRUE(Disk() == after) << ending << n;
#endif
        }
    }
}

// When nothing works any more, not even the cleaning up, the old file is still no half one.
TEST_F(FileFaultTest, ADiskThatGoesAwayLeavesNoHalfFileUnderTheName)
{
    const auto save = [&] { return WriteLinesFile(5, LinesFilePath(5)); };
    const std::size_t operations = CountOperations(save);
    const Snapshot after = Disk();
    for (std::size_t n = 1; n <= operations; ++n) {
        SetDisk({{"Team5.dvl", Old}});
        Machine.TearsWrites = true;
        Machine.FailAllFrom(n, failure::PathAccess);
        const Outcome outcome = Run(save);
        Machine.FailNoMore();
        Machine.TearsWrites = false;
        EXPECT_FALSE(outcome.Done) << n;
        const Snapshot left = Disk();
        if (left.count("Team5.dvl") == 1) {
            EXPECT_TRUE(left.at("Team5.dvl") == Old) << n;
        }
        EXPECT_TRUE(Run(save).Done) << n;
        EXPECT_TRUE(Disk() == after) << n;
    }
}

} // namespace
} // namespace dravik
