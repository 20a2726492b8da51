// Every file operation of the export and of the wrapper's two ways between files fails in every way, and the process is
// killed at every one of them. Saves, opens and loads have tests of their own beside this one.

#include "files/RatingsExport.h"
#include "files/WrapFile.h"
#include "league/Failure.h"
#include "support/FaultyFiles.h"
#include "support/Routines.h"

#include <random>

namespace dravik {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

const ByteVector Old = {'o', 'l', 'd'};

class FileFaultTest : public FaultyFiles, public ::testing::WithParamInterface<FileFault> {
public:
    static std::string Name(const ::testing::TestParamInfo<FileFault>& info) { return info.param.Name; }
};

// Whether `part` is what a write of `whole` that stopped somewhere leaves.
bool Begins(const ByteVector& part, const ByteVector& whole)
{
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

// The exports are written in place, since no other program waits for them: a file that was being written stays as far as it
// came, and the other stays as it was, or has become whole.
TEST_P(FileFaultTest, AnExportStaysAsFarAsItCameAndIsWholeAfterTheNext)
{
    const FileFault& fault = GetParam();
    for (int slot = 1; slot <= 2500; ++slot)
        PutSkater(slot, 5, position::Center, status::Pro);
    const auto work = [&] {
        ExportRatings(Machine.Folder());
        return true;
    };
    const Snapshot before = {{"PlayersRatings.csv", Old}, {"CoachesRatings.csv", Old}};
    SetDisk(before);
    const Operations operations = OperationsOf(work);
    ASSERT_EQ(operations,
              Operations({"create", "write", "write", "write", "write", "close", "create", "write", "close"}));
    constexpr std::size_t coaches = 7; // from this operation on
    const Snapshot after = Disk();
    ASSERT_THAT(after, SizeIs(2));
    const ByteVector tables = Tables();
    for (std::size_t n = 1; n <= operations.size(); ++n) {
        SCOPED_TRACE(std::to_string(n) + " " + operations[n - 1]);
        SetDisk(before);
        const Outcome outcome = RunWith(fault, n, work);
        EXPECT_FALSE(outcome.Done);
        EXPECT_EQ(outcome.Thrown, outcome.Killed ? 0 : fault.Number);
        EXPECT_THAT(outcome.Boxes, IsEmpty()) << "the screen tells it";
        EXPECT_TRUE(Tables() == tables);
        const Snapshot left = Disk();
        ASSERT_THAT(left, SizeIs(2));
        for (const auto& [name, bytes] : left) {
            const bool first = name == "PlayersRatings.csv";
            const bool untouched = first ? n == 1 : n <= coaches;
            const bool whole = first && n >= coaches;
            EXPECT_TRUE(untouched ? bytes == Old
                        : whole   ? bytes == after.at(name)
                                  : Begins(bytes, after.at(name)))
                << name;
        }
        EXPECT_TRUE(Run(work).Done);
        EXPECT_TRUE(Disk() == after);
    }
}

TEST_P(FileFaultTest, CompressingLeavesTheTargetAsItWasOrWhole)
{
    const FileFault& fault = GetParam();
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
        Work Do;
    } both[] = {
        {" in Zlib Compress!", [&] { return ZlibCompress(Machine, Machine, source, target); }},
        {" in Zlib Decompress!", [&] { return ZlibDecompress(Machine, Machine, wrapped, target); }},
    };
    for (const auto& [ending, work] : both) {
        SetDisk(start);
        const Operations operations = OperationsOf(work);
        const Snapshot after = Disk();
        ASSERT_THAT(after, SizeIs(3));
        for (std::size_t n = 1; n <= operations.size(); ++n) {
            SCOPED_TRACE(ending + std::to_string(n) + " " + operations[n - 1]);
            SetDisk(start);
            const Outcome outcome = RunWith(fault, n, work);
            EXPECT_FALSE(outcome.Done);
            EXPECT_EQ(outcome.Thrown, 0);
            EXPECT_EQ(outcome.Boxes, outcome.Killed ? Nothing() : Shown{fault.ToldWith(ending)});
            Snapshot left = Disk();
            if (outcome.Killed)
                left.erase("Target.part"); // the next run writes over it
            EXPECT_TRUE(left == start);
            EXPECT_TRUE(Run(work).Done);
            EXPECT_TRUE(Disk() == after);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, FileFaultTest, ::testing::ValuesIn(FileFaults().begin(), FileFaults().end()),
                         FileFaultTest::Name);

} // namespace
} // namespace dravik
