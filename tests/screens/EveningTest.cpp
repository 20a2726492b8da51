#include "OnMainScreen.h"

#include "league/OutsideCode.h"
#include "screens/platform/QtPlatform.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

namespace dravik {
namespace {

// Answers the real dialogs, one after the other, as they come up.
class Hands : public QObject {
public:
    Hands() { qApp->installEventFilter(this); }

    void Next(const QString& dialog, std::function<void(QDialog&)> act) { todo.emplace_back(dialog, std::move(act)); }
    void TypePassword(const QString& password)
    {
        Next("inputBox", [password](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLabel*>("lblPrompt")->text(), "Password Required!");
            QTest::keyClicks(dialog.findChild<QLineEdit*>("txtAnswer"), password);
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        });
    }
    void Choose(const std::string& path)
    {
        Next("dlgCommon", [path](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
            dialog.accept();
        });
    }
    void Read(const QString& text)
    {
        Next("msgBox", [text](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLabel*>("qt_msgbox_label")->text(), text);
            EXPECT_EQ(dialog.windowTitle(), "Dravik Hockey Simulator Client");
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        });
    }
    [[nodiscard]] bool AreIdle() const { return todo.empty(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = qobject_cast<QDialog*>(watched);
        if (event->type() == QEvent::Show && dialog != nullptr && dialog->objectName() != "frmWait")
            QTimer::singleShot(0, dialog, [this, dialog] { Act(*dialog); });
        return false;
    }

private:
    void Act(QDialog& dialog)
    {
        if (todo.empty() || todo.front().first != dialog.objectName()) {
            ADD_FAILURE() << "Nobody expects " << dialog.objectName().toStdString();
            dialog.reject();
            return;
        }
        const auto act = std::move(todo.front().second);
        todo.pop_front();
        act(dialog);
    }

    std::deque<std::pair<QString, std::function<void(QDialog&)>>> todo;
};

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
