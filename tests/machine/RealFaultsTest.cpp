// What the system itself refuses: a file that may not be read, a folder that may not be written to, a disk without room.
// Saves meet the same beside their other faults.

#include "support/RealFaults.h"

#include "league/Failure.h"
#include "support/FaultyFiles.h"
#include "support/Routines.h"

#ifndef _WIN32

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RealFaultsTest : public FaultyFiles {
protected:
    bool Export()
    {
        ExportRatings(Machine.Folder());
        return true;
    }
};

TEST_F(RealFaultsTest, ALinesFileThatMayNotBeReadChangesNothing)
{
    const ByteVector slots = LinesSlots(5);
    const ByteVector before = Tables();
    for (const bool plain : {false, true}) {
        const std::string path = Secret(Machine, "Team5.dvl", plain, slots);
        const ReadOnly folder(Machine.Folder());
        const Outcome outcome = Run([&] { return ReadLinesFile(path) == TeamFileRead::Loaded; });
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
