#include "Hands.h"
#include "OnMainScreen.h"

#include "screens/platform/QtPlatform.h"
#include "support/Routines.h"

#include <filesystem>

namespace dravik {
namespace {

class EveningTest : public OnMainScreen {};

TEST_F(EveningTest, ALeagueIsOpenedATeamEnteredAndItsLinesSavedAndLoadedOnTheRealDesktop)
{
    CompleteTeam(5);
    Teams[5].Name = "Harbour City";
    Teams[5].City = "Harbour";
    Teams[5].Division = 2;
    Teams[5].Password = DigestStrToHexStr("puck");
    const std::string league = SaveLeague();
    ResetClientVariables();

    const QString folder = QString::fromStdString(Machine.Folder());
    QtPlatform desktop({folder + "/settings.ini", folder, folder + "/lock"});
    desktop.SetWaitMilliseconds(0);
    desktop.SaveSetting("Settings", "SkipZIPClient", "yes");
    UseMachine(desktop);
    Hands hands;

    hands.Choose(league);
    Main().mnuOpen->trigger();
    Settle();
    ASSERT_EQ(Listed(2).size(), 1U);
    EXPECT_EQ(desktop.GetSetting("Settings", "LastLoadLeague", ""), league);

    hands.TypePassword("Puck");
    hands.Read("Password is incorrect!");
    DoubleClickEntry(2, 0);
    EXPECT_EQ(TeamScreen(), nullptr);
    hands.TypePassword("puck");
    DoubleClickEntry(2, 0);
    ASSERT_NE(TeamScreen(), nullptr);
    ASSERT_TRUE(TeamScreen()->cmdSaveToFile->isEnabled());

    const std::string target = Machine.InFolder("HarbourCity.dvl");
    hands.TypePassword("puck");
    hands.Read(QString::fromStdString("Lines file for Harbour City successfully save at\n" + target));
    Click(TeamScreen()->cmdSaveToFile);
    EXPECT_TRUE(std::filesystem::exists(target));

    Teams[5].City = "Elsewhere";
    hands.Choose(target);
    hands.Read(QString::fromStdString("Lines file for Harbour City successfully load from\n" + target));
    Click(TeamScreen()->cmdLoadFile);
    EXPECT_EQ(TeamScreen()->txtCity->text(), "Harbour");

    Click(TeamScreen()->cmdExit);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_TRUE(hands.AreIdle());
    UseMachine(Machine);
}

} // namespace
} // namespace dravik
