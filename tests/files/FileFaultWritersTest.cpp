// Every file operation of every save fails in every way, and the process is killed at every one of them. What was there
// before is gone after a failure that was told, stays after a kill, or is replaced whole; the words are the known ones, no
// table changes, and the next operation leaves nothing beside its file.

#include "league/Failure.h"
#include "session/OpenLeagueClient.h"
#include "support/FaultyFiles.h"
#include "support/OpenedWindow.h"
#include "support/RealFaults.h"
#include "support/Routines.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <tuple>
#ifndef _WIN32
#include <sys/select.h>
#include <sys/wait.h>
#endif

namespace dravik {
namespace {

using ::testing::Combine;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::TestParamInfo;
using ::testing::Values;
using ::testing::ValuesIn;

constexpr const char* WorkFile = "ClientTemp.dvt";
const ByteVector Old = {'o', 'l', 'd'};

enum class Writer { Lines, Draft, Offers };

const char* TargetOf(Writer writer)
{
    return writer == Writer::Lines ? "Team5.dvl" : writer == Writer::Draft ? "Team5.dvd" : "Team5.dvf";
}

const char* NameOf(Writer writer)
{
    return writer == Writer::Lines ? "Lines" : writer == Writer::Draft ? "Draft" : "Offers";
}

std::string NameOf(Writer writer, bool plain) { return (plain ? "Plain" : "Wrapped") + std::string(NameOf(writer)); }

void PrintTo(Writer writer, std::ostream* out) { *out << NameOf(writer); }

class Saves : public FaultyFiles {
protected:
    Saves()
    {
        for (long long place = 0; place <= DraftRanking::last; ++place)
            ranking[place] = (place * 7919 + 1) % 10000; // a file of more than a few bytes, wrapped too
        for (const int id : {1, 2, 10001}) {
            FreeAgentOffer& offer = (*offers)[id];
            offer.Id = id;
            offer.Team = 5;
            offer.Duration = 2;
            offer.Salary = 5000000;
            offer.Comment = "Come and play";
        }
    }

    bool Save(Writer writer)
    {
        switch (writer) {
        case Writer::Lines:
            return WriteLinesFile(5, LinesFilePath(5));
        case Writer::Draft:
            return WriteDraftFile(5, ranking, DraftFilePath(5));
        case Writer::Offers:
            return WriteOffersFile(5, OffersFilePath(5), *offers).Outcome == OffersFileWrite::Saved;
        }
        return false;
    }

#ifndef _WIN32
    // Runs `work` in a process of its own, which is killed after so many microseconds unless it has come to its end.
    static void KillAfter(long microseconds, const Work& work)
    {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0) {
            try {
                (void)work();
            } catch (...) { // NOLINT: the copy of the test ends here, whatever happens
            }
            _exit(0);
        }
        ASSERT_GT(child, 0);
        close(ends[1]); // the child's end goes when the child does
        fd_set end;
        FD_ZERO(&end);
        FD_SET(ends[0], &end);
        timeval moment = {microseconds / 1000000, microseconds % 1000000};
        (void)select(ends[0] + 1, &end, nullptr, nullptr, &moment);
        EXPECT_EQ(kill(child, SIGKILL), 0);
        EXPECT_EQ(waitpid(child, nullptr, 0), child);
        close(ends[0]);
    }
#endif

    void MakePlain(bool plain) { Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No"; }

    DraftRanking ranking;
    std::unique_ptr<OfferTable> offers = std::make_unique<OfferTable>();
};

class FileFaultWritersTest : public Saves, public ::testing::WithParamInterface<std::tuple<Writer, bool, FileFault>> {
public:
    static std::string Name(const TestParamInfo<ParamType>& info)
    {
        const auto& [writer, plain, fault] = info.param;
        return NameOf(writer, plain) + fault.Name;
    }
};

TEST_P(FileFaultWritersTest, TheFileIsOldOrGoneOrWholeAndTheNextSaveLeavesNothingElse)
{
    const auto& [writer, plain, fault] = GetParam();
    const std::string target = TargetOf(writer);
    const auto save = [&, writer = writer] { return Save(writer); };
    MakePlain(plain);
    const Snapshot before = {{target, Old}, {WorkFile, Old}};
    SetDisk(before);
    const Operations operations = OperationsOf(save);
    const Snapshot after = Disk();
    ASSERT_THAT(FileNames(), ElementsAre(target));
    ASSERT_GT(after.at(target).size(), 100U);
    const Operations head = {"find", "delete", "create", "write"};
    ASSERT_TRUE(std::equal(head.begin(), head.end(), operations.begin()));
    ASSERT_THAT(Operations(operations.end() - 3, operations.end()), ElementsAre("flush", "close", "rename"));
    const ByteVector tables = Tables();

    for (std::size_t n = 1; n <= operations.size(); ++n) {
        if (!Befalls(fault, n, operations.size()))
            continue;
        SCOPED_TRACE(std::to_string(n) + " " + operations[n - 1]);
        SetDisk(before);
        const Outcome outcome = RunWith(fault, n, save);
        Snapshot left = Disk();
        if (outcome.Killed) {
            left.erase(WorkFile);
            EXPECT_TRUE(left == (Snapshot{{target, Old}}));
        } else if (operations[n - 1] == "find") { // a look for a file that failed is a file that is not there
            EXPECT_TRUE(outcome.Done);
            EXPECT_THAT(outcome.Boxes, IsEmpty());
            EXPECT_TRUE(left == after);
        } else {
            EXPECT_FALSE(outcome.Done);
            const bool told = !plain && n > 2; // what happens to the wrapped file itself is told on the spot
            EXPECT_EQ(outcome.Thrown, told ? 0 : fault.Number);
            EXPECT_EQ(outcome.Boxes, told ? Shown{fault.ToldWith(" in Zlib Compress!")} : Nothing());
            EXPECT_TRUE(left == (n == 2 ? before : Snapshot{}));
        }
        EXPECT_TRUE(Tables() == tables);
        if (!IsAtTheEdge(n, operations.size()))
            continue;
        const Outcome next = Run(save);
        EXPECT_TRUE(next.Done);
        EXPECT_THAT(next.Boxes, IsEmpty());
        EXPECT_TRUE(Disk() == after);
    }
}

INSTANTIATE_TEST_SUITE_P(All, FileFaultWritersTest,
                         Combine(Values(Writer::Lines, Writer::Draft, Writer::Offers), Values(false, true),
                                 ValuesIn(FileFaults().begin(), FileFaults().end())),
                         FileFaultWritersTest::Name);

class FileFaultWritersOnceTest : public Saves, public ::testing::WithParamInterface<std::tuple<Writer, bool>> {
public:
    static std::string Name(const TestParamInfo<ParamType>& info)
    {
        return NameOf(std::get<0>(info.param), std::get<1>(info.param));
    }
};

// When nothing works any more, not even the cleaning up, the old file is still no half one.
TEST_P(FileFaultWritersOnceTest, ADiskThatGoesAwayLeavesNoHalfFileUnderTheName)
{
    const auto [writer, plain] = GetParam();
    const std::string target = TargetOf(writer);
    const auto save = [&, writer = writer] { return Save(writer); };
    MakePlain(plain);
    SetDisk({{target, Old}});
    const std::size_t operations = OperationsOf(save).size();
    const Snapshot after = Disk();
    for (std::size_t n = 1; n <= operations; ++n) {
        if (!IsAtTheEdge(n, operations))
            continue;
        SCOPED_TRACE(n);
        SetDisk({{target, Old}});
        Machine.TearsWrites = true;
        Machine.FailAllFrom(n, failure::PathAccess);
        const Outcome outcome = Run(save);
        Machine.FailNoMore();
        Machine.TearsWrites = false;
        EXPECT_FALSE(outcome.Done);
        EXPECT_EQ(outcome.Boxes.empty(), outcome.Thrown != 0);
        Snapshot left = Disk();
        left.erase(WorkFile);
        EXPECT_TRUE(left == (Snapshot{{target, Old}}));
        EXPECT_TRUE(Run(save).Done);
        EXPECT_TRUE(Disk() == after);
    }
}

#ifndef _WIN32 // calls of POSIX kill a process, take the rights of a folder and the room of a disk

// Whatever is done after the crash, the half file of the crash does not outlive it.
TEST_P(FileFaultWritersOnceTest, WhateverComesAfterAKilledSaveRemovesWhatItLeft)
{
    const auto [writer, plain] = GetParam();
    const auto save = [&, writer = writer] { return Save(writer); };
    MakePlain(plain);
    const std::string client = Machine.InFolder("League.dvs");
    const std::string lines = Machine.InFolder("Old.dvl");
    WriteSparse(client, plain ? ClientSlots() : Wrapped(ClientSlots(), 1));
    WriteSparse(lines, plain ? LinesSlots(5) : Wrapped(LinesSlots(5), 1));
    const std::unique_ptr<OfferTable> none = std::make_unique<OfferTable>();
    OpenedWindow window;
    const std::pair<const char*, Work> others[] = {
        {"an open", [&] { return OpenLeagueClient(client, window), !window.Calls.empty(); }},
        {"a load", [&] { return ReadLinesFile(lines) == TeamFileRead::Loaded; }},
        {"a load of nothing", [&] { return ReadLinesFile(Machine.InFolder("Nothing.dvl")) == TeamFileRead::Refused; }},
        {"a save of lines", [&] { return Save(Writer::Lines); }},
        {"a save of a draft", [&] { return Save(Writer::Draft); }},
        {"a save of offers", [&] { return Save(Writer::Offers); }},
        {"a save of no offer",
         [&] { return WriteOffersFile(5, OffersFilePath(5), *none).Outcome == OffersFileWrite::NoOffer; }},
    };
    const std::size_t operations = OperationsOf(save).size();
    std::filesystem::remove(Machine.InFolder(TargetOf(writer)));
    const FileFault& killed = FileFaults().back();
    ASSERT_TRUE(killed.Kills);
    int leftovers = 0;
    for (std::size_t n = 1; n <= operations; ++n) {
        if (!IsAtTheEdge(n, operations))
            continue;
        for (const auto& [what, other] : others) {
            SCOPED_TRACE(std::to_string(n) + " then " + what);
            RunWith(killed, n, save);
            leftovers += FileNames().size() == 3 ? 1 : 0;
            const Outcome outcome = Run(other);
            EXPECT_TRUE(outcome.Done);
            EXPECT_THAT(outcome.Boxes, IsEmpty());
            for (const Writer any : {Writer::Lines, Writer::Draft, Writer::Offers})
                std::filesystem::remove(Machine.InFolder(TargetOf(any)));
            EXPECT_THAT(FileNames(), ElementsAre("League.dvs", "Old.dvl"));
        }
    }
    EXPECT_GE(leftovers, 4 * 7) << "behind the creation, the writes, the flush and the close";
}

// A kill waits for no operation: it comes at any moment, the old file in its place.
TEST_P(FileFaultWritersOnceTest, AProcessThatIsKilledAtAnyMomentLeavesTheOldFileOrTheNewOneWhole)
{
    using Clock = std::chrono::steady_clock;
    constexpr int kills = 20;
    const auto [writer, plain] = GetParam();
    const auto save = [&, writer = writer] { return Save(writer); };
    const std::string target = TargetOf(writer);
    MakePlain(plain);
    const auto start = Clock::now();
    ASSERT_TRUE(Run(save).Done);
    const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
    const Snapshot after = Disk();
    std::mt19937 random(11);
    for (int round = 0; round < kills; ++round) {
        SetDisk({{target, Old}});
        const auto moment = std::uniform_int_distribution<long>(0, duration.count() + 1000)(random);
        KillAfter(moment, save);
        SCOPED_TRACE("killed after " + std::to_string(moment) + " of " + std::to_string(duration.count()));
        Snapshot left = Disk();
        const bool whole = left == after;
        left.erase(WorkFile);
        EXPECT_TRUE(whole || left == (Snapshot{{target, Old}}));
    }
    EXPECT_TRUE(Run(save).Done);
    EXPECT_TRUE(Disk() == after);
}

TEST_P(FileFaultWritersOnceTest, ADiskThatIsTrulyFullIsToldAndNothingIsLeftOnIt)
{
    const auto [writer, plain] = GetParam();
    const auto save = [&, writer = writer] { return Save(writer); };
    MakePlain(plain);
    for (const int room : {0, 64}) {
        SetDisk({{TargetOf(writer), Old}, {WorkFile, Old}});
        {
            const SmallDisk disk(static_cast<rlim_t>(room));
            const Outcome outcome = Run(save);
            EXPECT_FALSE(outcome.Done);
            EXPECT_EQ(outcome.Thrown, plain ? failure::DiskFull : 0);
            EXPECT_EQ(outcome.Boxes, plain ? Nothing() : Critical("61 - Disk full in Zlib Compress!"));
        }
        EXPECT_THAT(FileNames(), IsEmpty()) << room;
        EXPECT_TRUE(Run(save).Done);
    }
}

TEST_P(FileFaultWritersOnceTest, AFolderThatMayNotBeWrittenIsToldAndStaysAsItWas)
{
    const auto [writer, plain] = GetParam();
    MakePlain(plain);
    const Snapshot files[] = {{}, {{TargetOf(writer), Old}}, {{WorkFile, Old}}};
    for (const Snapshot& before : files) {
        SetDisk(before);
        Outcome outcome;
        {
            const ReadOnly folder(Machine.Folder());
            outcome = Run([&, writer = writer] { return Save(writer); });
        }
        EXPECT_FALSE(outcome.Done);
        const bool told = before.count(WorkFile) == 0 && !plain; // without one to delete it is the new file that fails
        EXPECT_EQ(outcome.Thrown, told ? 0 : failure::PermissionDenied);
        EXPECT_EQ(outcome.Boxes, told ? Critical("70 - Permission denied in Zlib Compress!") : Nothing());
        EXPECT_TRUE(Disk() == before);
    }
}

#endif

INSTANTIATE_TEST_SUITE_P(All, FileFaultWritersOnceTest,
                         Combine(Values(Writer::Lines, Writer::Draft, Writer::Offers), Values(false, true)),
                         FileFaultWritersOnceTest::Name);

} // namespace
} // namespace dravik
