#include "screens/squad/SquadDock.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

// The squad table beside a screen.
namespace dravik {
namespace {

constexpr QRect Wide(0, 0, 2560, 1400);
constexpr QSize Least(700, 400);
constexpr QSize Best(1240, 720);

void ExpectSideBySide(const QRect& area, const SideBySide& place)
{
    EXPECT_FALSE(place.Screen.intersects(place.Beside));
    EXPECT_TRUE(area.contains(place.Screen));
    EXPECT_TRUE(area.contains(place.Beside));
}

TEST(PlaceSideBySide, StandsAtTheRightWhereThereIsRoomAndMovesNothing)
{
    const QRect screen(100, 50, 1200, 780);
    const auto place = PlaceSideBySide(Wide, screen, Least, Best);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->Screen, screen);
    EXPECT_EQ(place->Beside, QRect(1300, 50, 1240, 780));
}

TEST(PlaceSideBySide, StandsAtTheLeftOfAScreenThatStandsAtTheRight)
{
    const QRect screen(1300, 50, 1200, 780);
    const auto place = PlaceSideBySide(Wide, screen, Least, Best);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->Screen, screen);
    EXPECT_EQ(place->Beside.right() + 1, screen.left());
}

TEST(PlaceSideBySide, TheScreenMakesRoomWhereItStandsInTheMiddle)
{
    const QRect area(0, 0, 1920, 1080);
    const QRect screen(360, 150, 1200, 780);
    const auto place = PlaceSideBySide(area, screen, Least, Best);
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->Screen, QRect(20, 150, 1200, 780));
    EXPECT_EQ(place->Beside, QRect(1220, 150, 700, 780));
}

TEST(PlaceSideBySide, WhereBothHaveNoRoomNothingStandsBeside)
{
    EXPECT_EQ(PlaceSideBySide({0, 0, 1280, 800}, {20, 10, 1240, 780}, Least, Best), std::nullopt);
    EXPECT_EQ(PlaceSideBySide({0, 0, 2560, 390}, {20, 10, 1240, 380}, Least, Best), std::nullopt);
}

TEST(PlaceSideBySide, NoPlaceOfAnyScreenOverlapsOrLeavesTheDisplay)
{
    int placed = 0;
    for (const QRect area : {Wide, QRect(0, 0, 1920, 1040), QRect(-1920, 30, 1920, 1050), QRect(1280, 0, 1600, 900)})
        for (int left = area.left() - 300; left < area.right(); left += 97)
            for (int top = area.top() - 100; top < area.bottom(); top += 131)
                for (const QSize size : {QSize(400, 300), QSize(800, 700), QSize(1200, 780)})
                    if (const auto place = PlaceSideBySide(area, QRect({left, top}, size), Least, Best)) {
                        ExpectSideBySide(area, *place);
                        EXPECT_EQ(place->Screen.size(), size);
                        EXPECT_GE(place->Beside.width(), Least.width());
                        ++placed;
                    }
    EXPECT_GT(placed, 1000);
}

// With real windows, as far as the display of the tests lets two stand side by side.
class SquadDockTest : public ::testing::Test {
protected:
    SquadDockTest()
    {
        for (QWidget* window : {&Front, &Next})
            window->setGeometry(200, 60, 400, 500);
        Front.show();
        Beside.show();
        QApplication::processEvents();
    }
    void ExpectBeside(const QWidget& screen) const
    {
        const QRect area = screen.screen()->availableGeometry();
        EXPECT_FALSE(screen.frameGeometry().intersects(Beside.frameGeometry()));
        EXPECT_TRUE(area.contains(screen.geometry()));
        EXPECT_TRUE(area.contains(Beside.geometry()));
        EXPECT_TRUE(Beside.geometry().left() == screen.geometry().right() + 1 ||
                    screen.geometry().left() == Beside.geometry().right() + 1);
    }

    QWidget Front, Next, Beside;
    SquadDock Dock{&Beside};
};

TEST_F(SquadDockTest, ItFollowsTheScreenInFrontWhereverThatGoes)
{
    const QRect before = Beside.geometry();
    Dock.Follow(&Front);
    EXPECT_EQ(Beside.geometry(), before); // not docked
    Dock.SetDocked(true);
    EXPECT_TRUE(Dock.Arrange());
    ExpectBeside(Front);
    Front.move(0, 120);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Beside.geometry().left() == Front.geometry().right() + 1; }));
    EXPECT_EQ(Beside.geometry().top(), Front.geometry().top());
    Front.resize(500, 450);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Beside.geometry().left() == Front.geometry().right() + 1; }));
    ExpectBeside(Front);
    Next.show();
    Front.hide();
    Dock.Follow(&Next);
    ExpectBeside(Next);
    const QRect there = Beside.geometry();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Dock.findChild<QTimer*>()->isActive(); }));
    Front.show();
    Front.move(90, 90); // nobody follows it any more
    EXPECT_FALSE(Dock.findChild<QTimer*>()->isActive());
    EXPECT_EQ(Beside.geometry(), there);
}

TEST_F(SquadDockTest, WhereThereIsNoRoomNothingMoves)
{
    Front.resize(Front.screen()->availableGeometry().width() - 180, 500);
    QApplication::processEvents();
    const QRect front = Front.geometry();
    const QRect before = Beside.geometry();
    Dock.SetDocked(true);
    Dock.Follow(&Front);
    EXPECT_FALSE(Dock.Arrange());
    EXPECT_EQ(Front.geometry(), front);
    EXPECT_EQ(Beside.geometry(), before);
}

} // namespace
} // namespace dravik
