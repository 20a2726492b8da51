#include "files/ClientFile.h"

#include "league/Failure.h"
#include "session/Session.h"
#include "support/LeagueImage.h"
#include "support/SmallLeague.h"

#include <algorithm>

namespace dravik {
namespace {

// A client file with noise in every byte of every record, and another league that is open when it is read; plain and wrapped.
class ClientFileTest : public SmallLeague, public ::testing::WithParamInterface<bool> {
protected:
    ClientFileTest() : Path(Machine.InFolder("League.dvs"))
    {
        ScrambleLeague(1);
        In = Image();
        WriteWhole(Path, GetParam() ? ClientSlots() : Wrapped(ClientSlots(), 1));
        ScrambleLeague(2);
        RulesBefore = ImageOf(LeagueData);
        CoachesBefore = ImageOf(Coaches);
    }

    // What a client file fills.
    static ByteVector Image()
    {
        ByteVector all = FiveTables();
        for (const ByteVector& bytes : {ImageOf(LeagueData), ImageOf(Coaches)})
            all.insert(all.end(), bytes.begin(), bytes.end());
        return all;
    }
    ClientFileRead Read()
    {
        return ReadClientFile(OpenLeague, {.Disk = Machine, .Says = Mute, .Plain = GetParam()}, Path);
    }
    // Nothing but what no file empties is left, as it was.
    void ExpectTakenBack() const
    {
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_TRUE(ImageOf(LeagueData) == RulesBefore);
        EXPECT_TRUE(ImageOf(Coaches) == CoachesBefore);
    }

    std::string Path;
    MuteVoice Mute;
    ByteVector In;
    ByteVector RulesBefore;
    ByteVector CoachesBefore;
};

TEST_P(ClientFileTest, EveryByteOfEveryTableComes)
{
    const ClientFileRead read = Read();
    EXPECT_TRUE(read.Whole);
    EXPECT_EQ(read.File, SlotFileRead::Whole);
    EXPECT_TRUE(Image() == In);
}

// The last reading of all fails, when the rules and the coaches of the file have come already.
TEST_P(ClientFileTest, AFailureAtTheEndTakesBackWhatCame)
{
    (void)Read();
    const std::vector<std::string> operations = Machine.FileOperations();
    const auto last = std::find(operations.rbegin(), operations.rend(), "read");
    ASSERT_NE(last, operations.rend());
    const auto n = static_cast<std::size_t>(operations.rend() - last);
    ScrambleLeague(2);
    Machine.FailAllFrom(n, failure::PermissionDenied);
    if (GetParam())
        EXPECT_THROW((void)Read(), Failure);
    else
        EXPECT_EQ(Read().File, SlotFileRead::NotDecompressed);
    ExpectTakenBack();
}

INSTANTIATE_TEST_SUITE_P(PlainAndWrapped, ClientFileTest, ::testing::Bool());

} // namespace
} // namespace dravik
