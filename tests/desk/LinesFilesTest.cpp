#include "desk/LinesFiles.h"

#include "LinesDesk.h"
#include "support/ClientFileBytes.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LinesFilesTest : public LinesDesk {
protected:
    LinesFilesTest()
    {
        Teams[Own].Name = "Harbour City";
        Machine.Settings["SkipZIPClient"] = "YES"; // the quick way
        target = Machine.InFolder("HarbourCity.dvl");
        Remember();
    }

    void EndWait()
    {
        ++ends;
        Machine.CloseWait();
    }
    void Save()
    {
        SaveLines(OpenWork(), OpenFiles(), Machine, Own, [this] { EndWait(); });
    }
    [[nodiscard]] Box Saved() const
    {
        return {box::Information, "Lines file for Harbour City successfully save at\r\n" + target};
    }
    void SaveWell()
    {
        Save();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Saved()));
    }
    void Load(const std::string& path)
    {
        LoadLines(
            OpenWork(), OpenFiles(), Machine, Own, path, [this] { EndWait(); },
            [this] { shown = Teams[Own].City.Trimmed(); });
    }
    // What a save does to the league: the changes hold the statuses of everybody.
    void ExpectStatusesRefreshed()
    {
        for (int index = 1; index <= PlayerTable::last; ++index)
            Expected->RosterChanges[index].Status = Expected->Players[index].Status;
        for (int index = 1; index <= GoalieTable::last; ++index)
            Expected->RosterChangesGoalie[index].Status = Expected->Goalies[index].Status;
    }

    std::string target;
    std::string shown = "not at all";
    int ends = 0; // of the wait screen
};

TEST_F(LinesFilesTest, ASaveIsToldWithItsPathWhenTheWaitScreenIsGone)
{
    Save();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Saved()));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_EQ(Machine.WaitCount, 1);
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(std::filesystem::exists(target));
    ExpectStatusesRefreshed();
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
}

TEST_F(LinesFilesTest, AnIncompleteFirstDayIsToldAndNothingIsAskedOrWritten)
{
    Teams[Own].Password = std::string(32, 'x');
    Day(Side::Pro).StartGoalie = 0;
    Remember();
    Save();
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::Warning, "Lines #1 are incomplete!\r\nYou will not be able to save league files "
                                              "unless lines for the next day are complete!"}));
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_EQ(Machine.WaitCount, 0);
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LinesFilesTest, TheFarmsFirstDayIsNotAskedFor)
{
    LeagueData.FarmRosterRequired = true;
    Day(Side::Farm) = {};
    SaveWell();
    EXPECT_TRUE(std::filesystem::exists(target));
}

TEST_F(LinesFilesTest, AWrongPasswordEndsIt)
{
    Teams[Own].Password = std::string(32, 'x');
    Remember();
    Machine.Type("guess");
    Save();
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "Password is incorrect!"}));
    EXPECT_EQ(Machine.WaitCount, 0);
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_TRUE(IsAsExpected());
}

// The first two file operations of a save look for an old work file and an old target; the third makes the new one.
TEST_F(LinesFilesTest, ACompressionThatFailsIsToldAndLeavesTheWaitScreenUp)
{
    Machine.Settings["SkipZIPClient"] = "No";
    Machine.FailFileOperation(3, failure::DiskFull);
    Save();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "61 - Disk full in Zlib Compress!"}));
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(Machine.WaitShown);
}

TEST_F(LinesFilesTest, AnyOtherFailureIsThrownWithTheWaitScreenTakenAway)
{
    Machine.FailFileOperation(3, failure::DiskFull);
    EXPECT_EQ(FailureOfCommand([&] { Save(); }), failure::DiskFull);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LinesFilesTest, ALoadBringsTheTeamBackShowsItAndTells)
{
    Teams[Own].City = "Harbour City";
    SaveWell();
    Remember();
    Teams[Own].City = "Elsewhere";
    Day(Side::Pro) = {};
    Load(target);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_EQ(shown, "Harbour City");
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::Information, "Lines file for Harbour City successfully load from\r\n" + target}));
    EXPECT_EQ(ends, 2); // one of the save
    EXPECT_FALSE(Machine.WaitShown);
}

TEST_F(LinesFilesTest, AFileThatIsNoneIsToldAndNothingIsShownAnew)
{
    for (const std::string& path : {Machine.InFolder("nowhere.dvl"), Machine.InFolder("other.dvl")}) {
        WriteWhole(Machine.InFolder("other.dvl"), ByteVector(100, 7));
        Load(path);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{box::Critical, "File for Harbour City unsuccessfully load from\r\n" + path}));
    }
    EXPECT_EQ(shown, "not at all");
    EXPECT_EQ(ends, 2);
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LinesFilesTest, AFileThatDoesNotInflateLeavesTheWaitScreenUp)
{
    Machine.Settings["SkipZIPClient"] = "No";
    WriteWhole(target, ByteVector(100, 7));
    Load(target);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(Machine.WaitShown);
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LinesFilesTest, AScreenThatCannotBeShownAnewFailsBehindTheWait)
{
    SaveWell();
    EXPECT_EQ(FailureOfCommand([&] {
                  LoadLines(
                      OpenWork(), OpenFiles(), Machine, Own, target, [this] { EndWait(); },
                      [] { Fail(failure::OutOfMemory); });
              }),
              failure::OutOfMemory);
    EXPECT_EQ(ends, 3); // the save's, the load's, and that of the failure
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
