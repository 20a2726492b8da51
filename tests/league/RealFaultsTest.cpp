// What the system itself refuses: a file that may not be read, a folder that may not be written to, a disk without room.
// Saves meet the same beside their other faults.

#include "support/RealFaults.h"

#include "league/Failure.h"
#include "session/OpenLeagueClient.h"
#include "session/Routines.h"
#include "support/FaultyFiles.h"
#include "support/OpenedWindow.h"

#ifndef _WIN32

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RealFaultsTest : public FaultyFiles {
protected:
    // A file of these slots that nobody may read.
    std::string Secret(const std::string& name, bool plain, const ByteVector& slots)
    {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        const std::string path = Machine.InFolder(name);
        WriteSparse(path, plain ? slots : Wrapped(slots, 1));
        EXPECT_EQ(chmod(path.c_str(), 0), 0);
        return path;
    }

    bool Export()
    {
        ExportRatings(Machine.Folder());
        return true;
    }
};

TEST_F(RealFaultsTest, AClientFileThatMayNotBeReadIsNoLeague)
{
    const ByteVector slots = ClientSlots();
    for (const bool plain : {false, true}) {
        const std::string path = Secret("League.dvs", plain, slots);
        OpenedWindow window;
        const ReadOnly folder(Machine.Folder());
        OpenLeagueClient(path, window);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{box::Critical, plain ? "70 - Permission denied in OpenLeagueClient!"
                                                         : "70 - Permission denied in Zlib Decompress!"}));
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_THAT(window.Calls, IsEmpty());
        EXPECT_TRUE(Machine.WaitShown);
    }
}

TEST_F(RealFaultsTest, AWriteProtectedClientFileInAWriteProtectedFolderOpens)
{
    const ByteVector slots = ClientSlots();
    for (const bool plain : {false, true}) {
        const std::string path = Secret("League.dvs", plain, slots);
        EXPECT_EQ(chmod(path.c_str(), 0444), 0);
        const ByteVector before = ReadWhole(path);
        OpenedWindow window;
        {
            const ReadOnly folder(Machine.Folder());
            OpenLeagueClient(path, window);
        }
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
        EXPECT_EQ(LeagueData.Name.Trimmed(), "Small League");
        EXPECT_EQ(window.Calls.size(), 7U);
        EXPECT_TRUE(ReadWhole(path) == before);
    }
}

TEST_F(RealFaultsTest, ALinesFileThatMayNotBeReadChangesNothing)
{
    const ByteVector slots = LinesSlots(5);
    const ByteVector before = Tables();
    for (const bool plain : {false, true}) {
        const std::string path = Secret("Team5.dvl", plain, slots);
        const ReadOnly folder(Machine.Folder());
        const Outcome outcome = Run([&] { return ReadLinesFile(path) == LinesFileRead::Loaded; });
        EXPECT_FALSE(outcome.Done);
        EXPECT_EQ(outcome.Thrown, plain ? failure::PermissionDenied : 0);
        EXPECT_EQ(outcome.Boxes, plain ? Nothing() : Critical("70 - Permission denied in Zlib Decompress!"));
        EXPECT_TRUE(Tables() == before);
    }
}

TEST_F(RealFaultsTest, AFolderThatMayNotBeWrittenTakesNoExport)
{
    const ReadOnly folder(Machine.Folder());
    EXPECT_EQ(Run([&] { return Export(); }).Thrown, failure::PermissionDenied);
    EXPECT_THAT(FileNames(), IsEmpty());
}

TEST_F(RealFaultsTest, ADiskThatIsFullTakesAnExportAsFarAsItGoes)
{
    ASSERT_TRUE(Export());
    const ByteVector whole = ReadWhole(Machine.InFolder("PlayersRatings.csv"));
    ASSERT_GT(whole.size(), 1000U);
    SetDisk({});
    {
        const SmallDisk disk(1000);
        EXPECT_EQ(Run([&] { return Export(); }).Thrown, failure::DiskFull);
    }
    EXPECT_THAT(FileNames(), ElementsAre("PlayersRatings.csv"));
    EXPECT_TRUE(ReadWhole(Machine.InFolder("PlayersRatings.csv")) == ByteVector(whole.begin(), whole.begin() + 1000));
    EXPECT_TRUE(Run([&] { return Export(); }).Done);
    EXPECT_TRUE(ReadWhole(Machine.InFolder("PlayersRatings.csv")) == whole);
}

} // namespace
} // namespace dravik

#endif
