#include "desk/LineAdvice.h"
#include "OnHistory.h"
#include "OnLineScreen.h"
#include "screens/ElementName.h"
#include "screens/lines/AdviceList.h"
#include "screens/platform/CodePage.h"
#include "support/LeagueImage.h"

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>

namespace dravik {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

// The advice below the board of the lines screens.
class AdviceOnScreen : public OnLineScreen {
protected:
    static std::vector<LineAdvice> Given(int day = 1, Side side = Side::Pro)
    {
        return AdviceOn(OpenLeague, 5, side, day);
    }
    static std::vector<std::string> Expected(int day = 1, Side side = Side::Pro)
    {
        std::vector<std::string> words;
        for (const LineAdvice& piece : Given(day, side))
            words.push_back(WordsOf(OpenLeague, piece));
        return words;
    }

    // The commands of the pieces that a screen shows, and their words.
    static QPushButton* Command(const LinesScreen& screen, int row)
    {
        return screen.findChild<QPushButton*>(ElementName("cmdAdvice", row));
    }
    static std::vector<std::string> Told(const LinesScreen& screen)
    {
        std::vector<std::string> words;
        for (int row = 0; Command(screen, row) != nullptr; ++row)
            if (Command(screen, row)->isVisible()) {
                words.push_back(screen.findChild<QLabel*>(ElementName("lblAdvice", row))->text().toStdString());
                EXPECT_TRUE(Command(screen, row)->isEnabled());
            }
        return words;
    }
    static QLabel* Label(const LinesScreen& screen, const char* name) { return screen.findChild<QLabel*>(name); }

    // Leaves one piece of advice on day 1 of the pro lines: everybody is as good as everybody else but a backup who is fresh.
    static void LeaveOnePiece()
    {
        while (true) {
            const auto given = Given();
            if (given.empty())
                break;
            FollowAdvice(OpenWork(), 5, Side::Pro, 1, given.front());
        }
        Goalies[ProDay().StartGoalie].Condition = 96;
        Goalies[ProDay().BackupGoalie].Condition = 100;
        ASSERT_EQ(Given().size(), 1U);
    }
};

TEST_F(AdviceOnScreen, ItTellsOfTheDayAsTheDeskDoes)
{
    const auto pro = Expected();
    const auto farm = Expected(1, Side::Farm);
    ASSERT_GT(pro.size(), 3U);
    EXPECT_EQ(Told(Line()), pro);
    EXPECT_FALSE(Label(Line(), "lblNoAdvice")->isVisible());
    Click(Line().cmdExit);
    EXPECT_EQ(Told(FarmLine()), farm);
}

TEST_F(AdviceOnScreen, APressFollowsAPieceAsOneStepOfUndo)
{
    frmLine& line = Line();
    const auto before = AllTables();
    const LineAdvice piece = Given().front();
    const std::string deed = DeedOf(OpenLeague, piece);
    Click(Command(line, 0));
    EXPECT_EQ(At(ProDay(), piece.Slot), piece.Who.Slot);
    EXPECT_EQ(UndoWords(line), "Undo: " + deed + ", day 1");
    EXPECT_EQ(Told(line), Expected());
    EXPECT_THAT(Told(line), Not(::testing::Contains(WordsOf(OpenLeague, piece))));
    const auto after = AllTables();
    Undo(line);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(UndoWords(line), "");
    EXPECT_EQ(Told(line).front(), WordsOf(OpenLeague, piece));
    Redo(line);
    EXPECT_TRUE(AllTables() == after);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AdviceOnScreen, WhatAPressHasDoneIsSeenOnItsPage)
{
    frmLine& line = Line();
    const auto given = Given();
    const auto unit = std::find_if(given.begin(), given.end(),
                                   [](const LineAdvice& piece) { return piece.At.Field == LineField::PKForward; });
    ASSERT_NE(unit, given.end());
    SlotLabel* slot = SlotOn(line, LineField::PKForward, unit->At.Number, unit->At.Place);
    ASSERT_FALSE(slot->isVisible());
    QPushButton* command = Command(line, static_cast<int>(unit - given.begin()));
    line.Advice->findChild<QScrollArea*>()->ensureWidgetVisible(command);
    Click(command);
    EXPECT_TRUE(slot->isVisible());
    EXPECT_EQ(slot->text().toStdString(), Players[unit->Who.Slot].Name.Trimmed());
}

TEST_F(AdviceOnScreen, ItIsFreshBehindEveryCommand)
{
    PutGames(2);
    FillDay(ProDay(2), Pro);
    ProDay(2).PPDefense(1, 1) = Pro.Skaters[17];
    frmLine& line = Line();
    const auto first = Told(line);
    line.vscDay->setValue(2);
    Settle();
    EXPECT_EQ(Told(line), Expected(2));
    EXPECT_NE(Told(line), first);
    line.vscDay->setValue(1);
    Settle();
    EXPECT_EQ(Told(line), first);
    Pick(line, Pro.Skaters[11], position::RightWing);
    ClickOn(line, SlotOn(line, LineField::PPForward, 1, 3));
    EXPECT_EQ(Told(line), Expected());
    EXPECT_NE(Told(line), first);
    Undo(line);
    EXPECT_EQ(Told(line), first);
    const QRect room = line.Advice->geometry();
    Machine.Answer(button::Yes);
    Click(line.cmdWipeLines);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_THAT(Told(line), IsEmpty());
    EXPECT_EQ(line.Advice->geometry(), room) << "it keeps its room";
    EXPECT_TRUE(Label(line, "lblNoAdvice")->isVisible());
    EXPECT_EQ(Of(Label(line, "lblNoAdvice")), "No advice on these lines.");
}

TEST_F(AdviceOnScreen, NobodyIsAdvisedWhereOverallsAreHidden)
{
    LeagueData.ShowOverall = false;
    frmLine& line = Line();
    EXPECT_FALSE(line.Advice->isVisible());
    EXPECT_THAT(Told(line), IsEmpty());
    Pick(line, Pro.Skaters[11], position::RightWing);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 1, 1));
    EXPECT_FALSE(line.Advice->isVisible());
}

TEST_F(AdviceOnScreen, TheKeysFollowPieceByPiece)
{
    frmLine& line = Line();
    line.txtReasons->setFocus();
    Press(line.txtReasons, Qt::Key_Tab);
    ASSERT_TRUE(line.cmdFoldAdvice->hasFocus());
    Press(line.cmdFoldAdvice, Qt::Key_Tab);
    ASSERT_TRUE(Command(line, 0)->hasFocus());
    Press(Command(line, 0), Qt::Key_Tab);
    ASSERT_TRUE(Command(line, 1)->hasFocus());
    const LineAdvice second = Given()[1];
    Press(Command(line, 1), Qt::Key_Return);
    EXPECT_EQ(At(ProDay(), second.Slot), second.Who.Slot);
    EXPECT_TRUE(Command(line, 1)->hasFocus());
    const LineAdvice next = Given()[1];
    Press(Command(line, 1), Qt::Key_Space);
    EXPECT_EQ(At(ProDay(), next.Slot), next.Who.Slot);
    Press(Command(line, 1), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(Command(line, 0)->hasFocus());
    EXPECT_EQ(Told(line), Expected());
}

TEST_F(AdviceOnScreen, ADoubleClickAndAHeldKeyFollowOnePiece)
{
    frmLine& line = Line();
    const auto one = Copy(OpenLeague);
    MuteVoice mute;
    bool modified = false;
    FollowAdvice({*one, mute, Machine, modified}, 5, Side::Pro, 1, Given().front());
    const auto expected = ImageOf(one->Teams);
    QTest::mousePress(Command(line, 0), Qt::LeftButton);
    QTest::mouseRelease(Command(line, 0), Qt::LeftButton);
    QTest::mouseDClick(Command(line, 0), Qt::LeftButton);
    Settle();
    EXPECT_TRUE(ImageOf(Teams) == expected);
    Command(line, 0)->setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent repeated(type, key, Qt::NoModifier, {}, true);
            QApplication::sendEvent(Command(line, 0), &repeated);
        }
        Settle();
        EXPECT_TRUE(ImageOf(Teams) == expected) << key;
    }
}

TEST_F(AdviceOnScreen, BehindTheLastPieceTheFocusGoesBackToTheList)
{
    LeaveOnePiece();
    frmLine& line = Line();
    Pick(line, Pro.Skaters[0], position::Center);
    ASSERT_EQ(Told(line).size(), 1U);
    Command(line, 0)->setFocus();
    EXPECT_EQ(Command(line, 0)->text(), "Swap");
    Press(Command(line, 0), Qt::Key_Return);
    EXPECT_THAT(Told(line), IsEmpty());
    EXPECT_FALSE(Command(line, 0)->isEnabled());
    EXPECT_TRUE(line.lstPlayer->hasFocus());
    EXPECT_TRUE(Label(line, "lblNoAdvice")->isVisible());
}

TEST_F(AdviceOnScreen, ARefusedTextHoldsACommandBack)
{
    frmLine& line = Line();
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    Settle();
    TypeInto(line.txtPullGoalerMinGoal, "x");
    const auto before = ImageOf(ProDay());
    Click(Command(line, 0));
    EXPECT_THAT(Machine.TakeBoxes(), ::testing::ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_TRUE(ImageOf(ProDay()) == before);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
}

TEST_F(AdviceOnScreen, FoldedAwayItStaysSoOnBothScreens)
{
    frmLine& line = Line();
    const std::size_t count = Told(line).size();
    EXPECT_EQ(line.cmdFoldAdvice->text(), QString("Fold ") + QChar(0x25B4));
    Click(line.cmdFoldAdvice);
    EXPECT_THAT(Told(line), IsEmpty());
    EXPECT_EQ(line.cmdFoldAdvice->text(), QString("Unfold ") + QChar(0x25BE));
    EXPECT_EQ(Of(Label(line, "lblAdviceCount")), std::to_string(count) + " pieces");
    EXPECT_EQ(Machine.Settings, (std::map<std::string, std::string>{{"Screens/LinesAdvice", "Folded"}}));
    EXPECT_EQ(UndoWords(line), "") << "what a manager looks at is no step";
    Click(line.cmdExit);
    EXPECT_TRUE(FarmLine().Advice->IsFolded());
    EXPECT_THAT(Told(FarmLine()), IsEmpty());
    FarmLine().cmdFoldAdvice->setFocus();
    Press(FarmLine().cmdFoldAdvice, Qt::Key_Return);
    EXPECT_EQ(Told(FarmLine()), Expected(1, Side::Farm));
    EXPECT_EQ(Of(Label(FarmLine(), "lblAdviceCount")), "");
    Click(FarmLine().cmdExit);
    EXPECT_EQ(Told(Line()).size(), count);
}

TEST_F(AdviceOnScreen, SettingsThatCannotBeWrittenAreToldInTheTooltipAlone)
{
    frmLine& line = Line();
    Machine.SaveSettingFailure = 75;
    Click(line.cmdFoldAdvice);
    EXPECT_TRUE(line.Advice->IsFolded());
    EXPECT_THAT(Plain(line.cmdFoldAdvice->toolTip()), StartsWith("The settings could not be written to "));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Machine.SaveSettingFailure = 0;
    Click(line.cmdFoldAdvice);
    EXPECT_EQ(line.cmdFoldAdvice->toolTip(), "");
}

TEST_F(AdviceOnScreen, AScreenReaderIsToldWhatACommandDoesAndWhy)
{
    frmLine& line = Line();
    const auto given = Given();
    for (int row = 0; row < static_cast<int>(given.size()); ++row) {
        const LineAdvice& piece = given[static_cast<std::size_t>(row)];
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(Command(line, row));
        EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), DeedOf(OpenLeague, piece));
        EXPECT_EQ(spoken->text(QAccessible::Description).toStdString(), WordsOf(OpenLeague, piece));
        EXPECT_EQ(Plain(Command(line, row)->toolTip()), DeedOf(OpenLeague, piece));
    }
    EXPECT_EQ(line.cmdFoldAdvice->accessibleName(), "Fold Advice");
    Click(line.cmdFoldAdvice);
    EXPECT_EQ(line.cmdFoldAdvice->accessibleName(), "Unfold Advice");
}

TEST_F(AdviceOnScreen, AnAmpersandInANameIsNoKey)
{
    const LineAdvice piece = Given().front();
    Players[piece.Who.Slot].Name = "B & C";
    frmLine& line = Line();
    EXPECT_THAT(Told(line).front(), HasSubstr("B & C"));
    EXPECT_EQ(Label(line, "lblAdvice(0)")->buddy(), nullptr);
    EXPECT_THAT(Plain(Command(line, 0)->toolTip()), HasSubstr("B & C"));
}

// However much there is to say, the page of a small display does not scroll for it; the list does, within.
TEST_F(AdviceOnScreen, OnASmallDisplayItPushesNothingOut)
{
    PutGames(10);
    for (int i = 0; i < 12; ++i)
        Pro.Dresses(1, 1 + i % 4, 90);
    frmLine& line = Line();
    ASSERT_GT(Told(line).size(), 20U);
    line.resize(1280, 800);
    Settle();
    EXPECT_EQ(line.size(), QSize(1280, 800));
    for (QWidget* above = line.lstPlayer->parentWidget(); above != nullptr; above = above->parentWidget())
        if (const auto* page = qobject_cast<QScrollArea*>(above)) {
            EXPECT_EQ(page->verticalScrollBar()->maximum(), 0);
            EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
        }
    const QRect window = line.rect();
    const auto placeOf = [&](const QWidget* widget) { return QRect(widget->mapTo(&line, QPoint()), widget->size()); };
    const QRect advice = placeOf(line.Advice);
    for (const BoardSlot& slot : line.TabLine->Slots)
        if (slot.Label->isVisible()) {
            EXPECT_TRUE(window.contains(placeOf(slot.Label)) && !advice.intersects(placeOf(slot.Label)))
                << slot.Label->objectName().toStdString();
            EXPECT_GE(slot.Label->height(), slot.Label->minimumSizeHint().height());
        }
    auto* area = line.Advice->findChild<QScrollArea*>();
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    // The tab key brings the last piece into sight.
    Command(line, static_cast<int>(Told(line).size()) - 2)->setFocus();
    QPushButton* last = Command(line, static_cast<int>(Told(line).size()) - 1);
    Press(Command(line, static_cast<int>(Told(line).size()) - 2), Qt::Key_Tab);
    EXPECT_TRUE(last->hasFocus());
    EXPECT_TRUE(area->viewport()->rect().contains(QRect(last->mapTo(area->viewport(), QPoint()), last->size())));
}

} // namespace
} // namespace dravik
