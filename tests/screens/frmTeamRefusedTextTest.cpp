#include "AnswerDialog.h"
#include "OnTeamScreen.h"
#include "screens/platform/QtPlatform.h"
#include "session/Session.h"

#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* ThreeCharacters = "Abbreviation must be 3 characters long!";
constexpr const char* LettersOnly = "Only letters and spaces are allowed in that textbox!";
constexpr const char* LettersAndNumbersOnly = "Only numbers, letters and spaces are allowed in that textbox!";

class TeamRefusedText : public OnTeamScreen {};

TEST_F(TeamRefusedText, AnAcceptedTextThatTheRuleRefusesIsAModificationAllTheSame)
{
    Enter(Office().txtAbbre, "HC");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, ThreeCharacters}));
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
    Enter(Office().txtAbbre, "HCG");
    Enter(Office().txtFarmAbbre, "PCDX");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, ThreeCharacters}));
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Own().Farm.Abbre.Trimmed(), "PCD");
}

TEST_F(TeamRefusedText, ATextThatTheCheckRefusesIsNoModification)
{
    const frmTeam& office = Office();
    for (EditBox* box : {office.txtTeamName, office.txtFarmTeamName, office.txtAbbre, office.txtFarmAbbre,
                         office.txtCity, office.txtGm, office.txtProMorale, office.txtFarmMorale}) {
        const QString before = box->text();
        Enter(box, "_");
        EXPECT_EQ(Machine.TakeBoxes().size(), 1U) << box->objectName().toStdString();
        EXPECT_FALSE(Modified) << box->objectName().toStdString();
        EXPECT_FALSE(ListEventGuard) << box->objectName().toStdString();
        EXPECT_TRUE(box->hasFocus()) << box->objectName().toStdString();
        Enter(box, before);
        EXPECT_TRUE(Modified) << box->objectName().toStdString();
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Own().Name.Trimmed(), "Harbour City Gulls");
    EXPECT_EQ(Own().Farm.FarmMorale, 47);
}

TEST_F(TeamRefusedText, ClosingTheWindowTellsItOnceAndClosesAnyway)
{
    const std::pair<QString, const char*> refused[] = {{"HC", ThreeCharacters}, {"H1G", LettersOnly}};
    for (const auto& [text, message] : refused) {
        TypeInto(Office().txtAbbre, text);
        Office().close();
        Settle();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, message}));
        EXPECT_EQ(TeamScreen(), nullptr);
        EXPECT_TRUE(Main().isVisible());
        EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
        EXPECT_FALSE(ListEventGuard);
    }
}

// The scripted machine answers at once; the desktop's box takes the focus away and gives it back. Some window systems
// activate the window behind before the box has returned (true), some later (false); without one, the test does it.
class TeamRefusedTextOnDesktop : public TeamRefusedText, public ::testing::WithParamInterface<bool> {
protected:
    // Opens the office, lets the desktop show the boxes from now on and presses Ok in each of them.
    TeamRefusedTextOnDesktop()
    {
        Office();
        UseMachine(Desktop);
        QObject::connect(&Answering, &QTimer::timeout, &Answering, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr)
                return;
            if (const auto* shown = qobject_cast<QMessageBox*>(modal); shown != nullptr) {
                Told.push_back(shown->text().toStdString());
                dravik::Click(*shown, "cmdOk");
                if (GetParam()) {
                    TeamScreen()->activateWindow();
                    QApplication::processEvents();
                }
            } else {
                ADD_FAILURE() << "No message box.";
                modal->close();
            }
        });
        Answering.start();
    }
    ~TeamRefusedTextOnDesktop() override { UseMachine(Machine); }

    // One box with this text was shown, and `box` has the focus again. Clears what was told.
    void ExpectRefused(const EditBox* box, const char* message)
    {
        ASSERT_NE(TeamScreen(), nullptr);
        EXPECT_EQ(TeamScreen()->isActiveWindow(), GetParam());
        TeamScreen()->activateWindow();
        Settle();
        EXPECT_THAT(Told, ElementsAre(message));
        Told.clear();
        EXPECT_TRUE(box->hasFocus());
        EXPECT_FALSE(ListEventGuard);
        EXPECT_EQ(CallerScreen, "before");
        EXPECT_TRUE(TeamScreen()->isVisible());
    }

    QtPlatform Desktop;
    QTimer Answering;
    std::vector<std::string> Told;
};

TEST_P(TeamRefusedTextOnDesktop, ByTheTabKey)
{
    CallerScreen = "before";
    EditBox* box = Office().txtAbbre;
    TypeInto(box, "HC");
    for (int time = 0; time < 2; ++time) {
        Press(box, Qt::Key_Tab);
        ExpectRefused(box, ThreeCharacters);
    }
    Press(box, Qt::Key_Backtab);
    ExpectRefused(box, ThreeCharacters);
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
}

TEST_P(TeamRefusedTextOnDesktop, ByTheMouseOnACommand)
{
    CallerScreen = "before";
    EditBox* box = Office().txtTeamName;
    TypeInto(box, "Gulls_");
    for (QPushButton* command : {Office().CmdRoster, Office().cmdTicketArena, Office().cmdExit}) {
        OnStage::Click(command);
        ExpectRefused(box, LettersAndNumbersOnly);
        EXPECT_FALSE(command->isDown());
    }
    EXPECT_EQ(Own().Name.Trimmed(), "Harbour City Gulls");
}

TEST_P(TeamRefusedTextOnDesktop, ByTheMnemonicOfACommand)
{
    CallerScreen = "before";
    EditBox* box = Office().txtAbbre;
    TypeInto(box, "H1G");
    const std::pair<Qt::Key, QPushButton*> mnemonics[] = {
        {Qt::Key_R, Office().CmdRoster}, {Qt::Key_T, Office().cmdTicketArena}, {Qt::Key_X, Office().cmdExit}};
    for (const auto& [key, command] : mnemonics) {
        QEventLoop untilClicked; // the toolkit shows the command pressed for a moment
        QObject::connect(command, &QPushButton::clicked, &untilClicked, &QEventLoop::quit);
        QTest::keyClick(box, key, Qt::AltModifier);
        untilClicked.exec();
        ExpectRefused(box, LettersOnly);
    }
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
}

TEST_P(TeamRefusedTextOnDesktop, ByClosingTheWindow)
{
    TypeInto(Office().txtAbbre, "HC");
    Office().close();
    Settle();
    EXPECT_THAT(Told, ElementsAre(ThreeCharacters));
    EXPECT_EQ(TeamScreen(), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
}

// What follows a refusal that was put right is an ordinary command again.
TEST_P(TeamRefusedTextOnDesktop, ACorrectedTextIsStoredAndItsCommandRuns)
{
    CallerScreen = "before";
    EditBox* box = Office().txtAbbre;
    TypeInto(box, "HC");
    OnStage::Click(Office().cmdExit);
    ExpectRefused(box, ThreeCharacters);
    TypeInto(box, "HCX");
    OnStage::Click(Office().cmdExit);
    EXPECT_THAT(Told, IsEmpty());
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCX");
    EXPECT_EQ(TeamScreen(), nullptr);
    EXPECT_TRUE(Main().isVisible());
}

INSTANTIATE_TEST_SUITE_P(Activation, TeamRefusedTextOnDesktop, ::testing::Bool());

} // namespace
} // namespace dravik
