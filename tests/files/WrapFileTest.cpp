#include "files/WrapFile.h"

#include "league/Failure.h"
#include "session/Session.h"
#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class WrapFileTest : public SmallLeague {
protected:
    const std::string Source = Machine.InFolder("source");
    const std::string Target = Machine.InFolder("target");

    static ByteVector Noise(std::size_t size)
    {
        ByteVector bytes(size);
        std::uint32_t state = 1;
        for (auto& byte : bytes) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<unsigned char>(state >> (state >> 30U) * 8U);
        }
        return bytes;
    }

    [[nodiscard]] std::size_t FilesLeft() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()));
    }
};

TEST_F(WrapFileTest, CompressingWritesTheLengthAndTheStreamOfCompress2)
{
    const ByteVector bytes = Noise(300000);
    WriteWhole(Source, bytes);
    EXPECT_TRUE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ReadWhole(Target) == Wrapped(bytes));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(FilesLeft(), 2U);
}

TEST_F(WrapFileTest, DecompressingGivesTheSourceBack)
{
    const ByteVector bytes = Noise(300000);
    WriteWhole(Source, Wrapped(bytes));
    EXPECT_TRUE(ZlibDecompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ReadWhole(Target) == bytes);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(FilesLeft(), 2U);
}

TEST_F(WrapFileTest, OneByteGoesThereAndBack)
{
    WriteWhole(Source, {42});
    EXPECT_TRUE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ZlibDecompress(Machine, Machine, Target, Source));
    EXPECT_TRUE(ReadWhole(Source) == ByteVector{42});
}

TEST_F(WrapFileTest, ALongerFileAtTheTargetKeepsNoTail)
{
    WriteWhole(Source, {1, 2, 3});
    WriteWhole(Target, Noise(5000));
    EXPECT_TRUE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_TRUE(ReadWhole(Target) == Wrapped({1, 2, 3}));
}

TEST_F(WrapFileTest, AnEmptySourceFailsToCompress)
{
    WriteWhole(Source, {});
    EXPECT_FALSE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Compress!"}));
    EXPECT_EQ(FilesLeft(), 1U);
}

TEST_F(WrapFileTest, AMissingSourceFails)
{
    EXPECT_FALSE(ZlibCompress(Machine, Machine, Source, Target));
    EXPECT_FALSE(ZlibDecompress(Machine, Machine, Source, Target));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in Zlib Compress!"},
                                             Box{box::Critical, "53 - File not found in Zlib Decompress!"}));
    EXPECT_EQ(FilesLeft(), 0U);
}

TEST_F(WrapFileTest, ASourceThatIsNoStreamIsReportedOnlyWhenNothingComes)
{
    // Whatever decodes before the error is the result.
    const ByteVector bytes = Noise(100000);
    ByteVector broken = Wrapped(bytes);
    broken.resize(broken.size() / 2);
    WriteWhole(Source, broken);
    EXPECT_TRUE(ZlibDecompress(Machine, Machine, Source, Target));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    const ByteVector came = ReadWhole(Target);
    EXPECT_TRUE(came == Unwrapped(broken));
    EXPECT_GT(came.size(), 10000U);
    EXPECT_LT(came.size(), 90000U);

    for (const std::string text : {"", "abc", "abcd", "this is no stream"}) {
        fs::remove(Target);
        WriteWhole(Source, ByteVector(text.begin(), text.end()));
        EXPECT_FALSE(ZlibDecompress(Machine, Machine, Source, Target));
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}));
        EXPECT_EQ(FilesLeft(), 1U);
    }
}

TEST_F(WrapFileTest, NoFailureLeavesAHalfWrittenTarget)
{
    const ByteVector bytes = Noise(700000);
    for (const bool compress : {true, false}) {
        WriteWhole(Source, compress ? bytes : Wrapped(bytes, 1));
        const std::string message =
            compress ? "61 - Disk full in Zlib Compress!" : "61 - Disk full in Zlib Decompress!";
        std::size_t operation = 1;
        for (;; ++operation) {
            ASSERT_LT(operation, 200U);
            Machine.FailFileOperation(operation, failure::DiskFull);
            if (compress ? ZlibCompress(Machine, Machine, Source, Target)
                         : ZlibDecompress(Machine, Machine, Source, Target))
                break;
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, message}));
            EXPECT_EQ(FilesLeft(), 1U) << operation;
        }
        EXPECT_GT(operation, 15U);
        Machine.FailNoMore();
        fs::remove(Target);
    }
}

} // namespace
} // namespace dravik
