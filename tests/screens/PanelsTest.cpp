#include "OnStage.h"
#include "screens/panels/EditArea.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/ReasonsBox.h"
#include "screens/panels/StatPanel.h"

#include <QTextBlock>

namespace dravik {
namespace {

// Two boxes in a window that has the focus, the first one with it.
template <class Box>
class TwoBoxes : public ::testing::Test {
protected:
    TwoBoxes() : First(new Box(&Window)), Second(new Box(&Window))
    {
        First->setGeometry(10, 10, 200, 60);
        Second->setGeometry(10, 80, 200, 60);
        Window.resize(220, 160);
        Window.show();
        Window.activateWindow();
        QApplication::processEvents();
    }

    static QWidget* Ground(EditBox* box) { return box; }
    static QWidget* Ground(EditArea* area) { return area->viewport(); }
    static std::string Chosen(const EditBox* box) { return box->selectedText().toStdString(); }
    static std::string Chosen(const EditArea* area) { return area->textCursor().selectedText().toStdString(); }
    static void Put(EditBox* box, const QString& text) { box->setText(text); }
    static void Put(EditArea* area, const QString& text) { area->setPlainText(text); }

    QWidget Window;
    Box* First;
    Box* Second;
};

using BoxKinds = ::testing::Types<EditBox, EditArea>;
TYPED_TEST_SUITE(TwoBoxes, BoxKinds);

TYPED_TEST(TwoBoxes, TheContentIsChosenWhicheverWayTheFocusComes)
{
    this->Put(this->Second, "109");
    for (const auto reason : {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ActiveWindowFocusReason,
                              Qt::OtherFocusReason, Qt::ShortcutFocusReason}) {
        this->First->setFocus();
        this->Second->setFocus(reason);
        EXPECT_EQ(this->Chosen(this->Second), "109") << reason;
    }
}

TYPED_TEST(TwoBoxes, AClickChoosesTheContentAndASecondOnePutsTheCaret)
{
    this->Put(this->Second, "109");
    this->First->setFocus();
    QWidget* ground = this->Ground(this->Second);
    QTest::mouseClick(ground, Qt::LeftButton, {}, QPoint(100, 15));
    EXPECT_EQ(this->Chosen(this->Second), "109");
    QTest::qWait(0);
    QTest::mouseClick(ground, Qt::LeftButton, {}, QPoint(100, 15));
    EXPECT_EQ(this->Chosen(this->Second), "");
}

TYPED_TEST(TwoBoxes, WhatIsDraggedOverWithTheFirstPressIsWhatIsChosen)
{
    this->Put(this->Second, "109 of 999");
    this->First->setFocus();
    QWidget* ground = this->Ground(this->Second);
    QTest::mousePress(ground, Qt::LeftButton, {}, QPoint(150, 15));
    QTest::mouseMove(ground, QPoint(30, 15));
    QTest::mouseRelease(ground, Qt::LeftButton, {}, QPoint(30, 15));
    EXPECT_NE(this->Chosen(this->Second), "");
    EXPECT_NE(this->Chosen(this->Second), "109 of 999");
}

TYPED_TEST(TwoBoxes, ATextThatIsBeingTypedKeepsItsCaretBehindAWindowInFront)
{
    this->Put(this->Second, "10");
    this->First->setFocus();
    this->Second->setFocus();
    QTest::keyClicks(this->Second, "115");
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(this->Second, &away);
    QApplication::sendEvent(this->Second, &back);
    EXPECT_EQ(this->Chosen(this->Second), "");
}

class PanelsTest : public OnStage {};

TEST_F(PanelsTest, ReasonsShowThreeWholeLinesAndNothingOfAFourth)
{
    ReasonsBox reasons("this roster");
    reasons.resize(400, reasons.height());
    const auto picture = [&](const QString& words) {
        reasons.Tell(words);
        reasons.show();
        Settle();
        return reasons.viewport()->grab().toImage();
    };
    const QString three = "Mg\nMg\nMg";
    picture(three + "\n\n"); // the scroll bar is there in both pictures
    EXPECT_EQ(picture(three + "\n\xC3\x81g\xC3\x81g"), picture(three + "\n\n"));
    EXPECT_NE(picture("Mg\nMg\nQg\nMg"), picture(three + "\n\n"));
    reasons.Tell(three);
    const QRectF last = reasons.document()->documentLayout()->blockBoundingRect(reasons.document()->lastBlock());
    EXPECT_GE(reasons.viewport()->height(), last.bottom());
}

TEST_F(PanelsTest, AnEmptyStatPanelSaysWhatToDoUntilSomebodyIsShown)
{
    StatPanel panel;
    panel.SetHint("Pick a player");
    panel.show();
    auto* hint = panel.findChild<QLabel*>("lblStatHint");
    ASSERT_NE(hint, nullptr);
    EXPECT_EQ(hint->text(), "Pick a player");
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(panel.sizeHint().height(), StatPanel().sizeHint().height());
    panel.ShowPosition("C");
    EXPECT_FALSE(hint->isVisible());
    panel.HideRows();
    EXPECT_TRUE(hint->isVisible());
    panel.ShowRow(1, {"SK", 78});
    EXPECT_FALSE(hint->isVisible());
    panel.HideRatings();
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(PanelsTest, TheScreensWithRatingsSayWhatToDoBeforeAnybodyIsPicked)
{
    CompleteTeam(5);
    for (const auto& [name, words] :
         {std::pair("Line", "Pick a player, then a slot"), std::pair("FarmLine", "Pick a player, then a slot"),
          std::pair("Roster", "Pick a player to see his ratings")}) {
        CallerScreen = "Main";
        MainWithLeague();
        CurrentTeam = 5;
        TheStage.Open(name, Main());
        Settle();
        const auto* hint = TheStage.Find(name)->findChild<QLabel*>("lblStatHint");
        ASSERT_NE(hint, nullptr) << name;
        EXPECT_TRUE(hint->isVisible()) << name;
        EXPECT_EQ(hint->text(), words) << name;
        TheStage.Find(name)->close();
        Settle();
    }
}

} // namespace
} // namespace dravik
