#include "OnTeamScreen.h"

#include <map>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

namespace dravik {
namespace {

using ::testing::IsEmpty;

// A screen that closes before anybody sees it.
class FleetingScreen : public Screen {
public:
    explicit FleetingScreen(Stage& stage) : Screen(stage, "frmFleeting") {}
    void FormLoad() override { Unload(); }
};

class TeamKeys : public OnTeamScreen {};

TEST_F(TeamKeys, EnterPressesTheCommandThatHasTheFocus)
{
    TheStage.Provide("FarmLine", [](Stage& stage) { return std::make_unique<FleetingScreen>(stage); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Office().cmdFarmLines->setFocus();
        CallerScreen = "before";
        Press(Office().cmdFarmLines, key);
        EXPECT_EQ(CallerScreen, "Team");
        Office().cmdExit->setFocus();
        Press(Office().cmdExit, key);
        EXPECT_EQ(TeamScreen(), nullptr);
        EXPECT_TRUE(Main().isVisible());
    }
}

TEST_F(TeamKeys, EscapeClosesNothing)
{
    frmTeam& office = Office();
    TypeInto(office.txtEmail, "new@example.org");
    Press(office.txtEmail, Qt::Key_Escape);
    EXPECT_TRUE(office.txtEmail->hasFocus());
    EXPECT_EQ(Of(office.txtEmail), "new@example.org");
    EXPECT_EQ(Own().Email.Trimmed(), "ward@example.org");
    office.cmdExit->setFocus();
    Press(office.cmdExit, Qt::Key_Escape);
    Press(&office, Qt::Key_Escape);
    EXPECT_EQ(TeamScreen(), &office);
    EXPECT_TRUE(office.isVisible());
    EXPECT_FALSE(Main().isVisible());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamKeys, EnterInABoxDoesNothing)
{
    frmTeam& office = Office();
    CallerScreen = "before";
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        TypeInto(office.txtEmail, "new@example.org");
        Modified = false;
        Press(office.txtEmail, key);
        EXPECT_TRUE(office.txtEmail->hasFocus());
        EXPECT_EQ(Own().Email.Trimmed(), "ward@example.org");
        EXPECT_FALSE(Modified);
        office.txtEmail->setText("ward@example.org");
        TypeInto(office.txtAbbre, "HC");
        Modified = false;
        Press(office.txtAbbre, key);
        EXPECT_TRUE(office.txtAbbre->hasFocus());
        EXPECT_FALSE(Modified);
        office.txtAbbre->setText("HCG");
    }
    EXPECT_EQ(CallerScreen, "before");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(office.isVisible());
}

TEST_F(TeamKeys, NoLetterIsTheMnemonicOfTwoControls)
{
    std::map<QString, std::string> owners;
    const auto take = [&owners](const QString& text) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            return;
        const auto [standing, isNew] = owners.emplace(key, text.toStdString());
        EXPECT_TRUE(isNew) << key.toStdString() << ": " << standing->second << " and " << text.toStdString();
    };
    for (const QPushButton* command : Office().findChildren<QPushButton*>())
        take(command->text());
    for (const QLabel* label : Office().findChildren<QLabel*>())
        if (label->buddy() != nullptr)
            take(label->text());
    for (const char* used : {"Alt+R", "Alt+L", "Alt+F", "Alt+T", "Alt+S", "Alt+O", "Alt+X", "Alt+M", "Alt+E"})
        EXPECT_TRUE(owners.contains(used)) << used;
}

TEST_F(TeamKeys, TheMnemonicOfACaptionLeadsToItsBox)
{
    Office().cmdExit->setFocus();
    QTest::keyClick(&Office(), Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(Office().txtEmail->hasFocus());
    QTest::keyClick(&Office(), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(Office().txtMessenger->hasFocus());
}

// Loading again fills the screen anew, but opens no command that an earlier loading has closed.
class TeamReload : public OnTeamScreen {};

TEST_F(TeamReload, FarmLinesStayClosedWhenTheFarmComesBack)
{
    LeagueData.FarmEnabled = false;
    ASSERT_FALSE(Office().cmdFarmLines->isEnabled());
    LeagueData.FarmEnabled = true;
    Office().FormLoad();
    EXPECT_FALSE(Office().cmdFarmLines->isEnabled());
    Office().ReloadForm();
    EXPECT_FALSE(Office().cmdFarmLines->isEnabled());
    Click(Office().cmdExit);
    EXPECT_TRUE(OpenTeam(5).cmdFarmLines->isEnabled());
}

TEST_F(TeamReload, FireCommandsStayClosedWhenACoachComesBack)
{
    ASSERT_FALSE(Office().cmdFirePro->isEnabled());
    ASSERT_FALSE(Office().cmdFireFarm->isEnabled());
    Own().ProCoach = 7;
    Own().Farm.FarmCoach = 8;
    Office().ReloadForm();
    EXPECT_EQ(Of(Office().lblCoach), "Tor Lindqvist");
    EXPECT_EQ(Of(Office().lblFarmCoach), "Marek Zelinka");
    EXPECT_FALSE(Office().cmdFirePro->isEnabled());
    EXPECT_FALSE(Office().cmdFireFarm->isEnabled());
    Click(Office().cmdExit);
    EXPECT_TRUE(OpenTeam(5).cmdFirePro->isEnabled());
    EXPECT_TRUE(TeamScreen()->cmdFireFarm->isEnabled());
}

TEST_F(TeamReload, AFarmThatGoesClosesItsLinesAtTheNextLoading)
{
    ASSERT_TRUE(Office().cmdFarmLines->isEnabled());
    LeagueData.FarmEnabled = false;
    Office().ReloadForm();
    EXPECT_FALSE(Office().cmdFarmLines->isEnabled());
}

} // namespace
} // namespace dravik
