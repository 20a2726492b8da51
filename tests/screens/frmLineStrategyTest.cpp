#include "OnLineScreen.h"

#include <cstring>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <QWindow>
#include <utility>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Strategy points and the goalie pull.
class LineStrategy : public OnLineScreen {
protected:
    // The screen on the tab of the strategy.
    frmLine& Strategy()
    {
        frmLine& line = Line();
        line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
        Settle();
        Modified = false;
        return line;
    }

    // The middle of one of the two arrows of a scroll bar.
    static QPoint ArrowOf(QScrollBar* bar, bool up)
    {
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.subControls = QStyle::SC_All;
        option.orientation = bar->orientation();
        option.minimum = bar->minimum();
        option.maximum = bar->maximum();
        option.sliderPosition = bar->sliderPosition();
        option.sliderValue = bar->value();
        option.singleStep = bar->singleStep();
        option.pageStep = bar->pageStep();
        option.state |= QStyle::State_Horizontal;
        return bar->style()
            ->subControlRect(QStyle::CC_ScrollBar, &option,
                             up ? QStyle::SC_ScrollBarAddLine : QStyle::SC_ScrollBarSubLine, bar)
            .center();
    }
    static void ClickArrow(QScrollBar* bar, bool up)
    {
        QTest::mouseClick(bar, Qt::LeftButton, {}, ArrowOf(bar, up));
        Settle();
    }

    // What a double click is behind its first click.
    static void PressAgain(QWidget* widget, const QPoint& point)
    {
        QTest::mouseDClick(widget, Qt::LeftButton, {}, point);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, point);
        Settle();
    }

    static std::vector<std::string> Points(const LinesScreen& screen)
    {
        return {Of(screen.lblStatsPoint[0]), Of(screen.lblStatsPoint[1]), Of(screen.lblStatsPoint[2]),
                Of(screen.lblPoint)};
    }

    void Enter(EditBox* box, const QString& text)
    {
        TypeInto(box, text);
        Press(box, Qt::Key_Tab);
    }

    static std::string Of(const QLabel* label) { return OnLineScreen::Of(label); }
    static std::string Of(const QLineEdit* box) { return box->text().toStdString(); }
};

TEST_F(LineStrategy, PlacingShowsTheDaysPointsAndWhatIsLeft)
{
    ProDay().Strategy[0] = 1;
    ProDay().Strategy[2] = 3;
    const frmLine& line = Strategy();
    EXPECT_THAT(Points(line), ElementsAre("1", "0", "3", "1"));
    EXPECT_EQ(line.hscStats[0]->value(), 1);
    EXPECT_EQ(line.hscStats[2]->value(), 3);
    EXPECT_EQ(line.PointsLeft, 1);
    EXPECT_TRUE(line.StrategyReady);
}

TEST_F(LineStrategy, AnArrowGivesAPointAndDoesNotMarkTheDataAsChanged)
{
    frmLine& line = Strategy();
    ClickArrow(line.hscStats[1], true);
    ClickArrow(line.hscStats[1], true);
    ClickArrow(line.hscStats[2], true);
    EXPECT_THAT(Points(line), ElementsAre("0", "2", "1", "2"));
    ClickArrow(line.hscStats[1], false);
    EXPECT_THAT(Points(line), ElementsAre("0", "1", "1", "3"));
    EXPECT_EQ(ProDay().Strategy[1], 1);
    EXPECT_EQ(ProDay().Strategy[2], 1);
    EXPECT_EQ(FarmDay().Strategy[1], 0);
    EXPECT_FALSE(Modified);
}

TEST_F(LineStrategy, APointBeyondTheFifthFallsBack)
{
    ProDay().Strategy[0] = 2;
    ProDay().Strategy[1] = 3;
    frmLine& line = Strategy();
    for (int style = 0; style <= 2; ++style) {
        ClickArrow(line.hscStats[style], true);
        EXPECT_THAT(Points(line), ElementsAre("2", "3", "0", "0"));
        EXPECT_EQ(line.hscStats[0]->value(), 2);
        EXPECT_EQ(line.hscStats[1]->value(), 3);
        EXPECT_EQ(line.hscStats[2]->value(), 0);
    }
    EXPECT_EQ(ProDay().Strategy[0], 2);
    EXPECT_EQ(ProDay().Strategy[1], 3);
    EXPECT_EQ(ProDay().Strategy[2], 0);
}

TEST_F(LineStrategy, FivePointsMayStandInOneStyle)
{
    frmLine& line = Strategy();
    line.hscStats[0]->setValue(5);
    EXPECT_THAT(Points(line), ElementsAre("5", "0", "0", "0"));
    EXPECT_EQ(ProDay().Strategy[0], 5);
}

TEST_F(LineStrategy, ArrowKeysGivePointsToo)
{
    frmLine& line = Strategy();
    line.hscStats[2]->setFocus();
    Press(line.hscStats[2], Qt::Key_Right);
    EXPECT_EQ(ProDay().Strategy[2], 1);
    Press(line.hscStats[2], Qt::Key_Left);
    EXPECT_EQ(ProDay().Strategy[2], 0);
}

TEST_F(LineStrategy, ADayWithOtherPointsChangesNoRecordWhenItIsShown)
{
    PutGames(3);
    ProDay(1).Strategy[0] = 5;
    ProDay(2).Strategy[1] = 5;
    frmLine& line = Strategy();
    line.vscDay->setValue(2);
    EXPECT_THAT(Points(line), ElementsAre("0", "5", "0", "0"));
    EXPECT_EQ(ProDay(1).Strategy[0], 5);
    EXPECT_EQ(ProDay(2).Strategy[0], 0);
    EXPECT_EQ(ProDay(2).Strategy[1], 5);
}

TEST_F(LineStrategy, ArrowsPullAndHeadingsAreThoseOfTheShownDay)
{
    PutGames(2);
    FillDay(ProDay(2), Pro);
    const auto member = [](int day, int place) -> Player& { return Players[ProDay(day).NormalForward(1, place)]; };
    ProDay(2).NormalForward(1, 1) = ProDay(1).NormalForward(2, 1);
    for (const int place : {1, 2, 3})
        member(1, place).Stats[skater::CK] = 10;
    for (const int place : {1, 2})
        Players[ProDay(1).NormalDefense(1, place)].Stats[skater::CK] = 10;
    member(2, 1).Stats[skater::CK] = 60;
    ProDay(1).Strategy[1] = 2;
    ProDay(1).PullGoalerMinGoal = 3;
    frmLine& line = Line();
    const Lines first = ProDay(1);
    line.vscDay->setValue(2);
    ClickOn(line, line.findChild<QLabel*>("lblNormalTrio(1)"));
    EXPECT_EQ(Of(line.frmStat->lblStat[1]), "20");
    Strategy();
    ClickArrow(line.hscStats[1], true);
    EXPECT_EQ(ProDay(2).Strategy[1], 1);
    Enter(line.txtPullGoalerMinGoal, "6");
    EXPECT_EQ(ProDay(2).PullGoalerMinGoal, 6);
    EXPECT_EQ(std::memcmp(&ProDay(1), &first, sizeof first), 0);
}

TEST_F(LineStrategy, PointsThatNoScrollBarReachesAreShownAsTheyAre)
{
    ProDay().Strategy[0] = 9;
    const frmLine& line = Strategy();
    EXPECT_THAT(Points(line), ElementsAre("9", "0", "0", "-4"));
    EXPECT_EQ(ProDay().Strategy[0], 9);
}

TEST_F(LineStrategy, AnEmptyPullShowsTheLeaguesDefaultsAndStaysEmpty)
{
    LeagueData.PullGoalerMinGoalDefault = 4;
    LeagueData.PullGoalerMinPctDefault = 82;
    const frmLine& line = Strategy();
    EXPECT_EQ(Of(line.txtPullGoalerMinGoal), "4");
    EXPECT_EQ(Of(line.txtPullGoalerMinPct), "82");
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 0);
    EXPECT_EQ(ProDay().PullGoalerMinPct, 0);
}

TEST_F(LineStrategy, LeavingABoxWithTheShownDefaultStoresIt)
{
    LeagueData.PullGoalerMinGoalDefault = 4;
    LeagueData.PullGoalerMinPctDefault = 82;
    frmLine& line = Strategy();
    line.txtPullGoalerMinGoal->setFocus();
    Press(line.txtPullGoalerMinGoal, Qt::Key_Tab);
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 4);
    EXPECT_EQ(ProDay().PullGoalerMinPct, 0);
    EXPECT_TRUE(Modified);
    Press(line.txtPullGoalerMinPct, Qt::Key_Tab);
    EXPECT_EQ(ProDay().PullGoalerMinPct, 82);
}

TEST_F(LineStrategy, OwnPullValuesAreShown)
{
    LeagueData.PullGoalerMinGoalDefault = 4;
    ProDay().PullGoalerMinGoal = 2;
    ProDay().PullGoalerMinPct = -7;
    EXPECT_EQ(Of(Strategy().txtPullGoalerMinGoal), "2");
    EXPECT_EQ(Of(Strategy().txtPullGoalerMinPct), "-7");
}

TEST_F(LineStrategy, ATextIsStoredAsTheNumberAtItsHead)
{
    frmLine& line = Strategy();
    for (const auto& [typed, stored] :
         {std::pair("7", 7), std::pair("-5", -5), std::pair("5-", 5), std::pair("1-2", 1)}) {
        Modified = false;
        Enter(line.txtPullGoalerMinGoal, typed);
        EXPECT_EQ(ProDay().PullGoalerMinGoal, stored) << typed;
        EXPECT_TRUE(Modified) << typed;
    }
    Enter(line.txtPullGoalerMinPct, "85");
    EXPECT_EQ(ProDay().PullGoalerMinPct, 85);
    EXPECT_EQ(FarmDay().PullGoalerMinPct, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(LineStrategy, ARefusedTextIsToldAndKeepsTheFocus)
{
    frmLine& line = Strategy();
    const std::pair<const char*, const char*> refused[] = {{"", "No Valid Input!"},
                                                           {"-", "No Valid Input!"},
                                                           {"a12", "No Valid Input!"},
                                                           {"12a", "Only numbers are allowed in that textbox!"},
                                                           {"1.5", "Only numbers are allowed in that textbox!"}};
    for (EditBox* box : {line.txtPullGoalerMinGoal, line.txtPullGoalerMinPct}) {
        for (const auto& [typed, words] : refused) {
            Modified = false;
            Enter(box, typed);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, words})) << typed;
            EXPECT_TRUE(box->hasFocus());
            EXPECT_EQ(Of(box), typed);
            EXPECT_FALSE(Modified);
            EXPECT_FALSE(ListEventGuard);
        }
        Enter(box, "3");
    }
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 3);
}

TEST_F(LineStrategy, EventsAreHeldBackWhileTheFocusGoesBackToARefusedText)
{
    frmLine& line = Strategy();
    for (EditBox* box : {line.txtPullGoalerMinGoal, line.txtPullGoalerMinPct}) {
        TypeInto(box, "x");
        EXPECT_THAT(GuardWhileFocusGoesTo(box, [&] { Press(box, Qt::Key_Tab); }), ElementsAre(true));
        EXPECT_FALSE(ListEventGuard);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
        TypeInto(box, "1");
    }
}

TEST_F(LineStrategy, EventsAreHeldBackWhileTheFocusGoesBackToAPageThatWasLeft)
{
    frmLine& line = Strategy();
    EditBox* box = line.txtPullGoalerMinGoal;
    TypeInto(box, "x");
    const auto guards = GuardWhileFocusGoesTo(box, [&] { Press(&line, Qt::Key_N, Qt::AltModifier); });
    EXPECT_THAT(guards, ElementsAre(true));
    EXPECT_TRUE(box->hasFocus());
    EXPECT_FALSE(ListEventGuard);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
}

TEST_F(LineStrategy, ANumberBeyondSixteenBitsIsAFailureAndStoresNothing)
{
    frmLine& line = Strategy();
    Enter(line.txtPullGoalerMinGoal, "40000");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in txtPullGoalerMinGoal_LostFocus!"}));
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 0);
    EXPECT_FALSE(Modified);
}

TEST_F(LineStrategy, AfterThatFailureTheBoxShowsWhatTheRecordHolds)
{
    LeagueData.PullGoalerMinGoalDefault = 4;
    ProDay().PullGoalerMinPct = 85;
    frmLine& line = Strategy();
    Enter(line.txtPullGoalerMinGoal, "40000");
    Enter(line.txtPullGoalerMinPct, "-32769");
    EXPECT_EQ(Of(line.txtPullGoalerMinGoal), "4");
    EXPECT_EQ(Of(line.txtPullGoalerMinPct), "85");
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 0);
    EXPECT_EQ(ProDay().PullGoalerMinPct, 85);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in txtPullGoalerMinGoal_LostFocus!"},
                                             Box{16, "6 - Overflow in txtPullGoalerMinPct_LostFocus!"}));
}

// The hand lets go while it reads the box of the failure, so the release never comes to what was pressed.
TEST_F(LineStrategy, TheClickThatBroughtThatFailureUpRunsBehindIt)
{
    frmLine& line = Strategy();
    QWindow* window = line.windowHandle();
    const auto clickBehindTheBox = [&](QWidget* widget, const QPoint& point) {
        TypeInto(line.txtPullGoalerMinGoal, "40000");
        const QPoint at = widget->mapTo(&line, point);
        bool isHeld = true;
        Machine.OnEvent = [&](const std::string& event) {
            if (event == "box" && std::exchange(isHeld, false))
                QTest::mouseRelease(window, Qt::LeftButton, {}, at);
        };
        QTest::mousePress(window, Qt::LeftButton, {}, at);
        Settle();
        Machine.OnEvent = {};
        EXPECT_FALSE(isHeld);
        EXPECT_FALSE(line.txtPullGoalerMinGoal->hasFocus());
    };
    const Box failure{16, "6 - Overflow in txtPullGoalerMinGoal_LostFocus!"};
    QCheckBox* filter = line.chkPosition[position::Defense];
    clickBehindTheBox(filter, filter->rect().center());
    EXPECT_FALSE(filter->isChecked());
    EXPECT_FALSE(filter->isDown());
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(failure));

    clickBehindTheBox(line.cmdWipeLines, line.cmdWipeLines->rect().center());
    EXPECT_FALSE(line.cmdWipeLines->isDown());
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(failure, Box{36, "Are you sure you want to wipe your lines?"}));

    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    Settle();
    clickBehindTheBox(line.hscStats[0], ArrowOf(line.hscStats[0], true));
    EXPECT_EQ(ProDay().Strategy[0], 1);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(failure));
}

TEST_F(LineStrategy, NothingHappensWhileEventsAreHeldBack)
{
    frmLine& line = Strategy();
    ListEventGuard = true;
    Enter(line.txtPullGoalerMinGoal, "x");
    Enter(line.txtPullGoalerMinPct, "9");
    ListEventGuard = false;
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(ProDay().PullGoalerMinPct, 0);
}

TEST_F(LineStrategy, ADayClickedWithAGoodTextStoresItInTheDayThatWasShown)
{
    PutGames(3);
    frmLine& line = Strategy();
    TypeInto(line.txtPullGoalerMinGoal, "6");
    QTest::mouseClick(line.vscDay, Qt::LeftButton, {}, line.vscDay->CellOf(2).center());
    EXPECT_EQ(line.Day(), 2);
    EXPECT_EQ(ProDay(1).PullGoalerMinGoal, 6);
    EXPECT_EQ(ProDay(2).PullGoalerMinGoal, 0);
}

TEST_F(LineStrategy, ARefusedTextHoldsTheClickOnADayBack)
{
    PutGames(3);
    frmLine& line = Strategy();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    QTest::mouseClick(line.vscDay, Qt::LeftButton, {}, line.vscDay->CellOf(2).center());
    Settle();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(line.Day(), 1);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
}

TEST_F(LineStrategy, ARefusedTextHoldsTheArrowsOfTheScrollBarsBack)
{
    frmLine& line = Strategy();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    ClickArrow(line.hscStats[0], true);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(ProDay().Strategy[0], 0);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
    TypeInto(line.txtPullGoalerMinGoal, "2");
    ClickArrow(line.hscStats[0], true);
    EXPECT_EQ(ProDay().Strategy[0], 1);
}

TEST_F(LineStrategy, ARefusedTextHoldsTheSecondPressOfADoubleClickBackToo)
{
    PutGames(3);
    frmLine& line = Strategy();
    EditBox* box = line.txtPullGoalerMinGoal;
    const std::pair<QWidget*, QPoint> places[] = {
        {line.hscStats[0], ArrowOf(line.hscStats[0], true)},
        {line.vscDay, line.vscDay->CellOf(2).center()},
        {line.lstPlayer->viewport(), line.lstPlayer->visualItemRect(line.lstPlayer->item(2)).center()},
        {line.chkPosition[position::Defense], line.chkPosition[position::Defense]->rect().center()}};
    for (const auto& [widget, point] : places) {
        TypeInto(box, "x");
        QTest::mouseClick(widget, Qt::LeftButton, {}, point);
        PressAgain(widget, point);
        const Box refusal{48, "No Valid Input!"};
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(refusal, refusal)) // one a press
            << widget->objectName().toStdString();
        EXPECT_TRUE(box->hasFocus()) << widget->objectName().toStdString();
    }
    EXPECT_EQ(ProDay().Strategy[0], 0);
    EXPECT_EQ(line.Day(), 1);
    EXPECT_EQ(line.lstPlayer->Chosen(), nullptr);
    EXPECT_TRUE(line.chkPosition[position::Defense]->isChecked());
}

TEST_F(LineStrategy, ARefusedTextHoldsTheSecondPressOnASlotBack)
{
    frmLine& line = Line();
    Pick(line, Pro.Skaters[4], position::LeftWing);
    Strategy();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    const long long before = ProDay().NormalForward(4, 1);
    ASSERT_NE(before, Pro.Skaters[4]);
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 4, 1);
    PressAgain(label, label->rect().center());
    EXPECT_EQ(ProDay().NormalForward(4, 1), before);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
}

TEST_F(LineStrategy, BothPressesOfADoubleClickOnAnArrowGiveAPoint)
{
    frmLine& line = Strategy();
    TypeInto(line.txtPullGoalerMinGoal, "2");
    const QPoint arrow = ArrowOf(line.hscStats[0], true);
    QTest::mouseClick(line.hscStats[0], Qt::LeftButton, {}, arrow);
    PressAgain(line.hscStats[0], arrow);
    EXPECT_EQ(ProDay().Strategy[0], 2);
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 2);
}

TEST_F(LineStrategy, ARefusedTextHoldsTheClickOnATabBack)
{
    frmLine& line = Strategy();
    line.resize(1280, 800); // all tabs are seen
    Settle();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    QTabBar* bar = line.TabLine->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    Settle();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(line.TabLine->currentIndex(), line.TabLine->count() - 1);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
}

TEST_F(LineStrategy, ARefusedTextBringsItsTabBackWhenAKeyLeftIt)
{
    frmLine& line = Strategy();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    QTest::keyClick(&line, Qt::Key_N, Qt::AltModifier);
    Settle();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(line.TabLine->currentIndex(), line.TabLine->count() - 1);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
}

TEST_F(LineStrategy, ClosingWithATextStillBeingTypedStoresIt)
{
    frmLine& line = Strategy();
    TypeInto(line.txtPullGoalerMinPct, "91");
    line.close();
    Settle();
    EXPECT_EQ(ProDay().PullGoalerMinPct, 91);
}

} // namespace
} // namespace dravik
