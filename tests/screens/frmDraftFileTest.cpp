#include "JournalKept.h"
#include "OnDraftScreen.h"
#include "OnTeamScreen.h"
#include "support/ClientFileBytes.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DraftFileCommand : public OnDraftScreen {
protected:
    DraftFileCommand() : target(Machine.InFolder("HarbourCityGulls.dvd")) {}

    void Save()
    {
        Choose({0, 2});
        Click(Draft().cmdSaveToFile);
    }
    [[nodiscard]] Box Saved(const std::string& type) const
    {
        return {64, type + " File save for Harbour City Gulls succesfully at\r\n" + target};
    }

    std::string target;
};

TEST_F(DraftFileCommand, SavesTheRankingAndTellsWhere)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    Save();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Saved("Fantasy Draft")));
    const ByteVector file = ReadWhole(target);
    ASSERT_EQ(file.size(), 12060U);
    EXPECT_EQ(file[24], 5);
    EXPECT_EQ(file[36], 7);
    EXPECT_EQ(file[48] + 256 * file[49], 10003);
    EXPECT_EQ(file[60], 0);
    EXPECT_FALSE(std::filesystem::exists(TempFile));
    EXPECT_EQ(Machine.WaitCount, 1);
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_FALSE(Modified);
}

TEST_F(DraftFileCommand, ASavedRankingIsNoLongerUnsavedInTheJournal)
{
    const JournalKept journal(Machine.Folder());
    Choose({0, 2});
    EXPECT_TRUE(journal.HasUnsaved());
    Click(Draft().cmdSaveToFile);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_FALSE(journal.HasUnsaved());
    Choose({1});
    EXPECT_TRUE(journal.HasUnsaved());
}

TEST_F(DraftFileCommand, AnEntryDraftIsSavedUnderItsOwnName)
{
    MakeEntryDraft();
    Choose({1});
    Click(Draft().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Saved("Entry Draft")));
    EXPECT_EQ(Unwrapped(ReadWhole(target)).size(), 12060U);
}

TEST_F(DraftFileCommand, AnEmptyListIsToldBeforeAnythingElse)
{
    frmDraft& draft = Draft();
    Teams[5].Password = DigestOfA;
    ASSERT_TRUE(draft.cmdSaveToFile->isEnabled()) << "nobody has been ranked yet";
    Click(draft.cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Your list is empty!"}));
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_EQ(Machine.WaitCount, 0);
}

TEST_F(DraftFileCommand, AListThatWasEmptiedClosesTheCommand)
{
    Choose({0});
    ClickEntry(Draft().lstDraftList, 0);
    Click(Draft().cmdRemove);
    EXPECT_FALSE(Draft().cmdSaveToFile->isEnabled());
}

TEST_F(DraftFileCommand, AWrongPasswordEndsTheSave)
{
    Draft();
    Teams[5].Password = DigestOfA;
    Machine.Type("b");
    Save();
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_EQ(Machine.WaitCount, 0);
}

TEST_F(DraftFileCommand, TheRightPasswordSaves)
{
    Draft();
    Teams[5].Password = DigestOfA;
    Machine.Type("a");
    Save();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Saved("Fantasy Draft")));
}

TEST_F(DraftFileCommand, AFailedCompressionLeavesNoTargetAndTheWaitScreenUp)
{
    Choose({0});
    WriteWhole(target, {'o', 'l', 'd'});
    Machine.FailFileOperation(4, failure::DiskFull); // behind find, find and delete
    Click(Draft().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "61 - Disk full in Zlib Compress!"}));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_FALSE(std::filesystem::exists(TempFile));
    EXPECT_TRUE(Machine.WaitShown);
}

TEST_F(DraftFileCommand, AFailureOfThePlainFileClosesTheWaitScreenAndIsReported)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    Choose({0});
    Machine.FailFileOperation(3, failure::DiskFull);
    Click(Draft().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "61 - Disk full in cmdSaveToFile!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(DraftFileCommand, AnOldFileHeldOpenIsReportedAndStays)
{
    Choose({0});
    WriteWhole(target, {'o', 'l', 'd'});
    Machine.FailAllFrom(6, failure::PermissionDenied); // from the renaming on
    Click(Draft().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "70 - Permission denied in Zlib Compress!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_EQ(std::filesystem::file_size(target), 3U);
}

TEST_F(DraftFileCommand, ATeamNameThatNoFileCanHaveIsAFailureOfTheSave)
{
    Teams[5].Name = "Harbour/City";
    Save();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "75 - Path/File access error in cmdSaveToFile!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_EQ(Machine.WaitCount, 1);
}

TEST_F(DraftFileCommand, ASecondSaveReplacesTheFirst)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    Save();
    ClickEntry(Draft().lstDraftList, 0);
    Click(Draft().cmdDown);
    Click(Draft().cmdSaveToFile);
    const ByteVector file = ReadWhole(target);
    EXPECT_EQ(file[36] + 256 * file[37], 10003);
    EXPECT_EQ(file[48], 7);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Saved("Fantasy Draft"), Saved("Fantasy Draft")));
}

} // namespace
} // namespace dravik
