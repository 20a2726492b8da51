#include "session/OtherLeague.h"

#include "OnClientFile.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OtherLeagueTest : public OnClientFile {
protected:
    OtherLeagueTest()
    {
        TempFile = Machine.InFolder("ClientTemp.dvt");
        TeamMaker(5).Dresses(3, position::Center);
    }
    OtherLeagueTest(const OtherLeagueTest&) = delete;
    OtherLeagueTest& operator=(const OtherLeagueTest&) = delete;
    ~OtherLeagueTest() override { CloseOtherLeague(); }

    void ExpectNone(const char* told)
    {
        EXPECT_EQ(TheOtherLeague().League, nullptr);
        EXPECT_EQ(TheOtherLeague().FileName, "");
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, told}));
        EXPECT_FALSE(Machine.WaitShown);
    }
};

TEST_F(OtherLeagueTest, IsReadAndMadeReadyBesideTheOpenOne)
{
    Teams[5].Name = "Gulls";
    Players[1].Protected = true;
    const std::string path = SavePlain("Other.dvs");
    Teams[5].Name = "Ducks";
    Players[1].Protected = false;
    const auto open = Copy(OpenLeague);
    ASSERT_TRUE(OpenOtherLeague(path));
    const OtherLeague& other = TheOtherLeague();
    ASSERT_NE(other.League, nullptr);
    EXPECT_EQ(other.FileName, "Other.dvs");
    EXPECT_FALSE(other.IsDamaged);
    EXPECT_EQ(other.League->Teams[5].Name.Trimmed(), "Gulls");
    EXPECT_EQ(other.League->Players[0].Name.Trimmed(), "Unknown Player");
    EXPECT_TRUE(other.League->RosterChanges[1].Protected);
    EXPECT_EQ(std::memcmp(open.get(), &OpenLeague, sizeof OpenLeague), 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Machine.WaitShown);
    CloseOtherLeague();
    EXPECT_EQ(TheOtherLeague().League, nullptr);
}

TEST_F(OtherLeagueTest, AFileThatIsMissingIsToldAndTheOneBeforeIsGone)
{
    ASSERT_TRUE(OpenOtherLeague(SavePlain("Other.dvs")));
    EXPECT_FALSE(OpenOtherLeague(Machine.InFolder("Missing.dvs")));
    ExpectNone("Cannot find the client league file!");
}

TEST_F(OtherLeagueTest, AFileThatIsNotWholeIsToldBehindTheWait)
{
    const std::string path = SavePlain("Other.dvs");
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
    EXPECT_FALSE(OpenOtherLeague(path));
    ExpectNone("File Integrity is incorrect!");
}

TEST_F(OtherLeagueTest, AWrapperThatWasDamagedOnItsWayIsReadAndSaidToBe)
{
    const std::string path = Machine.InFolder("Other.dvs");
    ByteVector bytes = Wrapped(ClientSlots(), 1);
    ASSERT_TRUE((WriteWhole(path, bytes), OpenOtherLeague(path)));
    EXPECT_FALSE(TheOtherLeague().IsDamaged);
    bytes.back() = static_cast<unsigned char>(bytes.back() ^ 1U); // of the checksum
    WriteWhole(path, bytes);
    ASSERT_TRUE(OpenOtherLeague(path));
    EXPECT_TRUE(TheOtherLeague().IsDamaged);
    CloseOtherLeague();
    EXPECT_FALSE(TheOtherLeague().IsDamaged);
    EXPECT_FALSE(OtherLeague().IsDamaged);
}

TEST_F(OtherLeagueTest, AWrapperThatCannotBeUnpackedIsToldOnce)
{
    const std::string path = Machine.InFolder("Other.dvs");
    WriteWhole(path, ByteVector(64, 7));
    EXPECT_FALSE(OpenOtherLeague(path));
    EXPECT_EQ(TheOtherLeague().League, nullptr);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_FALSE(Machine.WaitShown);
}

} // namespace
} // namespace dravik
