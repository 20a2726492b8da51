// Every file operation of every reader fails in every way, and the process is killed at every one of them. The tables are
// as before or as the file has them, an open ends in a league or in none, the words are the known ones, and the file read
// stays as it is with nothing beside it after the next reading.

#include "league/Failure.h"
#include "session/OpenLeagueClient.h"
#include "session/Routines.h"
#include "support/FaultyFiles.h"
#include "support/OpenedWindow.h"

#include <filesystem>
#include <tuple>

namespace dravik {
namespace {

using ::testing::Combine;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::TestParamInfo;
using ::testing::Values;
using ::testing::ValuesIn;

class FileFaultReadersTest : public FaultyFiles, public ::testing::WithParamInterface<std::tuple<bool, FileFault>> {
public:
    static std::string Name(const TestParamInfo<ParamType>& info)
    {
        const auto& [plain, fault] = info.param;
        return (plain ? "Plain" : "Wrapped") + std::string(fault.Name);
    }

protected:
    FileFaultReadersTest() { Machine.Settings["SkipZIPClient"] = Plain() ? "YES" : "No"; }

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
            EXPECT_THAT(FileNames(), ElementsAre(name));
        }
        EXPECT_TRUE(ReadWhole(path) == file);
    }
};

class FileFaultOpenTest : public FileFaultReadersTest {
protected:
    // Opens the file over tables that differ from it; true when the window shows its league.
    bool Open(const std::string& path)
    {
        OpenedWindow window;
        Machine.CloseWait();
        Machine.Settings.erase("LastLoadLeague");
        LeagueData.Name = "As Before";
        Coaches[1].Name = "As Before";
        RosterChanges[1].Protected = true;
        WindowTitle = "As Before";
        keptLeague = ImageOf(LeagueData);
        keptCoaches = ImageOf(Coaches);
        keptChanges = ImageOf(RosterChanges);
        OpenLeagueClient(path, window);
        EXPECT_EQ(window.Calls.empty(), Machine.Settings.count("LastLoadLeague") == 0);
        return !window.Calls.empty();
    }

    void ExpectNoLeague()
    {
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_TRUE(ImageOf(LeagueData) == keptLeague);
        EXPECT_TRUE(ImageOf(Coaches) == keptCoaches);
        EXPECT_TRUE(ImageOf(RosterChanges) == keptChanges);
        EXPECT_EQ(WindowTitle, "As Before");
    }

private:
    ByteVector keptLeague;
    ByteVector keptCoaches;
    ByteVector keptChanges;
};

TEST_P(FileFaultOpenTest, AnOpenEndsInALeagueOrInNone)
{
    std::mt19937 random(11);
    Scramble(GameSchedule, random); // the last table takes more than one read, when all the others have been filled
    const std::string path = Write("League.dvs", ClientSlots());
    ASSERT_TRUE(Open(path));
    const ByteVector league = Tables();
    const auto open = [&] { return Open(path); };
    const auto check = [&](const Outcome& outcome, const std::string& operation, std::size_t n) {
        if (outcome.Killed)
            return;
        EXPECT_EQ(outcome.Thrown, 0);
        if (operation == "find" && n > 1) { // a work file that cannot be looked for, and the spelling of the name
            EXPECT_TRUE(outcome.Done);
            EXPECT_THAT(outcome.Boxes, IsEmpty());
            EXPECT_TRUE(Tables() == league);
            return;
        }
        EXPECT_FALSE(outcome.Done);
        ExpectNoLeague();
        const char* ending = Plain() || operation == "delete" ? " in OpenLeagueClient!" : " in Zlib Decompress!";
        EXPECT_THAT(outcome.Boxes,
                    ElementsAre(operation == "find" ? Box{box::Critical, "Cannot find last client league file!"}
                                                    : Fault().ToldWith(ending)));
        // Only a file that is not there closes the wait screen; before the reading it is not up yet.
        EXPECT_EQ(Machine.WaitShown, operation != "find" && operation != "delete");
    };
    EachFault(path, {"find", "find", "delete", "find", "open"}, open, check);
}

class FileFaultLoadTest : public FileFaultReadersTest {};

TEST_P(FileFaultLoadTest, ALoadOfLinesChangesEverythingOrNothing)
{
    std::mt19937 random(12);
    Scramble(Teams[5].ProLines, random);
    for (RosterChange& change : RosterChanges) // more than one read, wrapped too
        change.Protected.SetWord(static_cast<std::int16_t>(random() % 30000));
    RosterChanges[1].Status = Players[1].Status;
    const std::string path = Write("Team5.dvl", LinesSlots(5));
    ASSERT_EQ(ReadLinesFile(path), LinesFileRead::Loaded);
    const ByteVector loaded = Tables();
    const auto soil = [] {
        Teams[5].Cash = 77;
        Players[1].Status = status::Scratch;
        RosterChanges[10000].TradeAvailable = true;
        RosterChangesGoalie[1000].Protected = true;
    };
    soil();
    const ByteVector before = Tables();
    const auto load = [&] {
        soil();
        return ReadLinesFile(path) == LinesFileRead::Loaded;
    };
    const auto check = [&](const Outcome& outcome, const std::string& operation, std::size_t n) {
        if (outcome.Killed)
            return;
        if (operation == "find" && n != 3) {
            EXPECT_TRUE(outcome.Done);
            EXPECT_THAT(outcome.Boxes, IsEmpty());
            EXPECT_TRUE(Tables() == loaded);
            return;
        }
        EXPECT_FALSE(outcome.Done);
        EXPECT_TRUE(Tables() == before);
        // A file that is not there is refused; what happens to a wrapped file is told on the spot.
        const bool told = !Plain() && operation != "find" && operation != "delete";
        EXPECT_EQ(outcome.Thrown, told || operation == "find" ? 0 : Fault().Number);
        EXPECT_EQ(outcome.Boxes, told ? Shown{Fault().ToldWith(" in Zlib Decompress!")} : Nothing());
    };
    EachFault(path, {"find", "delete", "find", "find", "open"}, load, check);
}

const auto EveryFault = Combine(Values(false, true), ValuesIn(FileFaults().begin(), FileFaults().end()));
INSTANTIATE_TEST_SUITE_P(All, FileFaultOpenTest, EveryFault, FileFaultReadersTest::Name);
INSTANTIATE_TEST_SUITE_P(All, FileFaultLoadTest, EveryFault, FileFaultReadersTest::Name);

} // namespace
} // namespace dravik
