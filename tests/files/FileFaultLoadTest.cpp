// A load of lines whose file operations fail: the tables are as before or as the file has them, and the words are the known
// ones.

#include "support/FileFaultReaders.h"
#include "support/Routines.h"

#include <random>

namespace dravik {
namespace {

using ::testing::IsEmpty;

class FileFaultLoadTest : public FileFaultReaders {};

TEST_P(FileFaultLoadTest, ALoadOfLinesChangesEverythingOrNothing)
{
    std::mt19937 random(12);
    Scramble(Teams[5].ProLines, random);
    for (RosterChange& change : RosterChanges) // more than one read, wrapped too
        change.Protected.SetWord(static_cast<std::int16_t>(random() % 30000));
    RosterChanges[1].Status = Players[1].Status;
    const std::string path = Write("Team5.dvl", LinesSlots(5));
    ASSERT_EQ(ReadLinesFile(path), TeamFileRead::Loaded);
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
        return ReadLinesFile(path) == TeamFileRead::Loaded;
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

INSTANTIATE_TEST_SUITE_P(All, FileFaultLoadTest, EveryFileFault(), FileFaultReaders::Name);

} // namespace
} // namespace dravik
