#include "OnMainScreen.h"

#include "support/Routines.h"
#include <QTimer>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;

// The digest text of "a".
constexpr const char* DigestOfA = "0Cc175b9c0f1b6a831c399e269772661";

class MainMenus : public OnMainScreen {};

TEST_F(MainMenus, TeamCommandsWithoutATeamSaySo)
{
    PutTeam(1, 1);
    MainWithLeague();
    for (QAction* command : {Main().mnuViewTeam, Main().mnuSetRoster, Main().mnuSetLines, Main().mnuSetFarmLines,
                             Main().mnuFreeAgents, Main().mnuDraft}) {
        command->trigger();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "No Team is Selected!"}))
            << command->objectName().toStdString();
    }
    EXPECT_EQ(CallerScreen, "");
}

TEST_F(MainMenus, TeamCommandsWithAWrongPasswordEndWithoutAFurtherWord)
{
    PutTeam(1, 1).Password = DigestOfA;
    MainWithLeague();
    CurrentTeam = 1;
    for (QAction* command : {Main().mnuViewTeam, Main().mnuSetRoster, Main().mnuSetLines, Main().mnuSetFarmLines,
                             Main().mnuFreeAgents, Main().mnuDraft}) {
        command->trigger();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Password is incorrect!"}))
            << command->objectName().toStdString();
    }
    EXPECT_EQ(Machine.Questions(), std::vector(6, Question{"Password Required!"}));
    EXPECT_EQ(CallerScreen, "");
}

TEST_F(MainMenus, ClosingAsksNothingWhateverWasModified)
{
    PutTeam(1, 1);
    MainWithLeague();
    Modified = true;
    Main().mnuExit->trigger();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_EQ(TheStage.Find("Main"), nullptr);
    EXPECT_TRUE(Modified) << "nor does anything take it back";
}

TEST_F(MainMenus, AnotherOpenAsksNothingWhateverWasModified)
{
    PutTeam(1, 1);
    LeagueData.FileDate = 45000;
    MainWithLeague();
    for (const bool modified : {false, true}) {
        Modified = modified;
        Machine.Choose(SaveLeague());
        Main().mnuOpen->trigger();
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        EXPECT_THAT(Machine.Questions(), IsEmpty());
        EXPECT_EQ(Modified, modified);
        EXPECT_EQ(Listed(1).size(), 1U);
    }
}

TEST_F(MainMenus, ViewTeamOpensTheTeamScreenAndHidesMain)
{
    PutTeam(1, 1);
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuViewTeam->trigger();
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainMenus, SetRosterOpensTheRosterScreenAndNotesMainAsItsCaller)
{
    CompleteTeam(1);
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuSetRoster->trigger();
    EXPECT_EQ(CallerScreen, "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
    ASSERT_NE(TheStage.Find("Roster"), nullptr);
    EXPECT_TRUE(TheStage.Find("Roster")->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainMenus, SetLinesRefusesAnIncompleteRosterWhileSetFarmLinesOpens)
{
    PutTeam(1, 1);
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuSetLines->trigger();
    EXPECT_THAT(
        Machine.TakeBoxes(),
        ElementsAre(Box{48, "Roster is not Complete!\r\nYou cannot make your lines if your roster is not done!"}));
    EXPECT_EQ(CallerScreen, "");
    Main().mnuSetFarmLines->trigger();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre());
    EXPECT_EQ(CallerScreen, "Main");
    ASSERT_NE(TheStage.Find("FarmLine"), nullptr);
    EXPECT_TRUE(TheStage.Find("FarmLine")->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainMenus, SetLinesOpensForACompleteRoster)
{
    CompleteTeam(1);
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuSetLines->trigger();
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
    EXPECT_EQ(CallerScreen, "Main");
    ASSERT_NE(TheStage.Find("Line"), nullptr);
    EXPECT_TRUE(TheStage.Find("Line")->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainMenus, SetLinesCountsTheSalaryCap)
{
    CompleteTeam(1);
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    ASSERT_TRUE(CheckRoster(1, false, false, false));
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuSetLines->trigger();
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{48, "Roster is not Complete!\r\nYou cannot make your lines if your roster is not done!"}));
}

TEST_F(MainMenus, OffersOpenAndLeaveTheCallerAlone)
{
    PutTeam(1, 1);
    MainWithLeague();
    CurrentTeam = 1;
    CallerScreen = "Team";
    Main().mnuFreeAgents->trigger();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    ASSERT_NE(TheStage.Find("FreeAgent"), nullptr);
    EXPECT_TRUE(TheStage.Find("FreeAgent")->isVisible());
    EXPECT_EQ(CallerScreen, "Team");
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainMenus, TheDraftListOpensAndLeavesTheCallerAlone)
{
    PutTeam(1, 1);
    MainWithLeague();
    CurrentTeam = 1;
    CallerScreen = "Team";
    Main().mnuDraft->trigger();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    ASSERT_NE(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(TheStage.Find("Draft")->isVisible());
    EXPECT_EQ(CallerScreen, "Team");
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainMenus, AboutAndTheExportNeedNoTeam)
{
    MainWithLeague();
    Main().mnuAbout->trigger();
    EXPECT_NE(TheStage.Find("About"), nullptr);
    Machine.Answer(button::No);
    Main().mnuOutputRatingCSV->trigger();
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{36, "Are you sure you want to output a Rating CSV file of your league?"}));
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(MainMenus, OpenAsksInTheProgramsFolderWithItsFilter)
{
    Main().mnuOpen->trigger();
    EXPECT_THAT(Machine.Dialogs(),
                ElementsAre(Pair(Machine.Folder(), "DRVK Client File (*.dvs) |*.dvs|All Files (*.*) | *.*")));
}

TEST_F(MainMenus, ACancelledOpenIsDroppedSilently)
{
    PutTeam(1, 1);
    MainWithLeague();
    Main().mnuOpen->trigger();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
    EXPECT_TRUE(Teams[1].InUse);
    EXPECT_EQ(Machine.Dialogs().size(), 1U);
}

TEST_F(MainMenus, OpenShowsTheChosenLeague)
{
    PutTeam(3, 4);
    const std::string path = SaveLeague("Winter.dvs");
    ResetClientVariables();
    Main();
    Machine.Choose(path);
    Main().mnuOpen->trigger();
    Settle();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Listed(4), ElementsAre(Pair("Team 3", 3)));
    EXPECT_EQ(Main().windowTitle(), "Dravik Hockey Simulator Client - Winter");
    EXPECT_EQ(Machine.Settings["LastLoadLeague"], path);
    EXPECT_FALSE(Main().mnuDraft->isEnabled());
    EXPECT_TRUE(Main().mnuFreeAgents->isEnabled());
}

TEST_F(MainMenus, AFileThatIsNoLeagueLeavesTheWindowAsItWas)
{
    PutTeam(3, 4);
    Main();
    WindowTitle = "Dravik Hockey Simulator Client - Winter";
    MainWithLeague();
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteWhole(Machine.InFolder("Noise.dvs"), {1, 2, 3});
    Machine.Choose(Machine.InFolder("Noise.dvs"));
    Main().mnuOpen->trigger();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "File Integrity is incorrect!"}));
    EXPECT_THAT(Listed(4), ElementsAre(Pair("Team 3", 3)));
    EXPECT_EQ(Main().windowTitle(), "Dravik Hockey Simulator Client - Winter");
    EXPECT_FALSE(Teams[3].InUse);
}

class BrokenDialog : public ScriptedPlatform {
public:
    std::string OpenFileDialog(const std::string& /*folder*/, const std::string& /*filter*/) override
    {
        Fail(failure::OutOfMemory);
    }
};

TEST_F(MainMenus, AnyOtherFailureOfTheDialogIsReported)
{
    Main();
    BrokenDialog broken;
    UseMachine(broken);
    Main().mnuOpen->trigger();
    EXPECT_THAT(broken.Boxes(), ElementsAre(Box{16, "7 - Out of memory in mnuOpen!"}));
    UseMachine(Machine);
}

TEST_F(MainMenus, AfterASecondOpenNoListShowsAChoiceAndTheMenusWorkOnTheEarlierTeam)
{
    PutTwelveTeams();
    const std::string path = SaveLeague();
    MainWithLeague();
    ClickEntry(2, 1);
    Machine.Choose(path);
    Main().mnuOpen->trigger();
    Settle();
    EXPECT_EQ(CurrentTeam, 8);
    EXPECT_EQ(ChosenEntries(), 0);
    Main().mnuViewTeam->trigger();
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_EQ(TeamScreen()->txtTeamName->text(), "Team 8");
}

TEST_F(MainMenus, ExitEndsTheProgram)
{
    Main();
    QTimer::singleShot(0, &Main(), [this] { Main().mnuExit->trigger(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(TheStage.Find("Main"), nullptr);
}

TEST_F(MainMenus, TheButtonsBelowFollowTheMenu)
{
    PutTeam(1, 1);
    MainWithLeague();
    auto* draft = Main().findChild<QPushButton*>("cmdDraft");
    auto* offers = Main().findChild<QPushButton*>("cmdFreeAgents");
    Main().SetDraftMenu(false, "&Draft List");
    Main().SetFreeAgentsMenu(false);
    EXPECT_FALSE(draft->isEnabled());
    EXPECT_FALSE(offers->isEnabled());
    EXPECT_EQ(draft->text(), "Draft List");
    Main().SetDraftMenu(true, "Fantasy &Draft List");
    EXPECT_EQ(Main().mnuDraft->text(), "Fantasy &Draft List");
    EXPECT_TRUE(draft->isEnabled());
    EXPECT_EQ(draft->text(), "Fantasy Draft List");
    CurrentTeam = 1;
    Click(Main().findChild<QPushButton*>("cmdViewTeam"));
    EXPECT_NE(TeamScreen(), nullptr);
}
} // namespace
} // namespace dravik
