// A window that is told to close while its own command waits has to outlive that command.

#include "OnMainScreen.h"
#include "OnTeamScreen.h"
#include "session/Session.h"

#include <filesystem>
#include <QPointer>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// The scripted machine with the wait screen of the desktop, which lets happen what is waiting.
class WaitingMachine : public ScriptedPlatform {
public:
    WaitingMachine() { desktop.SetWaitMilliseconds(0); }

    std::function<void()> OnWait; // called once, while the screen waits

    void ShowWait() override
    {
        ScriptedPlatform::ShowWait();
        QTimer::singleShot(0, qApp, std::exchange(OnWait, [] {}));
        desktop.ShowWait();
    }
    void CloseWait() override
    {
        desktop.CloseWait();
        ScriptedPlatform::CloseWait();
    }

private:
    QtPlatform desktop;
};

// Runs `command` of `screen` on a machine of which the screen is told to close in the midst, and lets it close at the end.
template <class Command>
void ExpectToOutlive(Screen& screen, WaitingMachine& machine, Command&& command)
{
    const QPointer<Screen> alive(&screen);
    bool toldToClose = false;
    machine.OnWait = [&] {
        toldToClose = true;
        EXPECT_FALSE(screen.close());
    };
    command();
    EXPECT_TRUE(toldToClose);
    ASSERT_FALSE(alive.isNull());
    EXPECT_TRUE(alive->isVisible());
    EXPECT_TRUE(alive->close()) << "afterwards it closes as ever";
}

class TeamClosingWhileWaiting : public OnTeamScreen {
protected:
    TeamClosingWhileWaiting()
    {
        CompleteTeam(5);
        Own().Name = "Harbour City";
        Office();
        UseMachine(Waiting);
        Waiting.Settings["SkipZIPClient"] = "YES";
        TempFile = Waiting.InFolder("ClientTemp.dvt");
    }
    ~TeamClosingWhileWaiting() override { UseMachine(Machine); }

    WaitingMachine Waiting;
    std::string Target = Waiting.InFolder("HarbourCity.dvl");
};

TEST_F(TeamClosingWhileWaiting, TheTeamScreenOutlivesItsSave)
{
    ExpectToOutlive(Office(), Waiting, [this] { Click(Office().cmdSaveToFile); });
    EXPECT_TRUE(std::filesystem::exists(Target));
    EXPECT_THAT(Waiting.Boxes(), ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + Target}));
}

TEST_F(TeamClosingWhileWaiting, TheTeamScreenOutlivesItsLoad)
{
    WriteSparse(Target, LinesSlots(5));
    Own().City = "Elsewhere";
    Waiting.Choose(Target);
    ExpectToOutlive(Office(), Waiting, [this] { Click(Office().cmdLoadFile); });
    EXPECT_EQ(Own().City.Trimmed(), "Harbour City");
    EXPECT_THAT(Waiting.Boxes(),
                ElementsAre(Box{64, "Lines file for Harbour City successfully load from\r\n" + Target}));
}

class MainClosingWhileWaiting : public OnMainScreen {};

TEST_F(MainClosingWhileWaiting, TheMainScreenOutlivesItsOpen)
{
    PutTwelveTeams();
    LeagueData.FileDate = 45000;
    WaitingMachine waiting;
    waiting.Settings["SkipZIPClient"] = "YES";
    const std::string path = SaveLeague();
    Main();
    UseMachine(waiting);
    waiting.Choose(path);
    ExpectToOutlive(Main(), waiting, [this] { Main().mnuOpen->trigger(); });
    EXPECT_EQ(Listed(1).size(), 2U);
    UseMachine(Machine);
}

} // namespace
} // namespace dravik
