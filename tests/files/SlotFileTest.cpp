#include "files/SlotFile.h"

#include "session/Session.h"
#include "support/BytePieces.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <random>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Small {
    Text<5> Code;
    bool operator==(const Small& other) const { return Code.Raw() == other.Code.Raw(); }
};

class SlotFileTest : public SmallLeague {
protected:
    // Three slots of 3470 bytes: a magic, a short record and a whole team.
    static void WriteThree(SlotWriter& slots)
    {
        slots.WriteMagic("Magic");
        slots.Write(Small{"CODE1"});
        slots.Write(Teams[1]);
    }

    static constexpr std::int64_t ThreeLength = 3 * 3470;
};

TEST_F(SlotFileTest, RecordsBeginAtTheirSlotAndTheRestIsZero)
{
    Teams[1].Name = "A Team";
    Collector out;
    SlotWriter slots(out);
    WriteThree(slots);
    ASSERT_EQ(out.All.size(), static_cast<std::size_t>(ThreeLength));
    EXPECT_EQ(std::string(out.All.begin(), out.All.begin() + 7), std::string("\x05\0Magic", 7));
    EXPECT_TRUE(std::all_of(out.All.begin() + 7, out.All.begin() + 3470, [](unsigned char c) { return c == 0; }));
    EXPECT_EQ(std::string(out.All.begin() + 3470, out.All.begin() + 3475), "CODE1");
    EXPECT_TRUE(std::all_of(out.All.begin() + 3475, out.All.begin() + 6940, [](unsigned char c) { return c == 0; }));
    EXPECT_EQ(std::string(out.All.begin() + 6944, out.All.begin() + 6950), "A Team");
}

TEST_F(SlotFileTest, TheLastSlotEndsWithItsRecord)
{
    Collector out;
    SlotWriter slots(out);
    slots.Write(Small{"CODE1"});
    EXPECT_EQ(out.All.size(), 5U);
    slots.WriteMagic("End");
    EXPECT_EQ(out.All.size(), 3475U);
    EXPECT_EQ(SlotFileLength(2, MagicLength("End")), 3475);
    EXPECT_EQ(SlotFileLength(11005, MagicLength("DRVK Lineups Files Version 1.01 - End")), 38183919);
}

TEST_F(SlotFileTest, ASlotMayHaveAnotherLength)
{
    Collector out;
    SlotWriter writer(out, 10);
    writer.Write(Small{"CODE1"});
    writer.Write(Small{"CODE2"});
    EXPECT_EQ(std::string(out.All.begin(), out.All.end()), std::string("CODE1\0\0\0\0\0CODE2", 15));

    Pieces in(out.All, 4);
    SlotReader reader(in, 10);
    Small record;
    EXPECT_TRUE(reader.Read(record));
    EXPECT_TRUE(reader.Read(record));
    EXPECT_EQ(record, Small{"CODE2"});
    EXPECT_EQ(SlotFileLength(2, 5, 10), 15);
}

TEST_F(SlotFileTest, HowTheBytesComeDoesNotMatter)
{
    std::mt19937 random(1);
    ByteVector bytes(5 * 3470);
    for (auto& byte : bytes)
        byte = static_cast<unsigned char>(random());
    for (const std::size_t length : {1U, 7U, 3469U, 3470U, 3471U, 10000U, 100000U}) {
        Pieces in(bytes, length);
        SlotReader slots(in);
        Small code;
        Team team;
        Lines lines;
        EXPECT_TRUE(slots.Read(code));
        EXPECT_EQ(code.Code.Raw(), std::string(bytes.begin(), bytes.begin() + 5));
        EXPECT_TRUE(slots.Read(team));
        EXPECT_EQ(std::memcmp(&team, bytes.data() + 3470, 3470), 0);
        EXPECT_TRUE(slots.Read(lines));
        EXPECT_EQ(std::memcmp(&lines, bytes.data() + 6940, sizeof lines), 0);
        EXPECT_TRUE(slots.Read(team));
        EXPECT_TRUE(slots.Read(code));
        EXPECT_EQ(code.Code.Raw(), std::string(bytes.begin() + 13880, bytes.begin() + 13885));
        EXPECT_FALSE(slots.Read(code));
    }
}

TEST_F(SlotFileTest, WhatLiesBehindTheEndReadsAsZeros)
{
    Pieces in({'C', 'O', 'D'}, 100);
    SlotReader slots(in);
    Small record{"xxxxx"};
    EXPECT_FALSE(slots.Read(record)) << "the file ends within the record";
    EXPECT_EQ(record.Code.Raw(), std::string("COD\0\0", 5));
    record = {"xxxxx"};
    EXPECT_FALSE(slots.Read(record));
    EXPECT_EQ(record.Code.Raw(), std::string(5, '\0'));
}

TEST_F(SlotFileTest, AMagicMustFitInLengthAndEveryCharacter)
{
    const auto reads = [](const std::string& bytes) {
        Pieces in(ByteVector(bytes.begin(), bytes.end()), 100);
        SlotReader slots(in);
        return slots.ReadMagic("Magic");
    };
    EXPECT_TRUE(reads(std::string("\x05\0Magic", 7)));
    EXPECT_TRUE(reads(std::string("\x05\0Magic and more", 16))) << "the length says where the text ends";
    EXPECT_FALSE(reads(std::string("\x05\0magic", 7)));
    EXPECT_FALSE(reads(std::string("\x05\0Magi", 6)));
    EXPECT_FALSE(reads(std::string("\x04\0Magic", 7)));
    EXPECT_FALSE(reads(std::string("\x06\0Magic ", 8)));
    EXPECT_FALSE(reads(std::string("\x05\1Magic", 7)));
    EXPECT_FALSE(reads(std::string("\xFF\xFFMagic", 7))) << "a length that no slot can hold";
    EXPECT_FALSE(reads(std::string("\xFF\x7FMagic", 7)));
    EXPECT_FALSE(reads(""));
    EXPECT_FALSE(reads("\x05"));
}

TEST_F(SlotFileTest, AMagicTakesItsWholeSlot)
{
    Collector out;
    SlotWriter writer(out);
    writer.WriteMagic("Magic");
    writer.Write(Small{"CODE1"});
    for (const char* asked : {"Magic", "Other", "A longer magic than is there"}) {
        Pieces in(out.All, 100);
        SlotReader reader(in);
        Small record;
        EXPECT_EQ(reader.ReadMagic(asked), asked == std::string("Magic"));
        EXPECT_TRUE(reader.Read(record));
        EXPECT_EQ(record, Small{"CODE1"});
    }
}

TEST_F(SlotFileTest, BothFormsHoldTheSameSlots)
{
    Collector plain;
    SlotWriter slots(plain);
    WriteThree(slots);

    Machine.Settings["SkipZIPClient"] = "YES";
    EXPECT_TRUE(WriteSlotFile(SlotFilesOf(OpenFiles()), Machine.InFolder("plain"), ThreeLength, WriteThree));
    EXPECT_TRUE(ReadWhole(Machine.InFolder("plain")) == plain.All);

    Machine.Settings["SkipZIPClient"] = "No";
    EXPECT_TRUE(WriteSlotFile(SlotFilesOf(OpenFiles()), Machine.InFolder("wrapped"), ThreeLength, WriteThree));
    EXPECT_TRUE(ReadWhole(Machine.InFolder("wrapped")) == Wrapped(plain.All));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SlotFileTest, BothFormsAreRead)
{
    const auto readThree = [](SlotReader& slots) {
        Small record;
        Team team;
        EXPECT_TRUE(slots.ReadMagic("Magic"));
        EXPECT_TRUE(slots.Read(record));
        EXPECT_EQ(record, Small{"CODE1"});
        EXPECT_TRUE(slots.Read(team));
        EXPECT_FALSE(slots.ReadMagic("Magic"));
    };
    for (const char* setting : {"YES", "No"}) {
        Machine.Settings["SkipZIPClient"] = setting;
        ASSERT_TRUE(WriteSlotFile(SlotFilesOf(OpenFiles()), Machine.InFolder("file"), ThreeLength, WriteThree));
        EXPECT_EQ(ReadSlotFile(SlotFilesOf(OpenFiles()), Machine.InFolder("file"), readThree), SlotFileRead::Whole);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SlotFileTest, AFailedWriteTellsItOnceAndLeavesWhatStoodThere)
{
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        const std::string target = Machine.InFolder("file");
        WriteWhole(target, {'o', 'l', 'd'});
        std::size_t operation = 1;
        for (;; ++operation) {
            Machine.FailFileOperation(operation, failure::DiskFull);
            bool written = false;
            bool thrown = false;
            try {
                written = WriteSlotFile(SlotFilesOf(OpenFiles()), target, ThreeLength, WriteThree);
            } catch (const Failure& failed) {
                EXPECT_EQ(failed.Number, failure::DiskFull);
                thrown = true;
            }
            if (written)
                break;
            EXPECT_EQ(thrown, plain);
            const Box told{box::Critical, "61 - Disk full in Zlib Compress!"};
            EXPECT_EQ(Machine.TakeBoxes(), plain ? std::vector<Box>{} : std::vector{told});
            EXPECT_TRUE(ReadWhole(target) == ByteVector({'o', 'l', 'd'})) << operation;
            EXPECT_FALSE(std::filesystem::exists(target + ".part")) << operation;
        }
        EXPECT_EQ(operation, 6U) << "create, write, flush, close, rename";
        EXPECT_GT(std::filesystem::file_size(target), 3U);
        Machine.FailNoMore();
    }
}

TEST_F(SlotFileTest, TheFileIsOnTheDiskBeforeItGetsItsName)
{
    const std::string target = Machine.InFolder("file");
    EXPECT_TRUE(WriteSlotFile(SlotFilesOf(OpenFiles()), target, ThreeLength, WriteThree));
    EXPECT_THAT(Machine.FileOperations(), ElementsAre("create", "write", "flush", "close", "rename"));
}

TEST_F(SlotFileTest, OtherThanTheToldLengthIsAFailure)
{
    EXPECT_FALSE(WriteSlotFile(SlotFilesOf(OpenFiles()), Machine.InFolder("file"), ThreeLength + 1, WriteThree));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::Critical, "5 - Invalid procedure call or argument in Zlib Compress!"}));
    EXPECT_FALSE(std::filesystem::exists(Machine.InFolder("file")));
}

} // namespace
} // namespace dravik
