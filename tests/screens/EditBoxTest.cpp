#include "screens/panels/EditBox.h"
#include "screens/panels/EditArea.h"
#include "screens/platform/Palettes.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QVBoxLayout>

namespace dravik {
namespace {

// A window of two boxes of one line and an area below them.
class EditBoxTest : public ::testing::Test {
protected:
    EditBoxTest()
    {
        auto* column = new QVBoxLayout(&Window);
        for (QWidget* widget : std::initializer_list<QWidget*>{First, Second, Area})
            column->addWidget(widget);
        First->setText("109");
        Second->setText("Harbour City");
        Area->setPlainText("a word with him");
        Window.resize(160, 200);
        Window.show();
        Window.activateWindow();
        QApplication::processEvents();
    }

    static void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&widget, key, modifiers);
        QApplication::processEvents();
    }

    // What the box looks like.
    static QImage Look(EditBox& box)
    {
        QApplication::processEvents();
        return box.grab().toImage();
    }

    // The tooltip that comes up over the box, read with the eye.
    static std::string TooltipOver(EditBox& box)
    {
        QToolTip::hideText();
        QApplication::processEvents();
        QHelpEvent help(QEvent::ToolTip, box.rect().center(), box.mapToGlobal(box.rect().center()));
        QApplication::sendEvent(&box, &help);
        QTextDocument document;
        document.setHtml(QToolTip::isVisible() ? QToolTip::text() : QString());
        QToolTip::hideText();
        return document.toPlainText().replace(QChar(0x00A0), ' ').toStdString();
    }

    QWidget Window;
    EditBox* First = new EditBox(&Window);
    EditBox* Second = new EditBox(&Window);
    EditArea* Area = new EditArea(&Window);
};

TEST_F(EditBoxTest, TheFirstBoxOfAWindowOpensWithItsContentSelected)
{
    ASSERT_TRUE(First->hasFocus());
    EXPECT_EQ(First->selectedText(), "109");
    QTest::keyClicks(First, "115");
    EXPECT_EQ(First->text(), "115");
}

TEST_F(EditBoxTest, AKeyThatComesToABoxSelectsItsContent)
{
    Press(*First, Qt::Key_Tab);
    ASSERT_TRUE(Second->hasFocus());
    EXPECT_EQ(Second->selectedText(), "Harbour City");
    EXPECT_FALSE(First->hasSelectedText());
    Press(*Second, Qt::Key_Tab);
    ASSERT_TRUE(Area->hasFocus());
    EXPECT_EQ(Area->textCursor().selectedText(), "a word with him");
    Press(*Area, Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_TRUE(Second->hasFocus());
    EXPECT_EQ(Second->selectedText(), "Harbour City");
    EXPECT_FALSE(Area->textCursor().hasSelection());
}

TEST_F(EditBoxTest, FocusGivenByTheProgramSelectsTheContent)
{
    Second->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(Second->selectedText(), "Harbour City");
    Area->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(Area->textCursor().selectedText(), "a word with him");
}

TEST_F(EditBoxTest, TheFirstClickSelectsTheContentAndTheSecondPlacesTheCursor)
{
    QTest::mouseClick(Second, Qt::LeftButton);
    EXPECT_EQ(Second->selectedText(), "Harbour City");
    QTest::qWait(QApplication::doubleClickInterval() + 1);
    QTest::mouseClick(Second, Qt::LeftButton, Qt::NoModifier, QPoint(8, Second->height() / 2));
    EXPECT_FALSE(Second->hasSelectedText());
    QTest::mouseClick(Area->viewport(), Qt::LeftButton);
    EXPECT_EQ(Area->textCursor().selectedText(), "a word with him");
}

TEST_F(EditBoxTest, ASelectionDrawnByTheFirstPressStays)
{
    const int middle = Second->height() / 2;
    QTest::mousePress(Second, Qt::LeftButton, Qt::NoModifier, QPoint(6, middle));
    QTest::mouseMove(Second, QPoint(30, middle));
    QMouseEvent move(QEvent::MouseMove, QPointF(30, middle), Second->mapToGlobal(QPointF(30, middle)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Second, &move);
    QTest::mouseRelease(Second, Qt::LeftButton, Qt::NoModifier, QPoint(30, middle));
    EXPECT_TRUE(Second->hasSelectedText());
    EXPECT_LT(Second->selectedText().size(), Second->text().size());
    EXPECT_TRUE(Second->text().startsWith(Second->selectedText()));
}

TEST_F(EditBoxTest, ATextThatIsBeingTypedIsNotSelectedWhenItsWindowComesBack)
{
    QTest::keyClicks(First, "12");
    ASSERT_FALSE(First->hasSelectedText());
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(First, &out);
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(First, &in);
        EXPECT_FALSE(First->hasSelectedText()) << reason;
    }
    QTest::keyClicks(First, "3");
    EXPECT_EQ(First->text(), "123");
}

TEST_F(EditBoxTest, ARefusedTextIsSelectedAgain)
{
    QObject::connect(First, &EditBox::LostFocus, First, [this] { First->TakeFocusBack(); });
    QTest::keyClicks(First, "wrong");
    Press(*First, Qt::Key_Tab);
    ASSERT_TRUE(First->hasFocus());
    EXPECT_EQ(First->selectedText(), "wrong");
    First->deselect();
    EXPECT_FALSE(First->Settle()); // as a command by keyboard does, for which the focus stays
    EXPECT_EQ(First->selectedText(), "wrong");
}

// Two texts that differ in one place look the same where that place is out of sight.
TEST_F(EditBoxTest, AWideTextIsShownFromItsBeginningUnlessItIsBeingTyped)
{
    for (const bool isOpen : {true, false}) {
        Second->setEnabled(isOpen);
        Second->setText("A" + QString(40, 'W') + "A");
        const QImage shown = Look(*Second);
        Second->setText("A" + QString(40, 'W') + "B");
        EXPECT_EQ(Look(*Second), shown) << isOpen;
        Second->setText("B" + QString(40, 'W') + "A");
        EXPECT_NE(Look(*Second), shown) << isOpen;
    }
    Second->setEnabled(true);
    Second->setFocus();
    Second->end(false);
    const QImage typed = Look(*Second);
    Second->setText("B" + QString(40, 'W') + "B");
    EXPECT_NE(Look(*Second), typed) << "its end is in sight";
}

TEST_F(EditBoxTest, ACutTextCarriesASignAndATextThatFitsDoesNot)
{
    const int letters = 2 * Second->width() / Second->fontMetrics().horizontalAdvance('l');
    Second->setEnabled(false);
    Second->setText(QString(letters, 'l'));
    const QImage cut = Look(*Second);
    Second->setAlignment(Qt::AlignRight);
    EXPECT_EQ(Look(*Second), cut);
    // The right end of the box holds three dots near its ground, and no stroke of a letter.
    const QRect end(cut.width() / cut.devicePixelRatio() - 14, 0, 10, Second->height() / 2);
    const auto marks = [&end](const QImage& image) {
        int count = 0;
        for (int x = end.left(); x <= end.right(); ++x)
            for (int y = end.top() + 5; y <= end.bottom(); ++y)
                count += Contrast(image.pixelColor(x, y), image.pixelColor(end.left(), end.top() + 5)) > 2 ? 1 : 0;
        return count;
    };
    EXPECT_EQ(marks(cut), 0);
    Second->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Second->setText("lll");
    EXPECT_GT(marks(Look(*Second)), 0);
}

TEST_F(EditBoxTest, TheWholeOfACutTextIsToldByATooltip)
{
    Second->setText("Harbour");
    EXPECT_EQ(TooltipOver(*Second), "");
    const std::string name = "The <b>Bold</b> & Brave Switchmen of Wexcombe";
    Second->setText(QString::fromStdString(name));
    EXPECT_EQ(TooltipOver(*Second), name);
    Second->setEnabled(false);
    Second->ReadAsLabelWhenClosed();
    EXPECT_EQ(TooltipOver(*Second), name);
}

} // namespace
} // namespace dravik
