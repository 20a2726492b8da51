#include "OnMainScreen.h"
#include "screens/main/RecentLeagues.h"
#include "screens/main/SampleOffer.h"
#include "screens/platform/ChosenLook.h"
#include "screens/platform/Palettes.h"
#include "screens/Remembered.h"
#include "support/Routines.h"

#include <filesystem>
#include <fstream>
#include <QDragEnterEvent>
#include <QMimeData>

// The comfort of the main screen: a first start, files and the team of last time, a dropped file, and the looks.
namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class MainComfort : public OnMainScreen {
protected:
    ~MainComfort() override
    {
        OfferSampleLeague({});
        ChooseTextSize(100);
        ChooseLook(LookChoice::Desktop);
    }

    std::vector<std::string> Recent()
    {
        emit Main().mnuFile->aboutToShow();
        std::vector<std::string> paths;
        for (const QAction* item : Main().mnuRecent->actions())
            paths.push_back(item->data().toString().toStdString());
        return paths;
    }
    void OpenByDialog(const std::string& path)
    {
        Machine.Choose(path);
        Main().mnuOpen->trigger();
        Settle();
    }
    bool Drop(const QList<QUrl>& urls)
    {
        QMimeData brought;
        brought.setUrls(urls);
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &brought, Qt::LeftButton, {});
        QApplication::sendEvent(&Main(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &brought, Qt::LeftButton, {});
        QApplication::sendEvent(&Main(), &drop);
        Settle();
        return drop.isAccepted();
    }
    std::vector<std::string> QuietWords()
    {
        std::vector<std::string> words;
        for (const auto* label : Main().findChild<QWidget*>("quietLines")->findChildren<QLabel*>())
            if (label->isVisible())
                words.push_back(label->text().toStdString());
        return words;
    }
    QWidget* Control(const char* name) { return Main().findChild<QWidget*>(name); }
};

TEST_F(MainComfort, AnEmptyMainScreenSaysWhatToDo)
{
    OfferSampleLeague({.Path = Machine.InFolder("Sample.dvs"), .Passwords = {}, .Make = [](const std::string&) {}});
    Main();
    EXPECT_TRUE(Control("lblFirstStart")->isVisible());
    EXPECT_TRUE(Control("cmdSample")->isVisible());
    EXPECT_TRUE(Control("lblSample")->isVisible());
    EXPECT_FALSE(Control("cmdContinue")->isVisible());
    EXPECT_THAT(Recent(), IsEmpty());
    EXPECT_FALSE(Main().mnuRecent->isEnabled());
}

TEST_F(MainComfort, TheSampleLeagueIsMadeOnceAndOpened)
{
    PutTeam(1, 1);
    const std::string made = SaveLeague("Made.dvs");
    EmptyLeagueTables(OpenLeague);
    const std::string path = Machine.InFolder("Sample.dvs");
    int times = 0;
    OfferSampleLeague({.Path = path, .Passwords = {{1, "puck"}}, .Make = [&](const std::string& file) {
                           ++times;
                           EXPECT_EQ(file, path);
                           std::filesystem::copy_file(made, file);
                       }});
    Main();
    QTest::mouseClick(Control("cmdSample"), Qt::LeftButton);
    Settle();
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    EXPECT_EQ(Listed(1).size(), 1U);
    EXPECT_FALSE(Control("cmdSample")->isVisible());
    EXPECT_FALSE(Control("lblFirstStart")->isVisible());
    const std::string told = "Teams of the sample league with a password: " + Teams[1].Name.Trimmed() + " \"puck\".";
    EXPECT_THAT(QuietWords(), Contains(told));
    Main().cmdSample_Click();
    EXPECT_EQ(times, 1);
    EXPECT_THAT(QuietWords(), Contains(told));
    OpenByDialog(made);
    EXPECT_THAT(QuietWords(), Not(Contains(told)));
    EXPECT_THAT(Recent(), ElementsAre(made, path));
}

TEST_F(MainComfort, RecentHoldsTenTheNewestFirstAndLosesThoseThatAreGone)
{
    PutTeam(1, 1);
    std::vector<std::string> paths;
    for (int number = 0; number < 12; ++number)
        paths.push_back(SaveLeague("League" + std::to_string(number) + ".dvs"));
    Main();
    for (const std::string& path : paths)
        OpenByDialog(path);
    std::vector<std::string> expected(paths.rbegin(), paths.rbegin() + 10);
    EXPECT_EQ(Recent(), expected);
    std::filesystem::remove(paths[5]);
    std::erase(expected, paths[5]);
    EXPECT_EQ(Recent(), expected);
    // One of them, opened by its item, comes first.
    Main().mnuRecent->actions().at(3)->trigger();
    Settle();
    EXPECT_EQ(Recent().front(), expected[3]);
    EXPECT_THAT(Recent(), SizeIs(9));
    EXPECT_EQ(Machine.Settings["LastLoadLeague"], expected[3]);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(MainComfort, AFileThatDoesNotOpenIsNotRemembered)
{
    PutTeam(1, 1);
    const std::string good = SaveLeague();
    const std::string bad = Machine.InFolder("Bad.dvs");
    std::ofstream(bad) << "no league";
    Main();
    OpenByDialog(good);
    OpenByDialog(bad);
    EXPECT_THAT(Machine.TakeBoxes(), SizeIs(1));
    EXPECT_THAT(Recent(), ElementsAre(good));
}

TEST_F(MainComfort, AClientFileThatIsDroppedOpensAndNothingElseDoes)
{
    PutTeam(1, 1);
    const QString path = QString::fromStdString(SaveLeague("Dropped.DVS"));
    const QUrl file = QUrl::fromLocalFile(path);
    Main();
    EXPECT_FALSE(Drop({}));
    EXPECT_FALSE(Drop({QUrl("https://example.org/League.dvs")}));
    EXPECT_FALSE(Drop({QUrl::fromLocalFile(path + ".txt")}));
    EXPECT_FALSE(Drop({file, file}));
    EXPECT_TRUE(Listed(1).empty());
    EXPECT_TRUE(Drop({file}));
    EXPECT_EQ(Listed(1).size(), 1U);
    EXPECT_THAT(Recent(), ElementsAre(path.toStdString()));
}

TEST_F(MainComfort, TheTeamOfLastTimeIsOfferedAndItsPasswordStillAsked)
{
    // The digest of "a".
    PutTeam(3, 2).Password = "0Cc175b9c0f1b6a831c399e269772661";
    Teams[3].Name = "Salt & Pepper";
    PutTeam(1, 1);
    const std::string path = SaveLeague();
    Main();
    OpenByDialog(path);
    EXPECT_FALSE(Control("cmdContinue")->isVisible());
    ClickEntry(2, 0);
    Machine.Type("a");
    Main().mnuViewTeam->trigger();
    Settle();
    ASSERT_NE(TheStage.Find("Team"), nullptr);
    TheStage.Find("Team")->close();
    Settle();
    EXPECT_FALSE(Control("cmdContinue")->isVisible()) << "a team is chosen";
    OpenByDialog(path);
    CurrentTeam = 0;
    Main().FormActivate();
    ASSERT_TRUE(Control("cmdContinue")->isVisible());
    EXPECT_EQ(static_cast<QPushButton*>(Control("cmdContinue"))->text(), "Continue with Salt && Pepper");
    Machine.Type("wrong");
    QTest::mouseClick(Control("cmdContinue"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(CurrentTeam, 3);
    EXPECT_THAT(Machine.TakeBoxes(), SizeIs(1));
    EXPECT_EQ(TheStage.Find("Team"), nullptr);
    // Another league has another one.
    const std::string other = SaveLeague("Other.dvs");
    CurrentTeam = 0;
    OpenByDialog(other);
    CurrentTeam = 0;
    Main().FormActivate();
    EXPECT_FALSE(Control("cmdContinue")->isVisible());
}

TEST_F(MainComfort, LookAndTextSizeAreChosenAtOnceAndRemembered)
{
    Main();
    const double usual = QApplication::font().pointSizeF();
    Main().findChild<QAction*>("mnuLookDark")->trigger();
    EXPECT_TRUE(IsDark(QApplication::palette()));
    EXPECT_EQ(Remembered("Look"), "Dark");
    Main().findChild<QAction*>("mnuLookLight")->trigger();
    EXPECT_FALSE(IsDark(QApplication::palette()));
    EXPECT_EQ(ChosenLook(), LookChoice::Light);
    auto* title = Main().findChild<QLabel*>("lblTitle");
    const double titleSize = title->font().pointSizeF();
    Main().findChild<QAction*>("mnuTextSize150")->trigger();
    Settle();
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual * 1.5);
    EXPECT_DOUBLE_EQ(Main().mnuFile->font().pointSizeF(), usual * 1.5);
    EXPECT_GT(title->font().pointSizeF(), titleSize);
    EXPECT_EQ(Remembered("TextSize"), "150");
    Main().findChild<QAction*>("mnuTextSize100")->trigger();
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual);
}

TEST_F(MainComfort, WhatWasChosenLastTimeHoldsFromTheStart)
{
    const double usual = QApplication::font().pointSizeF();
    Remember("Look", "Dark");
    Remember("TextSize", "125");
    Main();
    EXPECT_TRUE(IsDark(QApplication::palette()));
    EXPECT_TRUE(Main().findChild<QAction*>("mnuLookDark")->isChecked());
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual * 1.25);
    EXPECT_TRUE(Main().findChild<QAction*>("mnuTextSize125")->isChecked());
}

TEST_F(MainComfort, WordsThatNobodyWroteChooseNothing)
{
    const double usual = QApplication::font().pointSizeF();
    Remember("Look", "Purple");
    Remember("TextSize", "4000");
    Remember("RecentLeagues", "\n\nno such file\n");
    Remember("LastTeam", "17");
    Main();
    EXPECT_TRUE(Main().findChild<QAction*>("mnuLookDesktop")->isChecked());
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), usual);
    EXPECT_THAT(Recent(), IsEmpty());
}

} // namespace
} // namespace dravik
