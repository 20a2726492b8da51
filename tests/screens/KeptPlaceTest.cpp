// Where windows stand and how large they are, from one time to the next.

#include "screens/panels/KeptPlace.h"

#include "OnEveryScreen.h"
#include "screens/squad/frmSquad.h"

#include <QScreen>
#include <QSplitter>
#include <QWindow>

namespace dravik {
namespace {

using ::testing::IsEmpty;

const QList<QRect> TwoDisplays{QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
const QSize Frame(10, 30);

TEST(FittedInto, APlaceOnADisplayStays)
{
    EXPECT_EQ(FittedInto({100, 50, 640, 480}, TwoDisplays, Frame), QRect(100, 50, 640, 480));
    EXPECT_EQ(FittedInto({1500, 200, 1000, 700}, TwoDisplays, Frame), QRect(1500, 200, 1000, 700));
}

TEST(FittedInto, APlaceOffAllDisplaysComesToTheFirst)
{
    EXPECT_EQ(FittedInto({5000, 4000, 640, 480}, TwoDisplays, Frame), QRect(630, 290, 640, 480));
    EXPECT_EQ(FittedInto({-5000, -4000, 640, 480}, TwoDisplays, Frame), QRect(0, 0, 640, 480));
}

TEST(FittedInto, APlaceThatReachesOutIsMovedInOnTheDisplayThatHasMostOfIt)
{
    EXPECT_EQ(FittedInto({2900, -20, 640, 480}, TwoDisplays, Frame), QRect(2550, 0, 640, 480));
    EXPECT_EQ(FittedInto({1100, 500, 640, 480}, TwoDisplays, Frame), QRect(1280, 500, 640, 480));
}

TEST(FittedInto, ASizeThatNoDisplayHasIsCut)
{
    EXPECT_EQ(FittedInto({200, 100, 4000, 3000}, {QRect(0, 0, 1280, 800)}, Frame), QRect(0, 0, 1270, 770));
}

class KeptPlaceTest : public OnEveryScreen {
protected:
    Screen& Opened(const char* name)
    {
        MainWithLeague();
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        SelectedPlayer = 0;
        TheStage.Open(name, Main());
        EXPECT_TRUE(QTest::qWaitForWindowActive(TheStage.Find(name)));
        Settle();
        return *TheStage.Find(name);
    }
    static void Close(QWidget& window)
    {
        window.close();
        Settle();
    }
    // Moves and sizes a window as a desktop does when its frame is dragged.
    static void Drag(QWidget& window, const QRect& to)
    {
        ASSERT_NE(window.windowHandle(), nullptr);
        window.windowHandle()->setGeometry(to);
        Settle();
        ASSERT_EQ(QRect(window.pos(), window.size()), to);
    }
    [[nodiscard]] std::map<std::string, std::string> Places() const
    {
        std::map<std::string, std::string> places;
        for (const auto& [key, value] : Machine.Settings)
            if (key.starts_with("Screens/Place."))
                places.emplace(key.substr(8), value);
        return places;
    }
};

TEST_F(KeptPlaceTest, WhatNobodyMovedIsNotRemembered)
{
    for (const char* name : {"Team", "Roster", "Line", "FreeAgent", "Draft", "EditPlayer", "About"})
        Close(Opened(name));
    SelectedPlayer = 0;
    Close(Main());
    EXPECT_THAT(Places(), IsEmpty());
    Machine.ForgetBoxes("what screens tell on the way is not asked here");
}

TEST_F(KeptPlaceTest, AScreenComesBackWhereItWasLeft)
{
    const QRect place(37, 21, 1000, 700);
    for (const char* name : {"Team", "Roster", "Line", "FreeAgent", "Draft", "EditPlayer"}) {
        Screen& screen = Opened(name);
        const std::string key = "Place." + screen.objectName().toStdString();
        ASSERT_NE(QRect(screen.pos(), screen.size()), place);
        Drag(screen, place);
        EXPECT_EQ(Places().count(key), 0u) << "written while it is open";
        Close(screen);
        EXPECT_EQ(Places()[key], "37 21 1000 700") << name;
        Screen& again = Opened(name);
        EXPECT_EQ(QRect(again.pos(), again.size()), place) << name;
        Close(again);
    }
    Machine.ForgetBoxes("what screens tell on the way is not asked here");
}

TEST_F(KeptPlaceTest, AWindowThatGrowsByItselfIsNotRemembered)
{
    Screen& screen = Opened("Team");
    screen.setMinimumSize(screen.size() + QSize(20, 10));
    screen.move(screen.pos() - QPoint(8, 4));
    Settle();
    Close(screen);
    EXPECT_THAT(Places(), IsEmpty());
    Screen& again = Opened("Team");
    Drag(again, {37, 21, 1000, 700});
    again.setMinimumSize(1010, 720);
    Settle();
    Close(again);
    EXPECT_EQ(Places()["Place.frmTeam"], "37 21 1010 720") << "what the manager did before stays his";
    Machine.ForgetBoxes("what screens tell on the way is not asked here");
}

TEST_F(KeptPlaceTest, TheMainScreenStandsWhereItWasAndIsStillCentredWithoutThat)
{
    Machine.Settings["Screens/Place.frmMain"] = "50 40 1100 600";
    EXPECT_EQ(MainWithLeague().pos(), QPoint(50, 40));
    EXPECT_EQ(Main().size(), QSize(1100, 600));
    Main().CentreOnScreen(); // as the end of an opening does
    EXPECT_EQ(Main().pos(), QPoint(50, 40));
}

TEST_F(KeptPlaceTest, TheEmptyMainScreenIsNeverRemembered)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Main()));
    Drag(Main(), {3, 3, 700, 400});
    Close(Main());
    EXPECT_THAT(Places(), IsEmpty());
}

TEST_F(KeptPlaceTest, APlaceOffTheDisplayIsFittedIn)
{
    Machine.Settings["Screens/Place.frmTeam"] = "5000 -300 9000 9000";
    Screen& screen = Opened("Team");
    EXPECT_TRUE(screen.screen()->availableGeometry().contains(screen.frameGeometry()));
    EXPECT_GT(screen.width(), 1200);
    Machine.ForgetBoxes("what screens tell on the way is not asked here");
}

TEST_F(KeptPlaceTest, WordsThatAreNoPlaceAreNone)
{
    const QPoint usual = Opened("Ticket").pos();
    Close(*TheStage.Find("Ticket"));
    for (const char* words : {"", "1 2 3", "a b c d", "1 2 0 0", "1 2 -5 700", "99999999999 1 700 500", "1 2 999999 5",
                              "-2147483648 1 700 500", "1 -2147483648 700 500"}) {
        Machine.Settings["Screens/Place.frmTicket"] = words;
        EXPECT_EQ(Opened("Ticket").pos(), usual) << words;
        Close(*TheStage.Find("Ticket"));
    }
}

TEST_F(KeptPlaceTest, AMaximizedScreenComesBackMaximizedAndGoesBackToItsOwnSize)
{
    Screen& screen = Opened("Roster");
    const QRect usual(screen.pos(), screen.size());
    screen.showMaximized();
    Settle();
    Close(screen);
    EXPECT_TRUE(Places()["Place.frmRoster"].ends_with(" maximized"));
    Screen& again = Opened("Roster");
    EXPECT_TRUE(again.isMaximized());
    again.showNormal();
    Settle();
    EXPECT_EQ(again.size(), usual.size());
}

TEST_F(KeptPlaceTest, SettingsThatFailForgetAndTellNothing)
{
    Screen& screen = Opened("Team");
    Drag(screen, {37, 21, 1000, 700});
    Machine.SaveSettingFailure = 70;
    Close(screen);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    EXPECT_THAT(Places(), IsEmpty());
    Machine.SaveSettingFailure = 0;
}

TEST_F(KeptPlaceTest, WindowsBesideAScreenAreRememberedOnTheirOwn)
{
    Screen& screen = Opened("Team");
    QTest::keyClick(&screen, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    auto* graphs = screen.findChild<QWidget*>("GraphsWindow", Qt::FindDirectChildrenOnly);
    ASSERT_NE(graphs, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(graphs));
    Drag(*graphs, {11, 12, 900, 640});
    Close(screen); // which takes the window along
    EXPECT_EQ(Places()["Place.GraphsWindow"], "11 12 900 640");
    Screen& again = Opened("Team");
    QTest::keyClick(&again, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    graphs = again.findChild<QWidget*>("GraphsWindow", Qt::FindDirectChildrenOnly);
    ASSERT_NE(graphs, nullptr);
    EXPECT_EQ(QRect(graphs->pos(), graphs->size()), QRect(11, 12, 900, 640));
}

TEST_F(KeptPlaceTest, TheSquadTableKeepsItsPlaceAndItsColumnsWhereTheProgramEndsBehindIt)
{
    MainWithLeague();
    QTest::keyClick(&Main(), Qt::Key_T, Qt::ControlModifier);
    frmSquad* squad = TheStage.Squad();
    ASSERT_NE(squad, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(squad));
    Settle();
    Drag(*squad, {21, 22, 1100, 650});
    squad->tables[0]->setColumnWidth(0, 211);
    Close(Main());
    EXPECT_EQ(Places()["Place.frmSquad"], "21 22 1100 650");
    EXPECT_THAT(Machine.Settings["Screens/SquadSkaters"], ::testing::HasSubstr("=211"));
}

TEST_F(KeptPlaceTest, TheGuideKeepsItsPlaceAndTheHandleBesideItsChapters)
{
    Screen& screen = Opened("Team");
    TheStage.ShowGuide(screen);
    const auto guide = [] {
        QWidget* found = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "GuideWindow")
                found = window;
        return found;
    };
    ASSERT_NE(guide(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(guide()));
    Settle();
    Drag(*guide(), {31, 32, 900, 600});
    auto* splitter = guide()->findChild<QSplitter*>();
    ASSERT_NE(splitter, nullptr);
    const int before = splitter->sizes()[0];
    QWidget* handle = splitter->handle(1);
    const QPoint middle = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, {}, middle);
    QTest::mouseMove(handle, middle + QPoint(60, 0));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, middle + QPoint(60, 0));
    Settle();
    const QList<int> sizes = splitter->sizes();
    ASSERT_GT(sizes[0], before);
    Close(screen);
    Close(Main());
    EXPECT_EQ(Places()["Place.GuideWindow"], "31 32 900 600");
    EXPECT_EQ(Machine.Settings["Screens/Splitters.GuideWindow"],
              std::to_string(sizes[0]) + " " + std::to_string(sizes[1]));
}

TEST_F(KeptPlaceTest, HandlesStandWhereTheyWereLeft)
{
    Machine.Settings["Screens/Splitters.Window"] = "120 280";
    QWidget window;
    window.setObjectName("Window");
    auto* splitter = new QSplitter(&window);
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    splitter->setHandleWidth(4);
    splitter->resize(404, 100);
    new KeptPlace(window);
    window.resize(420, 120);
    window.show();
    EXPECT_EQ(splitter->sizes(), QList<int>({120, 280}));
    window.hide();
    EXPECT_EQ(Machine.Settings["Screens/Splitters.Window"], "120 280");
}

TEST_F(KeptPlaceTest, TheKeysStandWhereTheyWere)
{
    Screen& screen = Opened("Team");
    QTest::keyClick(&screen, Qt::Key_F1);
    auto* sheet = screen.findChild<QWidget*>("KeySheet");
    ASSERT_NE(sheet, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(sheet));
    Settle();
    Drag(*sheet, {15, 16, 500, 555});
    Close(screen);
    EXPECT_EQ(Places()["Place.KeySheet"], "15 16 500 555");
    Screen& again = Opened("Team");
    QTest::keyClick(&again, Qt::Key_F1);
    sheet = again.findChild<QWidget*>("KeySheet");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(QRect(sheet->pos(), sheet->size()), QRect(15, 16, 500, 555));
}

// Larger letters, or a value that somebody wrote: a window that needs more room than was kept is seen whole all the same.
TEST_F(KeptPlaceTest, AWindowThatNeedsMoreThanWasKeptStaysOnItsDisplay)
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    Machine.Settings["Screens/Place.frmTeam"] =
        QString("%1 %2 20 10").arg(area.right() - 40).arg(area.bottom() - 60).toStdString();
    Screen& screen = Opened("Team");
    EXPECT_TRUE(area.contains(screen.geometry()))
        << screen.x() << ' ' << screen.y() << ' ' << screen.width() << ' ' << screen.height();
    Machine.ForgetBoxes("what screens tell on the way is not asked here");
}

} // namespace
} // namespace dravik
