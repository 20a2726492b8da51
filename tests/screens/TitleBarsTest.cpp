#include "OnTeamScreen.h"

#include <QWindow>

namespace dravik {
namespace {

// The signs "[*]" in a name, as the desktop's title bar shows them.
class TitleBars : public OnTeamScreen {
protected:
    TitleBars()
    {
        CompleteTeam(5);
        Own().Name = "[*] Gulls [*][*]";
        Own().Farm.Name = "Ducks [*]";
    }

    static std::string TitleBarOf(const QWidget& screen) { return screen.windowHandle()->title().toStdString(); }
    // The title bar of a screen that comes up from the main screen.
    std::string TitleBarOf(const char* name)
    {
        CallerScreen = "Main";
        CurrentTeam = 5;
        TheStage.Open(name, MainWithLeague());
        Settle();
        return TitleBarOf(*TheStage.Find(name));
    }

    const std::string Program = "Dravik Hockey Simulator Client - ";
    const std::string Name = "[*] Gulls [*][*]";
};

TEST_F(TitleBars, TheMainScreenShowsTheSignsOfAFileName)
{
    Main();
    WindowTitle = Program + "Cup [*]";
    EXPECT_EQ(TitleBarOf(MainWithLeague()), Program + "Cup [*]");
    Main().SetWindowCaption(Program + "[*][*]");
    EXPECT_EQ(TitleBarOf(Main()), Program + "[*][*]");
}

TEST_F(TitleBars, TheTeamScreenShowsTheSignsOfFileAndTeam)
{
    Main();
    WindowTitle = Program + "Cup [*]";
    EXPECT_EQ(TitleBarOf("Team"), Program + "Cup [*] - " + Name);
    Enter(TeamScreen()->txtTeamName, "Owls * of [ Ellery");
    EXPECT_EQ(Own().Name.Trimmed(), Name) << "a bracket cannot be typed";
    EXPECT_THAT(Machine.Boxes(),
                ::testing::ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
}

TEST_F(TitleBars, EveryScreenOfTheTeamShowsTheSignsOfItsName)
{
    EXPECT_EQ(TitleBarOf("Roster"), Program + Name + " - Roster");
    EXPECT_EQ(TitleBarOf("Line"), Program + Name + " - Lines");
    EXPECT_EQ(TitleBarOf("FarmLine"), Program + "Ducks [*] - Lines");
    EXPECT_EQ(TitleBarOf("Ticket"), Program + Name + " - Ticket & Arena");
}

} // namespace
} // namespace dravik
