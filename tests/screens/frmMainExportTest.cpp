#include "OnMainScreen.h"
#include "session/Session.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Box Asked{36, "Are you sure you want to output a Rating CSV file of your league?"};

class ExportCommand : public OnMainScreen {
protected:
    void Export() { Main().mnuOutputRatingCSV->trigger(); }
    [[nodiscard]] bool Exists(const char* name) const { return std::filesystem::exists(Machine.InFolder(name)); }
};

TEST_F(ExportCommand, StaysHiddenUntilALeagueIsOpen)
{
    EXPECT_FALSE(Main().mnuOutputRatingCSV->isVisible());
    MainWithLeague();
    EXPECT_TRUE(Main().mnuOutputRatingCSV->isVisible());
    EXPECT_TRUE(Main().mnuOutputRatingCSV->isEnabled());
}

TEST_F(ExportCommand, YesWritesBothFilesAndTellsWhere)
{
    PutSkater(1, 5, position::Center, status::Pro);
    MainWithLeague();
    Machine.Answer(button::Yes);
    Export();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{64, "Output done in " + Machine.Folder()}));
    EXPECT_TRUE(Exists("PlayersRatings.csv"));
    EXPECT_TRUE(Exists("CoachesRatings.csv"));
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(ExportCommand, AnyAnswerButYesEndsIt)
{
    MainWithLeague();
    for (const int answer : {button::No, button::Cancel, button::Ok}) {
        Machine.Answer(answer);
        Export();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Asked)) << answer;
    }
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
    EXPECT_FALSE(Exists("PlayersRatings.csv"));
}

TEST_F(ExportCommand, APlayersFileHeldOpenIsToldAndNothingIsWritten)
{
    MainWithLeague();
    Machine.FailFileOperation(1, failure::PermissionDenied);
    Export();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{16, "70 - Permission denied in mnuOutputRatingCSV!"}));
    EXPECT_FALSE(Exists("PlayersRatings.csv"));
    EXPECT_FALSE(Exists("CoachesRatings.csv"));
}

TEST_F(ExportCommand, ACoachesFileHeldOpenIsToldAfterThePlayersFileIsWhole)
{
    MainWithLeague();
    Machine.FailFileOperation(4, failure::PermissionDenied); // behind the first file's create, write and close
    Export();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{16, "70 - Permission denied in mnuOutputRatingCSV!"}));
    EXPECT_TRUE(Exists("PlayersRatings.csv"));
    EXPECT_FALSE(Exists("CoachesRatings.csv"));
}

TEST_F(ExportCommand, AFailureWhileWritingLeavesTheFileAsFarAsItCame)
{
    MainWithLeague();
    Machine.FailFileOperation(2, failure::DiskFull);
    Export();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{16, "61 - Disk full in mnuOutputRatingCSV!"}));
    EXPECT_TRUE(Exists("PlayersRatings.csv"));
    EXPECT_EQ(std::filesystem::file_size(Machine.InFolder("PlayersRatings.csv")), 0U);
}

#ifndef _WIN32 // the name of no folder ends with a blank there
// A program's folder with blanks at its end, which the box does not show.
class BlankMachine : public ScriptedPlatform {
public:
    std::string ProgramFolder() override
    {
        std::filesystem::create_directories(Folder() + "  ");
        return Folder() + "  ";
    }
    ~BlankMachine() override { std::filesystem::remove_all(Folder() + "  "); }
};

TEST_F(ExportCommand, TheFolderIsToldWithoutItsOuterBlanks)
{
    MainWithLeague();
    BlankMachine blank;
    UseMachine(blank);
    Export();
    UseMachine(Machine);
    EXPECT_THAT(blank.Boxes(), ElementsAre(Asked, Box{64, "Output done in " + blank.Folder()}));
    EXPECT_TRUE(std::filesystem::exists(blank.Folder() + "  /PlayersRatings.csv"));
}
#endif

// An open that fails leaves the command up; what it left in the tables is what goes out.
TEST_F(ExportCommand, AfterAFailedOpenWhatTheTablesHoldIsWritten)
{
    PutSkater(1, 5, position::Center, status::Pro);
    Coaches[1].InUse = true;
    Coaches[1].Name = "Tor Lindqvist";
    MainWithLeague();
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteWhole(Machine.InFolder("Noise.dvs"), {1, 2, 3});
    Machine.Choose(Machine.InFolder("Noise.dvs"));
    Main().mnuOpen->trigger();
    ASSERT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "File Integrity is incorrect!"}));
    ASSERT_TRUE(Main().mnuOutputRatingCSV->isVisible());
    Export();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{64, "Output done in " + Machine.Folder()}));
    const auto lines = [this](const char* name) {
        const ByteVector bytes = ReadWhole(Machine.InFolder(name));
        return std::count(bytes.begin(), bytes.end(), '\n');
    };
    EXPECT_EQ(lines("PlayersRatings.csv"), 1);
    EXPECT_EQ(lines("CoachesRatings.csv"), 2) << "a failed open leaves the coaches";
}

} // namespace
} // namespace dravik
