// Client files that were damaged on their way and open all the same, because what came out of them has all that is asked for.

#include "session/OpenLeagueClient.h"
#include "session/Session.h"
#include "support/BadFiles.h"
#include "support/LeagueImage.h"
#include "support/OpenedWindow.h"

#include <algorithm>
#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const char* const DamagedWords = "This client file was damaged on its way, and some of it may be wrong. Get it anew.";

class DamagedFilesTest : public BadFiles {
protected:
    void Open(const ByteVector& file)
    {
        WriteWhole(ClientPath, file);
        Machine.ClearSeenBoxes();
        Machine.CloseWait();
        Window.Calls.clear();
        OpenLeagueClient(ClientPath, Window);
    }

    [[nodiscard]] bool Opened() const { return !Window.Calls.empty(); }

    void ExpectOpenedAndTold()
    {
        EXPECT_TRUE(Opened());
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        EXPECT_THAT(Window.Quiet, ElementsAre(::testing::Pair(QuietLine::Damaged, DamagedWords)));
    }

    OpenedWindow Window;
};

TEST_F(DamagedFilesTest, AGoodFileIsReadOnceAndSaysNothing)
{
    Open(Wrapped(ClientSlots(), 1));
    EXPECT_TRUE(Opened());
    EXPECT_THAT(Window.Quiet, IsEmpty());
    const auto operations = Machine.FileOperations();
    EXPECT_EQ(std::count(operations.begin(), operations.end(), "open"), 1);
}

TEST_F(DamagedFilesTest, AWrongRecordIsToldInAQuietLine)
{
    constexpr int stored = 0; // as it is, so that a bit of the stream is a bit of the content
    ByteVector wrong = Wrapped(ClientSlots(), stored);
    const ByteVector good = Unwrapped(wrong);
    wrong[client_file::Offset(303) + 5000] ^= 1U;
    Open(wrong);
    ExpectOpenedAndTold();
    EXPECT_NE(std::memcmp(&Teams, good.data() + client_file::Offset(303), sizeof Teams), 0);
    const ByteVector came = Unwrapped(wrong);
    EXPECT_EQ(std::memcmp(&Teams, came.data() + client_file::Offset(303), sizeof Teams), 0);
}

TEST_F(DamagedFilesTest, AWrongOrMissingChecksumIsToldInAQuietLine)
{
    const ByteVector wrapper = Wrapped(ClientSlots(), 1);
    Open(WithWrongChecksum(wrapper));
    ExpectOpenedAndTold();
    for (const int missing : {1, 4}) {
        Window.Quiet.clear();
        Open({wrapper.begin(), wrapper.end() - missing});
        ExpectOpenedAndTold();
    }
}

TEST_F(DamagedFilesTest, TheLineStaysUntilAnotherFileOpens)
{
    const ByteVector good = Wrapped(ClientSlots(), 1);
    Open(WithWrongChecksum(good));
    Open({1, 2, 3});
    EXPECT_FALSE(Opened());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}));
    EXPECT_THAT(Window.Quiet, ElementsAre(::testing::Pair(QuietLine::Damaged, DamagedWords)));
    Open(good);
    EXPECT_TRUE(Opened());
    EXPECT_THAT(Window.Quiet, IsEmpty());
}

TEST_F(DamagedFilesTest, ADamagedFileThatDoesNotOpenSaysOnlyWhatItsBoxSays)
{
    ByteVector slots = ClientSlots();
    slots.back() = '?';
    Open(WithWrongChecksum(Wrapped(slots, 1)));
    EXPECT_FALSE(Opened());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
    EXPECT_THAT(Window.Quiet, IsEmpty());
}

TEST_F(DamagedFilesTest, APlainFileHasNoChecksum)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    Open(ClientSlots());
    EXPECT_TRUE(Opened());
    EXPECT_THAT(Window.Quiet, IsEmpty());
}

TEST_F(DamagedFilesTest, AFileThatIsGoneWhenItIsReadOnceMoreLeavesNothing)
{
    const ByteVector damaged = WithWrongChecksum(Wrapped(ClientSlots(), 1));
    Open(damaged);
    const auto operations = Machine.FileOperations();
    const auto last = std::find(operations.rbegin(), operations.rend(), "open");
    LeagueData.Name = "As Before";
    const ByteVector league = ImageOf(LeagueData);
    Machine.OnEvent = [&](const std::string& event) {
        if (event == "box") {
            EXPECT_TRUE(FiveTablesAreEmpty());
            EXPECT_TRUE(ImageOf(LeagueData) == league);
        }
    };
    Machine.FailFileOperation(static_cast<std::size_t>(operations.rend() - last), failure::FileNotFound);
    Open(damaged);
    EXPECT_EQ(Machine.FileOperations().back(), "open");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in Zlib Decompress!"}));
    EXPECT_FALSE(Opened());
}

} // namespace
} // namespace dravik
