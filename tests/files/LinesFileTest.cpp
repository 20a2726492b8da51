#include "files/LinesFile.h"

#include "league/Failure.h"
#include "support/LeagueImage.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <cstring>
#include <filesystem>
#include <fstream>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

class LinesFileTest : public SmallLeague {
protected:
    LinesFileTest()
    {
        TeamMaker(5).DressesFullRoster();
        TeamMaker(6).DressesFullRoster();
        Teams[5].Name = "New York";
        CurrentTeam = 5;
        Path = Machine.InFolder("NewYork.dvl");
    }

    void Plain() { Machine.Settings["SkipZIPClient"] = "YES"; }

    // The bytes of a record in a plain lines file.
    static std::string Record(const ByteVector& file, std::size_t number, std::size_t length)
    {
        const auto at = file.begin() + static_cast<std::ptrdiff_t>(client_file::Offset(number));
        return {at, at + static_cast<std::ptrdiff_t>(length)};
    }

    // The tables that a lines file can change.
    static ByteVector Tables()
    {
        ByteVector all;
        for (const ByteVector& bytes :
             {ImageOf(Teams), ImageOf(Players), ImageOf(Goalies), ImageOf(RosterChanges), ImageOf(RosterChangesGoalie)})
            all.insert(all.end(), bytes.begin(), bytes.end());
        return all;
    }

    TeamFileRead LoadPlain(const ByteVector& slots)
    {
        Plain();
        WriteSparse(Path, slots);
        return ReadLinesFile(Path);
    }

    std::string Path;
};

TEST_F(LinesFileTest, ThePathIsTheTeamsNameWithoutSpaces)
{
    EXPECT_EQ(LinesFilePath(5), Path);
    Teams[6].Name = "A/B";
    EXPECT_THROW((void)LinesFilePath(6), Failure);
    EXPECT_THROW((void)LinesFilePath(0), Failure);
    EXPECT_THROW((void)LinesFilePath(101), Failure);
}

TEST_F(LinesFileTest, ThePlainFileIsTheSlotFile)
{
    Plain();
    Players[1].TradeAvailable = true;
    RosterChanges[1].TradeAvailable = true;
    EXPECT_TRUE(WriteLinesFile(5, Path));
    const ByteVector file = ReadWhole(Path);
    EXPECT_EQ(file.size(), 38183919U);
    EXPECT_EQ(file[0], 39);
    EXPECT_EQ(file[1], 0);
    EXPECT_EQ(Record(file, 1, 41), std::string("\x27\0DRVK Lineups Files Version 1.01 - Start", 41));
    EXPECT_EQ(Record(file, 2, 5), "SMALL");
    EXPECT_EQ(Record(file, 3, 2), std::string("\x05\0", 2));
    EXPECT_EQ(Record(file, 4, 3470), std::string(reinterpret_cast<const char*>(&Teams[5]), 3470));
    EXPECT_EQ(Record(file, 5, 5), std::string("\x02\0\0\xFF\xFF", 5));
    EXPECT_EQ(Record(file, 11005, 39), std::string("\x25\0DRVK Lineups Files Version 1.01 - End", 39));
    EXPECT_TRUE(file == LinesSlots(5));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LinesFileTest, ThePlainFileStartsWithTheTwoByteLength39)
{
    Plain();
    EXPECT_TRUE(WriteLinesFile(5, Path));
    std::ifstream file(Path, std::ios::binary);
    EXPECT_EQ(file.get(), 39);
    EXPECT_EQ(file.get(), 0);
}

TEST_F(LinesFileTest, TheWrappedFileIsThatOfCompress2)
{
    EXPECT_TRUE(WriteLinesFile(5, Path));
    EXPECT_TRUE(ReadWhole(Path) == Wrapped(LinesSlots(5)));
}

TEST_F(LinesFileTest, EveryStatusIsRefreshedBeforeItIsWritten)
{
    Plain();
    Players[10000].Status = 1;
    Goalies[1000].Status = 2;
    Players[19].Status = 1; // of another team
    ASSERT_EQ(RosterChanges[1].Status, RosterChange::Untouched);
    EXPECT_TRUE(WriteLinesFile(5, Path));
    const ByteVector file = ReadWhole(Path);
    EXPECT_EQ(Record(file, 4 + 1, 1), "\x02");
    EXPECT_EQ(Record(file, 4 + 19, 1), "\x01");
    EXPECT_EQ(Record(file, 4 + 9999, 1), std::string(1, '\0'));
    EXPECT_EQ(Record(file, 4 + 10000, 1), "\x01");
    EXPECT_EQ(Record(file, 11004, 1), "\x02");
    EXPECT_EQ(RosterChanges[10000].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[1000].Status, 2);
}

TEST_F(LinesFileTest, TheTwoWordsAreTheCopiesNotThePlayersOwn)
{
    Plain();
    Players[1].Protected = true;
    RosterChanges[1].Protected = false;
    RosterChanges[2].Protected = true;
    EXPECT_TRUE(WriteLinesFile(5, Path));
    const ByteVector file = ReadWhole(Path);
    EXPECT_EQ(Record(file, 5, 3), std::string("\x02\0\0", 3));
    EXPECT_EQ(Record(file, 6, 3), std::string("\x02\xFF\xFF", 3));
}

TEST_F(LinesFileTest, SavingChangesNoLeagueData)
{
    const ByteVector before[] = {ImageOf(LeagueData), ImageOf(Teams), ImageOf(Players), ImageOf(Goalies)};
    EXPECT_TRUE(WriteLinesFile(5, Path));
    EXPECT_TRUE(ImageOf(LeagueData) == before[0]);
    EXPECT_TRUE(ImageOf(Teams) == before[1]);
    EXPECT_TRUE(ImageOf(Players) == before[2]);
    EXPECT_TRUE(ImageOf(Goalies) == before[3]);
}

TEST_F(LinesFileTest, ReservedBytesOfTheTeamSurviveARoundTrip)
{
    std::mt19937 random(5);
    Row<Team, 1, 1> noisy;
    Scramble(noisy, random);
    Teams[5] = noisy[1];
    EXPECT_TRUE(WriteLinesFile(5, Path));
    Teams[5] = {};
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Loaded);
    EXPECT_TRUE(ImageOf(Teams[5]) == ImageOf(noisy[1]));
}

TEST_F(LinesFileTest, SavingTwiceReplacesTheFileAndLeavesNothingElse)
{
    WriteWhole(TempFile, {1});
    EXPECT_TRUE(WriteLinesFile(5, Path));
    Teams[5].City = "Elsewhere";
    EXPECT_TRUE(WriteLinesFile(5, Path));
    EXPECT_TRUE(Unwrapped(ReadWhole(Path)) == LinesSlots(5));
    EXPECT_EQ(std::distance(fs::directory_iterator(Machine.Folder()), fs::directory_iterator()), 1);
}

TEST_F(LinesFileTest, TheSecondSaveTakesThePlaceOfTheFirstFileInOneStep)
{
    EXPECT_TRUE(WriteLinesFile(5, Path));
    const std::size_t done = Machine.FileOperations().size();
    EXPECT_TRUE(WriteLinesFile(5, Path));
    const auto& all = Machine.FileOperations();
    const std::vector<std::string> second(all.begin() + static_cast<std::ptrdiff_t>(done), all.end());
    ASSERT_GE(second.size(), 4U);
    EXPECT_THAT(std::vector(second.begin(), second.begin() + 3), ElementsAre("find", "create", "write"));
    EXPECT_EQ(std::count(second.begin(), second.end(), "delete"), 0);
    EXPECT_THAT(std::vector(second.end() - 3, second.end()), ElementsAre("flush", "close", "rename"));
}

TEST_F(LinesFileTest, AFailedCompressionIsToldAndLeavesNoFile)
{
    WriteWhole(Path, {'o', 'l', 'd'});
    Machine.FailFileOperation(3, failure::DiskFull);
    EXPECT_FALSE(WriteLinesFile(5, Path));
    EXPECT_EQ(Machine.FileOperations()[2], "write");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "61 - Disk full in Zlib Compress!"}));
    EXPECT_TRUE(fs::is_empty(Machine.Folder()));
}

TEST_F(LinesFileTest, ATeamOutsideTheTableFailsBeforeAnythingIsDeleted)
{
    WriteWhole(Path, {'o', 'l', 'd'});
    EXPECT_THROW((void)WriteLinesFile(0, Path), Failure);
    EXPECT_THROW((void)WriteLinesFile(101, Path), Failure);
    EXPECT_TRUE(fs::exists(Path));
}

TEST_F(LinesFileTest, ALoadBringsTheWholeTeamBack)
{
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        Teams[5].Password = "secret";
        Teams[5].Cash = 123;
        Teams[5].LinesLoadCount = 7;
        EXPECT_TRUE(WriteLinesFile(5, Path));
        const ByteVector saved = ImageOf(Teams[5]);
        Teams[5].Password = "";
        Teams[5].Cash = -5;
        Teams[5].ProLines[1].StartGoalie = 99;
        EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Loaded);
        EXPECT_TRUE(ImageOf(Teams[5]) == saved) << "password and finance figures included";
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LinesFileTest, AFileOfAnOlderLeagueFileIsAcceptedAsLongAsTheCodeIsTheSame)
{
    Teams[5].Name = "Old Name";
    EXPECT_TRUE(WriteLinesFile(5, Path));
    LeagueData.Name = "A later league file";
    LeagueData.FileDate = 46000;
    Teams[5].Name = "New Name";
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Loaded);
    EXPECT_EQ(Teams[5].Name.Trimmed(), "Old Name");
}

TEST_F(LinesFileTest, AFileOfAnotherTeamIsRefusedEvenWithARightLeagueCode)
{
    EXPECT_TRUE(WriteLinesFile(6, Path));
    Teams[6].Name = "Changed";
    const ByteVector before = Tables();
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Refused);
    EXPECT_TRUE(Tables() == before);
    EXPECT_THAT(Machine.Boxes(), IsEmpty()) << "the screen tells it";
}

TEST_F(LinesFileTest, TheRecordAloneIsReadFromNoFileButTheTeamsOwn)
{
    Teams[5].Cash = 77;
    ASSERT_TRUE(WriteLinesFile(5, Path));
    const std::string other = Machine.InFolder("Other.dvl");
    ASSERT_TRUE(WriteLinesFile(6, other));
    Teams[5].Cash = 1;
    const ByteVector before = Tables();
    Team record;
    record.Cash = 5;
    const auto read = [&](const std::string& path) {
        return ReadTeamOfLinesFile(OpenLeague, OpenFiles(), 5, path, record);
    };
    EXPECT_EQ(read(other), TeamFileRead::Refused);
    EXPECT_EQ(record.Cash, 5);
    EXPECT_EQ(read(Path), TeamFileRead::Loaded);
    EXPECT_EQ(record.Cash, 77);
    LeagueData.LeagueCode = "OTHER";
    record.Cash = 5;
    EXPECT_EQ(read(Path), TeamFileRead::Refused);
    EXPECT_EQ(record.Cash, 5);
    LeagueData.LeagueCode = "SMALL";
    EXPECT_TRUE(Tables() == before);
}

TEST_F(LinesFileTest, AFileOfAnotherLeagueIsRefused)
{
    EXPECT_TRUE(WriteLinesFile(5, Path));
    for (const char* code : {"OTHER", "small", "SMAL", "SMALX"}) {
        LeagueData.LeagueCode = code;
        const ByteVector before = Tables();
        EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Refused) << code;
        EXPECT_TRUE(Tables() == before);
    }
}

TEST_F(LinesFileTest, TheLeagueCodeIsComparedAsFiveRawBytes)
{
    LeagueData.LeagueCode = Text<5>(); // five zero bytes
    ByteVector slots = LinesSlots(5);
    const ByteVector before = Tables();
    LeagueData.LeagueCode = ""; // five blanks
    EXPECT_EQ(LoadPlain(slots), TeamFileRead::Refused);
    EXPECT_TRUE(Tables() == before);
    std::fill_n(slots.begin() + 3470, 5, ' ');
    EXPECT_EQ(LoadPlain(slots), TeamFileRead::Loaded);
}

TEST_F(LinesFileTest, AWrongStartMagicLeavesTheTablesUntouched)
{
    Teams[5].Cash = 1;
    const ByteVector slots = LinesSlots(5);
    Teams[5].Cash = 2;
    const ByteVector before = Tables();
    for (const std::size_t at : {0U, 1U, 2U, 30U, 40U}) {
        ByteVector bad = slots;
        bad[at] ^= 1U;
        EXPECT_EQ(LoadPlain(bad), TeamFileRead::Refused) << at;
        EXPECT_TRUE(Tables() == before) << at;
    }
}

TEST_F(LinesFileTest, AWrongEndMagicKeepsEverythingReadSoFar)
{
    Teams[5].Cash = 1;
    RosterChanges[1] = {};
    RosterChanges[1].Status = 1;
    ByteVector slots = LinesSlots(5);
    slots.back() ^= 1U;
    Teams[5].Cash = 2;
    EXPECT_EQ(LoadPlain(slots), TeamFileRead::Refused);
    EXPECT_EQ(Teams[5].Cash, 1);
    EXPECT_EQ(Players[1].Status, 1);
}

TEST_F(LinesFileTest, OnlyPeopleOfTheTeamTakeTheirWordFromTheFile)
{
    for (auto& change : RosterChanges)
        change.Status = 1;
    RosterChanges[1].Protected = true;
    RosterChanges[1].TradeAvailable = true;
    RosterChanges[19].Protected = true; // of team 6
    RosterChangesGoalie[1].Status = 0;
    RosterChangesGoalie[1].TradeAvailable = true;
    RosterChangesGoalie[3].Status = 0; // of team 6
    const ByteVector slots = LinesSlots(5);
    MarkRosterChangesUntouched(OpenLeague);
    for (auto& change : RosterChanges)
        change.Protected = change.TradeAvailable = false;
    Players[2].Protected = true;
    EXPECT_EQ(LoadPlain(slots), TeamFileRead::Loaded);

    EXPECT_EQ(Players[1].Status, 1);
    EXPECT_TRUE(Players[1].Protected);
    EXPECT_TRUE(Players[1].TradeAvailable);
    EXPECT_FALSE(Players[2].Protected) << "taken over in any case";
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_FALSE(Players[19].Protected);
    EXPECT_EQ(RosterChanges[19].Status, 1) << "the word itself is read for everybody";
    EXPECT_TRUE(RosterChanges[19].Protected);
    EXPECT_EQ(Goalies[1].Status, 0);
    EXPECT_TRUE(Goalies[1].TradeAvailable);
    EXPECT_EQ(Goalies[3].Status, 2);
    EXPECT_EQ(RosterChangesGoalie[3].Status, 0);
}

TEST_F(LinesFileTest, APlayerWhoHasLeftTheTeamIsNotChanged)
{
    RosterChanges[1].Status = 0;
    RosterChanges[1].Protected = true;
    const ByteVector slots = LinesSlots(5);
    Players[1].Team = 6;
    const ByteVector before = ImageOf(Players[1]);
    EXPECT_EQ(LoadPlain(slots), TeamFileRead::Loaded);
    EXPECT_TRUE(ImageOf(Players[1]) == before);
    EXPECT_EQ(RosterChanges[1].Status, 0);
}

TEST_F(LinesFileTest, StatusTenInARecordDoesNotChangeTheStatus)
{
    RosterChanges[1].Status = 10;
    RosterChanges[2].Status = 3;
    RosterChanges[3].Status = 255;
    RosterChanges[4].Status = 2;
    const ByteVector slots = LinesSlots(5);
    Players[4].Status = 0;
    EXPECT_EQ(LoadPlain(slots), TeamFileRead::Loaded);
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_EQ(Players[2].Status, 2);
    EXPECT_EQ(Players[3].Status, 2);
    EXPECT_EQ(Players[4].Status, 2);
    EXPECT_EQ(RosterChanges[1].Status, 10);
}

TEST_F(LinesFileTest, ARecordWithAStrangeStatusStillBringsItsTwoWords)
{
    for (const auto& [id, status] : {std::pair{1, 3}, {2, 10}, {3, 255}}) {
        RosterChanges[id].Status = status;
        RosterChanges[id].Protected = true;
        RosterChanges[id].TradeAvailable = true;
        Players[id].Status = 1;
        Players[id].Protected = false;
        Players[id].TradeAvailable = false;
    }
    RosterChangesGoalie[1].Status = 3;
    RosterChangesGoalie[1].Protected = true;
    Goalies[1].Status = 0;
    Goalies[1].Protected = false;
    EXPECT_EQ(LoadPlain(LinesSlots(5)), TeamFileRead::Loaded);
    for (const int id : {1, 2, 3}) {
        EXPECT_EQ(Players[id].Status, 1) << id;
        EXPECT_TRUE(Players[id].Protected) << id;
        EXPECT_TRUE(Players[id].TradeAvailable) << id;
    }
    EXPECT_EQ(Goalies[1].Status, 0);
    EXPECT_TRUE(Goalies[1].Protected);
}

TEST_F(LinesFileTest, LoadingAfterSavingChangesNothing)
{
    EXPECT_TRUE(WriteLinesFile(5, Path));
    const ByteVector before = Tables();
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Loaded);
    EXPECT_TRUE(Tables() == before);
}

TEST_F(LinesFileTest, AMissingFileIsRefusedWithoutAWord)
{
    const ByteVector before = Tables();
    WriteWhole(TempFile, {1});
    EXPECT_EQ(ReadLinesFile(Machine.InFolder("gone.dvl")), TeamFileRead::Refused);
    EXPECT_TRUE(Tables() == before);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(fs::is_empty(Machine.Folder())) << "a work file left behind is deleted";
}

TEST_F(LinesFileTest, TheFileIsFoundWhateverItsCase)
{
    EXPECT_TRUE(WriteLinesFile(5, Machine.InFolder("NEWYORK.DVL")));
    EXPECT_EQ(ReadLinesFile(Machine.InFolder("newyork.dvl")), TeamFileRead::Loaded);
}

TEST_F(LinesFileTest, AFileThatDoesNotDecompressIsToldAndChangesNothing)
{
    const ByteVector before = Tables();
    WriteWhole(Path, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::NotDecompressed);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}));
    EXPECT_TRUE(Tables() == before);
}

TEST_F(LinesFileTest, PlainReadAsWrappedAndTheReverse)
{
    const ByteVector before = Tables();
    const ByteVector slots = LinesSlots(5);
    WriteSparse(Path, slots);
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::NotDecompressed);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in Zlib Decompress!"}));
    WriteWhole(Path, Wrapped(slots, 1));
    Plain();
    EXPECT_EQ(ReadLinesFile(Path), TeamFileRead::Refused);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(Tables() == before);
}

TEST_F(LinesFileTest, WhatAShortFileLacksIsNotApplied)
{
    for (auto& change : RosterChanges)
        change.Status = 1;
    for (auto& change : RosterChangesGoalie)
        change.Status = 1;
    Teams[5].Cash = 1;
    const ByteVector slots = LinesSlots(5);
    struct Cut {
        std::size_t Length;
        int Cash;
        long long Skaters, Goalies; // how many of the team's 18 and 2 take their word
    };
    const Cut cuts[] = {
        {0, 2, 0, 0},
        {40, 2, 0, 0},
        {3474, 2, 0, 0},                             // a byte short of the league code
        {6941, 2, 0, 0},                             // a byte short of the team number
        {6942, 2, 0, 0},                             // a whole head and nothing else
        {client_file::Offset(5) - 1, 2, 0, 0},       // a byte short of the team
        {client_file::Offset(5), 1, 0, 0},           // the team, whole
        {client_file::Offset(5) + 4, 1, 0, 0},       // a byte short of the first word
        {client_file::Offset(5) + 5, 1, 1, 0},       // the first word, whole
        {client_file::Offset(14) + 5, 1, 10, 0},     // ten words
        {client_file::Offset(10005) + 4, 1, 18, 0},  // all skaters
        {client_file::Offset(10006) + 4, 1, 18, 1},  // one goalie
        {client_file::Offset(11005), 1, 18, 2},      // everything but the end
        {client_file::Offset(11005) + 38, 1, 18, 2}, // a byte short of the end
    };
    for (const Cut& cut : cuts) {
        Teams[5].Cash = 2;
        for (auto& player : Players)
            player.Status = 2;
        for (auto& keeper : Goalies)
            keeper.Status = 2;
        EXPECT_EQ(LoadPlain(ByteVector(slots.begin(), slots.begin() + static_cast<std::ptrdiff_t>(cut.Length))),
                  TeamFileRead::Refused);
        EXPECT_EQ(Teams[5].Cash, cut.Cash) << cut.Length;
        for (int i = 1; i <= 18; ++i)
            EXPECT_EQ(Players[i].Status, i <= cut.Skaters ? 1 : 2) << cut.Length << " skater " << i;
        for (int i = 1; i <= 2; ++i)
            EXPECT_EQ(Goalies[i].Status, i <= cut.Goalies ? 1 : 2) << cut.Length << " goalie " << i;
    }
}

TEST_F(LinesFileTest, NoTeamChosenFails)
{
    CurrentTeam = 0;
    ByteVector slots = LinesSlots(5);
    slots[client_file::Offset(3)] = 0;
    EXPECT_THROW((void)LoadPlain(slots), Failure);
}

} // namespace
} // namespace dravik
