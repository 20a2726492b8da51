#include "OnMainScreen.h"

#include <QPushButton>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A screen with nothing on it, which only stands where another one would.
class PaperScreen : public Screen {
public:
    explicit PaperScreen(Stage& stage) : Screen(stage, "frmPaper") {}
    void FormLoad() override {}
};

constexpr const char* AllScreens[] = {"Team",  "Roster", "Line",       "FarmLine", "FreeAgent", "Draft",
                                      "About", "Ticket", "EditPlayer", "Coach",    "Prospect"};

// Team 5 has a complete roster; team 6 has nobody. Every screen but main and team is one of paper.
class OpenedScreens : public OnMainScreen {
protected:
    OpenedScreens()
    {
        CompleteTeam(5);
        PutTeam(6, 2);
        for (const char* name : AllScreens)
            if (std::string_view(name) != "Team")
                TheStage.Provide(name, [](Stage& stage) { return std::make_unique<PaperScreen>(stage); });
    }

    // The screens that can be seen, the main screen first.
    [[nodiscard]] std::vector<std::string> Seen() const
    {
        std::vector<std::string> names;
        if (IsSeen("Main"))
            names.emplace_back("Main");
        for (const char* name : AllScreens)
            if (IsSeen(name))
                names.emplace_back(name);
        return names;
    }
    [[nodiscard]] bool IsSeen(const char* name) const
    {
        const Screen* screen = TheStage.Find(name);
        return screen != nullptr && screen->isVisible();
    }

    void CloseScreen(const char* name)
    {
        ASSERT_NE(TheStage.Find(name), nullptr) << name;
        TheStage.Find(name)->close();
        Settle();
    }

    void Trigger(const char* item)
    {
        auto* action = Main().findChild<QAction*>(item);
        ASSERT_NE(action, nullptr) << item;
        action->trigger();
        Settle();
    }
};

// A command of the main menu, the screen it opens, and `CallerScreen` afterwards, which was "before".
struct MenuCommand {
    const char* Item;
    const char* Opens;
    const char* Caller;
};

constexpr MenuCommand MenuCommands[] = {
    {"mnuViewTeam", "Team", "before"},       {"mnuSetRoster", "Roster", "Main"},       {"mnuSetLines", "Line", "Main"},
    {"mnuSetFarmLines", "FarmLine", "Main"}, {"mnuFreeAgents", "FreeAgent", "before"}, {"mnuDraft", "Draft", "before"},
};

TEST_F(OpenedScreens, EveryMenuCommandOpensItsScreenAloneAndComesBackToMain)
{
    MainWithLeague();
    CurrentTeam = 5;
    for (const auto& [item, opens, caller] : MenuCommands) {
        CallerScreen = "before";
        Trigger(item);
        EXPECT_THAT(Seen(), ElementsAre(opens)) << item;
        EXPECT_EQ(CallerScreen, caller) << item;
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Main")) << item;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OpenedScreens, TheButtonsBelowTheListsOpenWhatTheirMenuCommandsOpen)
{
    MainWithLeague();
    CurrentTeam = 5;
    for (const auto& [item, opens, caller] : MenuCommands) {
        auto* button = Main().findChild<QPushButton*>("cmd" + QString(item).mid(3));
        ASSERT_NE(button, nullptr) << item;
        CallerScreen = "before";
        Click(button);
        EXPECT_THAT(Seen(), ElementsAre(opens)) << item;
        EXPECT_EQ(CallerScreen, caller) << item;
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Main")) << item;
    }
}

TEST_F(OpenedScreens, FarmLinesOpenForAnIncompleteRosterWhileLinesDoNot)
{
    MainWithLeague();
    CurrentTeam = 6;
    CallerScreen = "before";
    Trigger("mnuSetLines");
    EXPECT_THAT(Seen(), ElementsAre("Main"));
    EXPECT_EQ(CallerScreen, "before");
    EXPECT_THAT(
        Machine.TakeBoxes(),
        ElementsAre(Box{48, "Roster is not Complete!\r\nYou cannot make your lines if your roster is not done!"}));
    Trigger("mnuSetFarmLines");
    EXPECT_THAT(Seen(), ElementsAre("FarmLine"));
    EXPECT_EQ(CallerScreen, "Main");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OpenedScreens, AboutStandsBesideMainAndNeedsNoTeam)
{
    Main();
    CallerScreen = "before";
    Trigger("mnuAbout");
    EXPECT_THAT(Seen(), ElementsAre("Main", "About"));
    EXPECT_EQ(CallerScreen, "before");
    CloseScreen("About");
    EXPECT_THAT(Seen(), ElementsAre("Main"));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OpenedScreens, WithoutATeamNoScreenOpens)
{
    MainWithLeague();
    for (const auto& command : MenuCommands) {
        Trigger(command.Item);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "No Team is Selected!"})) << command.Item;
        EXPECT_THAT(Seen(), ElementsAre("Main")) << command.Item;
    }
}

TEST_F(OpenedScreens, AnOpenCommandOfTheTeamScreenOpensItsScreenAloneAndComesBackToTheTeam)
{
    frmTeam& office = OpenTeam(5);
    const std::pair<QPushButton*, const char*> commands[] = {{office.CmdRoster, "Roster"},
                                                             {office.cmdLines, "Line"},
                                                             {office.cmdFarmLines, "FarmLine"},
                                                             {office.cmdTicketArena, "Ticket"}};
    for (const auto& [command, opens] : commands) {
        CallerScreen = "before";
        ViewerReturnMode = 77;
        Click(command);
        EXPECT_THAT(Seen(), ElementsAre(opens));
        EXPECT_EQ(CallerScreen, "Team") << opens;
        EXPECT_EQ(ViewerReturnMode, 77) << opens;
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Team")) << opens;
    }
    EXPECT_EQ(TeamScreen(), &office);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OpenedScreens, LinesOfAnIncompleteRosterStayClosedOnTheTeamScreenWhileFarmLinesOpen)
{
    OpenTeam(6);
    CallerScreen = "before";
    Click(TeamScreen()->cmdLines);
    EXPECT_THAT(Seen(), ElementsAre("Team"));
    EXPECT_EQ(CallerScreen, "before");
    EXPECT_THAT(
        Machine.TakeBoxes(),
        ElementsAre(Box{48, "Roster is incomplete!\r\nYou cannot make your lines if your roster is incomplete!"}));
    Click(TeamScreen()->cmdFarmLines);
    EXPECT_THAT(Seen(), ElementsAre("FarmLine"));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// These commands are hidden from a general manager; the screens behind them know no way back but the main screen.
TEST_F(OpenedScreens, AHiddenCommandOfTheTeamScreenOpensItsScreenAlone)
{
    struct Hidden {
        QPushButton* frmTeam::*Command;
        const char* Opens;
        int ReturnMode; // 77 before
    };
    const Hidden commands[] = {{&frmTeam::cmdProspect, "Prospect", 77},
                               {&frmTeam::cmdChangeCoach, "Coach", 2},
                               {&frmTeam::cmdFarmChangeCoach, "Coach", 3}};
    for (const auto& [command, opens, returnMode] : commands) {
        QPushButton* shown = OpenTeam(5).*command;
        shown->show();
        CallerScreen = "before";
        ViewerReturnMode = 77;
        Click(shown);
        EXPECT_THAT(Seen(), ElementsAre(opens));
        EXPECT_EQ(CallerScreen, "Team") << opens;
        EXPECT_EQ(ViewerReturnMode, returnMode) << opens;
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Main")) << opens;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// The caller is read when the screen closes, whoever has opened it.
TEST_F(OpenedScreens, TheCallerAtTheClosingDecidesWhoComesBack)
{
    for (const char* opens : {"Roster", "Line", "FarmLine"}) {
        frmTeam& office = OpenTeam(5);
        TheStage.Open(opens, office);
        CallerScreen = "Main";
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Main")) << opens;
        CallerScreen = "Team";
        TheStage.Open(opens, Main());
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Team")) << opens;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OpenedScreens, AScreenOfAnUnknownCallerIsAnIntegrityFailureAndShowsNothing)
{
    for (const char* item : {"mnuSetRoster", "mnuSetLines", "mnuSetFarmLines"}) {
        MainWithLeague().show();
        CurrentTeam = 5;
        Trigger(item);
        ASSERT_EQ(Seen().size(), 1U);
        CallerScreen = "team";
        CloseScreen(Seen().front().c_str());
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})) << item;
        EXPECT_THAT(Seen(), IsEmpty()) << item;
    }
}

TEST_F(OpenedScreens, TheOtherScreensHeedNoCaller)
{
    OpenTeam(5);
    Click(TeamScreen()->cmdTicketArena);
    CallerScreen = "Main";
    CloseScreen("Ticket");
    EXPECT_THAT(Seen(), ElementsAre("Team"));
    Click(TeamScreen()->cmdExit);
    for (const auto& [item, opens] : {std::pair("mnuFreeAgents", "FreeAgent"), std::pair("mnuDraft", "Draft")}) {
        CallerScreen = "Team";
        Trigger(item);
        CloseScreen(opens);
        EXPECT_THAT(Seen(), ElementsAre("Main")) << item;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
