#include "OnStage.h"

#include <QTimer>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A screen of a test's own, with what happened to it.
class PaperScreen : public Screen {
public:
    PaperScreen(Stage& stage, std::vector<std::string>& events) : Screen(stage, "frmPaper"), Events(events) {}

    void FormLoad() override
    {
        Events.emplace_back("load");
        if (ClosesItself)
            Unload();
    }
    void ReloadForm() override { Events.emplace_back("reload"); }
    void FormActivate() override { Events.emplace_back("front"); }
    void FormUnload() override
    {
        Events.emplace_back("unload");
        if (FailsOnUnload)
            Fail(failure::Overflow);
    }

    static inline bool ClosesItself = false;
    static inline bool FailsOnUnload = false;

private:
    std::vector<std::string>& Events;
};

class StageTest : public OnStage {
protected:
    StageTest()
    {
        PaperScreen::ClosesItself = false;
        PaperScreen::FailsOnUnload = false;
        TeamMaker(5);
    }

    // Puts a screen of paper in the place of `name`.
    void Provide(std::string_view name)
    {
        TheStage.Provide(name, [this](Stage& stage) { return std::make_unique<PaperScreen>(stage, Events); });
    }

    // Opens `name` from the main screen, or from the team screen, and closes it again.
    void OpenAndClose(std::string_view name, Screen& opener)
    {
        TheStage.Open(name, opener);
        TheStage.Find(name)->close();
        Settle();
    }

    std::vector<std::string> Events;
};

TEST_F(StageTest, StartShowsTheMainScreen)
{
    EXPECT_TRUE(TheStage.Start());
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(Main().objectName(), "frmMain");
}

TEST_F(StageTest, EveryScreenOfTheProgramOpens)
{
    CompleteTeam(5);
    for (const char* name : {"Team", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "Ticket", "EditPlayer",
                             "About", "Coach", "Prospect"}) {
        CurrentTeam = 5;
        CallerScreen = "Main";
        TheStage.Open(name, MainWithLeague());
        Settle();
        ASSERT_NE(TheStage.Find(name), nullptr) << name;
        EXPECT_TRUE(TheStage.Find(name)->isVisible()) << name;
        EXPECT_EQ(TheStage.Find(name)->objectName().left(3), "frm") << name;
        TheStage.Find(name)->close();
        Settle();
    }
}

TEST_F(StageTest, TheMainWindowIsStartedAndCannotBeOpened)
{
    MainWithLeague();
    EXPECT_THROW(TheStage.Open(Window::Main, Main()), Failure);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(StageTest, AScreenIsLoadedThenShownAndItsOpenerHides)
{
    MainWithLeague();
    Provide("Draft");
    TheStage.Open("Draft", Main());
    EXPECT_TRUE(TheStage.Find("Draft")->isVisible());
    EXPECT_FALSE(Main().isVisible());
    EXPECT_THAT(Events, ElementsAre("load", "front"));
}

TEST_F(StageTest, AScreenThatClosesUnloadsAndBringsTheMainScreenBack)
{
    Provide("Draft");
    OpenAndClose("Draft", MainWithLeague());
    EXPECT_EQ(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Events, ElementsAre("load", "front", "unload"));
}

TEST_F(StageTest, AScreenThatClosesItselfWhileLoadingNeverHidesItsOpener)
{
    PaperScreen::ClosesItself = true;
    Provide("Draft");
    MainWithLeague();
    TheStage.Open("Draft", Main());
    Settle();
    EXPECT_EQ(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Events, ElementsAre("load", "unload"));
}

TEST_F(StageTest, AFailureWhileUnloadingIsToldAndTheScreenClosesAnyway)
{
    PaperScreen::FailsOnUnload = true;
    Provide("Draft");
    OpenAndClose("Draft", MainWithLeague());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in Form_Unload!"}));
    EXPECT_EQ(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(StageTest, AboutLeavesTheMainScreenUp)
{
    Provide("About");
    MainWithLeague();
    TheStage.Open("About", Main());
    EXPECT_TRUE(Main().isVisible());
    EXPECT_TRUE(TheStage.Find("About")->isVisible());
}

TEST_F(StageTest, ScreensOfTheCallerReturnToTheMainScreen)
{
    for (const char* name : {"Roster", "Line", "FarmLine"}) {
        Provide(name);
        CallerScreen = "Main";
        OpenAndClose(name, MainWithLeague());
        EXPECT_TRUE(Main().isVisible()) << name;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(StageTest, ScreensOfTheCallerReturnToTheTeamScreenAndItIsFilledAnew)
{
    for (const char* name : {"Roster", "Line", "FarmLine"}) {
        Provide(name);
        OpenTeam(5);
        CallerScreen = "Team";
        TheStage.Open(name, *TeamScreen());
        EXPECT_FALSE(TeamScreen()->isVisible()) << name;
        Teams[5].City = "Port Ellery";
        TheStage.Find(name)->close();
        EXPECT_TRUE(TeamScreen()->isVisible()) << name;
        EXPECT_EQ(TeamScreen()->txtCity->text(), "Port Ellery") << name;
        EXPECT_FALSE(Main().isVisible()) << name;
        Teams[5].City = "";
    }
}

TEST_F(StageTest, AnUnknownCallerIsAnIntegrityFailureAndShowsNothing)
{
    Provide("Roster");
    CallerScreen = "main";
    OpenAndClose("Roster", MainWithLeague());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(StageTest, TheTicketScreenReturnsToTheTeamScreen)
{
    Provide("Ticket");
    OpenAndClose("Ticket", OpenTeam(5));
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(StageTest, CoachAndProspectScreensReturnToTheMainScreen)
{
    for (const char* name : {"Coach", "Prospect"}) {
        Provide(name);
        OpenAndClose(name, OpenTeam(5));
        EXPECT_TRUE(Main().isVisible()) << name;
        EXPECT_FALSE(TeamScreen()->isVisible()) << name;
    }
}

TEST_F(StageTest, TheViewerReturnsByItsMode)
{
    const std::pair<int, const char*> openers[] = {{2, "Roster"}, {3, "FreeAgent"}, {4, "Draft"},
                                                   {0, "Main"},   {1, "Main"},      {5, "Main"}};
    Provide("EditPlayer");
    for (const auto& [mode, opener] : openers) {
        Provide(opener);
        MainWithLeague().show();
        if (std::string_view(opener) != "Main")
            TheStage.Open(opener, Main());
        Screen& front = *TheStage.Find(opener);
        ViewerReturnMode = mode;
        OpenAndClose("EditPlayer", front);
        EXPECT_TRUE(TheStage.Find(opener)->isVisible()) << mode;
        EXPECT_EQ(Main().isVisible(), std::string_view(opener) == "Main") << mode;
    }
}

TEST_F(StageTest, AViewerWhoseOpenerIsGoneReturnsToTheMainScreen)
{
    Provide("EditPlayer");
    ViewerReturnMode = 2;
    OpenAndClose("EditPlayer", MainWithLeague());
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(StageTest, AScreenOpenedAgainIsLoadedAnew)
{
    Provide("Coach");
    OpenAndClose("Coach", OpenTeam(5));
    ASSERT_NE(TeamScreen(), nullptr);
    Teams[5].Gm = "Nils Ekdahl";
    Main().mnuViewTeam_Click();
    Settle();
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_EQ(TeamScreen()->txtGm->text(), "Nils Ekdahl");
}

TEST_F(StageTest, ClosingTheMainScreenEndsTheProgram)
{
    MainWithLeague();
    QTimer::singleShot(0, &Main(), [this] { Main().close(); });
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(StageTest, ClosingTheMainScreenHidesEveryOther)
{
    Provide("About");
    MainWithLeague();
    TheStage.Open("About", Main());
    const Screen* about = TheStage.Find("About");
    Main().close();
    EXPECT_FALSE(about->isVisible());
    EXPECT_THAT(Events, ElementsAre("load", "front"));
}

TEST_F(StageTest, OperationsOnScreensThatAreNotLoadedDoNothing)
{
    TheStage.PlaceTeam();
    TheStage.EnableSaveToFile();
    MainWithLeague();
    TheStage.EnableSaveToFile();
    EXPECT_EQ(TheStage.Find("Team"), nullptr);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(StageTest, TheLinesScreenCanEnableTheSaveCommand)
{
    OpenTeam(5);
    ASSERT_FALSE(TeamScreen()->cmdSaveToFile->isEnabled());
    TheStage.EnableSaveToFile();
    EXPECT_TRUE(TeamScreen()->cmdSaveToFile->isEnabled());
    EXPECT_FALSE(TeamScreen()->lblSaveHint->isVisible());
}

} // namespace
} // namespace dravik
