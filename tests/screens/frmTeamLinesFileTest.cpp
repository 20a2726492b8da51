#include "OnTeamScreen.h"

#include "session/Session.h"
#include "support/ClientFileBytes.h"
#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class LinesFileCommands : public OnTeamScreen {
protected:
    LinesFileCommands()
    {
        CompleteTeam(5);
        Own().Name = "Harbour City";
        Machine.Settings["SkipZIPClient"] = "YES"; // the quick way
        target = Machine.InFolder("HarbourCity.dvl");
    }

    // Saves the lines file.
    void Save()
    {
        Click(Office().cmdSaveToFile);
        ASSERT_TRUE(std::filesystem::exists(target));
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + target}));
    }

    std::string target;
};

TEST_F(LinesFileCommands, SaveWritesTheFileAndTellsWhere)
{
    Click(Office().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + target}));
    EXPECT_TRUE(std::filesystem::exists(target));
    EXPECT_FALSE(std::filesystem::exists(TempFile));
    EXPECT_EQ(Machine.WaitCount, 1);
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_FALSE(Machine.WaitShown);
}

TEST_F(LinesFileCommands, SavingTwiceGivesTheSamePathAndReplacesTheFirstFile)
{
    Office();
    const auto save = [this] {
        const auto done = static_cast<std::ptrdiff_t>(Machine.FileOperations().size());
        Click(Office().cmdSaveToFile);
        const auto& all = Machine.FileOperations();
        return std::vector(all.begin() + done, all.begin() + done + 4);
    };
    const Box saved{64, "Lines file for Harbour City successfully save at\r\n" + target};
    EXPECT_THAT(save(), ElementsAre("find", "create", "write", "write"));
    const ByteVector first = ReadWhole(target);
    Own().City = "Elsewhere";
    // The work file is looked for; the target stays until the new file takes its place.
    EXPECT_THAT(save(), ElementsAre("find", "create", "write", "write"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(saved, saved));
    EXPECT_TRUE(ReadWhole(target) == LinesSlots(5));
    EXPECT_FALSE(ReadWhole(target) == first);
}

TEST_F(LinesFileCommands, AWrappedFileIsSavedAndLoaded)
{
    Machine.Settings["SkipZIPClient"] = "No";
    Own().City = "Harbour City";
    Click(Office().cmdSaveToFile);
    EXPECT_TRUE(ReadWhole(target) == Wrapped(LinesSlots(5)));
    Own().City = "Elsewhere";
    Machine.Choose(target);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + target},
                            Box{64, "Lines file for Harbour City successfully load from\r\n" + target}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false, false));
    EXPECT_EQ(Own().City.Trimmed(), "Harbour City");
    EXPECT_EQ(Of(Office().txtCity), "Harbour City");
}

TEST_F(LinesFileCommands, SaveIsRefusedWhileDay1IsIncomplete)
{
    frmTeam& office = Office();
    Own().ProLines[1].StartGoalie = 0;
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Lines #1 are incomplete!\r\nYou will not be able to save league "
                                                     "files unless lines for the next day are complete!"}));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_EQ(Machine.WaitCount, 0);
}

TEST_F(LinesFileCommands, SaveTestsTheProDay1Only)
{
    LeagueData.FarmRosterRequired = true;
    frmTeam& office = Office();
    Own().Farm.FarmLines[1] = {};
    Own().ProLines[2] = {};
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + target}));
    EXPECT_TRUE(std::filesystem::exists(target));
}

TEST_F(LinesFileCommands, SaveAsksForThePasswordAndEndsOnAWrongOne)
{
    frmTeam& office = Office();
    Own().Password = DigestOfA;
    Machine.Type("b");
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_EQ(Machine.WaitCount, 0);
}

TEST_F(LinesFileCommands, IncompleteLinesAreToldBeforeThePasswordIsAsked)
{
    frmTeam& office = Office();
    Own().Password = DigestOfA;
    Own().ProLines[1].StartGoalie = 0;
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Lines #1 are incomplete!\r\nYou will not be able to save league "
                                                     "files unless lines for the next day are complete!"}));
}

// The first two file operations of a save look for an old work file and an old target; the third makes the new one.
TEST_F(LinesFileCommands, AFailedCompressionLeavesNoTargetAndTheWaitScreenUp)
{
    Machine.Settings["SkipZIPClient"] = "No";
    frmTeam& office = Office();
    Machine.FailFileOperation(3, failure::DiskFull);
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "61 - Disk full in Zlib Compress!"}));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_FALSE(std::filesystem::exists(TempFile));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_TRUE(Machine.WaitShown);
}

TEST_F(LinesFileCommands, AFailureWhileSavingClosesTheWaitScreenAndIsReported)
{
    frmTeam& office = Office();
    Machine.FailFileOperation(3, failure::PermissionDenied);
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "70 - Permission denied in cmdSaveToFile!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_EQ(Machine.WaitCount, 1);
}

TEST_F(LinesFileCommands, ATeamNameThatNoFileCanHaveIsAFailureOfTheSave)
{
    Own().Name = "Harbour/City";
    frmTeam& office = Office();
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "75 - Path/File access error in cmdSaveToFile!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_EQ(Machine.WaitCount, 1);
}

TEST_F(LinesFileCommands, LoadAsksInTheProgramsFolderWithTheClientsFilter)
{
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Dialogs(), ElementsAre(std::pair<std::string, std::string>(
                                       Machine.Folder(), "DRVK Client File (*.dvl) |*.dvl|All Files (*.*) | *.*")));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Machine.WaitCount, 0);
}

TEST_F(LinesFileCommands, LoadBringsTheTeamBackAndTellsFromWhere)
{
    Own().City = "Harbour City";
    Save();
    Own().City = "Elsewhere";
    Own().ProLines[1] = {};
    Office().ReloadForm();
    Office().FormActivate();
    ASSERT_FALSE(Office().cmdSaveToFile->isEnabled());
    Machine.Choose(target);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully load from\r\n" + target}));
    EXPECT_EQ(Of(Office().txtCity), "Harbour City");
    EXPECT_TRUE(Office().cmdSaveToFile->isEnabled());
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_EQ(Machine.WaitCount, 2); // the save's and the load's
    EXPECT_FALSE(Office().txtTeamName->isEnabled());
}

TEST_F(LinesFileCommands, LoadAsksForNoPassword)
{
    Save();
    Own().Password = DigestOfA;
    Machine.Choose(target);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully load from\r\n" + target}));
    EXPECT_EQ(Own().Password.Trimmed(), ""); // the record of the file, password included
}

TEST_F(LinesFileCommands, AFileOfAnotherTeamIsRefused)
{
    Save();
    TeamMaker other(6);
    Teams[6].Name = "Ironport Foxes";
    frmTeam& office = Office();
    CurrentTeam = 6;
    Machine.Choose(target);
    office.cmdLoadFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "File for Ironport Foxes unsuccessfully load from\r\n" + target}));
    EXPECT_EQ(Teams[6].Name.Trimmed(), "Ironport Foxes");
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
}

TEST_F(LinesFileCommands, AFileOfAnotherLeagueOrKindIsRefused)
{
    Own().City = "Harbour City";
    Save();
    Own().City = "Elsewhere";
    ByteVector start = ReadWhole(target);
    ByteVector code = start;
    start[2] ^= 1U;
    code[client_file::Slot] ^= 1U;
    for (const ByteVector& bytes : {start, code}) {
        WriteWhole(target, bytes);
        Machine.ClearSeenBoxes();
        Machine.Choose(target);
        Click(Office().cmdLoadFile);
        EXPECT_THAT(Machine.Boxes(),
                    ElementsAre(Box{16, "File for Harbour City unsuccessfully load from\r\n" + target}));
        EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
        EXPECT_EQ(Own().City.Trimmed(), "Elsewhere");
    }
}

TEST_F(LinesFileCommands, AFolderIsNoLinesFile)
{
    std::filesystem::create_directory(target);
    Machine.Choose(target);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "75 - Path/File access error in cmdLoadFile!"}));
    Click(Office().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "75 - Path/File access error in cmdSaveToFile!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_TRUE(std::filesystem::is_directory(target));
}

TEST_F(LinesFileCommands, AMissingFileIsRefusedLikeAWrongOne)
{
    const std::string gone = Machine.InFolder("Gone.dvl");
    Machine.Choose(gone);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "File for Harbour City unsuccessfully load from\r\n" + gone}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
}

TEST_F(LinesFileCommands, AFileThatDoesNotDecompressLeavesTheWaitScreenUp)
{
    Machine.Settings["SkipZIPClient"] = "No";
    Office();
    const std::string empty = Machine.InFolder("Empty.dvl");
    WriteWhole(empty, {});
    Machine.Choose(empty);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Zlib Decompress!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_TRUE(Machine.WaitShown);
}

TEST_F(LinesFileCommands, AWrongEndIsToldAfterTheTeamWasReplaced)
{
    Own().City = "Harbour City";
    Save();
    Own().City = "Elsewhere";
    ByteVector bytes = ReadWhole(target);
    bytes.back() = '?';
    WriteWhole(target, bytes);
    Machine.Choose(target);
    Click(Office().cmdLoadFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "File for Harbour City unsuccessfully load from\r\n" + target}));
    EXPECT_EQ(Own().City.Trimmed(), "Harbour City");
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
}

TEST_F(LinesFileCommands, AFailureWhileLoadingClosesTheWaitScreenAndIsReported)
{
    Save();
    Machine.Choose(target);
    frmTeam& office = Office();
    Machine.FailAllFrom(3, failure::PermissionDenied);
    office.cmdLoadFile_Click();
    Machine.FailNoMore();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "70 - Permission denied in cmdLoadFile!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
}

// A slot of the farm's lines with nobody's number makes the judges fail, and tell it, whenever the screen comes to the
// front: after everything that the command itself has to tell.
TEST_F(LinesFileCommands, TheJudgesRunWhenAllIsTold)
{
    Save();
    frmTeam& office = Office();
    Own().Farm.FarmLines[1].StartGoalie = 20000;
    const Box judged{16, "9 - Subscript out of range in CheckLineFarm!"};

    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + target}, judged));
    WriteWhole(TempFile, {1});
    Machine.FailFileOperation(2, failure::PermissionDenied); // the work file cannot be deleted
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "70 - Permission denied in cmdSaveToFile!"}, judged));
    std::filesystem::remove(TempFile);

    Machine.Choose(target);
    office.cmdLoadFile_Click();
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully load from\r\n" + target}, judged));
    Machine.Choose(Machine.InFolder("Gone.dvl"));
    office.cmdLoadFile_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "File for Harbour City unsuccessfully load from\r\n" +
                                                             Machine.InFolder("Gone.dvl")},
                                                 judged));
    Machine.Choose(target);
    Machine.FailFileOperation(4, failure::PermissionDenied);
    office.cmdLoadFile_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "70 - Permission denied in cmdLoadFile!"}, judged));
}

TEST_F(LinesFileCommands, TheJudgesDoNotRunWhileTheWaitScreenStaysNorAfterACancel)
{
    Machine.Settings["SkipZIPClient"] = "No";
    frmTeam& office = Office();
    Own().Farm.FarmLines[1].StartGoalie = 20000;
    office.cmdLoadFile_Click(); // cancelled
    EXPECT_EQ(Machine.Dialogs().size(), 1U);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Machine.FailFileOperation(3, failure::DiskFull);
    office.cmdSaveToFile_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "61 - Disk full in Zlib Compress!"}));
}

// Between the end of the wait and the box that tells it, nothing of the screen changes but what a load redisplays.
TEST_F(LinesFileCommands, WhatTheJudgesSayShowsBehindTheBox)
{
    Save();
    frmTeam& office = Office();
    Own().ProLines[1] = {};
    office.FormActivate();
    ASSERT_FALSE(office.cmdSaveToFile->isEnabled());
    std::vector<std::pair<std::string, bool>> seen;
    Machine.OnEvent = [&](const std::string& event) { seen.emplace_back(event, office.cmdSaveToFile->isEnabled()); };
    Machine.Choose(target);
    office.cmdLoadFile_Click();
    Machine.OnEvent = nullptr;
    EXPECT_THAT(seen, ElementsAre(Pair("wait up", false), Pair("wait down", false), Pair("box", false)));
    EXPECT_TRUE(office.cmdSaveToFile->isEnabled());
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully load from\r\n" + target}));
}

} // namespace
} // namespace dravik
